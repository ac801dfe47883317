#include "platform/PngEncoder.h"
#include "tests/cli/RunInProcess.h"

#include <gmock/gmock.h>

#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

namespace tintra::cli {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(Commands, WrongUsageIsStatusTwoWithOneSentence) {
    const std::vector<std::vector<std::string>> rows{
        {},
        {"paint"},
        {"show"},
        {"show", "red", "--no-such-option"},
        {"code", "red", "--format", "pascal"},
        {"code", "red", "--decimals", "many"},
        {"contrast", "red"},
        {"contrast", "red", "white", "blue"},
        {"contrast", "--matrix", "--reach", "aa", "red", "white"},
        {"harmony", "zigzag", "red"},
        {"harmony", "ramp", "red"},
        {"harmony", "triadic", "red", "--count", "0"},
        {"convert", "a.ase"},
        {"convert", "a.ase", "-o", "a.doc"},
        {"mix", "red"},
        {"mix", "red", "blue", "--steps", "0"},
        {"vision", "colour-blind", "red"},
        {"vision", "protanopia"},
        {"vision", "protanopia", "red", "--picture", "a.png", "-o", "b.png"},
        {"vision", "protanopia", "--picture", "a.png"},
        {"read", "--as", "word", "a.ase"},
        {"library"},
        {"library", "a", "--match", "near"},
        {"library", "a", "--sort", "colour"},
        {"show", "red", "--rgb-profile", "CIE"},
        {"show", "red", "--cmyk-profile", "no such press"},
        {"show", "red", "--illuminant", "d75"},
    };
    for (const auto& arguments : rows) {
        const auto result = tintra(arguments);
        EXPECT_EQ(result.status, 2) << testing::PrintToString(arguments);
        EXPECT_EQ(result.out, "");
        EXPECT_THAT(result.err, StartsWith("tintra: "));
    }
}

TEST(Commands, HelpStandsOnEveryLevelWithExamples) {
    EXPECT_THAT(tintra({"--help"}).out, HasSubstr("convert"));
    EXPECT_THAT(tintra({"--version"}).out, StartsWith("tintra "));
    for (const auto* command : {"show", "name", "code", "contrast", "harmony", "mix", "vision",
                                "read", "convert", "extract", "library", "formats", "profiles"}) {
        const auto help = tintra({command, "--help"});
        EXPECT_EQ(help.status, 0);
        EXPECT_THAT(help.out, HasSubstr(std::string("tintra ") + command));
        EXPECT_THAT(help.out, HasSubstr("Examples:"));
        EXPECT_THAT(help.out, HasSubstr("--json"));
    }
}

TEST(Commands, ColourArgumentsAreWhateverReadsAsAColour) {
    const auto result = tintra({"code", "#f80", "rgb(20, 40, 60)", "RebeccaPurple", "#f80a",
                                "lab(100 0 0)", "UIColor(red: 1, green: 0, blue: 0, alpha: 1)"});
    EXPECT_EQ(result.out, "#ff8800\n#14283c\n#663399\n#ff8800aa\n#ffffff\n#ff0000\n");
    EXPECT_EQ(result.status, 0);
}

TEST(Commands, WhatIsNoColourIsReportedAndLeftOut) {
    const auto result = tintra({"code", "--json", "red", "no colour", "-"}, "blue\n\nmud\n");
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.json().size(), 2U);
    EXPECT_EQ(result.err, "tintra: “no colour”: not a colour\n"
                          "tintra: standard input, line 3: “mud” is no colour\n");
    EXPECT_EQ(tintra({"name", "-"}, " \n").status, 1); // nothing to name
}

