#pragma once

#include <array>
#include <cstddef>

/// The constant tables of the mixer. Immutable; any thread.
namespace TintraMix::SpectralData {

/// Samples of a spectrum: i stands for 380 + 10 i nm, up to 750 nm.
inline constexpr std::size_t kSamples = 38;
using Spectrum = std::array<double, kSamples>;

/// Three numbers of one space: linear sRGB, CIE XYZ (Y of white 1) or LMS.
using Triple = std::array<double, 3>;
using Matrix = std::array<Triple, 3>;

/// One product of row and vector a row.
template <std::size_t rows, std::size_t columns>
constexpr std::array<double, rows>
apply(const std::array<std::array<double, columns>, rows>& matrix,
      const std::array<double, columns>& vector) {
    std::array<double, rows> sums{};
    for (std::size_t column = 0; column < columns; ++column)
        for (std::size_t row = 0; row < rows; ++row)
            sums[row] += matrix[row][column] * vector[column];
    return sums;
}

/// The CIE 1931 2 degree observer under D65, scaled to Y = 1 for a perfect white: applied to a
/// reflectance it gives XYZ.
extern const std::array<Spectrum, 3> cmf;

/// Reflectances of the base colours that an RGB colour is put together from. White exceeds 1 a
/// little at both ends.
struct BaseSpectra {
    Spectrum white, cyan, magenta, yellow, red, green, blue;
};
extern const BaseSpectra base;

// clang-format off
namespace Conversion {

/// Linear sRGB to XYZ under D65 and back (CSS Color 4).
inline constexpr Matrix rgbToXYZ{{
    {0.41239079926595934, 0.357584339383878,   0.1804807884018343},
    {0.21263900587151027, 0.715168678767756,   0.07219231536073371},
    {0.01933081871559182, 0.11919477979462598, 0.9505321522496607},
}};
inline constexpr Matrix xyzToRGB{{
    { 3.2409699419045226,  -1.537383177570094,   -0.4986107602930034},
    {-0.9692436362808796,   1.8759675015077202,   0.04155505740717559},
    { 0.05563007969699366, -0.20397695888897652,  1.0569715142428786},
}};
/// XYZ to the LMS of OKLab and back.
inline constexpr Matrix xyzToLMS{{
    {0.819022437996703,  0.3619062600528904, -0.1288737815209879},
    {0.0329836539323885, 0.9292868615863434,  0.0361446663506424},
    {0.0481771893596242, 0.2642395317527308,  0.6335478284694309},
}};
inline constexpr Matrix lmsToXYZ{{
    { 1.2268798758459243, -0.5578149944602171,  0.2813910456659647},
    {-0.0405757452148008,  1.112286803280317,  -0.0717110580655164},
    {-0.0763729366746601, -0.4214933324022432,  1.5869240198367816},
}};
/// Cube roots of LMS to OKLab and back.
inline constexpr Matrix lmsToLab{{
    {0.210454268309314,   0.7936177747023054, -0.0040720430116193},
    {1.9779985324311684, -2.42859224204858,    0.450593709617411},
    {0.0259040424655478,  0.7827717124575296, -0.8086757549230774},
}};
inline constexpr Matrix labToLMS{{
    {1.0,  0.3963377773761749,  0.2158037573099136},
    {1.0, -0.1055613458156586, -0.0638541728258133},
    {1.0, -0.0894841775298119, -1.2914855480194092},
}};

} // namespace Conversion
// clang-format on

} // namespace TintraMix::SpectralData
