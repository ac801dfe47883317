#include "colour/ContrastTarget.h"

#include <gtest/gtest.h>

namespace tintra::Contrast {
namespace {

constexpr WashColor kBlack{0, 0, 0, 1}, kWhite{1, 1, 1, 1};

TEST(ContrastTarget, TitlesAndVerdicts) {
    const char* const titles[][2] = {
        {"AA · normal text, 4.5", "AA · large text, 3.0"},
        {"AAA · normal text, 7.0", "AAA · large text, 4.5"},
        {"AA · interface parts, 3.0", "AA · interface parts, 3.0"},
    };
    for (const auto each : allTargets()) {
        EXPECT_EQ(target(rawValue(each)), each);
        EXPECT_EQ(title(each, LargeText::no), titles[static_cast<int>(each)][0]);
        EXPECT_EQ(title(each, LargeText::yes), titles[static_cast<int>(each)][1]);
    }
    EXPECT_EQ(target("AA"), std::nullopt);
    EXPECT_EQ(verdict(5, LargeText::no),
              "Normal text under WCAG 2.2: passes AA at 4.5:1, fails AAA at 7:1; "
              "interface parts: passes at 3:1");
    EXPECT_EQ(verdict(2.9999, LargeText::yes),
              "Large text under WCAG 2.2: fails AA at 3:1, fails AAA at 4.5:1; "
              "interface parts: fails at 3:1");
}

TEST(ContrastTarget, ProposalsReachOrSayWhyNot) {
    const WashColor grey{0.46, 0.46, 0.46, 1};
    struct Row {
        WashColor text, ground;
        std::string textTitle, groundTitle, message;
    };
    const std::string noText = "No lightness of the text reaches it on this ground.";
    const std::string noGround = "No lightness of the ground reaches it under this text.";
    const Row rows[] = {
        {kBlack, kWhite, "", "", "This pair already reaches it."},
        {{0.6, 0.6, 0.6, 1}, kWhite, "Darken the text", "Darken the ground", ""},
        {kWhite, grey, "", "Darken the ground", noText},
        {grey, kBlack, "Lighten the text", "", noGround},
        {{0, 0, 0, 0.1}, kWhite, "", "", noText + ' ' + noGround},
    };
    const double need = 7;
    for (const auto& row : rows) {
        const auto report = reachReport(row.text, row.ground, Target::aaa, LargeText::no);
        EXPECT_EQ(report.need, need);
        EXPECT_EQ(report.message, row.message);
        EXPECT_EQ(report.text ? report.text->title : "", row.textTitle);
        EXPECT_EQ(report.ground ? report.ground->title : "", row.groundTitle);
        if (report.text) {
            EXPECT_EQ(report.text->ratio, wcagRatio(report.text->colour, row.ground));
            EXPECT_GE(report.text->ratio, need);
        }
        if (report.ground) {
            EXPECT_EQ(report.ground->ratio, wcagRatio(row.text, report.ground->colour));
            EXPECT_GE(report.ground->ratio, need);
        }
    }
}

} // namespace
} // namespace tintra::Contrast
