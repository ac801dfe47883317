#pragma once

#include "platform/Bytes.h"

#include <filesystem>
#include <optional>
#include <string>
#include <system_error>
#include <variant>

namespace tintra {

/// Why a file could not be read or written: one short English phrase, such as
/// "No such file or directory".
struct FileError {
    std::string why;
    bool isTaken = false; ///< of a file that was to have a new name: there is one of that name
};

/// The whole content of a regular file (or of a pipe that ends), or why it cannot be had. A folder
/// is refused. Files above `largest` bytes are refused before they are taken into memory.
std::variant<Bytes, FileError> readFile(const std::filesystem::path& path,
                                        std::uint64_t largest = std::uint64_t{1} << 30U);

enum class Existing { refuse, replace };

/// Writes the file whole or not at all: into a temporary file of the same folder, flushed to the
/// disk, then renamed. On failure an existing file is as it was and no temporary file is left.
/// A symbolic link is kept and its target is replaced. A replaced file keeps its permissions.
/// Answers nothing on success.
std::optional<FileError> writeFile(const std::filesystem::path& path, ByteView content,
                                   Existing existing);

/// Makes the folder and those above it that are missing, for the user alone. Where something stands
/// in its place already, that is left as it is and is no failure.
std::optional<FileError> makeFolder(const std::filesystem::path& folder);

/// Removes the temporary files of `writeFile` that a killed program left in the folder more than an
/// hour ago.
void removeLeftovers(const std::filesystem::path& folder);

/// Renames a file or a folder within a file system; nothing is ever replaced
/// (std::errc::file_exists tells of a name that is taken).
std::error_code renameWithoutReplacing(const std::filesystem::path& from,
                                       const std::filesystem::path& to);

} // namespace tintra
