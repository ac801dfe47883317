#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace tintra {

/// Bytes that somebody else owns, such as a file's content.
using ByteView = std::span<const std::byte>;

/// Bytes that the holder owns.
using Bytes = std::vector<std::byte>;

/// The same bytes seen as text (no decoding takes place).
inline std::string_view asText(ByteView bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// The same bytes seen as bytes.
inline ByteView asBytes(std::string_view text) {
    return std::as_bytes(std::span(text));
}

} // namespace tintra
