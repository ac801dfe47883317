#include "colour/ColorProfiles.h"

#include "colour/WashColor.h"
#include "platform/File.h"
#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

namespace fs = std::filesystem;

class ProfileFolders : public testing::Test {
protected:
    void SetUp() override {
        fs::create_directories(root_ / "first");
        fs::create_directories(root_ / "second");
    }

    fs::path write(const std::string& name, const Bytes& bytes) const {
        EXPECT_FALSE(writeFile(root_ / name, bytes, Existing::refuse));
        return root_ / name;
    }
    ColorProfiles profiles() const {
        return ColorProfiles([this] {
            return std::vector{root_ / "first", root_ / "missing", root_ / "second"};
        });
    }

    const TemporaryFolder root_;
    const Bytes cmyk_ = ColourSpace::deviceCMYK()->iccProfile();
    const Bytes rgb_ = ColourSpace::displayP3()->iccProfile();
};

TEST_F(ProfileFolders, OnlyUsableCmykProfilesAreListedOnce) {
    const auto press = write("first/press.ICM", cmyk_);
    write("second/press.icc", cmyk_); // the same description: the first found stays
    write("first/screen.icc", rgb_);
    write("first/other.icc2", cmyk_);
    write("first/broken.icc", Bytes(cmyk_.begin(), cmyk_.begin() + 100));
    fs::create_directory(root_ / "second/folder.icc");
    auto found = profiles();
    EXPECT_TRUE(found.cmykProfiles().empty()); // nothing is scanned before somebody asks
    found.loadIfNeeded();
    EXPECT_EQ(found.cmykProfiles(), (std::vector<ColorProfiles::Profile>{{"Device CMYK", press}}));
    fs::remove(press);
    found.loadIfNeeded(); // once a run
    EXPECT_EQ(found.cmykProfiles().size(), 1U);
}

TEST_F(ProfileFolders, SelectingFallsBackToTheDeviceProfile) {
    const auto press = write("first/press.icc", cmyk_);
    auto selected = profiles();
    selected.selectCMYK("Device CMYK");
    EXPECT_NE(&selected.cmykSpace(), ColourSpace::deviceCMYK().get()); // the one on disk
    selected.selectCMYK("none such");
    EXPECT_EQ(selected.selectedCMYK(), "Device CMYK");
    EXPECT_EQ(&selected.cmykSpace(), ColourSpace::deviceCMYK().get());
    fs::remove(press); // listed, but gone when it is to be read
    selected.selectCMYK("Device CMYK");
    EXPECT_EQ(&selected.cmykSpace(), ColourSpace::deviceCMYK().get());
}

TEST(ColorProfilesTest, ListsTheRgbSpacesInMenuOrder) {
    std::vector<std::string> names;
    for (const auto& space : ColorProfiles::rgbSpaces())
        names.push_back(space.name);
    EXPECT_EQ(names, (std::vector<std::string>{"sRGB IEC61966-2.1", "Display P3",
                                               "Adobe RGB (1998)", "Generic RGB", "ITU-R BT.2020",
                                               "ROMM RGB", "DCI-P3", "ITU-R BT.709"}));
    EXPECT_EQ(labIlluminant("d65"), LabIlluminant::d65);
    EXPECT_EQ(labIlluminant("D65"), std::nullopt);
}

TEST(ColorProfilesTest, TheGamutTestKnowsInkFromLight) {
    const auto& space = *ColourSpace::deviceCMYK();
    // The six corners of sRGB cannot be printed; white, black and a dull brown can.
    for (const WashColor primary : {WashColor{1, 0, 0}, WashColor{0, 1, 0}, WashColor{0, 0, 1},
                                    WashColor{0, 1, 1}, WashColor{1, 0, 1}, WashColor{1, 1, 0}})
        EXPECT_TRUE(isOutsideGamut(primary, space)) << primary.identity();
    for (const WashColor printable :
         {WashColor{1, 1, 1}, WashColor{0, 0, 0}, WashColor{0.5, 0.4, 0.3}})
        EXPECT_FALSE(isOutsideGamut(printable, space)) << printable.identity();
    // Without four inks there is no such gamut.
    EXPECT_FALSE(isOutsideGamut({0, 1, 0}, *ColourSpace::displayP3()));
}

/// A profile without its tables: a space that is there and refuses every conversion.
std::shared_ptr<const ColourSpace> refusing(const ColourSpace& space) {
    auto bytes = space.iccProfile();
    constexpr std::size_t kTagCount = 128; // right after the header of an ICC profile
    for (std::size_t i = 0; i < 4; ++i)
        bytes[kTagCount + i] = std::byte{0};
    return ColourSpace::fromIccProfile(bytes);
}

TEST(ColorProfilesTest, ARefusedConversionFallsBack) {
    const auto rgb = refusing(*ColourSpace::displayP3());
    const auto cmyk = refusing(*ColourSpace::deviceCMYK());
    ASSERT_TRUE(rgb && cmyk);
    EXPECT_FALSE(cmyk->convertsBothWays());
    EXPECT_EQ((WashColor{1, 0.5, 0, 1}.rgb255(*rgb)), (Rgb255{255, 128, 0})); // plain sRGB
    EXPECT_EQ(WashColor::fromPlatform({cmyk, {0, 1, 1, 0}, 1}), std::nullopt);
    EXPECT_FALSE(isOutsideGamut({0, 1, 0}, *cmyk));
}

} // namespace
} // namespace tintra
