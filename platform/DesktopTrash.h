#pragma once

#include "platform/Trash.h"

namespace tintra {

class Clock;

/// The Trash that file managers show (freedesktop.org Trash specification 1.0): the user's, in the
/// folder for data, for files of its file system; `.Trash/UID` or `.Trash-UID` at the top of their
/// own for others, so that a file is only ever renamed.
/// (Qt 6.4 can do it, too, but moves a file into the current folder where no Trash can be made.)
class DesktopTrash final : public Trash {
public:
    explicit DesktopTrash(const Clock& clock) : clock_(clock) {}

    /// A link is moved itself, not what it points to. On failure the file is where it was.
    std::variant<TrashedFile, FileError> trash(const std::filesystem::path& file) override;

    /// A folder that is gone by now is not made again.
    std::optional<FileError> putBack(const TrashedFile& file) override;

private:
    const Clock& clock_;
};

} // namespace tintra
