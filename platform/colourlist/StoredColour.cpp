#include "platform/colourlist/StoredColour.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tintra::colourlist {

namespace {

struct NumberedSpace {
    std::uint64_t number;
    Space (*space)();
};

// clang-format off
// Calibrated RGB without a profile is Generic RGB of gamma 1.8; device values are taken as sRGB.
constexpr std::array kBasicSpaces{
    BasicSpace{1, 3, "NSRGB",   ColourSpace::genericRGB},
    BasicSpace{2, 3, "NSRGB",   ColourSpace::sRGB},
    BasicSpace{3, 1, "NSWhite", ColourSpace::genericGrey},
    BasicSpace{4, 1, "NSWhite", ColourSpace::sRGB},
    BasicSpace{5, 4, "NSCMYK",  ColourSpace::deviceCMYK},
};

constexpr std::array kIds{
    NumberedSpace{1, ColourSpace::genericRGB},
    NumberedSpace{2, ColourSpace::genericGrey},
    NumberedSpace{3, ColourSpace::deviceCMYK},
    NumberedSpace{4, ColourSpace::sRGB},
    NumberedSpace{5, ColourSpace::genericGreyGamma22},
    NumberedSpace{6, ColourSpace::deviceCMYK},
    NumberedSpace{7, ColourSpace::sRGB},
    NumberedSpace{8, ColourSpace::adobeRGB1998},
    NumberedSpace{9, ColourSpace::genericGreyGamma22},
};

constexpr std::array kSpaceIds{
    NumberedSpace{12, ColourSpace::displayP3},
    NumberedSpace{13, ColourSpace::dciP3},
    NumberedSpace{14, ColourSpace::sRGB}, // extended; the values may leave 0...1
    NumberedSpace{15, ColourSpace::genericGreyGamma22},
    NumberedSpace{16, ColourSpace::linearSRGB},
    NumberedSpace{17, ColourSpace::linearSRGB},
};
// clang-format on

Space spaceIn(std::span<const NumberedSpace> table, std::uint64_t number) {
    const auto found = std::ranges::find(table, number, &NumberedSpace::number);
    return found == table.end() ? nullptr : found->space();
}

} // namespace

const BasicSpace* basicSpace(int number) {
    const auto* const found = std::ranges::find(kBasicSpaces, number, &BasicSpace::number);
    return found == kBasicSpaces.end() ? nullptr : found;
}

Space spaceOfId(std::uint64_t id) {
    return spaceIn(kIds, id);
}
Space spaceOfSpaceId(std::uint64_t spaceId) {
    return spaceIn(kSpaceIds, spaceId);
}

std::optional<PlatformColour> storedColour(const Space& space, int components,
                                           std::span<const double> values) {
    const auto count = static_cast<std::size_t>(components);
    if (!space || (values.size() != count && values.size() != count + 1)) return std::nullopt;
    if (!std::ranges::all_of(values, [](double v) { return std::isfinite(v); }))
        return std::nullopt;
    PlatformColour colour{space, {}, 1};
    std::ranges::copy(values.first(count), colour.components.begin());
    if (count == 1 && space->model() == ColourModel::rgb)
        colour.components = {values[0], values[0], values[0], 0};
    if (values.size() > count) colour.alpha = std::clamp(values[count], 0.0, 1.0);
    return colour;
}

} // namespace tintra::colourlist
