#include "platform/Number.h"
#include "platform/Unicode.h"
#include "platform/colourlist/ColourListReaders.h"
#include "platform/colourlist/PropertyList.h"
#include "platform/colourlist/StoredColour.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace tintra::colourlist {

namespace {

// Five numbers of some twenty digits; longer data is no colour.
constexpr std::size_t kLongestComponents = 256;

/// The decimals of "r g b a", closed by a NUL byte or the end; nothing when one is no number.
std::optional<std::vector<double>> componentsIn(std::string_view text) {
    if (text.size() > kLongestComponents) return std::nullopt;
    text = text.substr(0, text.find('\0'));
    constexpr std::string_view kBlanks = " \t\r\n";
    std::vector<double> values;
    while (true) {
        text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
        if (text.empty()) return values;
        const auto word = text.substr(0, text.find_first_of(kBlanks));
        const auto value = number(word);
        if (!value) return std::nullopt;
        values.push_back(*value);
        text.remove_prefix(word.size());
    }
}

/// The objects of an archive, which refer to each other by number.
class Archive {
public:
    explicit Archive(PlistValue root) : top_(root["$top"]), objects_(root["$objects"].elements()) {}

    /// The dictionary that holds the keys and the colours.
    PlistValue list() const {
        const auto root = resolved(top_["root"]);
        return root ? root : top_;
    }

    /// What a reference stands for; any other value stands for itself. One step, so that no cycle
    /// can be followed.
    PlistValue resolved(PlistValue value) const {
        const auto number = value.uid();
        if (!number) return value;
        const bool isObject = *number > 0 && *number < objects_.size(); // object 0 is "$null"
        return isObject ? objects_[*number] : PlistValue();
    }

    PlistValue member(PlistValue object, const char* key) const { return resolved(object[key]); }

    /// A string, or the dictionary that some archivers write for one.
    std::optional<std::string_view> text(PlistValue value) const {
        const auto plain = value.text();
        return plain ? plain : member(value, "NS.string").text();
    }

    std::optional<std::string_view> data(PlistValue object, const char* key) const {
        const auto value = member(object, key);
        const auto plain = value.data();
        return plain ? plain : member(value, "NS.data").data();
    }

private:
    PlistValue top_;
    std::vector<PlistValue> objects_;
};

/// The profiles of an archive. Many colours may carry one profile, as one object or as copies.
class Profiles {
public:
    Space of(std::string_view icc) {
        const auto [known, isNew] = byAddress_.try_emplace(icc.data());
        if (isNew) known->second = ofContent(icc);
        return known->second;
    }

private:
    Space ofContent(std::string_view icc) {
        const auto [known, isNew] = byContent_.try_emplace(icc);
        if (isNew) {
            auto space = ColourSpace::fromIccProfile(asBytes(icc));
            if (space && space->toSrgb({})) known->second = std::move(space);
        }
        return known->second;
    }

    std::unordered_map<const char*, Space> byAddress_;
    std::unordered_map<std::string_view, Space> byContent_;
};

class ArchivedColours {
public:
    explicit ArchivedColours(const Archive& archive) : archive_(archive) {}

    std::optional<PlatformColour> colour(PlistValue object, int fallbacksLeft = kMostFallbacks) {
        if (auto exact = inOwnSpace(object)) return exact;
        const auto number = object["NSColorSpace"].integer();
        if (!number || *number > kCatalogueColour) return std::nullopt;
        if (*number == kCatalogueColour && fallbacksLeft > 0)
            return colour(archive_.member(object, "NSColor"), fallbacksLeft - 1);
        const auto* const basic = basicSpace(static_cast<int>(*number));
        if (basic == nullptr) return std::nullopt;
        return valuesIn(basic->space(), basic->components,
                        archive_.data(object, basic->archiveKey));
    }

private:
    /// By the colour's own space, which the basic values beside it only approximate.
    std::optional<PlatformColour> inOwnSpace(PlistValue object) {
        const auto components = archive_.data(object, "NSComponents");
        if (!components) return std::nullopt;
        const auto space = spaceOf(archive_.member(object, "NSCustomColorSpace"));
        return space ? valuesIn(space, space->componentCount(), components) : std::nullopt;
    }

    Space spaceOf(PlistValue object) {
        const auto id = object["NSID"].integer(), spaceId = object["NSSpaceID"].integer();
        if (auto space = id ? spaceOfId(*id) : nullptr) return space;
        if (auto space = spaceId ? spaceOfSpaceId(*spaceId) : nullptr) return space;
        const auto icc = archive_.data(object, "NSICC");
        return icc ? profiles_.of(*icc) : nullptr;
    }

    static std::optional<PlatformColour> valuesIn(const Space& space, int components,
                                                  std::optional<std::string_view> text) {
        const auto values = text ? componentsIn(*text) : std::nullopt;
        return values ? storedColour(space, components, *values) : std::nullopt;
    }

    const Archive& archive_;
    Profiles profiles_;
};

} // namespace

std::optional<ColourList> readKeyedArchive(ByteView data) {
    const auto root = parsePropertyList(data);
    const Archive archive{PlistValue(root.get())};
    const auto keyList = archive.member(archive.list(), "NSKeys");
    const auto colourList = archive.member(archive.list(), "NSColors");
    if (!keyList || !colourList) return std::nullopt;
    const auto keys = archive.member(keyList, "NS.objects").elements();
    const auto colours = archive.member(colourList, "NS.objects").elements();

    ColourList list;
    ArchivedColours reader(archive);
    // A key stands in a list once. Short references to one long text could fill the memory.
    std::unordered_set<const char*> seenKeys;
    const auto pairs = std::min(keys.size(), colours.size());
    list.unusable = static_cast<int>(std::max(keys.size(), colours.size()) - pairs);
    for (std::size_t i = 0; i < pairs; ++i) {
        const auto key = archive.text(archive.resolved(keys[i]));
        const bool isNew = key && seenKeys.insert(key->data()).second;
        auto colour = isNew ? reader.colour(archive.resolved(colours[i])) : std::nullopt;
        if (colour)
            list.entries.push_back({repairedUtf8(*key), std::move(*colour)});
        else
            ++list.unusable;
    }
    return list;
}

std::string repairedUtf8(std::string_view text) {
    if (isValidUtf8(text)) return std::string(text);
    return utf8FromUtf16(utf16FromUtf8(text));
}

} // namespace tintra::colourlist
