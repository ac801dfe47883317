#include "colour/ColorProfiles.h"
#include "palettes/PaletteExport.h"
#include "tests/palettes/CommaLocale.h"

#include <fmt/format.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace tintra {
namespace {

using Names = std::vector<std::optional<std::string>>;

const WashColor kOrange{1, 0.5, 0, 1}, kBlue{0, 0, 1, 0.5}, kAlmostOpaque{1, 1, 1, 0.9992};
const std::vector kColours{kOrange, kBlue, kAlmostOpaque};
const Names kNames{"Tom & \"J\" <b>", "a\\b|c*/d\n\tE", "3rd"};
constexpr std::string_view kTitle = "R&D \"x\"*/\ny";

std::string written(ExportFormat format, const FormatOptions& options = {}) {
    const auto bytes = PaletteExport::data(format, kColours, kNames, kTitle, options);
    return std::string(asText(bytes.value_or(Bytes{})));
}

/// The inks depend on the profile; how they are written does not.
std::string inks(const WashColor& colour) {
    const auto [c, m, y, k] = colour.cmyk();
    return fmt::format("{}, {}, {}, {}", std::lrint(c * 100), std::lrint(m * 100),
                       std::lrint(y * 100), std::lrint(k * 100));
}

std::string expectedJson() {
    return R"({
  "name": "R&amp;D &quot;x&quot;*/\u000Ay",
  "colors": [
    {
        "name": "Tom &amp; &quot;J&quot; &lt;b&gt;",
        "hex": "#ff8000",
        "rgb": [255, 128, 0],
        "hsl": [30, 100, 50],
        "cmyk": [)" +
           inks(kOrange) + R"(],
        "alpha": 1.00
      },
    {
        "name": "a\\b|c*/d\u000A\u0009E",
        "hex": "#0000ff80",
        "rgb": [0, 0, 255],
        "hsl": [240, 100, 50],
        "cmyk": [)" +
           inks(kBlue) + R"(],
        "alpha": 0.50
      },
    {
        "name": "3rd",
        "hex": "#ffffff",
        "rgb": [255, 255, 255],
        "hsl": [0, 0, 100],
        "cmyk": [)" +
           inks(kAlmostOpaque) + R"(],
        "alpha": 1.00
      }
  ]
})";
}

constexpr std::string_view kXml = R"(<?xml version="1.0" encoding="UTF-8"?>
<palette name="R&amp;D &quot;x&quot;*/ y">
  <color name="Tom &amp; &quot;J&quot; &lt;b&gt;" hex="#ff8000" r="255" g="128" b="0" alpha="1.00"/>
  <color name="a\b|c*/d  E" hex="#0000ff80" r="0" g="0" b="255" alpha="0.50"/>
  <color name="3rd" hex="#ffffff" r="255" g="255" b="255" alpha="1.00"/>
</palette>)";

// Half-opaque blue on white paper is light (luminance 0.27): black reads better on it.
constexpr std::string_view kHtml =
    R"(<!doctype html>
<html><head><meta charset="utf-8"><title>R&amp;D &quot;x&quot;*/ y</title>
<style>
  body { font: 14px -apple-system, system-ui, sans-serif; margin: 2rem; }
  .palette { display: flex; flex-wrap: wrap; gap: .5rem; }
  figure { margin: 0; width: 9rem; height: 9rem; border-radius: .5rem;
           display: flex; align-items: flex-end; padding: .75rem; }
  figcaption { font-size: .8rem; line-height: 1.4; }
  code { font-size: .75rem; opacity: .85; }
</style></head>
<body><h1>R&amp;D &quot;x&quot;*/ y</h1><div class="palette">
  <figure style="background:#ff8000;color:#000">
    <figcaption>Tom &amp; &quot;J&quot; &lt;b&gt;<br><code>#ff8000</code></figcaption>
  </figure>
  <figure style="background:#0000ff80;color:#000">
    <figcaption>a\b|c*/d  E<br><code>#0000ff80</code></figcaption>
  </figure>
  <figure style="background:#ffffff;color:#000">
    <figcaption>3rd<br><code>#ffffff</code></figcaption>
  </figure>
</div></body></html>)";

std::string expectedMarkdown() {
    return R"(# R&D "x"\*/ y

| Name | Hex | RGB | CMYK |
| --- | --- | --- | --- |
| Tom & "J" \<b> | #ff8000 | 255, 128, 0 | )" +
           inks(kOrange) + R"( |
| a\\b\|c\*/d  E | #0000ff80 | 0, 0, 255 | )" +
           inks(kBlue) + R"( |
| 3rd | #ffffff | 255, 255, 255 | )" +
           inks(kAlmostOpaque) + " |\n";
}

constexpr std::string_view kSvg =
    R"(<svg xmlns="http://www.w3.org/2000/svg" width="240" height="80" viewBox="0 0 240 80">
  <rect x="0" y="0" width="80" height="80" fill="#ff8000"><title>Tom &amp; &quot;J&quot; &lt;b&gt;</title></rect>
  <rect x="80" y="0" width="80" height="80" fill="#0000ff" fill-opacity="0.50"><title>a\b|c*/d  E</title></rect>
  <rect x="160" y="0" width="80" height="80" fill="#ffffff"><title>3rd</title></rect>
</svg>)";

constexpr std::string_view kCss = R"(/* R&D "x"* / y */
:root {
  --tom-j-b: #ff8000;
  --a-b-c-d-e: #0000ff80;
  --3rd: #ffffff;
}
)";

