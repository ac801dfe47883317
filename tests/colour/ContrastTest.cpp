#include "colour/Contrast.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace tintra::Contrast {
namespace {

constexpr WashColor kBlack{0, 0, 0, 1}, kWhite{1, 1, 1, 1};

WashColor hex(const char* text) {
    return WashColor::fromHex(text).value();
}

TEST(ContrastRatio, OfPublishedPairs) {
    struct Row {
        const char *text, *ground;
        double ratio; // as WebAIM's checker shows it, two decimals
    };
    const Row rows[] = {
        {"000", "fff", 21},      {"777", "fff", 4.48}, {"767676", "fff", 4.54},
        {"949494", "fff", 3.03}, {"f00", "fff", 4.00}, {"00f", "fff", 8.59},
        {"fff", "fff", 1},       {"ff0", "00f", 8.00}, {"0f0", "000", 15.30},
    };
    for (const auto& row : rows) {
        const auto text = hex(row.text), ground = hex(row.ground);
        EXPECT_NEAR(wcagRatio(text, ground), row.ratio, 0.006) << row.text << ' ' << row.ground;
        const double swapped = wcagRatio(ground, text); // NOLINT(*-suspicious-call-argument): meant
        EXPECT_EQ(swapped, wcagRatio(text, ground)) << row.text;
    }
}

TEST(ContrastRatio, OfColoursThatAreNoBytes) {
    // Encoded 0.5 is 0.2140411 of linear light.
    const double grey = 1.05 / 0.2640411;
    EXPECT_NEAR(wcagRatio({0.5, 0.5, 0.5, 1}, kWhite), grey, 1e-6);
    EXPECT_NEAR(wcagRatio({0, 0, 0, 0.5}, kWhite), grey, 1e-6);  // laid over the ground
    EXPECT_NEAR(wcagRatio(kBlack, {2, 1.5, 9, 0.1}), 21, 1e-12); // an opaque white
    EXPECT_NEAR(wcagRatio({-3, -0.1, std::nan(""), 1}, kWhite), 21, 1e-12);
    EXPECT_EQ(composited({1, -1, 0.25, 0.25}, {0, 1, 2, 0}), (WashColor{0.25, 0.75, 0.8125, 1}));
}

TEST(ContrastLc, OfTheReferenceTable) {
    struct Row {
        const char *text, *ground;
        double lc; // test values of APCA 0.0.98G-4g
    };
    const Row rows[] = {
        {"888", "fff", 63.056469930209424}, {"fff", "888", -68.54146436644962},
        {"000", "aaa", 58.146262578561334}, {"aaa", "000", -56.24113336839742},
        {"123", "def", 91.66830811481631},  {"def", "123", -93.06770049484275},
        {"123", "444", 8.32326136957393},   {"444", "123", -7.526878460278154},
    };
    for (const auto& row : rows)
        EXPECT_NEAR(apcaLc(hex(row.text), hex(row.ground)), row.lc, 1e-9) << row.text << row.ground;
    EXPECT_EQ(apcaLc(hex("808080"), hex("808080")), 0);
    EXPECT_EQ(apcaLc(hex("808080"), hex("888888")), 0); // too close to tell, either way
    EXPECT_EQ(apcaLc(hex("888888"), hex("808080")), 0);
    // A component between two bytes lies between their readings.
    const double between = apcaLc({0.5, 0.5, 0.5, 1}, kWhite);
    EXPECT_LT(between, apcaLc(hex("7f7f7f"), kWhite));
    EXPECT_GT(between, apcaLc(hex("808080"), kWhite));
}

TEST(ContrastGrade, AtItsBoundaries) {
    struct Row {
        double ratio;
        const char* shown;
        Grade normal, large;
    };
    using enum Grade;
    const Row rows[] = {
        {1, "1.00", below, below},
        {2.9999, "2.99", below, below},
        {3, "3.00", large, body},
        {4.4999, "4.49", large, body},
        {4.5, "4.50", body, enhanced},
        {4.4999999999, "4.50", body, enhanced},
        {6.996, "6.99", body, enhanced},
        {7, "7.00", enhanced, enhanced},
        {9.999, "9.99", enhanced, enhanced},
        {10, "10.0", enhanced, enhanced},
        {15.68, "15.6", enhanced, enhanced},
        {21, "21.0", enhanced, enhanced},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(ratioText(row.ratio), row.shown);
        EXPECT_EQ(wcagGrade(row.ratio, LargeText::no), row.normal) << row.ratio;
        EXPECT_EQ(wcagGrade(row.ratio, LargeText::yes), row.large) << row.ratio;
    }
    for (const auto& [lc, grade] : {std::pair{44.9999, below},
                                    {-45.0, large},
                                    {59.99, large},
                                    {-60.0, body},
                                    {74.9999999999, enhanced},
                                    {-108.0, enhanced}})
        EXPECT_EQ(apcaGrade(lc), grade) << lc;
    for (int raw = 0; raw < 4; ++raw)
        EXPECT_EQ(static_cast<int>(gradeFromRaw(raw).value()), raw);
    EXPECT_EQ(gradeFromRaw(-1), std::nullopt);
    EXPECT_EQ(gradeFromRaw(4), std::nullopt);
}

TEST(ContrastGrade, LcIsCutOffNotRounded) {
    for (const auto& [lc, text] : {std::pair{-0.4, "0"},
                                   {0.0, "0"},
                                   {-59.99, "−59"},
                                   {106.04, "106"},
                                   {-1.0, "−1"},
                                   {74.9999999999, "75"}})
        EXPECT_EQ(lcText(lc), text);
}

TEST(ContrastGrade, LargeTextByItsSizeAndWeight) {
    struct Row {
        double size;
        int weight;
        LargeText large;
    };
    for (const auto& [size, weight, large] :
         {Row{24, 100, LargeText::yes}, Row{23.99, 600, LargeText::no},
          Row{18.66, 700, LargeText::yes}, Row{18.65, 900, LargeText::no},
          Row{20, 600, LargeText::no}})
        EXPECT_EQ(isLargeText(size, weight), large) << size << ' ' << weight;
}

TEST(ContrastReach, FindsTheNearestLightness) {
    const auto textOn = [](WashColor ground, double need) {
        return [=](const WashColor& text) { return wcagRatio(text, ground) >= need; };
    };
    // 4.54:1 is the first grey that reaches 4.5:1 on white.
    for (const auto* start : {"777777", "ffffff"}) {
        const auto grey = reach(hex(start), textOn(kWhite, 4.5)).value();
        EXPECT_EQ(grey.colour.identity(), "767676FF") << start;
        EXPECT_FALSE(grey.lighter);
        EXPECT_FALSE(grey.eased);
    }
    const auto blue = reach({0, 0, 1, 0.9}, textOn(kBlack, 4.5)).value();
    EXPECT_TRUE(blue.lighter);
    EXPECT_TRUE(blue.eased);
    EXPECT_EQ(blue.colour.a, 0.9);
    EXPECT_GE(wcagRatio(blue.colour, kBlack), 4.5);
    EXPECT_LT(wcagRatio(blue.colour, kBlack), 4.55);
    const double start = hex("00f").oklab().L;
    EXPECT_NEAR(blue.colour.oklab().L - start, blue.distance, 3e-3);
}

TEST(ContrastReach, CountsStepsFromTheColourToBothEnds) {
    const auto any = reach({0.5, 0.5, 0.5, 2}, [](const WashColor&) { return true; }).value();
    EXPECT_TRUE(any.lighter); // equally near both ways
    EXPECT_EQ(any.distance, 0.001);
    EXPECT_EQ(any.colour.a, 1);
    int tried = 0;
    EXPECT_FALSE(reach(kBlack, [&tried](const WashColor&) { return ++tried < 0; }));
    EXPECT_EQ(tried, 1000); // up to lightness 1 itself
}

TEST(ContrastThresholds, FallWhereLuminanceSaysSo) {
    const std::array ratios{3.0, 4.5, 7.0};
    // Lightness of a grey is the cube root of its luminance, Y = 1.05 / ratio - 0.05 on white.
    const auto onWhite = thresholdLightnesses(kBlack, kWhite, Role::text, ratios);
    ASSERT_EQ(onWhite.size(), 3U);
    EXPECT_NEAR(onWhite[0], std::cbrt(0.1), 0.005);
    EXPECT_NEAR(onWhite[1], std::cbrt(1.05 / 4.5 - 0.05), 0.005);
    EXPECT_NEAR(onWhite[2], std::cbrt(0.3), 0.005);
    // Against a mid-tone the ratio falls, then rises: two marks for 3:1.
    const auto onGrey = thresholdLightnesses(kWhite, hex("7c7c7c"), Role::ground, {{3.0}});
    ASSERT_EQ(onGrey.size(), 2U);
    const double y = hex("7c7c7c").luminance() + 0.05;
    EXPECT_NEAR(onGrey[0], std::cbrt(y / 3 - 0.05), 0.005);
    EXPECT_NEAR(onGrey[1], std::cbrt(y * 3 - 0.05), 0.005);
    // A translucent text never stands that far off its ground; as a ground it counts as opaque.
    const WashColor faint{0, 0, 0, 0.5};
    EXPECT_TRUE(thresholdLightnesses(kWhite, faint, Role::ground, {{4.5}}).empty());
    EXPECT_EQ(thresholdLightnesses(kWhite, faint, Role::text, {{4.5}}).size(), 1U);
}

TEST(ContrastCssMatch, FollowsFontMatching) {
    struct Row {
        int desired;
        std::vector<int> among;
        std::optional<int> used;
    };
    const Row rows[] = {
        {400, {}, std::nullopt},     {400, {300, 400, 500}, 400},
        {400, {300, 500, 600}, 500}, // medium before anything lighter
        {450, {400, 500}, 500},      {500, {400, 600, 300, 400}, 400},
        {400, {600, 900}, 600},      {300, {400, 200, 100}, 200},
        {350, {900, 400}, 400},      {600, {500, 900, 700}, 700},
        {900, {400, 700, 300}, 700},
    };
    for (const auto& row : rows)
        EXPECT_EQ(cssMatch(row.desired, row.among), row.used) << row.desired;
    EXPECT_TRUE(needsSyntheticBold(600, 599));
    EXPECT_FALSE(needsSyntheticBold(599, 100));
    EXPECT_FALSE(needsSyntheticBold(900, 600));
}

} // namespace
} // namespace tintra::Contrast