TEST(Commands, ShowTellsEverythingOfAColour) {
    const auto result = tintra({"show", "--json", "#ff8000"});
    ASSERT_EQ(result.status, 0) << result.err;
    const auto list = result.json();
    ASSERT_EQ(list.size(), 1U);
    const auto& colour = list[0];
    EXPECT_EQ(keys(colour), (std::vector<std::string>{"hex", "alpha", "r", "g", "b", "name", "rgb",
                                                      "hsb", "hsl", "cmyk", "lab", "oklab", "oklch",
                                                      "luminance", "readableForeground"}));
    EXPECT_THAT(result.out, HasSubstr("\"alpha\": 1.0"));
    EXPECT_THAT(result.out, HasSubstr("\"g\": 0.5019607843137255"));
    EXPECT_EQ(colour["hex"], "#FF8000");
    EXPECT_EQ(colour["rgb"], Json({255, 128, 0}));
    EXPECT_NEAR(colour["hsb"][0].get<double>(), 30.1176 / 360, 1e-6);
    EXPECT_NEAR(colour["hsl"][2].get<double>(), 50, 1e-9);
    EXPECT_EQ(colour["cmyk"].size(), 4U);
    EXPECT_GT(colour["cmyk"][2].get<double>(), 0.9); // orange holds nearly all the yellow there is
    EXPECT_EQ(keys(colour["lab"]), (std::vector<std::string>{"d50", "d65"}));
    EXPECT_NEAR(colour["lab"]["d65"][0].get<double>(), 67.05, 0.01);
    EXPECT_NEAR(colour["oklch"][2].get<double>(), 52.99, 0.05); // by the CSS Color 4 route
    EXPECT_EQ(colour["readableForeground"], "#000000");
    EXPECT_EQ(tintra({"show", "--json", "#ff800080"}).json()[0]["hex"], "#FF800080");
}

TEST(Commands, ProfilesGovernWhatIsShown) {
    const auto p3 = tintra({"code", "--rgb-profile", "Display P3", "red"});
    EXPECT_EQ(p3.out, "#ea3323\n");
    EXPECT_EQ(tintra({"code", "--rgb-profile", "sRGB IEC61966-2.1", "red"}).out, "#ff0000\n");
    const auto profiles = tintra({"profiles", "--json", "--illuminant", "d65"}).json();
    EXPECT_EQ(keys(profiles), (std::vector<std::string>{"rgb", "cmyk", "selected"}));
    EXPECT_EQ(profiles["rgb"][0], "sRGB IEC61966-2.1");
    EXPECT_EQ(profiles["cmyk"][0], "Device CMYK");
    EXPECT_EQ(profiles["selected"]["illuminant"], "d65");
}

TEST(Commands, FormatsListWhatCanBeChosen) {
    const auto formats = tintra({"formats", "--json"}).json();
    EXPECT_EQ(formats["code"].size(), 43U);
    EXPECT_EQ(formats["export"].size(), 13U);
    EXPECT_EQ(
        formats["code"][7],
        Json({{"id", "cssHex"}, {"title", "CSS HEX"}, {"platform", "web"}, {"family", "CSS"}}));
    EXPECT_EQ(formats["export"][3],
              Json({{"id", "markdown"}, {"title", "Markdown"}, {"extension", "md"}}));
}

TEST(Commands, CodeFollowsItsOptions) {
    const auto code = [](std::vector<std::string> options) {
        options.insert(options.begin(), "code");
        return tintra(options).out;
    };
    EXPECT_EQ(code({"#f80", "--no-hash", "--uppercase"}), "FF8800\n");
    EXPECT_EQ(code({"#f80", "--format", "cssRGB", "--no-spaces"}), "rgb(255,136,0)\n");
    EXPECT_EQ(code({"white", "--format", "javaRGB", "--decimals", "1"}),
              "new Color(1.0, 1.0, 1.0)\n");
    EXPECT_EQ(code({"white", "--format", "swiftUIColor", "--fractions"}),
              "Color(red: 255.0/255, green: 255.0/255, blue: 255.0/255)\n");
    EXPECT_EQ(code({"#f80", "--format", "cssVariable", "--name", "Tea Rose"}),
              "--tea-rose: #ff8800;\n");
    const auto all = tintra({"code", "--json", "--all", "#f80"}).json();
    EXPECT_EQ(all[0]["codes"].size(), 43U);
}

