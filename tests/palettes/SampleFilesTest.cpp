#include "colour/ColorProfiles.h"
#include "palettes/PaletteFile.h"
#include "platform/File.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <map>

// Real files by many programs, when TINTRA_SAMPLES names the folder that holds them.

namespace tintra {
namespace {

namespace fs = std::filesystem;
using nlohmann::json;
using PaletteFile::Kind;
using PaletteFile::Swatch;

std::string textOf(const fs::path& file) {
    const auto content = readFile(file);
    return std::string(asText(std::get<Bytes>(content)));
}

std::string lettersAndDigits(std::string_view text) {
    std::string kept;
    for (const char c : text)
        if (std::isalnum(static_cast<unsigned char>(c)) != 0)
            kept += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return kept;
}

/// Steps of 8 bits by which a colour may differ. What is stored in RGB or as grey agrees exactly;
/// what goes through Lab, HSB or another RGB space may round otherwise.
int toleranceOf(const fs::path& file, const json& expected) {
    const bool isConverted =
        expected.contains("lab") ||
        (expected.contains("via") && expected["via"] != "sRGB" && expected["via"] != "device");
    if (isConverted) return 1;
    if (PaletteFile::kindOf(file) != Kind::aco) return 0;
    const int space = textOf(file).at(5); // of the first record; no sample mixes spaces
    return space == 1 || space == 7 ? 1 : 0;
}

WashColor colourOf(const json& expected) {
    if (expected.contains("cmyk")) {
        const auto inks = expected["cmyk"].get<std::vector<double>>();
        return *WashColor::fromPlatform(
            {ColourSpace::deviceCMYK(), {inks[0], inks[1], inks[2], inks[3]}, 1});
    }
    return {expected["r"], expected["g"], expected["b"], expected["a"]};
}

bool isNear(const WashColor& a, const WashColor& b, int tolerance) {
    const auto x = a.srgb255(), y = b.srgb255();
    return std::abs(x.r - y.r) <= tolerance && std::abs(x.g - y.g) <= tolerance &&
           std::abs(x.b - y.b) <= tolerance && std::abs(a.a - b.a) <= 1.0 / 255;
}

void expectSwatch(const fs::path& file, const Swatch& swatch, const json& expected) {
    EXPECT_TRUE(isNear(swatch.color, colourOf(expected), toleranceOf(file, expected)))
        << file << ": " << swatch.color.identity() << " for " << expected;
    const auto cut = [](const std::string& name) { return name.substr(0, name.find('\0')); };
    if (expected["name"].is_null())
        EXPECT_EQ(swatch.name, std::nullopt) << file;
    else
        EXPECT_EQ(swatch.name, cut(expected["name"].get<std::string>())) << file;
}

void expectPalette(const fs::path& file, const std::vector<Swatch>& swatches,
                   const json& expected) {
    ASSERT_EQ(swatches.size(), expected.size()) << file;
    for (std::size_t i = 0; i < swatches.size(); ++i)
        expectSwatch(file, swatches[i], expected[i]);
}

/// Every colour in its order; the name is the variable's, compared by letters and digits because
/// its display form is a matter of taste.
void expectVariables(const fs::path& file, const std::vector<Swatch>& swatches,
                     const json& expected) {
    ASSERT_EQ(swatches.size(), expected.size()) << file;
    for (std::size_t i = 0; i < swatches.size(); ++i) {
        const auto& variable = expected[i]["var"];
        const auto name = variable.is_null() ? std::string() : variable.get<std::string>();
        EXPECT_EQ(lettersAndDigits(swatches[i].name.value_or("")), lettersAndDigits(name)) << file;
        EXPECT_TRUE(isNear(swatches[i].color, colourOf(expected[i]), 0))
            << file << ": " << expected[i];
    }
}

TEST(SampleFiles, GiveTheExpectedSwatches) {
    const char* const samples = std::getenv("TINTRA_SAMPLES"); // NOLINT(concurrency-mt-unsafe)
    if (samples == nullptr) GTEST_SKIP() << "TINTRA_SAMPLES names no folder of palette files";
    int compared = 0;
    for (const auto* folder : {"ase", "aco", "gpl", "clr", "css"})
        for (const auto& entry : fs::directory_iterator(fs::path(samples) / folder)) {
            const auto& file = entry.path();
            const auto expected = json::parse(
                textOf(fs::path(samples) / "expected" / (file.filename().string() + ".json")));
            const auto read = PaletteFile::readNamed(file);
            ++compared;
            ASSERT_EQ(read.has_value(), !expected.is_null()) << file;
            if (!read) continue;
            const bool isStylesheet = PaletteFile::kindOf(file) == Kind::stylesheet;
            (isStylesheet ? expectVariables : expectPalette)(file, *read, expected);
        }
    EXPECT_GT(compared, 0) << "no file in " << samples;
}

} // namespace
} // namespace tintra
