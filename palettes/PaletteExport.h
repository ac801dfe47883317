#pragma once

#include "colour/FormatOptions.h"
#include "colour/WashColor.h"
#include "platform/Bytes.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tintra {

/// A format in which a palette is written; a closed list in the order of menus.
enum class ExportFormat {
    json,
    xml,
    html,
    markdown,
    svg,
    css,
    scss,
    sass,
    less,
    ase,
    clr,
    gpl,
    png,
};

/// The identifier ("json"), the title ("JSON") and the file extension without a point; all formats
/// in order.
std::string_view rawValue(ExportFormat format);
std::string_view title(ExportFormat format);
std::string_view fileExtension(ExportFormat format);
std::optional<ExportFormat> exportFormat(std::string_view raw);
/// The format of a file name's extension, in any case.
std::optional<ExportFormat> exportFormatForExtension(std::string_view extension);
std::span<const ExportFormat> allExportFormats();
/// Whether a file of the format can hold alpha.
bool holdsAlpha(ExportFormat format);
/// Whether it is text, which can be pasted.
bool isText(ExportFormat format);

/// Which of the options about hex codes a format reads: none as it holds none, the letters' case
/// alone as "#" always stands before its codes, or the case and "#".
enum class HexReading { none, letterCase, caseAndHash };
HexReading hexReading(ExportFormat format);

/// A palette written as the bytes of a file. Pure functions (names come from ColorNames, inks from
/// ColorProfiles); any thread.
namespace PaletteExport {

/// A colour and its name, which is never empty and unique in its list.
struct Entry {
    WashColor color;
    std::string name;
    bool operator==(const Entry&) const = default;
};

/// The colours with their given names (`names` in step with `colors`, absent or empty for none; a
/// shorter list leaves the rest unnamed), else their nearest ones, made unique in order: a name
/// that is taken gets the first number from 2 upward that makes it new.
std::vector<Entry> entries(std::span<const WashColor> colors,
                           std::span<const std::optional<std::string>> names);

/// The file of a palette called `name`; nothing when there are no colours or the writer fails.
std::optional<Bytes> data(ExportFormat format, std::span<const WashColor> colors,
                          std::span<const std::optional<std::string>> names, std::string_view name,
                          const FormatOptions& options);

/// Whether a stylesheet is just what the writer makes of its colours, apart from its first line and
/// the case of letters: then writing the palette back into it loses nothing.
bool isAsWritten(std::string_view stylesheet, ExportFormat format);

// The writers. Hex codes and 0...255 numbers of the text formats follow the RGB space selected in
// ColorProfiles, as in code; GPL and the formats of bytes hold sRGB. Any bytes may stand in a name:
// what a language forbids or reads as its own is escaped, replaced or made a blank.

std::string json(std::string_view name, std::span<const Entry> entries,
                 const FormatOptions& options);
std::string xml(std::string_view name, std::span<const Entry> entries,
                const FormatOptions& options);
std::string html(std::string_view name, std::span<const Entry> entries,
                 const FormatOptions& options);
std::string markdown(std::string_view name, std::span<const Entry> entries,
                     const FormatOptions& options);
std::string svg(std::span<const Entry> entries, const FormatOptions& options);
std::string css(std::string_view name, std::span<const Entry> entries,
                const FormatOptions& options);
std::string scss(std::string_view name, std::span<const Entry> entries,
                 const FormatOptions& options);
std::string sass(std::string_view name, std::span<const Entry> entries,
                 const FormatOptions& options);
std::string less(std::string_view name, std::span<const Entry> entries,
                 const FormatOptions& options);
/// Without alpha. A name is cut to the 65,534 UTF-16 code units that the format can count.
Bytes ase(std::span<const Entry> entries);
std::string gpl(std::string_view name, std::span<const Entry> entries);
/// Nothing when the list cannot be built.
std::optional<Bytes> clr(std::string_view name, std::span<const Entry> entries);
/// Squares of 80 pixels, side by side as in the SVG, up to 256 in a row; more begin a further row
/// (empty places are transparent), and beyond 4,096 the squares shrink, so that the picture keeps
/// below 27 million pixels. Nothing when there are no entries or the picture cannot be encoded.
std::optional<Bytes> png(std::span<const Entry> entries);

} // namespace PaletteExport

} // namespace tintra
