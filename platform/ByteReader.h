#pragma once

#include "platform/Bytes.h"

#include <cstdint>
#include <optional>
#include <string>

namespace tintra {

enum class ByteOrder { bigEndian, littleEndian };

/// A cursor over a file's bytes that owns bounds and byte order. Every read answers nothing when
/// fewer bytes remain than it needs, and then the position stays put.
class ByteReader {
public:
    explicit ByteReader(ByteView bytes, ByteOrder order = ByteOrder::bigEndian)
        : bytes_(bytes), order_(order) {}

    std::optional<std::uint8_t> u8();
    std::optional<std::uint16_t> u16();
    std::optional<std::uint32_t> u32();
    std::optional<std::uint64_t> u64();
    /// IEEE 754 single precision.
    std::optional<float> f32();
    /// IEEE 754 double precision.
    std::optional<double> f64();
    /// The next `count` bytes as they are.
    std::optional<ByteView> take(std::size_t count);
    /// `count` UTF-16 code units as UTF-8: one trailing zero unit is dropped, an unpaired surrogate
    /// becomes U+FFFD. Nothing when `count` is 0.
    std::optional<std::string> utf16(std::size_t count);

    std::size_t position() const { return at_; }
    std::size_t remaining() const { return bytes_.size() - at_; }
    bool atEnd() const { return remaining() == 0; }
    /// Moves to an offset from the start of the bytes, at most to their end.
    void seek(std::size_t position);

private:
    template <typename Unsigned>
    std::optional<Unsigned> unsignedInteger();

    ByteView bytes_;
    ByteOrder order_;
    std::size_t at_ = 0;
};

} // namespace tintra
