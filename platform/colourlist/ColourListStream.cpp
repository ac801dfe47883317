#include "platform/colourlist/ColourListReaders.h"
#include "platform/colourlist/StoredColour.h"
#include "platform/colourlist/TypedStream.h"

#include <algorithm>
#include <array>
#include <limits>
#include <unordered_set>

namespace tintra::colourlist {

namespace {

std::optional<double> numberAt(const std::vector<StreamValue>& values, std::size_t index) {
    if (index >= values.size()) return std::nullopt;
    const auto* const number = std::get_if<double>(&values[index]);
    return number == nullptr ? std::nullopt : std::optional(*number);
}

/// The numbers from the second value on; nothing when one is none.
std::optional<std::vector<double>> componentsOf(const StreamObject& colour) {
    std::vector<double> components;
    for (std::size_t i = 1; i < colour.values.size(); ++i) {
        const auto component = numberAt(colour.values, i);
        if (!component) return std::nullopt;
        components.push_back(*component);
    }
    return components;
}

std::optional<PlatformColour> colourOf(const TypedStream& stream, const StreamValue& value,
                                       int fallbacksLeft = kMostFallbacks) {
    const auto* const object = stream.object(value);
    if (object == nullptr || object->className != "NSColor") return std::nullopt;
    const auto number = numberAt(object->values, 0);
    if (!number || *number < 0 || !(*number <= kCatalogueColour)) return std::nullopt;
    if (*number == kCatalogueColour) { // two names, then the colour to fall back to
        if (object->values.size() != 4 || fallbacksLeft == 0) return std::nullopt;
        return colourOf(stream, object->values[3], fallbacksLeft - 1);
    }
    const auto* const basic = basicSpace(static_cast<int>(*number));
    const auto components = componentsOf(*object);
    if (basic == nullptr || !components) return std::nullopt;
    return storedColour(basic->space(), basic->components, *components);
}

/// The key as far as U+0000, which some converters leave at its end and property lists cannot hold.
std::optional<std::string_view> keyOf(const TypedStream& stream, const StreamValue& value) {
    const auto* const object = stream.object(value);
    if (object == nullptr || object->values.size() != 1) return std::nullopt;
    if (object->className != "NSString" && object->className != "NSMutableString")
        return std::nullopt;
    const auto* const text = std::get_if<std::string_view>(object->values.data());
    return text == nullptr ? std::nullopt : std::optional(text->substr(0, text->find('\0')));
}

/// How many colours the list announces; nothing when the stream holds no colour list.
std::optional<int> announcedCount(TypedStream& stream) {
    const auto version = stream.group();
    if (!version || version->types != "i") return std::nullopt;
    const auto counted = stream.group();
    if (!counted || counted->types != "@i") return std::nullopt;
    const auto count = numberAt(counted->values, 1);
    return count ? std::optional(static_cast<int>(std::max(*count, 0.0))) : std::nullopt;
}

} // namespace

std::optional<ColourList> readTypedStream(ByteView data) {
    auto stream = TypedStream::open(data);
    const auto announced = stream ? announcedCount(*stream) : std::nullopt;
    if (!announced) return std::nullopt;

    ColourList list;
    list.missing = *announced;
    // A key stands in a list once. Short references to one long text could fill the memory.
    std::unordered_set<const char*> seenKeys;
    for (; list.missing > 0; --list.missing) {
        const auto pair = stream->group();
        if (!pair || pair->types != "@@") break;
        const auto key = keyOf(*stream, pair->values[1]);
        const bool isNew = key && (key->empty() || seenKeys.insert(key->data()).second);
        auto colour = isNew ? colourOf(*stream, pair->values[0]) : std::nullopt;
        if (colour)
            list.entries.push_back({repairedUtf8(*key), std::move(*colour)});
        else
            ++list.unusable;
    }
    return list;
}

} // namespace tintra::colourlist
