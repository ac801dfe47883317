#pragma once

#include <cstdint>
#include <filesystem>
#include <span>

namespace tintra::cmyk {

/// Writes the bytes beside `path` and moves them into place: the file there is the old one or the
/// whole new one. Throws std::runtime_error naming the file, and leaves nothing behind then.
void writeWholeFile(const std::filesystem::path& path, std::span<const std::uint8_t> bytes);

} // namespace tintra::cmyk