TEST(Commands, ContrastMeasuresAPair) {
    const auto result = tintra({"contrast", "--json", "#777", "#fff"});
    ASSERT_EQ(result.status, 0) << result.err;
    const auto json = result.json();
    // #777 on white is the textbook near miss: 4.48:1.
    EXPECT_NEAR(json["wcag"]["ratio"].get<double>(), 4.478, 1e-3);
    EXPECT_EQ(json["wcag"]["shown"], "4.47");
    EXPECT_EQ(json["wcag"]["grade"], "large");
    EXPECT_EQ(json["wcag"]["verdict"],
              "Normal text under WCAG 2.2: fails AA at 4.5:1, fails AAA at 7:1; interface parts: "
              "passes at 3:1");
    EXPECT_EQ(json["largeText"], false);
    EXPECT_EQ(keys(json["apca"]), (std::vector<std::string>{"lc", "shown", "grade"}));
    EXPECT_EQ(tintra({"contrast", "--json", "#fff", "#000"}).json()["apca"]["shown"], "−107");

    const auto large = tintra({"contrast", "--json", "#777", "#fff", "--size", "24"}).json();
    EXPECT_EQ(large["largeText"], true);
    EXPECT_EQ(large["wcag"]["grade"], "body");
}

TEST(Commands, ContrastReachProposesWhatPasses) {
    const auto reach =
        tintra({"contrast", "--json", "#777", "#fff", "--reach", "aaa"}).json()["reach"];
    EXPECT_EQ(reach["target"], "aaa");
    EXPECT_EQ(reach["need"], 7);
    EXPECT_EQ(keys(reach["text"]),
              (std::vector<std::string>{"hex", "title", "ratio", "distance", "eased"}));
    EXPECT_EQ(reach["text"]["title"], "Darken the text");
    EXPECT_GE(reach["text"]["ratio"].get<double>(), 7);
    EXPECT_TRUE(reach["ground"].is_null()); // a middle grey is far enough from nothing
    EXPECT_EQ(reach["message"], "No lightness of the ground reaches it under this text.");
    const auto there = tintra({"contrast", "--json", "#000", "#fff", "--reach", "aaa"}).json();
    EXPECT_EQ(there["reach"]["message"], "This pair already reaches it.");
}

TEST(Commands, ContrastMatrixHoldsTheFirstTen) {
    std::vector<std::string> arguments{"contrast", "--matrix", "--json", "#000", "#fff", "#777"};
    auto matrix = tintra(arguments).json();
    EXPECT_EQ(matrix["colours"], Json({"#000000", "#FFFFFF", "#777777"}));
    EXPECT_EQ(matrix["wcag"][0][1], 21.0);
    EXPECT_GT(matrix["apca"][0][1].get<double>(), 0); // rows are text: dark on light is positive
    EXPECT_LT(matrix["apca"][1][0].get<double>(), 0);
    arguments.insert(arguments.end(), 9, "red");
    EXPECT_EQ(tintra(arguments).json()["colours"].size(), 10U);
}

TEST(Commands, HarmonyPrintsItsBands) {
    const auto json =
        tintra({"harmony", "--json", "triadic", "red", "white", "--shades", "3"}).json();
    EXPECT_EQ(json["mode"], "triadic");
    EXPECT_EQ(json["space"], "sRGB");
    ASSERT_EQ(json["bands"].size(), 3U);
    EXPECT_EQ(json["bands"][1][0]["hex"], "#00FF00");
    EXPECT_EQ(json["bands"][1][2]["hex"], "#FFFFFF");
    EXPECT_EQ(tintra({"harmony", "ramp", "#000", "#fff", "--count", "3"}).out,
              "#000000\n#808080\n#FFFFFF\n");
    EXPECT_TRUE(tintra({"harmony", "--json", "paletteBuilder", "red"}).json()["bands"].empty());
}

