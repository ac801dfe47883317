#include "state/ContrastBoard.h"

#include "colour/Clamp.h"
#include "colour/ColorNames.h"
#include "platform/Chance.h"
#include "platform/Dialogues.h"
#include "platform/Services.h"
#include "state/NoticeTexts.h"
#include "state/SwatchIdentity.h"
#include "state/SwatchName.h"
#include "state/UpdateGroup.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tintra {

namespace {

using Entry = ContrastBoard::Entry;

constexpr ToastPlace kPlace{ToastWindow::contrast, {}};

const Entry* entryIn(const std::vector<Entry>& entries, const Uuid& id) {
    const auto found = std::ranges::find(entries, id, &Entry::id);
    return found == entries.end() ? nullptr : &*found;
}

const Entry* entryOf(const std::vector<Entry>& entries, const WashColor& color) {
    const auto wanted = identityNumber(color);
    const auto found = std::ranges::find_if(
        entries, [&](const Entry& entry) { return identityNumber(entry.color) == wanted; });
    return found == entries.end() ? nullptr : &*found;
}

/// The colour as the record can hold it and every measure reads it: finite, of an alpha 0...1.
WashColor measurable(const WashColor& color) {
    const auto finite = [](double v) { return std::isfinite(v) ? v : clampedUnit(v); };
    return {finite(color.r), finite(color.g), finite(color.b), clampedUnit(color.a)};
}

std::optional<std::string> entryName(std::optional<std::string> name) {
    if (name) name = swatchNameFrom(*name);
    return name;
}

/// Roles and arrivals for the entries that are there, and no other.
void settle(ContrastBoard::Content& content) {
    const auto isGone = [&](const Uuid& id) { return entryIn(content.entries, id) == nullptr; };
    for (auto* role : {&content.textID, &content.groundID})
        if (*role && isGone(**role)) role->reset();
    std::erase_if(content.arrivals, isGone);
    for (const auto& entry : content.entries)
        if (std::ranges::find(content.arrivals, entry.id) == content.arrivals.end())
            content.arrivals.push_back(entry.id);
}

} // namespace

ContrastBoard::ContrastBoard(Services& services, const OpenPalettes& palettes)
    : services_(services), palettes_(palettes) {}

// What it holds

std::set<std::string> ContrastBoard::heldHexes() const {
    std::set<std::string> hexes;
    for (const auto& entry : entries())
        hexes.insert(entry.color.identity().substr(0, 6));
    return hexes;
}

const Entry* ContrastBoard::held(const WashColor& color) const {
    return entryOf(entries(), color);
}

const Entry* ContrastBoard::entry(const Uuid& id) const {
    return entryIn(entries(), id);
}

const Entry* ContrastBoard::text() const {
    const auto id = textID();
    return id ? entry(*id) : nullptr;
}

const Entry* ContrastBoard::ground() const {
    const auto id = groundID();
    return id ? entry(*id) : nullptr;
}

std::span<const Entry> ContrastBoard::matrixEntries() const {
    return std::span(entries()).first(std::min(entries().size(), kMatrixSize));
}

std::string ContrastBoard::name(const Entry& entry) const {
    return entry.givenName ? *entry.givenName : ColorNames::shared().name(entry.color);
}

// Coming and going

std::optional<Uuid> ContrastBoard::send(std::optional<std::string> name, const WashColor& color) {
    const UpdateGroup group;
    const auto id = hold(std::move(name), color);
    if (!id) return std::nullopt;
    if (!textID())
        setRole(Role::text, *id);
    else if (!groundID())
        setRole(Role::ground, *id);
    return id;
}

std::optional<Uuid> ContrastBoard::hold(std::optional<std::string> name, const WashColor& color) {
    const auto kept = measurable(color);
    if (isFull() || held(kept)) return std::nullopt;
    const Uuid id = services_.chance.uuid();
    auto to = content_.value();
    to.entries.push_back({id, kept, entryName(std::move(name))});
    setContent(std::move(to));
    return id;
}

std::optional<Entry> ContrastBoard::letGoOfOldestLoose() {
    for (const auto& id : content_.value().arrivals) {
        if (id == textID() || id == groundID()) continue;
        const Entry gone = *entry(id);
        remove(gone.id);
        return gone;
    }
    return std::nullopt;
}

