#include "colour/Clamp.h"
#include "colour/Lab.h"
#include "palettes/readers/Reading.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

// Adobe Swatch Exchange 1.0: a header, then blocks of a type, a length and that many bytes.

namespace tintra::PaletteFile {

namespace {

constexpr std::uint32_t kMostBlocks = 100'000;
constexpr std::uint16_t kColourEntry = 0x0001;
constexpr std::size_t kSmallestEntry = 20;

constexpr std::string_view kUncounted = "beyond the number of blocks";
constexpr std::string_view kUnreadableName = "a name that cannot be read";
constexpr std::string_view kAfterUnreadableName = "after a name that cannot be read";

struct Block {
    std::uint16_t type;
    Reader body;
};

/// The next block, its length clamped to the end of the data; nothing without a whole header.
std::optional<Block> nextBlock(Reader& reader) {
    const auto type = reader.u16();
    const auto length = type ? reader.u32() : std::nullopt;
    if (!length) return std::nullopt;
    const auto present = std::min<std::size_t>(*length, reader.remaining());
    return Block{*type, Reader(*reader.take(present))};
}

std::optional<WashColor> rgbColour(const Components& v) {
    return WashColor{clampedUnit(v[0]), clampedUnit(v[1]), clampedUnit(v[2]), 1};
}

std::optional<WashColor> labColour(const Components& v) {
    return WashColor::fromRgb(rgbFromLabD50({v[0] * 100, v[1], v[2]}), 1);
}

std::optional<WashColor> greyColour(const Components& v) {
    const double level = clampedUnit(v[0]);
    return WashColor{level, level, level, 1};
}

struct Model {
    std::string_view name;
    std::size_t values;
    std::optional<WashColor> (*colour)(const Components&);
};
constexpr std::array kModels{
    Model{"RGB ", 3, rgbColour},
    Model{"CMYK", 4, [](const Components& inks) { return colourOfInks(inks); }},
    Model{"LAB ", 3, labColour}, Model{"GRAY", 1, greyColour}, // "Gray" is no model
};

/// The four bytes of a model as a reader can show them.
std::string shown(std::string_view model) {
    std::string text(model.substr(0, model.find_last_not_of(' ') + 1));
    for (char& c : text)
        if (c < ' ' || c > '~') c = '?';
    return text;
}

std::optional<WashColor> colourOf(Reader& body, LeftOut* leftOut) {
    const auto bytes = body.take(4);
    if (!bytes) return note(leftOut, kCutOff), std::nullopt;
    const auto name = asText(*bytes);
    const auto* const model = std::ranges::find(kModels, name, &Model::name);
    if (model == kModels.end()) {
        if (leftOut != nullptr) leftOut->add(fmt::format("unknown colour model “{}”", shown(name)));
        return std::nullopt;
    }
    Components values{};
    for (std::size_t i = 0; i < model->values; ++i) {
        const auto value = body.f32();
        if (!value) return note(leftOut, "values cut off"), std::nullopt;
        values[i] = static_cast<double>(*value);
    }
    const auto colour = model->colour(values);
    if (!colour) note(leftOut, kInksRefused);
    return colour;
}

enum class Next { goOn, stop };

Next readEntry(Reader body, std::vector<Swatch>& swatches, LeftOut* leftOut) {
    const auto length = body.u16();
    auto name = length ? body.utf16(*length) : std::nullopt;
    if (!name) return note(leftOut, kUnreadableName), Next::stop;
    if (const auto colour = colourOf(body, leftOut))
        swatches.push_back({*colour, keptText(std::move(*name))});
    return Next::goOn;
}

/// Counts the entries that are not read any more.
void noteRest(Reader& reader, std::string_view reason, LeftOut* leftOut) {
    while (const auto block = leftOut == nullptr ? std::nullopt : nextBlock(reader))
        if (block->type == kColourEntry) note(leftOut, reason);
}

} // namespace

std::optional<std::vector<Swatch>> ase(ByteView data, LeftOut* leftOut) {
    Reader reader(data);
    const auto signature = reader.take(4);
    if (!signature || asText(*signature) != "ASEF") return std::nullopt;
    const auto version = reader.take(4);
    const auto count = version ? reader.u32() : std::nullopt;
    if (!count) return std::nullopt;

    std::vector<Swatch> swatches;
    auto left = std::min(*count, kMostBlocks);
    swatches.reserve(std::min<std::size_t>(left, data.size() / kSmallestEntry));
    for (; left > 0 && !reader.atEnd(); --left) {
        const auto block = nextBlock(reader);
        if (!block) {
            note(leftOut, kCutOff, static_cast<int>(left));
            return unlessEmpty(std::move(swatches));
        }
        if (block->type != kColourEntry) continue;
        if (readEntry(block->body, swatches, leftOut) == Next::stop) {
            noteRest(reader, kAfterUnreadableName, leftOut);
            return unlessEmpty(std::move(swatches));
        }
    }
    note(leftOut, kCutOff, static_cast<int>(left));
    noteRest(reader, kUncounted, leftOut);
    return unlessEmpty(std::move(swatches));
}

} // namespace tintra::PaletteFile
