#include "platform/ByteReader.h"

#include "platform/Unicode.h"

#include <algorithm>
#include <bit>

namespace tintra {

namespace {

/// UTF-16 of ASCII characters only, which most names are, without its trailing zero unit; nothing
/// for any other text.
std::optional<std::string> asciiFromUtf16(ByteView bytes, ByteOrder order) {
    const std::size_t high = order == ByteOrder::bigEndian ? 0 : 1;
    std::string text(bytes.size() / 2, '\0');
    std::byte seen{};
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto low = bytes[2 * i + (1 - high)];
        seen |= bytes[2 * i + high] | (low & std::byte{0x80});
        text[i] = std::to_integer<char>(low);
    }
    if (seen != std::byte{}) return std::nullopt;
    if (text.back() == '\0') text.pop_back();
    return text;
}

} // namespace

template <typename Unsigned>
std::optional<Unsigned> ByteReader::unsignedInteger() {
    const auto bytes = take(sizeof(Unsigned));
    if (!bytes) return std::nullopt;
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < sizeof(Unsigned); ++i) {
        const auto next = order_ == ByteOrder::bigEndian ? i : sizeof(Unsigned) - 1 - i;
        value = value << 8U | std::to_integer<std::uint64_t>((*bytes)[next]);
    }
    return static_cast<Unsigned>(value);
}

std::optional<std::uint8_t> ByteReader::u8() {
    return unsignedInteger<std::uint8_t>();
}
std::optional<std::uint16_t> ByteReader::u16() {
    return unsignedInteger<std::uint16_t>();
}
std::optional<std::uint32_t> ByteReader::u32() {
    return unsignedInteger<std::uint32_t>();
}
std::optional<std::uint64_t> ByteReader::u64() {
    return unsignedInteger<std::uint64_t>();
}

std::optional<float> ByteReader::f32() {
    const auto bits = u32();
    return bits ? std::optional(std::bit_cast<float>(*bits)) : std::nullopt;
}

std::optional<double> ByteReader::f64() {
    const auto bits = u64();
    return bits ? std::optional(std::bit_cast<double>(*bits)) : std::nullopt;
}

std::optional<ByteView> ByteReader::take(std::size_t count) {
    if (remaining() < count) return std::nullopt;
    const auto taken = bytes_.subspan(at_, count);
    at_ += count;
    return taken;
}

std::optional<std::string> ByteReader::utf16(std::size_t count) {
    if (count == 0 || remaining() / 2 < count) return std::nullopt;
    const auto bytes = *take(count * 2);
    if (auto text = asciiFromUtf16(bytes, order_)) return text;
    ByteReader field(bytes, order_);
    std::u16string units(count, u'\0');
    for (auto& unit : units)
        unit = static_cast<char16_t>(*field.u16());
    if (units.back() == u'\0') units.pop_back();
    return utf8FromUtf16(units);
}

void ByteReader::seek(std::size_t position) {
    at_ = std::min(position, bytes_.size());
}

} // namespace tintra
