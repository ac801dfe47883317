#include "palettes/PaletteFile.h"

#include "palettes/Stylesheet.h"
#include "palettes/readers/Reading.h"
#include "platform/File.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <array>
#include <limits>

namespace tintra::PaletteFile {

namespace {

constexpr std::size_t kMostReasons = 12;
constexpr std::uint64_t kLargestFile = std::uint64_t{64} << 20U;

using Read = std::optional<std::vector<Swatch>> (*)(ByteView, LeftOut*);

/// The readers in the order of `Kind`, and the one extension of those that have one.
struct ReaderRow {
    Kind kind;
    std::string_view extension;
    Read read;
};
constexpr std::array kReaders{
    ReaderRow{Kind::ase, "ase", ase},
    ReaderRow{Kind::aco, "aco", aco},
    ReaderRow{Kind::gpl, "gpl", gpl},
    ReaderRow{Kind::clr, "clr", clr},
    ReaderRow{Kind::stylesheet, "", stylesheet}, // Stylesheet::extensions
};

constexpr auto kReadableExtensions = [] {
    std::array<std::string_view, kReaders.size() - 1> extensions;
    std::ranges::transform(kReaders.begin(), kReaders.end() - 1, extensions.begin(),
                           &ReaderRow::extension);
    return extensions;
}();

/// A text of plain ASCII without control characters needs no knowledge of Unicode.
bool isPlain(std::string_view text) {
    return std::ranges::all_of(text, [](char c) { return c >= ' ' && c <= '~'; });
}

} // namespace

void LeftOut::add(std::string_view reason, int count) {
    if (count <= 0) return;
    auto place = counts_.find(reason);
    if (place == counts_.end()) {
        const auto kept = counts_.size() < kMostReasons ? reason : kOther;
        place = counts_.try_emplace(std::string(kept)).first;
    }
    const int room = std::numeric_limits<int>::max() - place->second;
    place->second += std::min(count, room);
}

std::span<const std::string_view> readableExtensions() {
    return kReadableExtensions;
}

std::optional<Kind> kindOf(const std::filesystem::path& file) {
    const auto extension = asciiLowerCased(file.extension().string());
    if (extension.size() < 2) return std::nullopt;
    const auto bare = std::string_view(extension).substr(1);
    const auto* const row = std::ranges::find(kReaders, bare, &ReaderRow::extension);
    if (row != kReaders.end()) return row->kind;
    const auto sheets = Stylesheet::extensions();
    return std::ranges::find(sheets, bare) != sheets.end() ? std::optional(Kind::stylesheet)
                                                           : std::nullopt;
}

std::optional<std::vector<Swatch>> readNamed(const std::filesystem::path& file, LeftOut* leftOut) {
    const auto kind = kindOf(file);
    if (!kind) return std::nullopt;
    const auto content = readFile(file, kLargestFile);
    const auto* const bytes = std::get_if<Bytes>(&content);
    return bytes == nullptr ? std::nullopt : read(*bytes, *kind, leftOut);
}

std::optional<std::vector<Swatch>> read(ByteView data, Kind kind, LeftOut* leftOut) {
    return std::ranges::find(kReaders, kind, &ReaderRow::kind)->read(data, leftOut);
}

std::optional<std::string> kept(const std::optional<std::string>& name) {
    return name ? keptText(*name) : std::nullopt;
}

std::optional<std::string> keptText(std::string text) {
    if (!isPlain(text)) return named(std::string(trimmed(controlsToSpaces(text))));
    text.erase(text.find_last_not_of(' ') + 1);
    text.erase(0, text.find_first_not_of(' '));
    return named(std::move(text));
}

std::optional<std::string> named(std::string trimmedText) {
    constexpr std::string_view kUnnamed = "untitled";
    if (trimmedText.empty()) return std::nullopt;
    // No other letter folds to one of these, so no text of another length can be equal.
    if (trimmedText.size() == kUnnamed.size() && asciiLowerCased(trimmedText) == kUnnamed)
        return std::nullopt;
    return trimmedText;
}

} // namespace tintra::PaletteFile
