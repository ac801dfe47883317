#include "platform/DesktopTrash.h"

#include "platform/Clock.h"
#include "platform/Descriptor.h"
#include "platform/Locations.h"

#include <fcntl.h>
#include <fmt/chrono.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace tintra {

namespace {

namespace fs = std::filesystem;

/// A folder that holds trashed files, with the folder that noted origins are relative to (empty
/// where they are absolute).
struct TrashFolder {
    fs::path folder, base;
};

std::optional<dev_t> deviceOf(const fs::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) return std::nullopt;
    return status.st_dev;
}

/// The highest folder on the way up that is on the same file system.
fs::path topOf(fs::path folder) {
    const auto device = deviceOf(folder);
    while (folder.has_relative_path() && deviceOf(folder.parent_path()) == device)
        folder = folder.parent_path();
    return folder;
}

/// Whether it is a real folder (a link could lead anywhere) with those bits of its mode set.
bool isFolder(const fs::path& path, mode_t bits) {
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           (status.st_mode & bits) == bits;
}

std::variant<TrashFolder, FileError> trashFolderAt(const fs::path& top) {
    const auto user = std::to_string(::getuid());
    const auto shared = top / ".Trash"; // of all users: to be trusted only when it is sticky
    auto folder = isFolder(shared, S_ISVTX) ? shared / user : top / (".Trash-" + user);
    if (auto failed = makeFolder(folder)) return *failed;
    if (!isFolder(folder, S_IRWXU)) return FileError{"the Trash of that disk cannot be used"};
    return TrashFolder{std::move(folder), top};
}

std::variant<TrashFolder, FileError> trashFolderFor(const fs::path& folder) {
    const auto data = dataHome();
    const auto home = data / "Trash";
    if (!data.empty() && !makeFolder(home) && deviceOf(home) == deviceOf(folder))
        return TrashFolder{home, {}};
    return trashFolderAt(topOf(folder));
}

/// As in a URL (RFC 3986), with its slashes.
std::string percentEncoded(std::string_view path) {
    constexpr std::string_view kPlain =
        "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
    std::string encoded;
    for (const char c : path)
        encoded += kPlain.find(c) != std::string_view::npos
                       ? std::string(1, c)
                       : fmt::format("%{:02X}", static_cast<unsigned char>(c));
    return encoded;
}

std::string noteOf(const fs::path& original, const TrashFolder& trash, const Clock& clock) {
    const auto path = trash.base.empty() ? original : original.lexically_relative(trash.base);
    const auto now = std::chrono::system_clock::to_time_t(clock.date());
    return fmt::format("[Trash Info]\nPath={}\nDeletionDate={:%Y-%m-%dT%H:%M:%S}\n",
                       percentEncoded(path.native()), fmt::localtime(now));
}

/// Where the Trash notes the origin of a file (`files/NAME` goes with `info/NAME.trashinfo`).
fs::path noteFile(const fs::path& inTrash) {
    return inTrash.parent_path().parent_path() / "info" /
           (inTrash.filename().native() + ".trashinfo");
}

/// Fails where the note is there already, which is how programs settle who has the name.
std::error_code writeNote(const fs::path& file, std::string_view note) {
    const auto why = [] { return std::error_code(errno, std::generic_category()); };
    Descriptor opened(::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    if (!opened.isOpen()) return why();
    errno = ENOSPC; // what it means when less than the whole was written
    const auto written = ::write(opened.number(), note.data(), note.size());
    return std::cmp_equal(written, note.size()) && opened.close() ? std::error_code() : why();
}

/// "a.gpl", "a 2.gpl", "a 3.gpl"..., short enough for the name of the note.
std::string nameInTrash(const fs::path& original, int attempt) {
    constexpr std::size_t kLongest = 200; // bytes, of the 255 that file systems take
    const auto number = attempt == 1 ? std::string() : fmt::format(" {}", attempt);
    const auto extension = original.extension().native().substr(0, kLongest / 2);
    return original.stem().native().substr(0, kLongest - extension.size()) + number + extension;
}

/// Answers where the file is then.
std::variant<fs::path, FileError> moveInto(const fs::path& trash, const fs::path& file,
                                           std::string_view note) {
    for (int attempt = 1;; ++attempt) {
        auto inTrash = trash / "files" / nameInTrash(file, attempt);
        auto failed = writeNote(noteFile(inTrash), note);
        if (failed == std::errc::file_exists) continue;
        if (!failed) failed = renameWithoutReplacing(file, inTrash);
        if (!failed) return inTrash;
        ::unlink(noteFile(inTrash).c_str());
        if (failed != std::errc::file_exists) return FileError{failed.message()};
    }
}

} // namespace

std::variant<TrashedFile, FileError> DesktopTrash::trash(const fs::path& file) {
    std::error_code failed;
    const auto original = fs::absolute(file, failed);
    if (!fs::exists(fs::symlink_status(original, failed)))
        return FileError{std::generic_category().message(ENOENT)};
    // Where the file really lies tells its file system, and stays true when a link is changed.
    const auto real = fs::canonical(original.parent_path(), failed) / original.filename();
    if (failed) return FileError{failed.message()};
    const auto found = trashFolderFor(real.parent_path());
    if (const auto* none = std::get_if<FileError>(&found)) return *none;
    const auto& trash = std::get<TrashFolder>(found);
    for (const auto* part : {"files", "info"})
        if (auto unmade = makeFolder(trash.folder / part)) return *unmade;
    const auto moved = moveInto(trash.folder, real, noteOf(real, trash, clock_));
    if (const auto* error = std::get_if<FileError>(&moved)) return *error;
    return TrashedFile{original, std::get<fs::path>(moved)};
}

std::optional<FileError> DesktopTrash::putBack(const TrashedFile& file) {
    std::error_code failed;
    if (!fs::exists(fs::symlink_status(file.inTrash, failed)))
        return FileError{"it is no longer in the Trash"};
    if (!fs::is_directory(file.original.parent_path(), failed))
        return FileError{"the folder that it was in is gone"};
    if (const auto why = renameWithoutReplacing(file.inTrash, file.original))
        return FileError{why.message()};
    // Only when the file is back: file managers clear away a note without a file.
    ::unlink(noteFile(file.inTrash).c_str());
    return std::nullopt;
}

} // namespace tintra
