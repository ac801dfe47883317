#include "palettes/PaletteExport.h"
#include "palettes/writers/WriterText.h"
#include "platform/Unicode.h"

#include <bit>
#include <concepts>
#include <cstdint>

namespace tintra {

namespace {

constexpr std::uint16_t kColourEntry = 1;
constexpr std::uint16_t kNormalColour = 2;
/// The length field counts the name and its terminator in 16 bits.
constexpr std::size_t kLongestName = 65534;

template <std::unsigned_integral Unsigned>
void appendBigEndian(Bytes& out, Unsigned value) {
    for (auto shift = 8 * sizeof(value); shift > 0;) {
        shift -= 8;
        out.push_back(static_cast<std::byte>(value >> shift & 0xFFU));
    }
}

void appendText(Bytes& out, std::string_view ascii) {
    const auto bytes = asBytes(ascii);
    out.insert(out.end(), bytes.begin(), bytes.end());
}

/// The name in at most `kLongestName` units, cut between two characters.
std::u16string nameUnits(std::string_view name) {
    auto units = utf16FromUtf8(singleLine(name));
    if (units.size() <= kLongestName) return units;
    const auto last = units[kLongestName - 1];
    const bool splitsPair = last >= 0xD800 && last <= 0xDBFF;
    units.resize(splitsPair ? kLongestName - 1 : kLongestName);
    return units;
}

void appendEntry(Bytes& out, const PaletteExport::Entry& entry) {
    const auto name = nameUnits(entry.name);
    const auto units = name.size() + 1;
    const auto length = sizeof(std::uint16_t) + 2 * units + 4 + 3 * sizeof(float) + 2;
    appendBigEndian(out, kColourEntry);
    appendBigEndian(out, static_cast<std::uint32_t>(length));
    appendBigEndian(out, static_cast<std::uint16_t>(units));
    for (const char16_t unit : name)
        appendBigEndian(out, static_cast<std::uint16_t>(unit));
    appendBigEndian(out, std::uint16_t{0});
    appendText(out, "RGB ");
    const auto rgb = entry.color.srgb255();
    for (const int byte : {rgb.r, rgb.g, rgb.b})
        appendBigEndian(out, std::bit_cast<std::uint32_t>(static_cast<float>(byte / 255.0)));
    appendBigEndian(out, kNormalColour);
}

} // namespace

Bytes PaletteExport::ase(std::span<const Entry> entries) {
    Bytes out;
    appendText(out, "ASEF");
    appendBigEndian(out, std::uint16_t{1}); // version 1.0
    appendBigEndian(out, std::uint16_t{0});
    appendBigEndian(out, static_cast<std::uint32_t>(entries.size()));
    for (const auto& entry : entries)
        appendEntry(out, entry);
    return out;
}

} // namespace tintra
