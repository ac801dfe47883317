#include "platform/Pictures.h"
#include "tests/desktop/SamplePictures.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

namespace tintra {
namespace {

/// The colour in the middle of a drawing of 40 by 40 on white; nothing when it is refused.
std::optional<Rgba8> middle(const std::string& inside, const std::string& before = "") {
    const auto text = before +
                      R"(<svg xmlns="http://www.w3.org/2000/svg" width="40" height="40" )"
                      R"(xmlns:xlink="http://www.w3.org/1999/xlink">)"
                      R"(<rect width="40" height="40" fill="#fff"/>)" +
                      inside + "</svg>";
    const auto opened = openPicture(asBytes(text));
    const auto* picture = std::get_if<std::shared_ptr<const Picture>>(&opened);
    if (picture == nullptr) return std::nullopt;
    const auto pixel = (*picture)->pixel(20, 20);
    return std::get<Rgba8>(pixel);
}

constexpr Rgba8 kWhite{255, 255, 255, 255}, kRed{255, 0, 0, 255};

std::string pngText() {
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(0xFFFF0000);
    const auto bytes = test::encoded(image, "png");
    return std::string(asText(bytes));
}

std::string base64(const std::string& text) {
    return QByteArray(text.data(), static_cast<qsizetype>(text.size())).toBase64().toStdString();
}

std::string picture(const std::string& reference) {
    return R"(<image width="40" height="40" xlink:href=")" + reference + R"("/>)";
}

TEST(Drawings, LoadNothingFromOutside) {
    const auto folder = std::filesystem::path(testing::TempDir());
    const auto file = (folder / "tintra-outside.png").string();
    const auto sheet = (folder / "tintra-outside.css").string();
    const auto drawing = (folder / "tintra-outside.svg").string();
    std::ofstream(file, std::ios::binary) << pngText();
    std::ofstream(sheet) << "rect { fill: #f00 }";
    std::ofstream(drawing) << R"(<svg xmlns="http://www.w3.org/2000/svg"><g id="a"/></svg>)";
    const auto nested = R"(<svg xmlns="http://www.w3.org/2000/svg" width="40" height="40" )"
                        R"(xmlns:xlink="http://www.w3.org/1999/xlink">)" +
                        picture(file) + "</svg>";
    for (const auto& [inside, before] : std::vector<std::pair<std::string, std::string>>{
             {picture(file), ""},
             {picture("file://" + file), ""},
             {picture("data:/../" + file), ""},
             {R"(<image width="40" height="40" href=")" + file + R"("/>)", ""},
             {picture("data:image/svg+xml;base64," + base64(nested)), ""},
             {picture("data:image/png;base64," + base64(nested)), ""},
             {R"(<use xlink:href=")" + drawing + R"(#a"/>)", ""},
             {"<text>&outside;</text>",
              R"(<!DOCTYPE svg [<!ENTITY outside SYSTEM ")" + file + R"(">]>)"},
             {"", R"(<?xml-stylesheet type="text/css" href=")" + sheet + R"("?>)"}})
        EXPECT_EQ(middle(inside, before).value_or(kWhite), kWhite) << inside << before;
    for (const auto& made : {file, sheet, drawing})
        std::filesystem::remove(made);
}

TEST(Drawings, KeepWhatStandsInTheirOwnText) {
    const std::pair<std::string, std::string> rows[] = {
        {picture("data:image/png;base64," + base64(pngText())), ""},
        {R"(<defs><rect id="r" width="40" height="40" fill="red"/></defs><use xlink:href="#r"/>)",
         ""},
        {"<style>.a { fill: red }</style><rect class='a' width='40' height='40'/>", ""},
        {"<rect width='40' height='40' fill='&colour;'/>",
         "<!DOCTYPE svg [<!ENTITY colour 'red'>]>"},
        {R"(<linearGradient id="g"><stop stop-color="red"/></linearGradient>)"
         "<rect width='40' height='40' fill='url(#g)'/>",
         ""},
    };
    for (const auto& [inside, before] : rows)
        EXPECT_EQ(middle(inside, before), kRed) << inside;
    const auto text = middle("<text x='0' y='38' font-size='50' font-family='serif'>MMM</text>");
    EXPECT_TRUE(text.has_value()) << "texts want an application object";
}

/// Groups a0, a1 and so on, each of which uses the one before it so many times.
std::string usesOfUses(int groups, int times) {
    std::string text = R"(<g id="a0"><rect width="1" height="1"/></g>)";
    for (int i = 1; i < groups; ++i) {
        text.append("<g id=\"a").append(std::to_string(i)).append("\">");
        for (int use = 0; use < times; ++use)
            text.append("<use xlink:href=\"#a").append(std::to_string(i - 1)).append("\"/>");
        text.append("</g>");
    }
    return text;
}

TEST(Drawings, ThatGrowByPowersAreRefused) {
    std::string deep;
    for (const auto* tag : {"<g>", "</g>"})
        for (int i = 0; i < 5000; ++i)
            deep.append(tag);
    EXPECT_TRUE(middle(usesOfUses(10, 2)).has_value());
    EXPECT_EQ(middle(usesOfUses(40, 2)), std::nullopt);
    EXPECT_EQ(middle(usesOfUses(5000, 1)), std::nullopt);
    EXPECT_EQ(middle(deep), std::nullopt);
    EXPECT_EQ(middle(R"(<g id="b"><use xlink:href="#b"/></g>)"), std::nullopt);
}

} // namespace
} // namespace tintra
