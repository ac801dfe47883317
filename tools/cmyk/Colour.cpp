#include "tools/cmyk/Colour.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace tintra::cmyk {
namespace {

constexpr double kLabDelta = 6.0 / 29.0;
constexpr double kLabSlope = 3.0 * kLabDelta * kLabDelta;
constexpr double kLabOffset = 4.0 / 29.0;

double labCurve(double ratio) {
    const bool isLight = ratio > kLabDelta * kLabDelta * kLabDelta;
    return isLight ? std::cbrt(ratio) : ratio / kLabSlope + kLabOffset;
}

double labCurveInverse(double f) {
    return f > kLabDelta ? f * f * f : kLabSlope * (f - kLabOffset);
}

constexpr Mat3 product(const Mat3& left, const Mat3& right) {
    Mat3 result{};
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            for (std::size_t i = 0; i < 3; ++i) {
                result[row][column] += left[row][i] * right[i][column];
            }
        }
    }
    return result;
}

// Bradford chromatic adaptation from D50 to D65 (B. Lindbloom's table).
constexpr Mat3 kD65FromD50{{{0.9555766, -0.0230393, 0.0631636},
                            {-0.0282895, 1.0099416, 0.0210077},
                            {0.0122982, -0.0204830, 1.3299098}}};

// The two matrices of OKLab.
constexpr Mat3 kConesFromD65{{{0.8189330101, 0.3618667424, -0.1288597137},
                              {0.0329845436, 0.9293118715, 0.0361456387},
                              {0.0482003018, 0.2643662691, 0.6338517070}}};
constexpr Mat3 kOkLabFromRoots{{{0.2104542553, 0.7936177850, -0.0040720468},
                                {1.9779984951, -2.4285922050, 0.4505937099},
                                {0.0259040371, 0.7827717662, -0.8086757660}}};

constexpr Mat3 kConesFromD50 = product(kConesFromD65, kD65FromD50);

// The slope of the cube root is infinite at zero; this bounds it for the solver.
constexpr double kSmallestRoot = 0.01;

} // namespace

Xyz xyzFromLab(const Lab& lab) {
    const double y = (lab.l + 16.0) / 116.0;
    return {kD50[0] * labCurveInverse(y + lab.a / 500.0), kD50[1] * labCurveInverse(y),
            kD50[2] * labCurveInverse(y - lab.b / 200.0)};
}

Lab labFromXyz(const Xyz& xyz) {
    const double x = labCurve(xyz[0] / kD50[0]);
    const double y = labCurve(xyz[1] / kD50[1]);
    const double z = labCurve(xyz[2] / kD50[2]);
    return {116.0 * y - 16.0, 500.0 * (x - y), 200.0 * (y - z)};
}

OkLabSlope okLabFromXyz(const Xyz& xyz) {
    OkLabSlope result;
    for (std::size_t cone = 0; cone < 3; ++cone) {
        const Vec3& row = kConesFromD50[cone];
        const double root = std::cbrt(row[0] * xyz[0] + row[1] * xyz[1] + row[2] * xyz[2]);
        const double bounded = std::max(std::abs(root), kSmallestRoot);
        const double slope = 1.0 / (3.0 * bounded * bounded);
        for (std::size_t i = 0; i < 3; ++i) {
            result.value[i] += kOkLabFromRoots[i][cone] * root;
            for (std::size_t j = 0; j < 3; ++j) {
                result.byXyz[i][j] += kOkLabFromRoots[i][cone] * slope * row[j];
            }
        }
    }
    return result;
}

} // namespace tintra::cmyk
