#pragma once

#include "platform/File.h"

#include <chrono>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace tintra {

/// The file of one record, `KEY.json` in a folder. Whatever stands there and cannot be read
/// (another owner's file, a folder, a file above 64 MiB) is never replaced or removed, but set
/// aside first. Of one file, one thread at a time.
class RecordFile {
public:
    /// Characters of the key other than letters, digits, "-" and "_" are escaped. A folder that is
    /// not absolute stands for none: nothing is read, and writing fails.
    RecordFile(const std::filesystem::path& folder, std::string_view key);

    /// Nothing when there is no record or it cannot be read.
    std::optional<std::string> read() const;

    // The others answer why they failed. `now` names what is set aside.
    using Time = std::chrono::system_clock::time_point;

    /// Whole or not at all. Folders that are missing are made, for the user alone.
    std::optional<FileError> write(std::string_view record, Time now) const;
    std::optional<FileError> remove(Time now) const;

    /// Renames the file to KEY.damaged-YYYYMMDD-HHMMSS.json (local time), with -2, -3... where that
    /// is taken. Keeps the ten newest of a key. No file at all is a success.
    std::optional<FileError> setAside(Time now) const;

private:
    std::optional<FileError> setAsideUnlessReadable(Time now) const;
    std::filesystem::path nameAside(const std::string& date, int attempt) const;
    void dropOldAside(const std::filesystem::path& justMade) const;

    std::string name_; ///< of the file, without extension
    std::filesystem::path folder_, file_;
};

} // namespace tintra