constexpr std::string_view kLess = R"(// R&D "x"*/ y
@tom-j-b: #ff8000;
@a-b-c-d-e: #0000ff80;
@c-3rd: #ffffff;
)";

constexpr std::string_view kSass = R"(// R&D "x"*/ y
$tom-j-b: #ff8000
$a-b-c-d-e: #0000ff80
$c-3rd: #ffffff
)";

constexpr std::string_view kScss = R"(// R&D "x"*/ y
$tom-j-b: #ff8000;
$a-b-c-d-e: #0000ff80;
$c-3rd: #ffffff;
)";

constexpr std::string_view kGpl = "GIMP Palette\nName: R&D \"x\"*/ y\nColumns: 0\n#\n"
                                  "255 128   0\tTom & \"J\" <b>\n"
                                  "  0   0 255\ta\\b|c*/d  E\n"
                                  "255 255 255\t3rd\n";

void expectEveryTextAsItShouldBe() {
    using enum ExportFormat;
    EXPECT_EQ(written(json), expectedJson());
    EXPECT_EQ(written(xml), kXml);
    EXPECT_EQ(written(html), kHtml);
    EXPECT_EQ(written(markdown), expectedMarkdown());
    EXPECT_EQ(written(svg), kSvg);
    EXPECT_EQ(written(css), kCss);
    EXPECT_EQ(written(less), kLess);
    EXPECT_EQ(written(sass), kSass);
    EXPECT_EQ(written(scss), kScss);
    EXPECT_EQ(written(gpl), kGpl);
}

TEST(ExportText, HasTheLayoutOfItsFormat) {
    expectEveryTextAsItShouldBe();
}

TEST(ExportText, KeepsItsPointsUnderACommaLocale) {
    const CommaLocale comma;
    expectEveryTextAsItShouldBe();
    if (!comma.reachesC()) GTEST_SKIP() << "no comma locale for C: only C++ streams were tried";
}

TEST(ExportText, FollowsTheHexOptions) {
    const FormatOptions bare{.cssUppercase = true, .cssPrefixHash = false};
    using enum ExportFormat;
    EXPECT_NE(written(json, bare).find("\"hex\": \"FF8000\""), std::string::npos);
    EXPECT_NE(written(xml, bare).find("hex=\"0000FF80\""), std::string::npos);
    EXPECT_NE(written(html, bare).find("background:#0000FF80;"), std::string::npos);
    EXPECT_NE(written(html, bare).find("<code>0000FF80</code>"), std::string::npos);
    EXPECT_NE(written(markdown, bare).find("| 0000FF80 |"), std::string::npos);
    EXPECT_NE(written(svg, bare).find("\"#0000FF\""), std::string::npos);
    for (const auto format : {css, scss, sass, less})
        EXPECT_NE(written(format, bare).find(": #0000FF80"), std::string::npos) << rawValue(format);
}

TEST(ExportText, FollowsTheSelectedSpaceExceptInGpl) {
    auto& profiles = ColorProfiles::shared();
    profiles.selectRGB("Display P3");
    const PaletteExport::Entry red[] = {{{1, 0, 0, 1}, "Red"}};
    const auto text = PaletteExport::xml("", red, {});
    const auto gimp = PaletteExport::gpl("", red);
    profiles.selectRGB(ColorProfiles::kDefaultRgb);
    // The well-known Display P3 coordinates of sRGB red.
    EXPECT_NE(text.find("hex=\"#ea3323\" r=\"234\" g=\"51\" b=\"35\""), std::string::npos) << text;
    EXPECT_NE(gimp.find("255   0   0\tRed"), std::string::npos) << gimp;
}

TEST(ExportText, AnEmptySvgIsOneSquareWide) {
    EXPECT_EQ(PaletteExport::svg({}, {}), "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"80\" "
                                          "height=\"80\" viewBox=\"0 0 80 80\">\n</svg>");
}

TEST(ExportText, VariablesOfOneFileNeverRepeat) {
    const WashColor c;
    const PaletteExport::Entry entries[] = {{c, "Red!"}, {c, "Red"}, {c, "red 2"}, {c, "?"}};
    EXPECT_EQ(PaletteExport::sass("x", entries, {}),
              "// x\n$red: #000000\n$red-2: #000000\n$red-2-2: #000000\n$colour: #000000\n");
}

TEST(ExportEntries, NamesAreGivenOrNearestAndNeverRepeat) {
    const std::vector<WashColor> colours(7);
    const Names names{"Red", "Red", "Red 2", "Red", ""};
    const auto entries = PaletteExport::entries(colours, names);
    const auto nearest = entries[4].name; // the colours without a name are all the same black
    EXPECT_FALSE(nearest.empty());
    const std::string expected[] = {"Red",   "Red 2",        "Red 2 2",     "Red 3",
                                    nearest, nearest + " 2", nearest + " 3"};
    for (std::size_t at = 0; at < colours.size(); ++at)
        EXPECT_EQ(entries[at].name, expected[at]);
}

TEST(ExportFormats, AreFoundByIdentifierAndExtension) {
    for (const auto format : allExportFormats()) {
        EXPECT_EQ(exportFormat(rawValue(format)), format);
        EXPECT_EQ(exportFormatForExtension(fileExtension(format)), format);
        EXPECT_EQ(PaletteExport::data(format, {}, {}, "x", {}), std::nullopt);
    }
    EXPECT_EQ(exportFormatForExtension("MD"), ExportFormat::markdown);
    EXPECT_EQ(exportFormat("md"), std::nullopt);
    EXPECT_EQ(exportFormatForExtension(""), std::nullopt);
}

} // namespace
} // namespace tintra
