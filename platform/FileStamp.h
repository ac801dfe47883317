#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace tintra {

/// What changes when a file is written or replaced by another program.
struct FileStamp {
    std::int64_t modified = 0; ///< nanoseconds since 1970
    std::uint64_t size = 0;    ///< bytes
    std::uint64_t inode = 0;
    auto operator<=>(const FileStamp&) const = default;
};

/// Nothing when there is no such file or it cannot be reached.
std::optional<FileStamp> fileStamp(const std::filesystem::path& file);

} // namespace tintra
