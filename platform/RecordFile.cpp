#include "platform/RecordFile.h"

#include "platform/Descriptor.h"

#include <fcntl.h>
#include <fmt/chrono.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <tuple>
#include <vector>

namespace tintra {

namespace {

namespace fs = std::filesystem;

constexpr std::uint64_t kLargest = std::uint64_t{64} << 20U;
constexpr std::size_t kMostAside = 10;
constexpr int kMostAttempts = 1000;
constexpr std::string_view kExtension = ".json";
constexpr std::string_view kAside = ".damaged-";

std::string escaped(std::string_view key) {
    std::string name;
    for (const char c : key) {
        const bool plain = (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') ||
                           (c >= 'a' && c <= 'z') || c == '-' || c == '_';
        name += plain ? std::string(1, c) : fmt::format("%{:02X}", static_cast<unsigned char>(c));
    }
    return name;
}

enum class Standing { none, readable, unreadable };

/// What stands at the place of a record. Looks without waiting, which a pipe would make it do.
Standing standingAt(const fs::path& file) {
    const Descriptor opened(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!opened.isOpen())
        return errno == ENOENT || errno == ENOTDIR ? Standing::none : Standing::unreadable;
    struct stat status {};
    const bool readable = ::fstat(opened.number(), &status) == 0 && S_ISREG(status.st_mode) &&
                          static_cast<std::uint64_t>(status.st_size) <= kLargest;
    return readable ? Standing::readable : Standing::unreadable;
}

FileError lastError() {
    return {std::generic_category().message(errno)};
}

} // namespace

RecordFile::RecordFile(const fs::path& folder, std::string_view key)
    : name_(escaped(key)), folder_(folder), file_(folder / (name_ + std::string(kExtension))) {}

std::optional<std::string> RecordFile::read() const {
    if (!folder_.is_absolute() || standingAt(file_) != Standing::readable) return std::nullopt;
    const auto content = readFile(file_, kLargest);
    const auto* bytes = std::get_if<Bytes>(&content);
    return bytes ? std::optional(std::string(asText(*bytes))) : std::nullopt;
}

std::optional<FileError> RecordFile::write(std::string_view record, Time now) const {
    if (!folder_.is_absolute()) return FileError{"there is no home folder"};
    if (auto failed = makeFolder(folder_)) return failed;
    if (auto failed = setAsideUnlessReadable(now)) return failed;
    return writeFile(file_, asBytes(record), Existing::replace);
}

std::optional<FileError> RecordFile::remove(Time now) const {
    if (!folder_.is_absolute()) return std::nullopt;
    if (auto failed = setAsideUnlessReadable(now)) return failed;
    if (::unlink(file_.c_str()) == 0 || errno == ENOENT || errno == ENOTDIR) return std::nullopt;
    return lastError();
}

std::optional<FileError> RecordFile::setAside(Time now) const {
    if (!folder_.is_absolute()) return std::nullopt;
    const auto date =
        fmt::format("{:%Y%m%d-%H%M%S}", fmt::localtime(std::chrono::system_clock::to_time_t(now)));
    std::error_code failed;
    for (int attempt = 1; attempt <= kMostAttempts; ++attempt) {
        const auto aside = nameAside(date, attempt);
        failed = renameWithoutReplacing(file_, aside);
        if (!failed) dropOldAside(aside);
        if (failed != std::errc::file_exists) break;
    }
    if (!failed || failed == std::errc::no_such_file_or_directory ||
        failed == std::errc::not_a_directory)
        return std::nullopt;
    return FileError{failed.message()};
}

std::optional<FileError> RecordFile::setAsideUnlessReadable(Time now) const {
    return standingAt(file_) == Standing::unreadable ? setAside(now) : std::nullopt;
}

fs::path RecordFile::nameAside(const std::string& date, int attempt) const {
    const auto number = attempt == 1 ? std::string() : fmt::format("-{}", attempt);
    return folder_ / fmt::format("{}{}{}{}{}", name_, kAside, date, number, kExtension);
}

void RecordFile::dropOldAside(const fs::path& justMade) const {
    const auto start = name_ + std::string(kAside);
    std::vector<fs::path> aside;
    std::error_code failed;
    for (fs::directory_iterator entry(folder_, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        const auto& path = entry->path();
        const bool ours = path.filename().native().starts_with(start);
        if (ours && path.extension() == kExtension && path != justMade) aside.push_back(path);
    }
    // By date, and within a second by number.
    const auto age = [size = start.size() + 15](const fs::path& path) {
        const auto stem = path.stem().native();
        return std::tuple(stem.substr(0, size), stem.size(), stem);
    };
    std::ranges::sort(aside, {}, age);
    for (std::size_t i = 0; i + kMostAside <= aside.size(); ++i)
        fs::remove(aside[i], failed);
}

} // namespace tintra
