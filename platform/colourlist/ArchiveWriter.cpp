#include "platform/ColourList.h"
#include "platform/Number.h"
#include "platform/colourlist/ArchiveBuilder.h"
#include "platform/colourlist/ColourListReaders.h"

#include <algorithm>
#include <cmath>

namespace tintra {

namespace {

using namespace colourlist;

constexpr int kCalibratedRgb = 1;
constexpr int kSrgbId = 7;
constexpr int kExtendedSrgbSpaceId = 14;

/// At most ten decimals, as the system writes them, without the zeros at the end.
void appendDecimal(std::string& out, double value) {
    constexpr int kDecimals = 10;
    auto text = fixed(value, kDecimals);
    text.resize(text.find_last_not_of('0') + 1);
    if (text.ends_with('.')) text.pop_back();
    if (!out.empty()) out += ' ';
    out += text == "-0" ? "0" : text;
}

std::string decimals(const Components& rgb) {
    std::string text;
    for (std::size_t i = 0; i < 3; ++i)
        appendDecimal(text, rgb[i]);
    return text;
}

/// A colour in sRGB, components perhaps beyond 0...1.
struct SrgbColour {
    Components rgb;
    double alpha;

    bool isExtended() const {
        return std::any_of(rgb.begin(), rgb.begin() + 3, [](double v) { return v < 0 || v > 1; });
    }
};

std::optional<SrgbColour> srgbOf(const PlatformColour& colour) {
    if (!colour.space) return std::nullopt;
    SrgbColour srgb{colour.components, std::clamp(colour.alpha, 0.0, 1.0)};
    if (colour.space != ColourSpace::sRGB()) {
        const auto converted = colour.space->toSrgb(colour.components);
        if (!converted) return std::nullopt;
        srgb.rgb = {converted->r, converted->g, converted->b, 0};
    }
    const bool finite = std::isfinite(srgb.rgb[0]) && std::isfinite(srgb.rgb[1]) &&
                        std::isfinite(srgb.rgb[2]) && std::isfinite(srgb.alpha);
    return finite ? std::optional(srgb) : std::nullopt;
}

/// "r g b" in Generic RGB, for readers that know nothing newer; the alpha only when it matters.
std::string genericValues(const SrgbColour& colour) {
    auto generic = ColourSpace::genericRGB()
                       ->fromSrgb({colour.rgb[0], colour.rgb[1], colour.rgb[2]})
                       .value_or(colour.rgb);
    for (double& component : generic)
        component = std::clamp(component, 0.0, 1.0);
    auto text = decimals(generic);
    if (colour.alpha < 1) appendDecimal(text, colour.alpha);
    text += '\0';
    return text;
}

std::string srgbValues(const SrgbColour& colour) {
    auto text = decimals(colour.rgb);
    appendDecimal(text, colour.alpha);
    return text;
}

/// Writes the colours of one list, which share what they refer to.
class ListArchive {
public:
    void add(const std::string& key, const SrgbColour& colour) {
        const auto text = repairedUtf8(key);
        keys_.push_back(builder_.add(plist_new_string(text.c_str())));
        colours_.push_back(builder_.add(colourNode(colour)));
    }

    std::optional<Bytes> binary() {
        const auto arrayClass = builder_.addClass({"NSMutableArray", "NSArray", "NSObject"});
        builder_.setTop("NSKeys", addArray(keys_, arrayClass));
        builder_.setTop("NSColors", addArray(colours_, arrayClass));
        return builder_.binary();
    }

private:
    plist_t colourNode(const SrgbColour& colour) {
        const auto space = colour.isExtended()
                               ? shared(extendedSpace_, "NSSpaceID", kExtendedSrgbSpaceId)
                               : shared(plainSpace_, "NSID", kSrgbId);
        auto* const node = plist_new_dict();
        plist_dict_set_item(node, "NSColorSpace", plist_new_uint(kCalibratedRgb));
        plist_dict_set_item(node, "NSRGB", dataNode(genericValues(colour)));
        plist_dict_set_item(node, "NSComponents", dataNode(srgbValues(colour)));
        plist_dict_set_item(node, "NSCustomColorSpace", referenceNode(space));
        plist_dict_set_item(node, "$class", referenceNode(colourClass_));
        return node;
    }

    /// A colour-space object, made for the first colour that needs it.
    std::uint64_t shared(std::optional<std::uint64_t>& space, const char* key, int id) {
        if (space) return *space;
        auto* const node = plist_new_dict();
        plist_dict_set_item(node, key, plist_new_uint(static_cast<std::uint64_t>(id)));
        plist_dict_set_item(node, "NSICC", referenceNode(profile()));
        plist_dict_set_item(node, "$class", referenceNode(spaceClass_));
        space = builder_.add(node);
        return *space;
    }

    std::uint64_t profile() {
        if (!profile_) profile_ = builder_.add(dataNode(asText(ColourSpace::sRGB()->iccProfile())));
        return *profile_;
    }

    std::uint64_t addArray(const std::vector<std::uint64_t>& members, std::uint64_t arrayClass) {
        auto* const references = plist_new_array();
        for (const auto member : members)
            plist_array_append_item(references, referenceNode(member));
        auto* const node = plist_new_dict();
        plist_dict_set_item(node, "NS.objects", references);
        plist_dict_set_item(node, "$class", referenceNode(arrayClass));
        return builder_.add(node);
    }

    ArchiveBuilder builder_;
    std::vector<std::uint64_t> keys_, colours_;
    std::uint64_t colourClass_ = builder_.addClass({"NSColor", "NSObject"});
    std::uint64_t spaceClass_ = builder_.addClass({"NSColorSpace", "NSObject"});
    std::optional<std::uint64_t> plainSpace_, extendedSpace_, profile_;
};

} // namespace

std::optional<Bytes> writeColourList(std::span<const ColourListEntry> entries) {
    ListArchive archive;
    for (const auto& entry : entries) {
        const auto colour = srgbOf(entry.colour);
        if (!colour) return std::nullopt;
        archive.add(entry.key, *colour);
    }
    return archive.binary();
}

} // namespace tintra
