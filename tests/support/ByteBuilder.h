#pragma once

#include "platform/ByteReader.h"
#include "platform/Bytes.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <string_view>

namespace tintra::test {

/// Files made by hand, field by field.
class ByteBuilder {
public:
    explicit ByteBuilder(ByteOrder order = ByteOrder::bigEndian) : order_(order) {}

    ByteBuilder& u8(unsigned value) { return integer(value, 1); }
    ByteBuilder& u16(unsigned value) { return integer(value, 2); }
    ByteBuilder& u32(std::uint64_t value) { return integer(value, 4); }
    ByteBuilder& u64(std::uint64_t value) { return integer(value, 8); }
    ByteBuilder& f32(float value) { return u32(std::bit_cast<std::uint32_t>(value)); }
    ByteBuilder& text(std::string_view text) { return bytes(asBytes(text)); }
    ByteBuilder& utf16(std::u16string_view units) {
        for (const char16_t unit : units)
            u16(unit);
        return *this;
    }
    ByteBuilder& bytes(ByteView more) {
        built_.insert(built_.end(), more.begin(), more.end());
        return *this;
    }

    const Bytes& built() const { return built_; }
    std::size_t size() const { return built_.size(); }

private:
    ByteBuilder& integer(std::uint64_t value, int size) {
        Bytes field;
        for (int i = 0; i < size; ++i)
            field.push_back(static_cast<std::byte>(value >> (8 * i)));
        if (order_ == ByteOrder::bigEndian) std::ranges::reverse(field);
        return bytes(field);
    }

    ByteOrder order_;
    Bytes built_;
};

} // namespace tintra::test
