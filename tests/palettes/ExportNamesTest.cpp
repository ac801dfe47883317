#include "palettes/PaletteExport.h"
#include "platform/Unicode.h"

#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <memory>
#include <string>

// Whatever a name holds, the file stays one of its language with the same parts, as parsers that
// are not ours see it.

namespace tintra {
namespace {

std::vector<std::string> hostileNames() {
    std::string controls;
    for (char c = 0; c < 0x20; ++c)
        controls.push_back(c);
    return {
        controls + "\x7F\u0085\u009F",
        "line\u2028paragraph\u2029\r\n$evil: #ff0000;\n  --evil: #ff0000;",
        "\xFF\xC0\x80 \xED\xA0\x80 \xF4\x90\x80\x80 cut \xE2\x82", // ill-formed in every way
        "\uFFFE\uFFFF\U0001FFFE",
        "]]> --> <!-- <script> </title></style> &lt; &#0; '\" />",
        "*/ **/ /*/ */*/ // #{$x} @{y} \\",
        R"(| a \| b \\| ` [x](y))",
        R"(\" \u0041 \)",
    };
}

bool isXml(const std::string& text) {
    const int quietly = XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NONET;
    const auto size = static_cast<int>(text.size());
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
        xmlReadMemory(text.data(), size, nullptr, nullptr, quietly), xmlFreeDoc);
    return document != nullptr;
}

/// The cell borders of a table: every "|" that no backslash escapes.
int borders(std::string_view table) {
    int found = 0;
    for (std::size_t at = 0; at < table.size(); ++at) {
        if (table[at] == '|') ++found;
        if (table[at] == '\\') ++at;
    }
    return found;
}

int occurrences(std::string_view text, std::string_view part) {
    int found = 0;
    for (auto at = text.find(part); at != std::string_view::npos; at = text.find(part, at + 1))
        ++found;
    return found;
}

TEST(ExportNames, NeverBreakAFile) {
    for (const auto& name : hostileNames()) {
        const PaletteExport::Entry entry[] = {{{1, 0, 0, 0.5}, name}};
        const auto html = PaletteExport::html(name, entry, {});
        const auto markdown = PaletteExport::markdown(name, entry, {});
        const auto css = PaletteExport::css(name, entry, {});
        const auto sass = PaletteExport::sass(name, entry, {});
        const auto gpl = PaletteExport::gpl(name, entry);
        EXPECT_TRUE(isXml(PaletteExport::xml(name, entry, {}))) << name;
        EXPECT_TRUE(isXml(PaletteExport::svg(entry, {}))) << name;
        EXPECT_EQ(occurrences(html, "<"), 23) << html;
        EXPECT_EQ(occurrences(markdown, "\n"), 5) << markdown;
        EXPECT_EQ(borders(markdown), 15) << markdown;
        EXPECT_EQ(occurrences(css, "*/"), 1) << css;
        EXPECT_EQ(occurrences(css, "\n"), 4) << css;
        EXPECT_EQ(occurrences(sass, "\n"), 2) << sass;
        EXPECT_EQ(occurrences(gpl, "\n"), 5) << gpl;
        EXPECT_EQ(occurrences(gpl, "\t"), 1) << gpl;
        EXPECT_EQ(occurrences(gpl, "\u2028"), 0) << gpl;
        for (const auto& text : {html, markdown, css, gpl})
            EXPECT_TRUE(isValidUtf8(text)) << text;
    }
}

TEST(ExportNames, ComeBackFromJsonAsTheyWere) {
    for (const auto& name : hostileNames()) {
        const PaletteExport::Entry entry[] = {{{1, 0, 0, 0.5}, name}};
        const auto parsed = nlohmann::json::parse(PaletteExport::json(name, entry, {}));
        auto text = parsed.at("colors").at(0).at("name").get<std::string>();
        EXPECT_EQ(parsed.at("name"), text);
        for (const auto& [entity, character] :
             {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}})
            for (auto at = text.find(entity); at != std::string::npos;
                 at = text.find(entity, at + 1))
                text.replace(at, std::string_view(entity).size(), character);
        EXPECT_TRUE(text == name || !isValidUtf8(name)) << text;
    }
}

} // namespace
} // namespace tintra
