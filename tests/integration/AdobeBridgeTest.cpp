#include "integration/AdobeBridge.h"

#include "tests/support/FakeDesktop.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

using AdobeBridge::Target;

struct Bridge : testing::Test {
    RecordingScripting scripting;
    ColorProfiles profiles{[] { return std::vector<std::filesystem::path>{}; }};

    std::string sent(const WashColor& colour, Target to) {
        EXPECT_EQ(AdobeBridge::send(colour, to, profiles, scripting), std::nullopt);
        return scripting.sources.back();
    }
};

TEST_F(Bridge, RunsOneStatementATargetWithoutAlpha) {
    EXPECT_EQ(sent({1, 0, 0, 1}, Target::photoshopForeground),
              R"(tell application id "com.adobe.Photoshop" to set foreground color to )"
              R"({class:RGB color, red:255, green:0, blue:0})");
    EXPECT_EQ(sent({0, 0.5, 1, 0.3}, Target::photoshopBackground),
              R"(tell application id "com.adobe.Photoshop" to set background color to )"
              R"({class:RGB color, red:0, green:128, blue:255})");
    EXPECT_EQ(sent({0, 0, 0, 1}, Target::illustratorFill),
              R"(tell application id "com.adobe.illustrator" to set default fill color of )"
              R"(document 1 to {class:RGB color, red:0, green:0, blue:0})");
    EXPECT_EQ(sent({1, 1, 1, 1}, Target::illustratorStroke),
              R"(tell application id "com.adobe.illustrator" to set default stroke color of )"
              R"(document 1 to {class:RGB color, red:255, green:255, blue:255})");
}

TEST_F(Bridge, NumbersAreThoseOfTheSelectedSpace) {
    profiles.selectRGB("Display P3");
    ASSERT_EQ(profiles.selectedRGB(), "Display P3");
    // sRGB red in Display P3 is (0.9175, 0.2003, 0.1386), CSS Color 4's own example.
    EXPECT_NE(sent({1, 0, 0, 1}, Target::photoshopForeground).find("red:234, green:51, blue:35"),
              std::string::npos);
}

TEST_F(Bridge, AFailureIsSaidInThePlatformsWordsOrInOurs) {
    scripting.answer = Scripting::Error{"The document is locked."};
    EXPECT_EQ(AdobeBridge::send({}, Target::illustratorFill, profiles, scripting),
              "The document is locked.");
    NoScripting none;
    EXPECT_EQ(AdobeBridge::send({}, Target::illustratorFill, profiles, none),
              "Could not reach the application.");
}

TEST_F(Bridge, AnApplicationIsInstalledWhenItsIdentifierIsFound) {
    scripting.installed = {"com.adobe.illustrator"};
    EXPECT_TRUE(isInstalled(AppIntegration::illustrator, scripting));
    EXPECT_FALSE(isInstalled(AppIntegration::photoshop, scripting));
}

} // namespace
} // namespace tintra
