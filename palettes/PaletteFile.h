#pragma once

#include "palettes/Swatch.h"
#include "platform/ByteReader.h"

#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Palette files as ordered lists of named swatches, duplicates kept. Readers are pure functions,
// take any bytes and may run on any thread; a file that gives no swatch gives nothing at all, a
// truncated one the swatches before the break. Cost is linear in the size of the file.

namespace tintra::PaletteFile {

using Reader = ByteReader;

/// What a reader passed over, a count a reason; a reason is a short phrase such as
/// "unknown colour model “Gray”". Reasons of one file are bounded in number: what comes after the
/// first ones counts as `kOther`.
class LeftOut {
public:
    static constexpr std::string_view kOther = "other reasons";

    void add(std::string_view reason, int count = 1);
    const std::map<std::string, int, std::less<>>& counts() const { return counts_; }
    bool empty() const { return counts_.empty(); }

private:
    std::map<std::string, int, std::less<>> counts_;
};

/// The kinds of files that are read.
enum class Kind { ase, aco, gpl, clr, stylesheet };

/// "ase", "aco", "gpl", "clr".
std::span<const std::string_view> readableExtensions();

/// The kind that the file name's extension stands for, in any case; nothing for any other name.
std::optional<Kind> kindOf(const std::filesystem::path& file);

/// The entry point: the extension alone chooses the reader. Nothing when the file cannot be loaded
/// or gives no swatch; files above 64 MB are not loaded.
std::optional<std::vector<Swatch>> readNamed(const std::filesystem::path& file,
                                             LeftOut* leftOut = nullptr);

/// A file's content read as one kind.
std::optional<std::vector<Swatch>> read(ByteView data, Kind kind, LeftOut* leftOut = nullptr);

/// Whether a content of which `read` makes nothing is a whole palette of no colours, rather than
/// something else.
bool isEmpty(ByteView data, Kind kind);

/// Adobe Swatch Exchange 1.0; groups are flattened.
std::optional<std::vector<Swatch>> ase(ByteView data, LeftOut* leftOut = nullptr);
/// Photoshop colour swatches; the first section only.
std::optional<std::vector<Swatch>> aco(ByteView data, LeftOut* leftOut = nullptr);
/// GIMP palette.
std::optional<std::vector<Swatch>> gpl(ByteView data, LeftOut* leftOut = nullptr);
/// Colour list of the system colour picker, keyed archive or typed stream; carries alpha.
std::optional<std::vector<Swatch>> clr(ByteView data, LeftOut* leftOut = nullptr);
/// CSS, SCSS, Sass or Less; carries alpha.
std::optional<std::vector<Swatch>> stylesheet(ByteView data, LeftOut* leftOut = nullptr);

/// A name as swatches keep it: control characters are blanks, trimmed; nothing when that leaves
/// no text or "Untitled" in any case.
std::optional<std::string> kept(const std::optional<std::string>& name);

} // namespace tintra::PaletteFile
