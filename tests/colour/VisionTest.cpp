#include "colour/Vision.h"

#include "tests/colour/Distance.h"

#include <gtest/gtest.h>

#include <vector>

namespace tintra {
namespace {

TEST(Vision, SimulatesInLinearLight) {
    // Linear red is the matrix's first column: (0.152286, 0.114503, below 0), encoded.
    EXPECT_LT(distance(simulate(Vision::protanopia, {1, 0, 0, 0.5}), {0.426609, 0.372655, 0, 0.5}),
              1e-5);
    // Encoded -0.5 is -0.214041 of linear light; it takes green down to 0.761773.
    EXPECT_LT(distance(simulate(Vision::protanopia, {-0.5, 1, 0, 2}), {1, 0.886918, 0, 1}), 1e-5);
    // The green and blue of linear blue under tritanopia: 0.147602 and 0.3039.
    EXPECT_LT(distance(simulate(Vision::tritanopia, {0, 0, 1, 1}), {0, 0.420380, 0.587279}), 1e-5);
    const WashColor wide{1.2, -0.3, 0.5, 1.5};
    EXPECT_EQ(simulate(Vision::typical, wide), wide);
}

TEST(Vision, KeepsGreysAndLuminance) {
    for (const auto each : allVisions()) {
        EXPECT_EQ(vision(rawValue(each)), each);
        for (const double v : {0.0, 0.02, 0.5, 1.0})
            EXPECT_LT(distance(simulate(each, {v, v, v, 1}), {v, v, v, 1}), 2e-6);
    }
    EXPECT_EQ(vision("Typical Vision"), std::nullopt);
    const WashColor colour{0.2, 0.7, 0.4, 1};
    const auto grey = simulate(Vision::achromatopsia, colour);
    EXPECT_EQ(grey.r, grey.g);
    EXPECT_EQ(grey.g, grey.b);
    EXPECT_NEAR(grey.luminance(), colour.luminance(), 1e-9);
}

TEST(Vision, PictureGivesTheBytesOfSingleColours) {
    std::vector<std::uint8_t> levels{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13};
    for (int level = 0; level < 256; level += 15)
        levels.push_back(static_cast<std::uint8_t>(level));
    std::vector<std::uint8_t> picture;
    for (const auto r : levels)
        for (const auto g : levels)
            for (const auto b : levels)
                picture.insert(picture.end(), {r, g, b, b});
    picture.push_back(77); // no whole pixel
    for (const auto each : allVisions()) {
        auto seen = picture;
        simulatePicture(each, seen);
        for (std::size_t i = 0; i + 4 <= picture.size(); i += 4) {
            const WashColor colour{picture[i] / 255.0, picture[i + 1] / 255.0,
                                   picture[i + 2] / 255.0, 1};
            const Rgb255 found{seen[i], seen[i + 1], seen[i + 2]};
            ASSERT_EQ(found, simulate(each, colour).srgb255()) << colour.identity();
            ASSERT_EQ(seen[i + 3], picture[i + 3]);
        }
        EXPECT_EQ(seen.back(), 77);
    }
}

} // namespace
} // namespace tintra
