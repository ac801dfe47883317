#include "state/AppState.h"

#include "colour/ColorNames.h"
#include "platform/Chance.h"
#include "platform/Services.h"
#include "state/AppUndo.h"
#include "state/NoticeTexts.h"
#include "state/SwatchName.h"
#include "state/UpdateGroup.h"

#include <algorithm>
#include <set>
#include <utility>

namespace tintra {
namespace {

Quote anyQuote(Chance& chance) {
    const auto quotes = Quote::all();
    return quotes[chance.below(quotes.size())];
}

} // namespace

std::string freeUntitledName(std::span<const std::string> taken) {
    const std::set<std::string_view> names(taken.begin(), taken.end());
    std::string candidate = "Untitled Palette";
    for (std::size_t n = 2; names.contains(candidate); ++n)
        candidate = "Untitled Palette " + std::to_string(n);
    return candidate;
}

AppState::AppState(Uuid id, bool isPrimary, AppContext context)
    : id_(id), isPrimary_(isPrimary), context_(context),
      locations_(context.services, context.preferences, place()),
      untitledName_(freeUntitledName(context.windows.untitledNames(id))),
      quote_(anyQuote(context.services.chance)), seeds_(defaultSeeds()) {
    subscribe();
}

// What it holds

std::vector<WashColor> AppState::colors() const {
    std::vector<WashColor> colors;
    colors.reserve(swatches().size());
    for (const auto& swatch : swatches())
        colors.push_back(swatch.color);
    return colors;
}

std::vector<std::optional<std::string>> AppState::names() const {
    std::vector<std::optional<std::string>> names;
    names.reserve(swatches().size());
    for (const auto& swatch : swatches())
        names.push_back(swatch.name);
    return names;
}

std::optional<std::string> AppState::currentPaletteName() const {
    const auto& attached = attachment_.value();
    return attached ? std::optional(attached->name) : std::nullopt;
}

std::optional<std::filesystem::path> AppState::currentPaletteURL() const {
    const auto& attached = attachment_.value();
    return attached && !attached->url.empty() ? std::optional(attached->url) : std::nullopt;
}

std::string AppState::title() const {
    return currentPaletteName().value_or(untitledName_);
}

std::optional<std::size_t> AppState::indexOf(const Uuid& swatch) const {
    const auto found = std::ranges::find(swatches(), swatch, &PaletteSwatch::id);
    if (found == swatches().end()) return std::nullopt;
    return static_cast<std::size_t>(found - swatches().begin());
}

std::string AppState::swatchName(std::size_t at) const {
    const auto& swatch = swatches().at(at);
    return swatch.name ? *swatch.name : ColorNames::shared().name(swatch.color);
}

PaletteContent AppState::content() const {
    return {swatches(), attachment_.value(), dirty_.value(), saves_, loadedVersion_};
}

// Changes of the palette

PaletteSwatch AppState::freshSwatch(const WashColor& colour,
                                    std::optional<std::string> name) const {
    return {context_.services.chance.uuid(), colour, name ? swatchNameFrom(*name) : std::nullopt};
}

void AppState::setSwatches(std::vector<PaletteSwatch> swatches) {
    const UpdateGroup group;
    const auto before = palette_.value();
    palette_.setValue(std::move(swatches));
    paletteVersion_ = paletteVersion_.value() + 1;
    followSwatches(before);
}

void AppState::followSwatches(const std::vector<PaletteSwatch>& before) {
    const auto now = [&](const std::optional<std::size_t>& at) -> std::optional<std::size_t> {
        return at && *at < before.size() ? indexOf(before[*at].id) : std::nullopt;
    };
    for (auto* const index : {&revealSwatch, &renamingSwatch, &draggingSwatch})
        *index = now(index->value());
    if (const auto at = selectedSwatch.value()) {
        // The selection passes on to the swatch that takes the place of one that is gone.
        const auto there = now(at);
        if (there || swatches().empty())
            selectedSwatch = there;
        else
            selectedSwatch = std::min(*at, swatches().size() - 1);
    }
    followInEditor(before);
}

void AppState::followInEditor(const std::vector<PaletteSwatch>& before) {
    auto buffer = editorBuffer.value();
    if (!buffer) return;
    const auto at = indexOf(buffer->swatchID);
    if (!at) {
        // The editor goes on with the swatch that takes the place of the one that is gone, unless
        // all of them are others.
        const bool goesOn = std::ranges::any_of(
            before, [this](const PaletteSwatch& one) { return indexOf(one.id).has_value(); });
        const auto next = goesOn ? selectedSwatch.value() : std::nullopt;
        editorBuffer =
            next ? std::optional(EditorBuffer{swatches()[*next].id, swatches()[*next].color})
                 : std::nullopt;
        return;
    }
    // An edit that has begun stays; an untouched editor shows the swatch as it is.
    const auto was = std::ranges::find(before, buffer->swatchID, &PaletteSwatch::id);
    if (was == before.end() || was->color != buffer->color) return;
    buffer->color = swatches()[*at].color;
    editorBuffer = buffer;
}

void AppState::select(std::size_t index) {
    const UpdateGroup group;
    selectedSwatch = index;
    revealSwatch = index;
}

void AppState::checkpointPalette(std::string_view coalescing) {
    context_.undo.checkpointPalette(id_, content(), std::string(coalescing));
}

void AppState::markPaletteChanged() {
    const UpdateGroup group;
    dirty_ = true;
    announcePalette();
}

void AppState::announcePalette() {
    paletteJustChanged = true;
    persist();
    context_.windows.paletteChanged(*this);
}

void AppState::changePalette(std::vector<PaletteSwatch> to, std::optional<std::size_t> selecting,
                             std::string_view coalescing) {
    checkpointPalette(coalescing);
    const UpdateGroup group;
    setSwatches(std::move(to));
    if (selecting) select(*selecting);
    markPaletteChanged();
}

// Undo

PaletteContent AppState::exchangePalette(PaletteContent other) {
    const UpdateGroup group;
    auto before = content();
    setSwatches(std::move(other.swatches));
    if (other.attachment != before.attachment) {
        attachment_.setValue(std::move(other.attachment));
        loadedVersion_ = other.loadedVersion;
    }
    // What was clean is no longer what the file holds once something else was saved.
    dirty_ = other.dirty || other.saves != saves_;
    announcePalette();
    return before;
}

Seeds AppState::exchangeSeeds(Seeds other) {
    const auto before = seeds_.value();
    seeds_ = other;
    persist();
    return before;
}

void AppState::exchangeMove(std::size_t from, std::size_t to) {
    auto moved = swatches();
    if (from >= moved.size() || to >= moved.size() || from == to) return;
    const UpdateGroup group;
    const auto swatch = moved[from];
    moved.erase(moved.begin() + static_cast<std::ptrdiff_t>(from));
    moved.insert(moved.begin() + static_cast<std::ptrdiff_t>(to), swatch);
    setSwatches(std::move(moved));
    markPaletteChanged();
}

// Notices

void AppState::toast(std::string text, double seconds) const {
    toast(std::move(text), seconds, place());
}

void AppState::toast(std::string text, double seconds, ToastPlace where,
                     std::optional<ToastAction> action) const {
    if (restoring_) return;
    context_.services.toasts.show(std::move(text), seconds, std::move(action), where);
}

} // namespace tintra
