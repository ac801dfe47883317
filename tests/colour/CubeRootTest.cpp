#include "colour/CubeRoot.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace tintra {
namespace {

TEST(CubeRoot, StaysWithinOneUnitOfTheTrueRoot) {
    std::mt19937_64 random(7); // NOLINT(cert-msc32-c,cert-msc51-cpp): the same values every run
    std::uniform_real_distribution<double> mantissa(1, 8);
    for (int i = 0; i < 200000; ++i) {
        const double x = std::ldexp(mantissa(random), 3 * (i % 200 - 100));
        const double root = cubeRoot(x);
        const auto exact = std::cbrt(static_cast<long double>(x));
        const double unit = std::nextafter(root, INFINITY) - root;
        ASSERT_LE(std::abs(static_cast<double>(root - exact)), unit) << x;
        ASSERT_EQ(cubeRoot(-x), -root);
    }
}

TEST(CubeRoot, IsExactWhereTheRootIs) {
    for (const double root : {1.0, 2.0, 0.5, 3.0, 10.0, 1024.0})
        EXPECT_EQ(cubeRoot(root * root * root), root);
    EXPECT_EQ(cubeRoot(0.0), 0.0);
    EXPECT_TRUE(std::signbit(cubeRoot(-0.0)));
    EXPECT_EQ(cubeRoot(INFINITY), INFINITY);
    EXPECT_TRUE(std::isnan(cubeRoot(NAN)));
    const double tiny = std::numeric_limits<double>::denorm_min();
    EXPECT_NEAR(cubeRoot(tiny) / std::cbrt(tiny), 1, 1e-15);
}

} // namespace
} // namespace tintra
