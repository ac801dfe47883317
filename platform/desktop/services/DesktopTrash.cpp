#include "platform/desktop/services/DesktopTrash.h"

#include <QFile>
#include <system_error>

namespace tintra {

namespace {

namespace fs = std::filesystem;

/// Where the Trash notes the origin of a file (`files/NAME` goes with `info/NAME.trashinfo`).
fs::path infoOf(const fs::path& inTrash) {
    auto name = inTrash.filename();
    name += ".trashinfo";
    return inTrash.parent_path().parent_path() / "info" / name;
}

} // namespace

std::variant<TrashedFile, FileError> DesktopTrash::trash(const fs::path& file) {
    std::error_code failed;
    const auto original = fs::absolute(file, failed).lexically_normal();
    if (failed) return FileError{failed.message()};
    QFile moved(QFile::decodeName(original.c_str()));
    if (!moved.moveToTrash()) return FileError{moved.errorString().toStdString()};
    return TrashedFile{original, fs::path(QFile::encodeName(moved.fileName()).toStdString())};
}

std::optional<FileError> DesktopTrash::putBack(const TrashedFile& file) {
    std::error_code failed;
    if (!fs::exists(fs::symlink_status(file.inTrash, failed)))
        return FileError{"it is no longer in the Trash"};
    if (!fs::is_directory(file.original.parent_path(), failed))
        return FileError{"the folder that it was in is gone"};
    if (const auto why = renameWithoutReplacing(file.inTrash, file.original))
        return FileError{why.message()};
    // Only when the file is back: a note that stays behind is what the desktop clears away itself.
    fs::remove(infoOf(file.inTrash), failed);
    return std::nullopt;
}

} // namespace tintra
