#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <lcms2.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kInks = 4;

/// sRGB, encoded, 0 to 1; beyond that where a print is outside sRGB.
using Rgb = std::array<double, 3>;

/// Cyan, magenta, yellow, black in percent.
using InkPercents = std::array<double, kInks>;

using Profile = std::unique_ptr<void, decltype(&cmsCloseProfile)>;
using Transform = std::unique_ptr<void, decltype(&cmsDeleteTransform)>;

std::string fileBytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

double largestDifference(const Rgb& left, const Rgb& right) {
    double largest = 0;
    for (std::size_t i = 0; i < left.size(); ++i) {
        largest = std::max(largest, std::abs(left[i] - right[i]));
    }
    return largest;
}

double inkSum(const InkPercents& inks) {
    return inks[0] + inks[1] + inks[2] + inks[3];
}

/// HSV (A. R. Smith 1978): hue in degrees, saturation and value 0 to 1.
Rgb fromHsv(double hue, double saturation, double value) {
    const auto channel = [&](double offset) {
        const double sector = std::fmod(offset + hue / 60.0, 6.0);
        const double strength = std::clamp(std::min(sector, 4.0 - sector), 0.0, 1.0);
        return value * (1.0 - saturation * strength);
    };
    return {channel(5), channel(3), channel(1)};
}

/// Maxima of a closed curve that stand out on both sides by at least `prominence`.
int countMaxima(const std::vector<double>& curve, double prominence) {
    const auto lowest = std::min_element(curve.begin(), curve.end()) - curve.begin();
    double low = curve[static_cast<std::size_t>(lowest)];
    double high = low;
    bool isRising = true;
    int count = 0;
    for (std::size_t i = 1; i <= curve.size(); ++i) {
        const double value = curve[(static_cast<std::size_t>(lowest) + i) % curve.size()];
        low = std::min(low, value);
        high = std::max(high, value);
        if (isRising && high - value >= prominence) {
            ++count;
            isRising = false;
            low = value;
        } else if (!isRising && value - low >= prominence) {
            isRising = true;
            high = value;
        }
    }
    return count;
}

/// The built profile against sRGB, relative colorimetric with black point compensation, unrounded.
class CmykProfile : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_NE(profile_, nullptr) << TINTRA_CMYK_PROFILE;
        toInks_ = transform(srgb_, TYPE_RGB_DBL, profile_, TYPE_CMYK_DBL);
        toRgb_ = transform(profile_, TYPE_CMYK_DBL, srgb_, TYPE_RGB_DBL);
        toLab_ = transform(srgb_, TYPE_RGB_DBL, lab_, TYPE_Lab_DBL);
        ASSERT_NE(toInks_, nullptr);
        ASSERT_NE(toRgb_, nullptr);
        ASSERT_NE(toLab_, nullptr);
    }

    InkPercents inks(const Rgb& rgb) const {
        InkPercents result{};
        cmsDoTransform(toInks_.get(), rgb.data(), result.data(), 1);
        return result;
    }
    Rgb print(const InkPercents& inks) const {
        Rgb result{};
        cmsDoTransform(toRgb_.get(), inks.data(), result.data(), 1);
        return result;
    }
    double roundTrip(const Rgb& rgb) const { return largestDifference(print(inks(rgb)), rgb); }

    double chroma(const Rgb& rgb) const {
        cmsCIELab lab{};
        cmsDoTransform(toLab_.get(), rgb.data(), &lab, 1);
        return std::hypot(lab.a, lab.b);
    }

    std::string text(cmsInfoType what) const {
        const auto size = cmsGetProfileInfoASCII(profile_.get(), what, "en", "US", nullptr, 0);
        std::string result(size, '\0');
        cmsGetProfileInfoASCII(profile_.get(), what, "en", "US", result.data(), size);
        return result.substr(0, result.find('\0'));
    }

    Profile profile_{cmsOpenProfileFromFile(TINTRA_CMYK_PROFILE, "r"), &cmsCloseProfile};

private:
    static Transform transform(const Profile& from, cmsUInt32Number fromFormat, const Profile& to,
                               cmsUInt32Number toFormat) {
        return {cmsCreateTransform(from.get(), fromFormat, to.get(), toFormat,
                                   INTENT_RELATIVE_COLORIMETRIC, cmsFLAGS_BLACKPOINTCOMPENSATION),
                &cmsDeleteTransform};
    }

    Profile srgb_{cmsCreate_sRGBProfile(), &cmsCloseProfile};
    Profile lab_{cmsCreateLab4Profile(nullptr), &cmsCloseProfile};
    Transform toInks_{nullptr, &cmsDeleteTransform};
    Transform toRgb_{nullptr, &cmsDeleteTransform};
    Transform toLab_{nullptr, &cmsDeleteTransform};
};