TEST(Commands, MixAnswersPaintNotLight) {
    const auto green = tintra({"mix", "--json", "blue", "yellow"}).json()["colours"];
    ASSERT_EQ(green.size(), 1U);
    // The reference mix, calculated apart from this program.
    EXPECT_NEAR(green[0]["r"].get<double>(), 0.22240, 1e-5);
    EXPECT_NEAR(green[0]["g"].get<double>(), 0.56064, 1e-5);
    EXPECT_NEAR(green[0]["b"].get<double>(), 0.32894, 1e-5);
    // What lies beyond 0 to 1 is taken as the bound: only B is left.
    EXPECT_EQ(tintra({"mix", "blue", "#1e4d6b", "--ratio", "7"}).out, "#1E4D6B\n");
    EXPECT_EQ(tintra({"mix", "--json", "red", "#fff8", "--steps", "5"}).json()["colours"].size(),
              5U);
}

TEST(Commands, VisionShowsWhatOthersSee) {
    const auto seen = tintra({"vision", "achromatopsia", "--json", "#ff000080", "white"}).json();
    ASSERT_EQ(seen.size(), 2U);
    EXPECT_EQ(seen[0]["r"], seen[0]["b"]); // a grey
    EXPECT_EQ(seen[0]["alpha"], 128.0 / 255);
    EXPECT_EQ(seen[1]["hex"], "#FFFFFF");
    EXPECT_EQ(tintra({"vision", "typical", "#123456"}).out, "#123456\n");
}

TEST_F(CommandsWithFiles, ReadAnswersTheShapeOfTheContract) {
    const auto css =
        file("Brand.css", ":root { --deep-sea: #1e4d6b; }\np { color: rgb(1 2 3 / 50%); }");
    const auto json = tintra({"read", "--json", css}).json();
    ASSERT_EQ(json.size(), 1U);
    EXPECT_EQ(json[0]["file"], css);
    EXPECT_EQ(json[0]["name"], "Brand");
    EXPECT_EQ(keys(json[0]["swatches"][0]),
              (std::vector<std::string>{"hex", "alpha", "r", "g", "b", "name"}));
    EXPECT_EQ(json[0]["swatches"][0]["name"], "Deep Sea");
    EXPECT_TRUE(json[0]["swatches"][1]["name"].is_null());
    EXPECT_EQ(json[0]["swatches"][1]["hex"], "#01020380");
}

TEST_F(CommandsWithFiles, ReadTakesPastedTextAndWhatItIsToldItIs) {
    const auto hexes = [](const Result& result) {
        std::string text;
        for (const auto& palette : result.json())
            for (const auto& swatch : palette["swatches"])
                text += swatch["hex"].get<std::string>();
        return text;
    };
    const std::string sheet = "$a: #010203; $b: #010203;";
    EXPECT_EQ(hexes(tintra({"read", "--json", "-"}, sheet)), "#010203");
    EXPECT_EQ(hexes(tintra({"read", "--json", "-"}, "#010203\nred\n")), "#010203#FF0000");
    EXPECT_EQ(hexes(tintra({"read", "--json", "--as", "text", "-"}, "$a: #010203\n$b: #010203\n")),
              "#010203#010203"); // a line each, duplicates kept
    const auto palette = file("colours.txt", "GIMP Palette\n1 2 3\tOne\n");
    EXPECT_EQ(tintra({"read", palette}).status, 1);
    EXPECT_EQ(hexes(tintra({"read", "--json", "--as", "gpl", palette})), "#010203");
}

