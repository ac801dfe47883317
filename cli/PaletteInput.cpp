#include "cli/PaletteInput.h"

#include "palettes/PasteColours.h"
#include "palettes/Stylesheet.h"
#include "platform/File.h"
#include "platform/Unicode.h"

#include <fmt/format.h>

#include <filesystem>
#include <iterator>

namespace tintra::cli {

namespace {

using PaletteFile::Kind;
using PaletteFile::LeftOut;
using PaletteFile::Swatch;
using Swatches = std::optional<std::vector<Swatch>>;

/// How the bytes are read: as a kind of file, or as pasted text.
enum class Reading { ase, aco, gpl, clr, css, text, pasted, unknown };

struct ReadingRow {
    const char* as;
    Reading reading;
    std::optional<Kind> kind;
};

const ReadingRow kReadings[] = {
    {"ase", Reading::ase, Kind::ase},        {"aco", Reading::aco, Kind::aco},
    {"gpl", Reading::gpl, Kind::gpl},        {"clr", Reading::clr, Kind::clr},
    {"css", Reading::css, Kind::stylesheet}, {"text", Reading::text, std::nullopt},
};

Reading readingOf(const std::string& file, const std::string& as) {
    for (const auto& row : kReadings)
        if (row.as == as) return row.reading;
    if (file == "-") return Reading::pasted;
    const auto kind = PaletteFile::kindOf(file);
    for (const auto& row : kReadings)
        if (kind && row.kind == kind) return row.reading;
    return Reading::unknown;
}

Swatches lines(std::string_view text) {
    std::vector<Swatch> swatches;
    for (const auto& colour : PasteColours::parse(text))
        swatches.push_back({colour, std::nullopt});
    return swatches.empty() ? Swatches() : Swatches(std::move(swatches));
}

Swatches swatchesOf(ByteView bytes, Reading reading, LeftOut& leftOut) {
    for (const auto& row : kReadings)
        if (row.reading == reading && row.kind)
            return PaletteFile::read(bytes, *row.kind, &leftOut);
    const auto text = asText(bytes);
    if (reading == Reading::pasted && Stylesheet::looksLikeStylesheet(text))
        return PaletteFile::stylesheet(bytes, &leftOut);
    return lines(text);
}

std::optional<Bytes> contentOf(Session& session, const std::string& file) {
    if (file == "-") {
        const std::string text(std::istreambuf_iterator<char>(session.in()), {});
        const auto bytes = asBytes(text);
        return Bytes(bytes.begin(), bytes.end());
    }
    auto content = readFile(file);
    if (const auto* error = std::get_if<FileError>(&content)) {
        session.failure(file, error->why);
        return std::nullopt;
    }
    return std::get<Bytes>(std::move(content));
}

std::string leftOutText(const LeftOut& leftOut) {
    std::string text;
    for (const auto& [reason, count] : leftOut.counts())
        text += fmt::format("{}{} left out: {}", text.empty() ? "" : "; ", count, reason);
    return text;
}

} // namespace

const std::vector<std::string>& asChoices() {
    static const auto choices = [] {
        std::vector<std::string> texts;
        for (const auto& row : kReadings)
            texts.emplace_back(row.as);
        return texts;
    }();
    return choices;
}

std::optional<PaletteInput> readPalette(Session& session, const std::string& file,
                                        const std::string& as) {
    const auto subject = file == "-" ? std::string("standard input") : file;
    const auto reading = readingOf(file, as);
    const auto content = contentOf(session, file);
    if (!content) return std::nullopt;
    if (reading == Reading::unknown) {
        session.failure(subject, "the extension is none of ase, aco, gpl, clr, css, scss, sass, "
                                 "less (--as says what it is)");
        return std::nullopt;
    }
    LeftOut leftOut;
    auto swatches = swatchesOf(*content, reading, leftOut);
    if (!swatches) {
        session.failure(subject, leftOut.empty() ? "no swatches in it that can be read"
                                                 : "no swatches in it; " + leftOutText(leftOut));
        return std::nullopt;
    }
    if (!leftOut.empty()) session.notice(subject, leftOutText(leftOut));
    const auto stem = std::filesystem::path(file).stem().string();
    return PaletteInput{file, file == "-" ? "Untitled Palette" : stem, std::move(*swatches)};
}

void forEachPalette(Session& session, const std::vector<std::string>& files, const std::string& as,
                    const std::function<void(PaletteInput)>& take) {
    // Below this many files the work is over before a person could read the line.
    constexpr std::size_t kWorthShowing = 20;
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (files.size() >= kWorthShowing) session.progress(i, files.size(), "files");
        if (auto palette = readPalette(session, files[i], as)) take(std::move(*palette));
    }
}

} // namespace tintra::cli
