#include "platform/DefaultsStore.h"
#include "platform/Log.h"
#include "platform/Services.h"
#include "state/ContrastBoard.h"
#include "state/StoredContrast.h"
#include "state/UpdateGroup.h"

#include <algorithm>
#include <utility>

// The board's record: written, and brought back at the next start.

namespace tintra {

namespace {

using Entry = ContrastBoard::Entry;

std::optional<int> indexOf(std::optional<Uuid> id, const std::vector<Entry>& among) {
    for (std::size_t i = 0; i < among.size(); ++i)
        if (among[i].id == id) return static_cast<int>(i);
    return std::nullopt;
}

/// The entry of a stored index; none for an index out of range.
std::optional<Uuid> idAt(std::optional<int> index, const std::vector<std::optional<Uuid>>& ids) {
    if (!index || *index < 0) return std::nullopt;
    const auto at = static_cast<std::size_t>(*index);
    return at < ids.size() ? ids[at] : std::nullopt;
}

std::optional<std::string> nameAt(std::size_t index, const std::vector<std::string>& names) {
    return index < names.size() ? std::optional(names[index]) : std::nullopt;
}

} // namespace

StoredContrast ContrastBoard::stored() const {
    StoredContrast record;
    for (const auto& entry : entries()) {
        record.colours.push_back(entry.color);
        record.names.push_back(entry.givenName.value_or(""));
    }
    record.text = indexOf(textID(), entries());
    record.ground = indexOf(groundID(), entries());
    record.size = size;
    record.weight = weight;
    record.specimen = specimen;
    record.target = rawValue(target.value());
    record.wasOpen = isWindowOpen;
    record.mode = rawValue(mode.value());
    record.family = family;
    record.ladderFixesGround = ladderFixesGround;
    record.matrixRowsAreText = matrixRowsAreText;
    return record;
}

void ContrastBoard::captureForQuit() {
    services_.defaults.set(kKey, encodedContrast(stored()));
}

void ContrastBoard::restoreIfNeeded() {
    if (std::exchange(hasRestored_, true)) return;
    const auto text = services_.defaults.data(kKey);
    if (!text) return;
    if (const auto record = decodedContrast(*text)) return apply(*record);
    services_.log.line("Tintra: could not decode the saved contrast board: " + std::string(kKey) +
                       " is not what it should be");
    services_.defaults.setAside(kKey);
}

// Colours beyond the capacity are dropped; an index to a colour that stands there twice means the
// one that is kept.
void ContrastBoard::apply(const StoredContrast& record) {
    const UpdateGroup group;
    std::vector<std::optional<Uuid>> ids;
    for (std::size_t i = 0; i < record.colours.size(); ++i) {
        const auto* twin = held(record.colours[i]);
        ids.push_back(twin ? twin->id : hold(nameAt(i, record.names), record.colours[i]));
    }
    auto to = content_.value();
    to.textID = idAt(record.text, ids);
    to.groundID = idAt(record.ground, ids);
    setContent(std::move(to));

    size = std::clamp(record.size, kSmallestSize, kLargestSize);
    weight = std::clamp(record.weight, kLightestWeight, kHeaviestWeight);
    specimen = record.specimen;
    target = Contrast::target(record.target).value_or(Target::aa);
    mode = contrastMode(record.mode).value_or(Mode::pair);
    family = record.family;
    ladderFixesGround = record.ladderFixesGround;
    matrixRowsAreText = record.matrixRowsAreText;
    wasOpenAtLastQuit_ = record.wasOpen;
}

} // namespace tintra
