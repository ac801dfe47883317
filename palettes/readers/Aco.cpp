#include "colour/Clamp.h"
#include "colour/Hsb.h"
#include "colour/Lab.h"
#include "palettes/readers/Reading.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

// Photoshop colour swatches. A file of both versions begins with version 1; its second section,
// which would have the names, and whatever follows are not read.

namespace tintra::PaletteFile {

namespace {

/// The four 16-bit values of a record as they are stored.
using Values = std::array<std::uint16_t, 4>;

constexpr std::uint16_t kUnnamed = 1, kNamed = 2;
constexpr std::size_t kSmallestRecord = 10;

double fraction(std::uint16_t value) {
    return value / 65535.0;
}

double signedHundredths(std::uint16_t value) {
    return static_cast<std::int16_t>(value) / 100.0;
}

std::optional<WashColor> rgbColour(const Values& v) {
    return WashColor{fraction(v[0]), fraction(v[1]), fraction(v[2]), 1};
}

std::optional<WashColor> hsbColour(const Values& v) {
    return WashColor::fromRgb(rgbFromHsb({fraction(v[0]), fraction(v[1]), fraction(v[2])}), 1);
}

/// Full ink is stored as 0.
std::optional<WashColor> cmykColour(const Values& v) {
    return colourOfInks(
        {1 - fraction(v[0]), 1 - fraction(v[1]), 1 - fraction(v[2]), 1 - fraction(v[3])});
}

std::optional<WashColor> labColour(const Values& v) {
    return WashColor::fromRgb(
        rgbFromLabD50({signedHundredths(v[0]), signedHundredths(v[1]), signedHundredths(v[2])}), 1);
}

/// Levels go to 10000; larger ones, which no program writes, are white.
std::optional<WashColor> greyColour(const Values& v) {
    const double level = clampedUnit(v[0] / 10000.0);
    return WashColor{level, level, level, 1};
}

struct Space {
    std::uint16_t number;
    std::optional<WashColor> (*colour)(const Values&);
};
constexpr std::array kSpaces{
    Space{0, rgbColour}, Space{1, hsbColour},  Space{2, cmykColour},
    Space{7, labColour}, Space{8, greyColour},
};

std::optional<WashColor> colourOf(std::uint16_t number, const Values& values, LeftOut* leftOut) {
    const auto* const space = std::ranges::find(kSpaces, number, &Space::number);
    if (space == kSpaces.end()) {
        if (leftOut != nullptr) leftOut->add(fmt::format("unknown colour space {}", number));
        return std::nullopt;
    }
    const auto colour = space->colour(values);
    if (!colour) note(leftOut, kInksRefused);
    return colour;
}

std::optional<Values> valuesOf(Reader& reader) {
    Values values{};
    for (auto& value : values) {
        const auto read = reader.u16();
        if (!read) return std::nullopt;
        value = *read;
    }
    return values;
}

/// A name field: whether it is whole, and the name that it holds.
struct NameField {
    bool isWhole = true;
    std::optional<std::string> name;
};

NameField nameOf(Reader& reader) {
    const auto length = reader.u32();
    if (!length) return {.isWhole = false, .name = {}};
    if (*length == 0) return {};
    const auto name = reader.utf16(*length);
    return {.isWhole = name.has_value(), .name = kept(name)};
}

} // namespace

std::optional<std::vector<Swatch>> aco(ByteView data, LeftOut* leftOut) {
    Reader reader(data);
    const auto version = reader.u16();
    const auto count = version ? reader.u16() : std::nullopt;
    if (!count || (*version != kUnnamed && *version != kNamed)) return std::nullopt;

    std::vector<Swatch> swatches;
    swatches.reserve(std::min<std::size_t>(*count, data.size() / kSmallestRecord));
    for (int left = *count; left > 0; --left) {
        const auto space = reader.u16();
        const auto values = space ? valuesOf(reader) : std::nullopt;
        if (!values) {
            note(leftOut, kCutOff, left);
            break;
        }
        const auto colour = colourOf(*space, *values, leftOut);
        // A colour whose name is cut off was itself read whole and stays, unnamed.
        auto field = *version == kNamed ? nameOf(reader) : NameField{};
        if (colour) swatches.push_back({*colour, std::move(field.name)});
        if (!field.isWhole) {
            note(leftOut, kCutOff, left - 1);
            break;
        }
    }
    return unlessEmpty(std::move(swatches));
}

} // namespace tintra::PaletteFile