void ContrastBoard::remove(const Uuid& id) {
    auto to = content_.value();
    std::erase_if(to.entries, [gone = id](const Entry& entry) { return entry.id == gone; });
    setContent(std::move(to));
}

void ContrastBoard::clear() {
    setContent({});
}

void ContrastBoard::setContent(Content to) {
    const UpdateGroup group;
    settle(to);
    const auto dragged = draggingEntry.value();
    if (dragged && entryIn(to.entries, *dragged) == nullptr) draggingEntry = std::nullopt;
    content_ = std::move(to);
}

ContrastBoard::Content ContrastBoard::exchangeContent(Content other) {
    auto before = content_.value();
    setContent(std::move(other));
    return before;
}

// Changing

void ContrastBoard::setRole(Role role, const Uuid& id) {
    if (!entry(id)) return;
    auto to = content_.value();
    auto& wanted = role == Role::text ? to.textID : to.groundID;
    auto& other = role == Role::text ? to.groundID : to.textID;
    if (other == id) other = wanted;
    wanted = id;
    setContent(std::move(to));
}

void ContrastBoard::exchangeRoles() {
    auto to = content_.value();
    std::swap(to.textID, to.groundID);
    setContent(std::move(to));
}

void ContrastBoard::exchange(const Uuid& one, const Uuid& other) {
    auto to = content_.value();
    const auto first = std::ranges::find(to.entries, one, &Entry::id);
    const auto second = std::ranges::find(to.entries, other, &Entry::id);
    if (first == to.entries.end() || second == to.entries.end()) return;
    std::iter_swap(first, second);
    setContent(std::move(to));
}

void ContrastBoard::replace(const Uuid& id, const WashColor& color) {
    const auto kept = measurable(color);
    const auto* holder = held(kept);
    if (holder != nullptr && holder->id != id) return;
    auto to = content_.value();
    const auto found = std::ranges::find(to.entries, id, &Entry::id);
    if (found == to.entries.end()) return;
    found->color = kept;
    setContent(std::move(to));
}

void ContrastBoard::rename(const Uuid& id, std::optional<std::string> name) {
    auto to = content_.value();
    const auto found = std::ranges::find(to.entries, id, &Entry::id);
    if (found == to.entries.end()) return;
    found->givenName = entryName(std::move(name));
    setContent(std::move(to));
}

void ContrastBoard::move(const Uuid& id, std::size_t to) {
    auto moved = content_.value();
    auto& entries = moved.entries;
    const auto from = std::ranges::find(entries, id, &Entry::id);
    if (from == entries.end()) return;
    const auto place =
        entries.begin() + static_cast<std::ptrdiff_t>(std::min(to, entries.size() - 1));
    if (place < from)
        std::rotate(place, from, from + 1);
    else
        std::rotate(from, from + 1, place + 1);
    setContent(std::move(moved));
}

// Clearing

std::size_t ContrastBoard::countOfUnkept() const {
    return static_cast<std::size_t>(std::ranges::count_if(
        entries(), [&](const Entry& entry) { return !palettes_.holds(entry.color); }));
}

void ContrastBoard::clearAsking() {
    if (entries().empty()) return;
    const auto lost = countOfUnkept();
    if (lost == 0) return clearOfferingUndo();
    services_.dialogues.ask({"Clear Contrast?",
                             "Not in any open palette: " + counted(lost, "colour", "colours") + ".",
                             {"Clear", "Cancel"},
                             kPlace},
                            [this](std::size_t button) {
                                if (button == 0) clearOfferingUndo();
                            });
}

void ContrastBoard::clearOfferingUndo() {
    auto cleared = exchangeContent({});
    const auto text =
        "Took " + counted(cleared.entries.size(), "colour", "colours") + " off Contrast";
    services_.toasts.show(
        text, kForCounts,
        ToastAction{"Undo", [this, cleared = std::move(cleared)] { bringBack(cleared); }}, kPlace);
}

void ContrastBoard::bringBack(Content cleared) {
    for (const auto& entry : entries())
        if (cleared.entries.size() < kCapacity && !entryOf(cleared.entries, entry.color))
            cleared.entries.push_back(entry);
    setContent(std::move(cleared));
}

} // namespace tintra
