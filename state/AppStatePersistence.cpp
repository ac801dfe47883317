#include "platform/DefaultsStore.h"
#include "platform/Log.h"
#include "platform/Services.h"
#include "state/AppState.h"
#include "state/Codec.h"
#include "state/LateCapture.h"
#include "state/UpdateGroup.h"
#include "state/Workspaces.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace tintra {

namespace {

/// Says that a record is being applied, also when applying ends early.
class Restoring {
public:
    explicit Restoring(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
    ~Restoring() { flag_ = before_; }
    Restoring(const Restoring&) = delete;
    Restoring& operator=(const Restoring&) = delete;

private:
    bool& flag_;
    bool before_;
};

/// The texts of a palette's names in a record: empty for none.
std::vector<std::string> storedNames(const std::vector<std::optional<std::string>>& names) {
    std::vector<std::string> stored;
    stored.reserve(names.size());
    for (const auto& name : names)
        stored.push_back(name.value_or(""));
    return stored;
}

} // namespace

/// The persisted fields: how each goes into the record and comes back, and the property that tells
/// of its change.
struct AppState::Persisted {
    enum class Part {
        content, ///< the palette and the seeds
        rest,
    };
    struct Field {
        Part part;
        void (*store)(const AppState&, Stored&);
        void (*apply)(AppState&, const Stored&);
        QPropertyNotifier (*watch)(AppState&);
    };

    /// Tells of changes of one property.
    template <auto Member>
    static QPropertyNotifier watched(AppState& state) {
        return (state.*Member).addNotifier([&state] { state.persist(); });
    }
    /// A property that stands in the record as it is.
    template <auto Member, auto Key>
    static constexpr Field plain(Part part) {
        return {part, [](const AppState& state, Stored& to) { to.*Key = (state.*Member).value(); },
                [](AppState& state, const Stored& from) { (state.*Member).setValue(from.*Key); },
                &watched<Member>};
    }

    static void storeSeeds(const AppState& state, Stored& to) {
        to.first = state.first();
        to.last = state.last();
    }
    static void applySeeds(AppState& state, const Stored& from) {
        state.seeds_.setValue(storedSeeds(from.first, from.last));
    }
    static void storePalette(const AppState& state, Stored& to) {
        to.customPalette = state.colors();
        to.customPaletteNames = storedNames(state.names());
        to.id = state.id();
        to.swatchIDs.emplace();
        to.swatchIDs->reserve(state.swatches().size());
        for (const auto& swatch : state.swatches())
            to.swatchIDs->push_back(swatch.id);
    }
    static void applyPalette(AppState& state, const Stored& from);
    static void storeAttachment(const AppState& state, Stored& to) {
        to.currentPaletteName = state.currentPaletteName();
        if (const auto file = state.currentPaletteURL()) to.currentPalettePath = file->string();
        to.fileStamp = state.loadedVersion_.stamp;
    }
    static void applyAttachment(AppState& state, const Stored& from);
    static void storeSelection(const AppState& state, Stored& to) {
        to.selectedSwatch = state.selectedSwatch.value();
    }
    static void applySelection(AppState& state, const Stored& from) {
        const auto at = from.selectedSwatch;
        const bool stands = at && *at < state.swatches().size();
        state.selectedSwatch.setValue(stands ? at : std::nullopt);
    }
    static void storeFrame(const AppState& state, Stored& to) { to.frame = state.frame.value(); }
    static void applyFrame(AppState& state, const Stored& from) {
        state.frame.setValue(from.frame);
        state.pendingFrame.setValue(from.frame);
    }

