#include "mix/TintraMix.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace TintraMix {
namespace {

/// Summed over the components, so that NaN is far from everything.
double distance(const SRGB& one, const SRGB& other) {
    return std::abs(one.r - other.r) + std::abs(one.g - other.g) + std::abs(one.b - other.b);
}

TEST(TintraMix, MixesAsComputedIndependently) {
    struct Row {
        SRGB a, b;
        double t, white, black;
        SRGB mixed; // by a straightforward program in another language, from the same tables
    };
    const Row rows[] = {
        {{0, 0, 1}, {1, 1, 0}, 0.5, 0, 0, {0.222395478, 0.560644953, 0.328942754}},
        {{1, 0, 0}, {1, 1, 1}, 0.5, 0, 0, {1, 0.257719785, 0.288630016}},
        {{0.8, 0.2, 0.1}, {0.1, 0.3, 0.9}, 0.25, 0.3, 0.6, {0.607021166, 0.31142041, 0.210373201}},
        {{1, 0, 1}, {0, 1, 0}, 0.75, 0, 0.2, {0.414395957, 0.682187771, 0.229331785}},
        {{0, 0, 0}, {1, 1, 1}, 0.5, 0, 0, {0.651331033, 0.651545812, 0.651181314}},
        {{0, 1, 1}, {1, 0, 0}, 0.9, 1, 0, {0.926300426, 0.311515661, 0.324196222}},
    };
    // The program's figures have nine decimals.
    for (const auto& row : rows)
        EXPECT_LT(distance(mix(row.a, row.b, row.t, row.white, row.black), row.mixed), 1e-8)
            << row.a.r << row.a.g << row.a.b;
}

TEST(TintraMix, AColourMixedWithItselfStays) {
    for (int i = 0; i < 11 * 11 * 11; ++i) {
        const int r = i % 11, g = i / 11 % 11, b = i / 121;
        const SRGB colour{r / 10.0, g / 10.0, b / 10.0};
        // A component is off by 1e-8 at most; by 1e-3 near white, whose paint reflects a little
        // over 1, which no mixture does.
        const double tolerance = std::min({colour.r, colour.g, colour.b}) > 0.9 ? 3e-3 : 3e-8;
        for (const double t : {0.0, 0.3, 1.0})
            EXPECT_LT(distance(mix(colour, colour, t, 0, 0), colour), tolerance) << i << ' ' << t;
        const SRGB other{0.2, 0.9, 0.4};
        EXPECT_LT(distance(mix(colour, other, 0, 0, 0), colour), tolerance) << i;
        EXPECT_LT(distance(mix(other, colour, 1, 0, 0), colour), tolerance) << i;
    }
}

TEST(TintraMix, EveryMixtureOfPrimariesIsInside) {
    for (int i = 0; i < 64; ++i) {
        const SRGB a{i & 1 ? 1.0 : 0, i & 2 ? 1.0 : 0, i & 4 ? 1.0 : 0};
        const SRGB b{i & 8 ? 1.0 : 0, i & 16 ? 1.0 : 0, i & 32 ? 1.0 : 0};
        for (const auto& mixed : {mix(a, b, 0.4, 0, 0), mix(a, b, 0.4, 0.5, 1)})
            for (const double v : {mixed.r, mixed.g, mixed.b})
                EXPECT_TRUE(v >= 0 && v <= 1) << i;
    }
}

TEST(TintraMixRamp, HoldsBothEnds) {
    const SRGB a{0.9, 0.1, 0.2}, b{0.1, 0.2, 0.8};
    EXPECT_TRUE(ramp(a, b, 0, 0, 0).empty());
    EXPECT_TRUE(ramp(a, b, 0, 0, -5).empty());
    EXPECT_EQ(ramp(a, b, 0.1, 0.2, 1), std::vector{mix(a, b, 0.5, 0.1, 0.2)});
    const auto five = ramp(a, b, 0.1, 0.2, 5);
    ASSERT_EQ(five.size(), 5U);
    for (std::size_t i = 0; i < 5; ++i)
        EXPECT_EQ(five[i], mix(a, b, static_cast<double>(i) / 4, 0.1, 0.2)) << i;
}

} // namespace
} // namespace TintraMix
