#include "platform/FileStamp.h"

#include <sys/stat.h>

namespace tintra {

std::optional<FileStamp> fileStamp(const std::filesystem::path& file) {
    struct stat status {};
    if (::stat(file.c_str(), &status) != 0) return std::nullopt;
    constexpr std::int64_t kNanoseconds = 1'000'000'000;
    return FileStamp{.modified = status.st_mtim.tv_sec * kNanoseconds + status.st_mtim.tv_nsec,
                     .size = static_cast<std::uint64_t>(status.st_size),
                     .inode = status.st_ino};
}

} // namespace tintra