TEST_F(CommandsWithFiles, ReadReportsWhatItLeavesOut) {
    // One entry spelled “Gray” and one RGB entry.
    std::string ase("ASEF\0\1\0\0\0\0\0\2", 12);
    ase += std::string("\0\1\0\0\0\x0E\0\1\0\0Gray\0\0\0\0\0\0", 20);
    ase += std::string("\0\1\0\0\0\x16\0\1\0\0RGB \x3F\x80\0\0\0\0\0\0\0\0\0\0\0\2", 28);
    const auto path = file("mixed.ase", ase);
    const auto loud = tintra({"read", path});
    EXPECT_EQ(loud.status, 0);
    EXPECT_EQ(loud.out, "#FF0000\n");
    EXPECT_THAT(loud.err, HasSubstr("1 left out"));
    EXPECT_THAT(loud.err, HasSubstr("Gray"));
    EXPECT_EQ(tintra({"read", "-q", path}).err, "");
}

TEST_F(CommandsWithFiles, ConvertWritesOneFileAPaletteOrAllInOne) {
    const auto first = file("first.css", ":root { --one: #010203; }");
    const auto second = file("second.gpl", "GIMP Palette\n4 5 6\tTwo\n");
    EXPECT_EQ(tintra({"convert", first, second, "-o", path("both.gpl")}).status, 0);
    EXPECT_EQ(content("both.gpl"),
              "GIMP Palette\nName: both\nColumns: 0\n#\n  1   2   3\tOne\n  4   5   6\tTwo\n");

    EXPECT_EQ(tintra({"convert", first, second, "--to", "scss", "--out-dir", path("out")}).status,
              0);
    EXPECT_EQ(content("out/first.scss"), "// first\n$one: #010203;\n");
    EXPECT_EQ(content("out/second.scss"), "// second\n$two: #040506;\n");

    EXPECT_EQ(tintra({"convert", second, "-o", "-", "--to", "css", "--name", "Mine"}).out,
              "/* Mine */\n:root {\n  --two: #040506;\n}\n");
}

TEST_F(CommandsWithFiles, ConvertRefusesToOverwrite) {
    const auto css = file("a.css", ":root { --one: #010203; }");
    const auto namesake = file("a.scss", "$two: #040506;");
    file("a.gpl", "mine");
    const auto refused = tintra({"convert", css, "--to", "gpl"});
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err, "tintra: " + path("a.gpl") + ": File exists (--force replaces it)\n");
    EXPECT_EQ(content("a.gpl"), "mine");

    // Two inputs for one output: the second fails even with --force.
    const auto clash = tintra({"convert", css, namesake, "--to", "gpl", "--force"});
    EXPECT_EQ(clash.status, 1);
    EXPECT_THAT(content("a.gpl"), HasSubstr("One"));
}

TEST_F(CommandsWithFiles, ConvertSaysWhenAlphaIsLost) {
    const auto css = file("a.css", ":root { --mist: rgb(1 2 3 / 50%); }");
    const auto result = tintra({"convert", css, "--to", "gpl"});
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "tintra: " + path("a.gpl") + ": GPL holds no alpha: Mist saved opaque\n");
    EXPECT_EQ(tintra({"convert", css, "--to", "clr"}).err, "");
}

TEST_F(CommandsWithFiles, BadFilesAreOneLineEachAndWriteNothing) {
    const std::vector<std::pair<std::string, std::string>> rows{
        {"empty.ase", ""},
        {"short.ase", "ASE"},
        {"text.aco", "hello"},
        {"nul.gpl", std::string(1000, '\0')},
        {"cut.clr", "bplist00"},
        {"latin.css", "p { color: \xFF#fff }"},
        {"picture.jpeg", "\xFF\xD8"},
        {"huge.ase", std::string("ASEF\0\1\0\0\xFF\xFF\xFF\xFF\0\1\xFF\xFF\xFF\xFF", 18)},
        {"line.scss", std::string(1 << 20, 'x')},
    };
    for (const auto& [name, bytes] : rows) {
        const auto result = tintra({"convert", file(name, bytes), "-o", path("out.json")});
        EXPECT_EQ(result.status, 1) << name;
        EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
        EXPECT_THAT(result.err, StartsWith("tintra: " + path(name) + ": "));
        EXPECT_FALSE(std::filesystem::exists(path("out.json"))) << name;
    }
}

