#pragma once

#include "platform/Trash.h"

namespace tintra {

/// The Trash of the freedesktop specification: the user's for files of the home folder's file
/// system, `.Trash-UID` at the mount for others, so that moving never copies.
class DesktopTrash final : public Trash {
public:
    std::variant<TrashedFile, FileError> trash(const std::filesystem::path& file) override;

    /// A folder that is gone by now is not made again.
    std::optional<FileError> putBack(const TrashedFile& file) override;
};

} // namespace tintra
