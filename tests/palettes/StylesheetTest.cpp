#include "palettes/Stylesheet.h"

#include "platform/ColourSpace.h"
#include "tests/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <string>

namespace tintra {
namespace {

/// What a text yields: "Name RRGGBB" a swatch, "-" for no name, the alpha only when not opaque.
std::string read(std::string_view text) {
    std::string all;
    for (const auto& [colour, name] : Stylesheet::read(text)) {
        auto code = colour.identity();
        if (code.ends_with("FF")) code.resize(6);
        all += (all.empty() ? "" : ", ") + name.value_or("-") + " " + code;
    }
    return all;
}

struct Row {
    const char* text;
    const char* swatches;
};

void expectAll(std::span<const Row> rows) {
    for (const auto& [text, swatches] : rows)
        EXPECT_EQ(read(text), swatches) << text;
}

TEST(Stylesheet, NamesSwatchesAfterVariables) {
    const Row rows[] = {
        {":root { --brand: #f80 }", "Brand FF8800"},
        {"$brand: #f80; @other: #08f;", "Brand FF8800, Other 0088FF"},
        {"a { color: #f80; border: 1px solid red }", "- FF8800, - FF0000"},
        {"$a: #f80; --b: rgb(255, 136, 0);", "A FF8800"}, // one colour, named after the first
        {"a { color: #f80 } $a: #f80;", "- FF8800"},
        {"$a: #f808; $b: #f80;", "A FF880088, B FF8800"}, // alpha is part of the identity
        {"--@{prefix}-x: #f80;", "- FF8800"},
        {"$map: (\"a\": #fff, 'b': #000);", "Map FFFFFF, Map 000000"},
        {"", ""},
    };
    expectAll(rows);
}

TEST(Stylesheet, DropsComments) {
    const Row rows[] = {
        {"/* $a: #111; */ $b: #222; // $c: #333;\n$d: #444;", "B 222222, D 444444"},
        {"$a: #111;// $b: #222;\r$c: #333;\n$d: #444;", "A 111111, D 444444"},
        {"$a: url(http://x/#222) #333;", "A 333333"},
        {"$a/**/b: #111;", "- 111111"},                   // a comment counts as a blank
        {"$a: #111; /* $b: #222;", "A 111111, - 222222"}, // never closed: no comment
    };
    expectAll(rows);
}

TEST(Stylesheet, TellsDeclarationsFromTheRest) {
    const Row rows[] = {
        {"a:not(.red, #abc):hover { color: blue }", "- 0000FF"},
        {"@supports (color: color(display-p3 1 1 1)) { --a: #111; }", "A 111111"},
        {"@media (color: red) { :root { --a: #111 } --b: #222 }", "A 111111, B 222222"},
        {"@import url(x:red); @include m($c: #111); @theme: { @in: #222 }", "In 222222"},
        {"a#{$b + '{;'}c { color: #{d} #111; $e: #222 }", "- 111111, E 222222"},
        {"$a: url(data:x;base64,{red}) #111; $b: #222;", "A 111111, B 222222"},
        {R"($a: "x; $c: red; {" #111; $b: '\'; $d: red' #222;)", "A 111111, B 222222"},
        {"$a: \"open #111;\n$b: #222;", "A 111111, B 222222"},   // a string ends with its line
        {"a { --a: rgb(1, 2, 3; } b { --b: #222 }", "B 222222"}, // a block ends its parentheses
        {".m(@a: #111; @b: #222) { color: #333 }", "- 333333"},
        {"--shadow: 0 0 red,\n  0 0 blue;", "Shadow FF0000, Shadow 0000FF"},
    };
    expectAll(rows);
}

TEST(Stylesheet, ReadsIndentedSass) {
    EXPECT_EQ(read("$a: #111 !default\n\n$b: rgb(1,\n  2, 3)\nred:hover\n  color: #222\r\n"
                   "  +m(blue)\n$list: #333,\n  #444\n"),
              "A 111111, B 010203, - 222222, List 333333, List 444444");
}

/// The colours of a value as codes.
std::string values(std::string_view value) {
    return read("x:" + std::string(value) + ";");
}

TEST(Stylesheet, FindsColoursInValues) {
    struct ValueRow {
        const char* value;
        const char* codes;
    };
    const ValueRow rows[] = {
        {"#abc #abcd #aabbcc #aabbccdd #abcde", "- AABBCC, - AABBCCDD"},
        {"red #00f rgb(0 128 0)", "- FF0000, - 0000FF, - 008000"}, // reading order
        {"RED $blue @tan #navy .teal =lime -gold 'snow' x-pink pink-x olive_", "- FF0000"},
        {"'Red Hat', \"blue #123\", '#456'", "- 445566"}, // of a string only a whole code counts
        {"var(--a, red) darken(lighten(blue, 1%), 2%) #111", "- 111111"},
        {"MIX(red, COLOR-MIX(in lab, blue, tan)) #111", "- 111111"},
        {"remix(red) my-var(blue)", "- FF0000, - 0000FF"}, // other functions
        {"darken(rgb(17, 17, 17), 1%)", "- 111111"},       // a call that holds a call stays
        {"mix(red, (var(--a)) ) var(blue", "- FF0000, - 0000FF"},
        {"rgba(#000, .5)", "- 000000"}, // the function does not read, its hex code does
        {"rgb(var(--r) 1 2) rgb(1, 2) hsl(.5turn 1% 2%)", ""},
        {"13, 110, 253", ""},
    };
    for (const auto& [value, codes] : rows)
        EXPECT_EQ(values(value), codes) << value;
}

TEST(Stylesheet, ReadsEveryColourFunction) {
    // Green as the tests of CSS Color 4 publish it; the rest by hand.
    struct FunctionRow {
        const char* value;
        const char* code;
    };
    const FunctionRow rows[] = {
        {"rgb(0% 50% 0% / 25%)", "- 00800040"},
        {"RGBA(1, 1, 1, 1)", "- 010101"}, // no fractions here
        {"rgb(300 -5 0 / 2)", "- FF0000"},
        {"hsl(120deg 100% 25%)", "- 008000"},
        {"hsl(0 0% 1%)", "- 030303"},
        {"oklch(51.975% 44.215% 142.495DEG)", "- 008000"},
        {"oklab(51.975% -35.075% 26.92%)", "- 008000"},
        {"lab(46.2775 -38.04968% 38.86696%)", "- 008000"},
        {"lch(46.2775% 45.32613% 134.3912)", "- 008000"},
        {"color(srgb 0 50% 0 / 0.5)", "- 00800080"},
        {"color(display-p3 0.21604 0.49418 0.13151)", "- 008000"},
        {"color(rec2020 0 1 0)", ""},
        {"color(display-p3 1e300 0 0)", ""}, // no finite colour
    };
    for (const auto& [value, code] : rows) {
        EXPECT_EQ(values(value), code) << value;
        EXPECT_EQ(Stylesheet::cssColour(value).has_value(), *code != '\0') << value;
    }
}

TEST(Stylesheet, DisplayP3AgreesWithColourManagement) {
    // The profile's primaries are rounded to 16 bits, which moves a channel by some 1e-4.
    for (const auto& p3 : {Rgb{1, 0, 0}, Rgb{0, 1, 0}, Rgb{0.2, 0.5, 0.9}, Rgb{0.01, 1, 0.3}}) {
        const auto text = "color(display-p3 " + std::to_string(p3.r) + " " + std::to_string(p3.g) +
                          " " + std::to_string(p3.b) + ")";
        const auto read = Stylesheet::cssColour(text);
        const auto managed = ColourSpace::displayP3()->toSrgb({p3.r, p3.g, p3.b, 0});
        ASSERT_TRUE(read && managed) << text;
        EXPECT_NEAR(read->r, managed->r, 1e-3) << text;
        EXPECT_NEAR(read->g, managed->g, 1e-3) << text;
        EXPECT_NEAR(read->b, managed->b, 1e-3) << text;
    }
}

TEST(Stylesheet, ReadsOneColourAsAWhole) {
    for (const char* good : {" #f80 ", "#f808", "ReD", "rgb(1 2 3)"})
        EXPECT_TRUE(Stylesheet::cssColour(good)) << good;
    for (const char* bad : {"", "#", "#f8000", "#0xf80", "f80", "red blue", "rgb(1 2 3) x",
                            "rgb((1 2 3))", "rgb(1 2 3", "transparent"})
        EXPECT_EQ(Stylesheet::cssColour(bad), std::nullopt) << bad;
    // First, last, the latest and a pair of spellings.
    EXPECT_EQ(Stylesheet::named("aliceblue")->identity(), "F0F8FFFF");
    EXPECT_EQ(Stylesheet::named("yellowGreen")->identity(), "9ACD32FF");
    EXPECT_EQ(Stylesheet::named("rebeccapurple")->identity(), "663399FF");
    EXPECT_EQ(Stylesheet::named("darkslategrey"), Stylesheet::named("darkslategray"));
}

TEST(Stylesheet, TellsStylesheetsFromLines) {
    for (const char* sheet : {"a{}", "} {", "#f00\n  --a : #f00", "\xE2\x80\xA9$a-b\n:", "@a:"})
        EXPECT_TRUE(Stylesheet::looksLikeStylesheet(sheet)) << sheet;
    for (const char* lines :
         {"", "#f00", "{ #f00", "x --a: #f00", "--: #f00", "$ a: #f00", "@a #f00"})
        EXPECT_FALSE(Stylesheet::looksLikeStylesheet(lines)) << lines;
}

TEST(Stylesheet, MakesNamesReadable) {
    const std::pair<const char*, const char*> rows[] = {
        {"--brand-primaryDark", "Brand Primary Dark"},
        {"$gray_100--x", "Gray 100 X"},
        {"@bgRGBValue", "Bg RGB Value"},
        {"--\xC3\xA9t\xC3\xA9\xC3\x89t\xC3\xA9", "\xC3\x89t\xC3\xA9 \xC3\x89t\xC3\xA9"},
        {"---", "---"}, // nothing to read: as it stands
    };
    for (const auto& [variable, name] : rows)
        EXPECT_EQ(Stylesheet::displayName(variable), name);
}

TEST(Stylesheet, TakesAnyBytesInLinearTime) {
    const auto times = [](std::string_view piece) {
        std::string text;
        while (text.size() < 300'000)
            text += piece;
        return text;
    };
    // Each would keep a quadratic reader busy for minutes.
    for (const auto* piece :
         {"/*",  "*/",   " //",    "rgb(", "mix(",         "mix(a) ", "(",  ")",    "{",
          "}",   "#{",   "\"",     "'\\",  "\n",           "a,\n",    "\\", "url(", "--a",
          "@a ", "\n\t", "#12345", "\xC3", "\xE2\x80\xA8", "a ",      "-"}) {
        const auto text = times(piece);
        EXPECT_EQ(read(text), "") << piece;
        EXPECT_EQ(read("$a:" + text), "") << piece;
        Stylesheet::looksLikeStylesheet(text);
    }
    const std::string deep = times("mix(") + "red" + times(")");
    EXPECT_EQ(read("$a: " + deep + "; $b: #222"), "B 222222");
    EXPECT_EQ(read(std::string("$a:\0#111;\0$b:#222;", 18)), "A 111111, - 222222");
}

TEST(IsPalette, WantsAVariableWithAColour) {
    const TemporaryFolder folder;
    const std::string blanks(1'000'000 - 9, ' ');
    struct FileRow {
        const char* name;
        std::string content;
        bool isPalette;
    };
    const FileRow rows[] = {
        {"variable.css", "--a: red;", true},         {"plain.css", "a { color: red }", false},
        {"variable.MIN.css", "--a: red;", false},    {"latin.css", "--a: red; \xFF", false},
        {"largest.css", "--a: red;" + blanks, true}, {"larger.css", "--a: red; " + blanks, false},
    };
    for (const auto& [name, content, isPalette] : rows)
        EXPECT_EQ(Stylesheet::isPalette(folder.write(name, content)), isPalette) << name;
    EXPECT_FALSE(Stylesheet::isPalette(folder / "none.css"));
    EXPECT_FALSE(Stylesheet::isPalette(folder.path()));
}

TEST(IsPalette, KeepsItsVerdictUntilTheDateChanges) {
    const TemporaryFolder folder;
    const auto file = folder.write("a.css", "--a: red;");
    const auto date = std::filesystem::last_write_time(file);
    EXPECT_TRUE(Stylesheet::isPalette(file));
    folder.write("a.css", "a { color: red }");
    std::filesystem::last_write_time(file, date);
    EXPECT_TRUE(Stylesheet::isPalette(file));
    std::filesystem::last_write_time(file, date + std::chrono::seconds(1));
    EXPECT_FALSE(Stylesheet::isPalette(file));
}

} // namespace
} // namespace tintra
