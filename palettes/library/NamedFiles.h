#pragma once

#include "platform/Bytes.h"
#include "platform/File.h"
#include "platform/Trash.h"

#include <filesystem>
#include <optional>
#include <string>
#include <variant>
#include <vector>

// Files of one name with several extensions, put into a folder all or none.

namespace tintra {

struct NewFile {
    std::string extension; ///< without a point
    Bytes content;
};

/// Whether a file of the name and one of the extensions is there.
bool isTaken(const std::filesystem::path& folder, const std::string& name,
             const std::vector<NewFile>& files);

/// The name, else the first with a number from 2 upward, that is not taken.
std::string freeName(const std::filesystem::path& folder, const std::string& name,
                     const std::vector<NewFile>& files);

/// Writes the files under the name; those that have it go to the Trash and are answered. The
/// folder is made when it is missing. On failure everything is as it was.
std::variant<std::vector<TrashedFile>, FileError> putNamedFiles(const std::filesystem::path& folder,
                                                                const std::string& name,
                                                                const std::vector<NewFile>& files,
                                                                Trash& trash);

} // namespace tintra
