#include "colour/CaseTable.h"
#include "palettes/PaletteExport.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <array>

namespace tintra {

namespace {

using Entries = std::span<const PaletteExport::Entry>;
using Writer = std::optional<Bytes> (*)(std::string_view name, Entries entries,
                                        const FormatOptions& options);

enum class Alpha { kept, dropped };
enum class Content { text, bytes };

struct FormatRow {
    ExportFormat value;
    std::string_view raw, title, extension;
    Alpha alpha;
    Content content;
    HexReading hex;
    Writer write;
};

Bytes bytesOf(std::string_view text) {
    const auto view = asBytes(text);
    return {view.begin(), view.end()};
}

template <auto kWriter>
std::optional<Bytes> text(std::string_view name, Entries entries, const FormatOptions& options) {
    return bytesOf(kWriter(name, entries, options));
}

std::optional<Bytes> svgBytes(std::string_view /*name*/, Entries entries,
                              const FormatOptions& options) {
    return bytesOf(PaletteExport::svg(entries, options));
}

std::optional<Bytes> aseBytes(std::string_view /*name*/, Entries entries,
                              const FormatOptions& /*options*/) {
    return PaletteExport::ase(entries);
}

std::optional<Bytes> clrBytes(std::string_view name, Entries entries,
                              const FormatOptions& /*options*/) {
    return PaletteExport::clr(name, entries);
}

std::optional<Bytes> gplBytes(std::string_view name, Entries entries,
                              const FormatOptions& /*options*/) {
    return bytesOf(PaletteExport::gpl(name, entries));
}

std::optional<Bytes> pngBytes(std::string_view /*name*/, Entries entries,
                              const FormatOptions& /*options*/) {
    return PaletteExport::png(entries);
}

using enum ExportFormat;
using enum HexReading;

// clang-format off
constexpr std::array kFormats{
    FormatRow{json,     "json",     "JSON",                  "json", Alpha::kept,     Content::text,  caseAndHash, text<PaletteExport::json>},
    FormatRow{xml,      "xml",      "XML",                   "xml",  Alpha::kept,     Content::text,  caseAndHash, text<PaletteExport::xml>},
    FormatRow{html,     "html",     "HTML",                  "html", Alpha::kept,     Content::text,  caseAndHash, text<PaletteExport::html>},
    FormatRow{markdown, "markdown", "Markdown",              "md",   Alpha::kept,     Content::text,  caseAndHash, text<PaletteExport::markdown>},
    FormatRow{svg,      "svg",      "SVG",                   "svg",  Alpha::kept,     Content::text,  letterCase,  svgBytes},
    FormatRow{css,      "css",      "CSS",                   "css",  Alpha::kept,     Content::text,  letterCase,  text<PaletteExport::css>},
    FormatRow{scss,     "scss",     "SCSS",                  "scss", Alpha::kept,     Content::text,  letterCase,  text<PaletteExport::scss>},
    FormatRow{sass,     "sass",     "Sass",                  "sass", Alpha::kept,     Content::text,  letterCase,  text<PaletteExport::sass>},
    FormatRow{less,     "less",     "Less",                  "less", Alpha::kept,     Content::text,  letterCase,  text<PaletteExport::less>},
    FormatRow{ase,      "ase",      "Adobe Swatch Exchange", "ase",  Alpha::dropped,  Content::bytes, none,        aseBytes},
    FormatRow{clr,      "clr",      "Apple Colour List",     "clr",  Alpha::kept,     Content::bytes, none,        clrBytes},
    FormatRow{gpl,      "gpl",      "GIMP Palette",          "gpl",  Alpha::dropped,  Content::text,  none,        gplBytes},
    FormatRow{png,      "png",      "PNG Image",             "png",  Alpha::kept,     Content::bytes, none,        pngBytes},
};
// clang-format on

static_assert(inCaseOrder(kFormats));
constexpr auto kCases = casesOf(kFormats);

} // namespace

std::string_view rawValue(ExportFormat format) {
    return rowOf(kFormats, format).raw;
}

std::string_view title(ExportFormat format) {
    return rowOf(kFormats, format).title;
}

std::string_view fileExtension(ExportFormat format) {
    return rowOf(kFormats, format).extension;
}

bool holdsAlpha(ExportFormat format) {
    return rowOf(kFormats, format).alpha == Alpha::kept;
}

bool isText(ExportFormat format) {
    return rowOf(kFormats, format).content == Content::text;
}

HexReading hexReading(ExportFormat format) {
    return rowOf(kFormats, format).hex;
}

std::span<const ExportFormat> allExportFormats() {
    return kCases;
}

std::optional<ExportFormat> exportFormat(std::string_view raw) {
    return caseOf(kFormats, raw);
}

std::optional<ExportFormat> exportFormatForExtension(std::string_view extension) {
    const auto lowerCased = asciiLowerCased(extension);
    const auto* found = std::find_if(kFormats.begin(), kFormats.end(), [&](const FormatRow& row) {
        return row.extension == lowerCased;
    });
    return found == kFormats.end() ? std::nullopt : std::optional(found->value);
}

std::optional<Bytes> PaletteExport::data(ExportFormat format, std::span<const WashColor> colors,
                                         std::span<const std::optional<std::string>> names,
                                         std::string_view name, const FormatOptions& options) {
    if (colors.empty()) return std::nullopt;
    return rowOf(kFormats, format).write(name, entries(colors, names), options);
}

} // namespace tintra
