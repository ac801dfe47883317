#pragma once

#include "tools/cmyk/Colour.h"

#include <array>
#include <cstddef>

namespace tintra::cmyk {

/// The CIELAB nodes of the colour-to-ink table. Lightness runs evenly from the black point to
/// 100; along a and b the nodes stand closer where printable colours are, and zero is a node. The
/// range holds all of sRGB: a colour cut off at the edge would change its hue.
class SeparationGrid {
public:
    static constexpr std::size_t kSize = 31;

    /// The node along a and b at which they are 0. Its position 16/30 is exact in 16 bits, which
    /// the middle 15/30 is not: white and the greys lie on nodes precisely.
    static constexpr std::size_t kNeutralNode = 16;

    static constexpr std::size_t kNodeCount = kSize * kSize * kSize;

    /// `blackLightness` is the lightness of the first layer; anything darker uses that layer.
    explicit SeparationGrid(double blackLightness) : blackLightness_(blackLightness) {}

    /// Node `index` of the table, in which b varies fastest and lightness slowest.
    [[nodiscard]] Lab node(std::size_t index) const;

    /// Position of a value along its axis, 0 to 1; values beyond the ends give the ends.
    [[nodiscard]] double lightnessPosition(double l) const;
    [[nodiscard]] static double aPosition(double a);
    [[nodiscard]] static double bPosition(double b);

private:
    double blackLightness_;
};

} // namespace tintra::cmyk