    static const std::array<Field, 13> kFields;
};

void AppState::Persisted::applyPalette(AppState& state, const Stored& from) {
    std::vector<PaletteSwatch> swatches;
    swatches.reserve(from.customPalette.size());
    std::set<Uuid> taken{Uuid{}};
    for (std::size_t i = 0; i < from.customPalette.size(); ++i) {
        const auto& names = from.customPaletteNames;
        auto name = i < names.size() ? std::optional(names[i]) : std::nullopt;
        swatches.push_back(state.freshSwatch(from.customPalette[i], std::move(name)));
        // A record that gives one identifier twice would join two swatches.
        const auto& ids = from.swatchIDs;
        if (ids && i < ids->size() && taken.insert((*ids)[i]).second)
            swatches.back().id = (*ids)[i];
    }
    state.setSwatches(std::move(swatches));
}

void AppState::Persisted::applyAttachment(AppState& state, const Stored& from) {
    std::optional<PaletteAttachment> attached;
    if (from.currentPaletteName)
        attached = {*from.currentPaletteName, from.currentPalettePath.value_or("")};
    state.loadedVersion_ = attached && !attached->url.empty()
                               ? state.context_.windows.version(attached->url)
                               : FileVersion{};
    // What another program did to the file meanwhile is asked about when it is saved.
    if (from.fileStamp && state.loadedVersion_.stamp) state.loadedVersion_.stamp = from.fileStamp;
    state.attachment_.setValue(std::move(attached));
}

const std::array<AppState::Persisted::Field, 13> AppState::Persisted::kFields{
    Field{Part::content, storeSeeds, applySeeds, watched<&AppState::seeds_>},
    plain<&AppState::steps, &Stored::stepCount>(Part::rest),
    plain<&AppState::blendSpace, &Stored::blendSpace>(Part::rest),
    plain<&AppState::mode, &Stored::mode>(Part::rest),
    plain<&AppState::shadesPerAnchor, &Stored::shadesPerAnchor>(Part::rest),
    Field{Part::content, storePalette, applyPalette, watched<&AppState::palette_>},
    plain<&AppState::dirty_, &Stored::paletteIsDirty>(Part::content),
    Field{Part::content, storeAttachment, applyAttachment, watched<&AppState::attachment_>},
    plain<&AppState::isCollapsed, &Stored::isCollapsed>(Part::rest),
    Field{Part::rest, storeFrame, applyFrame, watched<&AppState::frame>},
    plain<&AppState::modeSizes, &Stored::modeSizes>(Part::rest),
    plain<&AppState::compactOrientation, &Stored::compactOrientation>(Part::rest),
    // After the palette, in which it is a place.
    Field{Part::content, storeSelection, applySelection, watched<&AppState::selectedSwatch>},
};

AppState::~AppState() = default;

void AppState::subscribe() {
    for (const auto& field : Persisted::kFields)
        subscriptions_.push_back(field.watch(*this));
}

AppState::Stored AppState::currentStored() const {
    Stored stored;
    for (const auto& field : Persisted::kFields)
        field.store(*this, stored);
    return stored;
}

void AppState::applyStored(const Stored& stored, bool includeContent) {
    const Restoring restoring(restoring_);
    // Told of before `restoring` ends: a record that is applied is not to be written again.
    const UpdateGroup group;
    if (includeContent) {
        ++loadTurn_;
        ++contentTurn_;
    }
    for (const auto& field : Persisted::kFields)
        if (includeContent || field.part == Persisted::Part::rest) field.apply(*this, stored);
}

void AppState::persist() {
    // What waits is not put off: a steady stream of changes would never be written.
    if (restoring_ || persistWorkItem_) return;
    persistWorkItem_ = context_.services.mainLoop.after(kSavingDelay, [this] { persistNow(); });
}

void AppState::persistNow() {
    // The task that runs this ends with its handle, so the handle stays until it has run.
    const auto running = std::move(persistWorkItem_);
    context_.windows.write(*this);
}

void AppState::flushPersist() {
    if (persistWorkItem_) persistNow();
}

void AppState::restore() {
    auto& services = context_.services;
    const auto record = services.defaults.data(Workspaces::kPrimaryKey);
    if (!record) return;
    if (const auto stored = decodedWorkspace(*record)) {
        apply(*stored);
        return;
    }
    const std::string_view why =
        parsedJson(*record) ? "it is no record of a workspace" : "it is no JSON";
    services.log.line("Tintra: could not decode the saved workspace: " + std::string(why));
    services.defaults.setAside(Workspaces::kPrimaryKey);
}

} // namespace tintra
