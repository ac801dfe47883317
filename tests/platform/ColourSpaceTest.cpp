#include "platform/ColourSpace.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace tintra {
namespace {

/// sRGB of a colour given in another space, computed apart from this program: matrices from the
/// published primaries and D65, the Generic RGB one as fitted to real colour lists, then the curve.
TEST(ColourSpace, NamedSpacesConvertAsPublished) {
    struct Row {
        std::shared_ptr<const ColourSpace> space;
        Components components;
        ExtendedSrgb expected;
    };
    const Row rows[] = {
        {ColourSpace::displayP3(), {1, 0, 0}, {1.0931, -0.2267, -0.1501}},
        {ColourSpace::adobeRGB1998(), {0, 1, 0}, {-0.6640, 1.0000, -0.2292}},
        {ColourSpace::ituRBT2020(), {0, 0, 1}, {-0.2992, -0.0886, 1.0505}},
        {ColourSpace::linearSRGB(), {0.5, 0.5, 0.5}, {0.7354, 0.7354, 0.7354}},
        {ColourSpace::genericRGB(), {0.565, 0.933, 0.565}, {0.6212, 0.9335, 0.6319}},
    };
    for (const auto& row : rows) {
        const auto srgb = row.space->toSrgb(row.components);
        ASSERT_TRUE(srgb) << row.space->localizedName();
        EXPECT_NEAR(srgb->r, row.expected.r, 3e-4) << row.space->localizedName();
        EXPECT_NEAR(srgb->g, row.expected.g, 3e-4) << row.space->localizedName();
        EXPECT_NEAR(srgb->b, row.expected.b, 3e-4) << row.space->localizedName();
    }
}

TEST(ColourSpace, WhiteStaysWhiteAndColoursComeBack) {
    for (const auto& space :
         {ColourSpace::sRGB(), ColourSpace::displayP3(), ColourSpace::adobeRGB1998(),
          ColourSpace::genericRGB(), ColourSpace::ituRBT2020(), ColourSpace::rommRGB(),
          ColourSpace::dciP3(), ColourSpace::ituRBT709()}) {
        SCOPED_TRACE(space->localizedName());
        EXPECT_EQ(space->componentCount(), 3);
        EXPECT_TRUE(space->convertsBothWays());
        const auto white = space->toSrgb({1, 1, 1});
        ASSERT_TRUE(white);
        EXPECT_NEAR(white->r, 1, 2e-4);
        EXPECT_NEAR(white->g, 1, 2e-4);
        EXPECT_NEAR(white->b, 1, 2e-4);
        const auto there = space->fromSrgb({0.2, 0.6, 0.4});
        ASSERT_TRUE(there);
        const auto back = space->toSrgb(*there);
        EXPECT_NEAR(back->r, 0.2, 1e-5);
        EXPECT_NEAR(back->g, 0.6, 1e-5);
        EXPECT_NEAR(back->b, 0.4, 1e-5);
    }
}

TEST(ColourSpace, GreysFollowTheirCurves) {
    const auto grey = ColourSpace::genericGrey()->toSrgb({0.5});
    ASSERT_TRUE(grey);
    // 0.5^1.8 = 0.28717 in linear light, which sRGB encodes as 0.5726.
    EXPECT_NEAR(grey->r, 0.5726, 1e-3);
    EXPECT_NEAR(grey->b, 0.5726, 1e-3);
    EXPECT_NEAR(ColourSpace::genericGreyGamma22()->toSrgb({0.5})->g, 0.5, 1e-4);
}

TEST(ColourSpace, AProfileIsReadBackFromItsBytes) {
    const auto bytes = ColourSpace::displayP3()->iccProfile();
    const auto space = ColourSpace::fromIccProfile(bytes);
    ASSERT_TRUE(space);
    EXPECT_EQ(space->localizedName(), "Display P3");
    EXPECT_EQ(space->model(), ColourModel::rgb);
    EXPECT_NEAR(space->toSrgb({1, 0, 0})->r, 1.0930, 1e-3);
    EXPECT_EQ(ColourSpace::fromIccProfile({}), nullptr);
    EXPECT_EQ(ColourSpace::fromIccProfile(asBytes(std::string(200, 'x'))), nullptr);
    for (std::size_t length = 0; length < bytes.size(); length += 7) {
        const auto cut = ColourSpace::fromIccProfile(ByteView(bytes).first(length));
        if (cut) cut->toSrgb({1, 1, 1}); // whatever it answers, it must not crash
    }
}

TEST(ColourSpace, TheDeviceProfilePrints) {
    const auto cmyk = ColourSpace::deviceCMYK();
    ASSERT_TRUE(cmyk);
    EXPECT_EQ(cmyk->localizedName(), "Device CMYK");
    EXPECT_EQ(cmyk->componentCount(), 4);
    EXPECT_TRUE(cmyk->convertsBothWays());
    const auto paper = cmyk->fromSrgb({1, 1, 1});
    ASSERT_TRUE(paper);
    for (const double ink : *paper)
        EXPECT_NEAR(ink, 0, 1e-4);
    const auto yellow = cmyk->toSrgb({0, 0, 1, 0});
    EXPECT_GT(yellow->r, 0.95);
    EXPECT_LT(yellow->b, 0.3);
}

} // namespace
} // namespace tintra
