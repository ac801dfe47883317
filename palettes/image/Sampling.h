#pragma once

#include "colour/Oklab.h"
#include "platform/Pictures.h"

#include <cstdint>
#include <variant>
#include <vector>

namespace tintra::ImagePalette {

/// OKLab.
using Lab = Oklab;

inline double squaredDistance(const Lab& p, const Lab& q) {
    const double L = p.L - q.L, a = p.a - q.a, b = p.b - q.b;
    return L * L + a * a + b * b;
}

/// The pixels of a reduced picture that count: those of more than half opacity.
struct Pixels {
    std::vector<Lab> samples; ///< in row order
    /// For each sample, its position in the rows of the reduced picture.
    std::vector<std::uint32_t> places;
    PictureSize reduced;
};

/// Pixels on the longer side of a reduced picture: bounds the work whatever the picture's size.
inline constexpr int kSampledSide = 160;

/// The colour with each component rounded to a whole multiple of 2^-36. Components within -2...2 on
/// this grid add up exactly, up to 65,536 of them in any order; samples are on it.
Lab onSumGrid(const Lab& colour);

/// The samples of pixels whose colours are multiplied by their alpha.
Pixels sample(const PixelBuffer& premultiplied);

/// The samples of a picture reduced to `side` pixels on its longer side.
std::variant<Pixels, PictureError> sample(const Picture& picture, int side);

} // namespace tintra::ImagePalette