TEST_F(CmykProfile, NamesItselfAndStaysSmall) {
    EXPECT_EQ(text(cmsInfoDescription), "Device CMYK");
    EXPECT_EQ(text(cmsInfoCopyright), "Part of Tintra, MIT licence");
    EXPECT_EQ(cmsGetColorSpace(profile_.get()), cmsSigCmykData);
    EXPECT_EQ(cmsGetDeviceClass(profile_.get()), cmsSigOutputClass);
    EXPECT_LT(fs::file_size(TINTRA_CMYK_PROFILE), 300'000U);
}

// The solids as published for this printing condition (CIELAB D50), found again in the tables.
TEST_F(CmykProfile, PrintsThePublishedSolids) {
    struct Case {
        InkPercents inks;
        cmsCIELab lab;
    };
    const std::array<Case, 9> cases{{{{0, 0, 0, 0}, {95, 0, -2}},
                                     {{100, 0, 0, 0}, {55, -37, -50}},
                                     {{0, 100, 0, 0}, {48, 74, -3}},
                                     {{0, 0, 100, 0}, {89, -5, 93}},
                                     {{0, 0, 0, 100}, {16, 0, 0}},
                                     {{0, 100, 100, 0}, {47, 68, 48}},
                                     {{100, 0, 100, 0}, {50, -65, 27}},
                                     {{100, 100, 0, 0}, {24, 22, -46}},
                                     {{100, 100, 100, 0}, {23, 0, 0}}}};
    const Profile lab{cmsCreateLab4Profile(nullptr), &cmsCloseProfile};
    const Transform absolute{cmsCreateTransform(profile_.get(), TYPE_CMYK_DBL, lab.get(),
                                                TYPE_Lab_DBL, INTENT_ABSOLUTE_COLORIMETRIC, 0),
                             &cmsDeleteTransform};
    ASSERT_NE(absolute, nullptr);
    for (const Case& solid : cases) {
        cmsCIELab printed{};
        cmsDoTransform(absolute.get(), solid.inks.data(), &printed, 1);
        EXPECT_LT(cmsDeltaE(&printed, &solid.lab), 0.05) << testing::PrintToString(solid.inks);
    }
}

TEST_F(CmykProfile, KeepsWhiteBlackAndGreys) {
    for (const double ink : inks({1, 1, 1})) {
        EXPECT_LE(ink, 1e-4);
    }
    EXPECT_LE(roundTrip({0, 0, 0}), 0.005);
    InkPercents lighter{};
    for (int level = 255; level >= 0; --level) {
        const double grey = level / 255.0;
        const InkPercents percents = inks({grey, grey, grey});
        EXPECT_LE(roundTrip({grey, grey, grey}), 0.003) << level;
        EXPECT_LE(chroma(print(percents)), 0.3) << level;
        for (std::size_t ink = 0; ink < kInks; ++ink) {
            EXPECT_GE(percents[ink], lighter[ink]) << "level " << level << ", ink " << ink;
        }
        lighter = percents;
    }
}

TEST_F(CmykProfile, BringsColoursInGamutBack) {
    constexpr int kTries = 100'000;
    std::mt19937 random(20240101); // NOLINT(cert-msc32-c,cert-msc51-cpp): alike in every run
    const auto percent = [&random] { return 100.0 * static_cast<double>(random()) / 4294967295.0; };
    int count = 0;
    int close = 0;
    double worst = 0;
    for (int i = 0; i < kTries; ++i) {
        const InkPercents percents{percent(), percent(), percent(), percent()};
        const Rgb rgb = print(percents);
        const auto [least, most] = std::minmax_element(rgb.begin(), rgb.end());
        if (inkSum(percents) <= 300 && *least >= 0 && *most <= 1) {
            const double difference = roundTrip(rgb);
            ++count;
            close += difference <= 0.005 ? 1 : 0;
            worst = std::max(worst, difference);
        }
    }
    EXPECT_GT(count, kTries / 2);
    EXPECT_GE(close, 0.99 * count);
    EXPECT_LE(worst, 0.02);
}

TEST_F(CmykProfile, KeepsTheInkLimitInAllOfSrgb) {
    constexpr int kSteps = 24;
    double most = 0;
    for (int i = 0; i < kSteps * kSteps * kSteps; ++i) {
        const auto level = [](int step) { return step % kSteps / (kSteps - 1.0); };
        most =
            std::max(most, inkSum(inks({level(i), level(i / kSteps), level(i / kSteps / kSteps)})));
    }
    EXPECT_LE(most, 306);
}

TEST_F(CmykProfile, RunsSmoothlyAroundTheHues) {
    constexpr std::size_t kDegrees = 360;
    for (const double value : {1.0, 0.5}) {
        for (int saturation = 1; saturation <= 6; ++saturation) {
            SCOPED_TRACE(testing::Message() << "value " << value << ", " << saturation << "/6");
            std::array<std::vector<double>, kInks> curves;
            for (std::size_t hue = 0; hue < kDegrees; ++hue) {
                const auto percents =
                    inks(fromHsv(static_cast<double>(hue), saturation / 6.0, value));
                for (std::size_t ink = 0; ink < kInks; ++ink) {
                    curves[ink].push_back(percents[ink]);
                }
            }
            for (const auto& curve : curves) {
                EXPECT_LE(countMaxima(curve, 2), 3);
                for (std::size_t hue = 0; hue < kDegrees; ++hue) {
                    EXPECT_LE(std::abs(curve[(hue + 1) % kDegrees] - curve[hue]), 6) << hue;
                }
            }
        }
    }
}

// Inks of an independent prototype of the same press, good to about five points.
TEST_F(CmykProfile, SeparatesKnownColours) {
    enum class Gamut { inside, outside };
    struct Case {
        const char* name;
        Rgb rgb;
        InkPercents inks;
        Gamut gamut;
    };
    const std::array<Case, 9> cases{{
        {"red", {1, 0, 0}, {0, 97, 100, 0}, Gamut::outside},
        {"green", {0, 1, 0}, {69, 0, 100, 0}, Gamut::outside},
        {"blue", {0, 0, 1}, {100, 78, 0, 0}, Gamut::outside},
        {"cyan", {0, 1, 1}, {56, 0, 26, 0}, Gamut::outside},
        {"magenta", {1, 0, 1}, {53, 97, 0, 0}, Gamut::outside},
        {"yellow", {1, 1, 0}, {14, 0, 100, 0}, Gamut::outside},
        {"808080", {128 / 255.0, 128 / 255.0, 128 / 255.0}, {49, 34, 36, 22}, Gamut::inside},
        {"404040", {64 / 255.0, 64 / 255.0, 64 / 255.0}, {64, 50, 51, 60}, Gamut::inside},
        {"black", {0, 0, 0}, {75, 62, 62, 100}, Gamut::inside},
    }};
    for (const Case& known : cases) {
        const InkPercents percents = inks(known.rgb);
        for (std::size_t ink = 0; ink < kInks; ++ink) {
            EXPECT_NEAR(percents[ink], known.inks[ink], 5) << known.name << ", ink " << ink;
        }
        EXPECT_EQ(roundTrip(known.rgb) > 0.02, known.gamut == Gamut::outside) << known.name;
    }
}

class CmykTool : public testing::Test {
protected:
    /// Whether the tool succeeded; what it said is in the file "said".
    bool run(const std::string& arguments) const {
        const std::string command =
            "'" TINTRA_CMYK_TOOL "' " + arguments + " 2>'" + (folder_ / "said").string() + "'";
        return std::system(command.c_str()) == 0; // NOLINT(cert-env33-c)
    }
    std::string quoted(const char* name) const { return "'" + (folder_ / name).string() + "'"; }

    const tintra::TemporaryFolder folder_;
};

TEST_F(CmykTool, BuildsTheSameBytesAgain) {
    ASSERT_TRUE(run(quoted("again.icc")));
    const std::string again = fileBytes(folder_ / "again.icc");
    EXPECT_FALSE(again.empty());
    EXPECT_TRUE(again == fileBytes(TINTRA_CMYK_PROFILE));
}

TEST_F(CmykTool, FailsWithOneLineAndLeavesNothing) {
    fs::create_directories(folder_ / "a folder/in it");
    for (const std::string& arguments :
         {std::string(), quoted("missing/out.icc"), quoted("a folder")}) {
        SCOPED_TRACE(arguments);
        EXPECT_FALSE(run(arguments));
        const std::string said = fileBytes(folder_ / "said");
        EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1);
        EXPECT_FALSE(fs::exists(folder_ / "a folder.partial"));
        EXPECT_TRUE(fs::is_directory(folder_ / "a folder"));
    }
}

} // namespace