/// A picture of 40 by 20: red on the left half, paper on the right.
std::string picture(std::uint8_t alpha = 255) {
    const auto png = encodePng({40, 20}, [&](std::size_t, std::span<Rgba8> row) {
        for (std::size_t x = 0; x < row.size(); ++x)
            row[x] = x < 20 ? Rgba8{200, 30, 40, alpha} : Rgba8{240, 236, 228, alpha};
    });
    return std::string(asText(png.value()));
}

TEST_F(CommandsWithFiles, ExtractTellsColoursSharesAndPlaces) {
    const auto png = file("halves.png", picture());
    const auto result = tintra({"extract", "--json", "--count", "3", png});
    EXPECT_EQ(result.status, 0) << result.err;
    const auto document = result.json();
    ASSERT_EQ(document.size(), 1U);
    EXPECT_EQ(keys(document[0]),
              (std::vector<std::string>{"picture", "width", "height", "colours"}));
    EXPECT_EQ(document[0]["picture"], png);
    EXPECT_EQ(document[0]["width"], 40);
    EXPECT_EQ(document[0]["height"], 20);
    ASSERT_EQ(document[0]["colours"].size(), 2U);
    const auto& paper = document[0]["colours"][0];
    EXPECT_EQ(keys(paper),
              (std::vector<std::string>{"hex", "alpha", "r", "g", "b", "name", "share", "point"}));
    EXPECT_EQ(paper["hex"], "#F0ECE4") << "of equal shares the lighter first";
    EXPECT_EQ(paper["share"], 0.5);
    EXPECT_EQ(paper["point"], Json::parse("[20.5, 9.5]"));
    EXPECT_EQ(document[0]["colours"][1]["hex"], "#C81E28");
    EXPECT_THAT(tintra({"extract", png}).out, HasSubstr("#C81E28  50 %"));
}

TEST_F(CommandsWithFiles, ExtractReadsStandardInputAndWritesOnePalette) {
    const auto out = path("palette.gpl");
    const auto png = file("halves.png", picture());
    const auto both = tintra({"extract", png, "-", "-o", out}, picture());
    EXPECT_EQ(both.status, 0) << both.err;
    EXPECT_EQ(both.out, "");
    const auto read = tintra({"read", out, "--json"}).json();
    ASSERT_EQ(read[0]["swatches"].size(), 4U);
    EXPECT_EQ(read[0]["swatches"][1]["hex"], "#C81E28");
    EXPECT_EQ(tintra({"extract", png, "-o", out}).status, 1) << "it exists";
    EXPECT_EQ(tintra({"extract", png, "-o", out, "--force"}).status, 0);
    EXPECT_THAT(tintra({"extract", png, "-o", "-", "--to", "css"}).out, HasSubstr("#c81e28"));
}

TEST_F(CommandsWithFiles, ExtractReportsWhatGivesNoColoursAndGoesOn) {
    const auto text = file("notes.png", "no picture");
    const auto clear = file("clear.png", picture(90));
    const auto png = file("halves.png", picture());
    const auto result = tintra({"extract", text, clear, path("absent.png"), png, "--json"});
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(result.json().size(), 1U);
    EXPECT_EQ(result.err, "tintra: " + text + ": could not be read as an image\n" +              //
                              "tintra: " + clear + ": Nothing to extract from " + clear + "\n" + //
                              "tintra: " + path("absent.png") + ": No such file or directory\n");
    for (const auto& wrong : std::vector<std::vector<std::string>>{{"--count", "0"},
                                                                   {"--count", "257"},
                                                                   {"--emphasis", "loud"},
                                                                   {"--to", "css"},
                                                                   {"-o", path("palette.doc")}}) {
        auto arguments = wrong;
        arguments.insert(arguments.begin(), {"extract", png});
        EXPECT_EQ(tintra(arguments).status, 2) << wrong[0] << wrong[1];
    }
}

} // namespace
} // namespace tintra::cli
