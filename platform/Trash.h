#pragma once

#include "platform/File.h"

#include <filesystem>
#include <optional>
#include <variant>

namespace tintra {

/// A file in the Trash and the place it came from.
struct TrashedFile {
    std::filesystem::path original;
    std::filesystem::path inTrash;
    bool operator==(const TrashedFile&) const = default;
};

/// The desktop's Trash. Any thread, one at a time.
class Trash {
public:
    virtual ~Trash() = default;

    virtual std::variant<TrashedFile, FileError> trash(const std::filesystem::path& file) = 0;

    /// Moves the file back. Refused, with the file left in the Trash, when its place is taken.
    virtual std::optional<FileError> putBack(const TrashedFile& file) = 0;
};

} // namespace tintra
