#include "palettes/PaletteExport.h"
#include "platform/Unicode.h"

#include <gtest/gtest.h>
#include <libxml/HTMLparser.h>
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
        "| a \\| b \\\\| ` [x](y)",
        "\\\" \\u0041 \\",
    };
}

using Document = std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)>;

/// How many elements of the name stand below the node, the node included.
int count(const xmlNode* node, std::string_view name) {
    int found = 0;
    for (; node != nullptr; node = node->next) {
        const bool isElement = node->type == XML_ELEMENT_NODE;
        found += isElement && name == reinterpret_cast<const char*>(node->name) ? 1 : 0;
        found += count(node->children, name);
    }
    return found;
}

int elementsOfXml(const std::string& text, std::string_view name) {
    const int quiet = XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NONET;
    const Document document(
        xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr, quiet),
        xmlFreeDoc);
    return document ? count(xmlDocGetRootElement(document.get()), name) : -1;
}

int elementsOfHtml(const std::string& text, std::string_view name) {
    const int quiet = HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING | HTML_PARSE_NONET;
    const Document document(
        htmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, "utf-8", quiet),
        xmlFreeDoc);
    return document ? count(xmlDocGetRootElement(document.get()), name) : -1;
}

int lines(const std::string& text) {
    return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

/// The cell borders of a table row: every "|" that no backslash escapes.
int borders(std::string_view row) {
    int found = 0;
    for (std::size_t at = 0; at < row.size(); ++at) {
        if (row[at] == '\\')
            ++at;
        else if (row[at] == '|')
            ++found;
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
        const auto xml = PaletteExport::xml(name, entry, {});
        const auto svg = PaletteExport::svg(entry, {});
        const auto html = PaletteExport::html(name, entry, {});
        const auto markdown = PaletteExport::markdown(name, entry, {});
        const auto css = PaletteExport::css(name, entry, {});
        EXPECT_EQ(elementsOfXml(xml, "color"), 1) << xml;
        EXPECT_EQ(elementsOfXml(svg, "title"), 1) << svg;
        EXPECT_EQ(elementsOfHtml(html, "figure"), 1) << html;
        EXPECT_EQ(elementsOfHtml(html, "script"), 0) << html;
        EXPECT_EQ(lines(markdown), 5) << markdown;
        EXPECT_EQ(borders(std::string_view(markdown).substr(markdown.find("--- |\n") + 6)), 5)
            << markdown;
        EXPECT_EQ(occurrences(css, "*/"), 1) << css;
        EXPECT_EQ(lines(css), 4) << css;
        for (const auto& text :
             {PaletteExport::scss(name, entry, {}), PaletteExport::sass(name, entry, {}),
              PaletteExport::less(name, entry, {})})
            EXPECT_EQ(lines(text), 2) << text;
        const auto gpl = PaletteExport::gpl(name, entry);
        EXPECT_EQ(lines(gpl), 5) << gpl;
        EXPECT_EQ(occurrences(gpl, "\t"), 1) << gpl;
        EXPECT_EQ(occurrences(gpl, "\u2028") + occurrences(gpl, "\u2029"), 0) << gpl;
        for (const auto& text : {xml, svg, html, markdown, css, gpl})
            EXPECT_TRUE(isValidUtf8(text)) << text;
    }
}

TEST(ExportNames, ComeBackFromJsonAsTheyWere) {
    for (const auto& name : hostileNames()) {
        if (!isValidUtf8(name)) continue;
        const PaletteExport::Entry entry[] = {{{1, 0, 0, 0.5}, name}};
        const auto parsed = nlohmann::json::parse(PaletteExport::json(name, entry, {}));
        auto text = parsed.at("colors").at(0).at("name").get<std::string>();
        EXPECT_EQ(parsed.at("name"), text);
        for (const auto& [entity, character] :
             {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}})
            for (auto at = text.find(entity); at != std::string::npos;
                 at = text.find(entity, at + 1))
                text.replace(at, std::string_view(entity).size(), character);
        EXPECT_EQ(text, name);
    }
    const PaletteExport::Entry illFormed[] = {{{}, "\xFF"}};
    EXPECT_EQ(nlohmann::json::parse(PaletteExport::json("\xC3", illFormed, {})).at("name"),
              "\uFFFD");
}

} // namespace
} // namespace tintra
