#include "platform/File.h"

#include "platform/Descriptor.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <string_view>
#include <system_error>

namespace tintra {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kTemporary = ".tintra-";

FileError lastError() {
    return {std::generic_category().message(errno)};
}

/// A file beside the one to be written that removes itself unless it was renamed.
class TemporaryFile {
public:
    explicit TemporaryFile(const fs::path& target) : descriptor_(openFresh(path_, target)) {}
    ~TemporaryFile() {
        if (!renamed_ && created_) ::unlink(path_.c_str());
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    bool isOpen() const { return created_; }

    bool write(ByteView content) {
        while (!content.empty()) {
            const auto written = ::write(descriptor_.number(), content.data(), content.size());
            if (written < 0 && errno == EINTR) continue;
            if (written < 0) return false;
            content = content.subspan(static_cast<std::size_t>(written));
        }
        return true;
    }

    bool takePermissions(const fs::path& target) {
        struct stat status {};
        if (::stat(target.c_str(), &status) != 0) return true; // a new file has the usual ones
        return ::fchmod(descriptor_.number(), status.st_mode & 07777U) == 0;
    }

    bool finish() { return ::fsync(descriptor_.number()) == 0 && descriptor_.close(); }

    bool rename(const fs::path& target, Existing existing) {
        // A hard link fails where a name is taken, also when it was taken only just now.
        const bool refuse = existing == Existing::refuse;
        if (refuse && ::link(path_.c_str(), target.c_str()) == 0) return true;
        if (refuse && (errno == EEXIST || fs::exists(target))) {
            errno = EEXIST;
            return false;
        }
        renamed_ = ::rename(path_.c_str(), target.c_str()) == 0;
        return renamed_;
    }

private:
    static std::string freshName(const fs::path& target) {
        static std::atomic<unsigned> count = 0;
        const auto name = fmt::format("{}{}-{}", kTemporary, ::getpid(), ++count);
        return (target.parent_path() / name).string();
    }
    /// A program that was killed may have left a file of the same name.
    static Descriptor openFresh(std::string& path, const fs::path& target) {
        for (;;) {
            path = freshName(target);
            Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
            if (file.isOpen() || errno != EEXIST) return file;
        }
    }

    std::string path_;
    Descriptor descriptor_;
    bool created_ = descriptor_.isOpen();
    bool renamed_ = false;
};

fs::path throughLinks(const fs::path& path) {
    std::error_code failed;
    if (!fs::is_symlink(fs::symlink_status(path, failed))) return path;
    auto target = fs::weakly_canonical(path, failed);
    return failed ? path : target;
}

std::optional<FileError> readInto(Bytes& content, int descriptor, std::uint64_t largest) {
    constexpr std::size_t kChunk = 1U << 16U;
    // The size that the system told is all that most files need; filling more costs time.
    content.resize(std::max<std::size_t>(content.capacity(), 1));
    for (std::size_t size = 0;;) {
        if (content.size() == size) content.resize(size + size / 2 + kChunk);
        const auto got = ::read(descriptor, content.data() + size, content.size() - size);
        if (got < 0 && errno == EINTR) continue;
        if (got < 0) return lastError();
        size += static_cast<std::size_t>(got);
        if (size > largest) return FileError{"the file is too large"};
        if (got == 0) {
            content.resize(size);
            return std::nullopt;
        }
    }
}

} // namespace

std::variant<Bytes, FileError> readFile(const fs::path& path, std::uint64_t largest) {
    const Descriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.isOpen()) return lastError();
    struct stat status {};
    if (::fstat(file.number(), &status) != 0) return lastError();
    if (S_ISDIR(status.st_mode)) return FileError{"Is a directory"};
    const auto size = static_cast<std::uint64_t>(status.st_size);
    if (size > largest) return FileError{"the file is too large"};
    Bytes content;
    content.reserve(size + 1);
    if (auto failed = readInto(content, file.number(), largest)) return *failed;
    return content;
}

std::optional<FileError> writeFile(const fs::path& path, ByteView content, Existing existing) {
    if (existing == Existing::refuse && fs::exists(fs::symlink_status(path)))
        return FileError{std::generic_category().message(EEXIST)};
    const auto target = throughLinks(path);
    std::error_code ignored;
    if (fs::is_directory(target, ignored)) return FileError{"Is a directory"};
    TemporaryFile file(target.has_parent_path() ? target : fs::path(".") / target);
    if (!file.isOpen()) return lastError();
    const bool written = file.write(content) && file.takePermissions(target) && file.finish() &&
                         file.rename(target, existing);
    if (!written) return lastError();
    return std::nullopt;
}

std::optional<FileError> makeFolder(const fs::path& folder) {
    constexpr mode_t kUserOnly = 0700; // as the XDG Base Directory specification asks
    if (::mkdir(folder.c_str(), kUserOnly) == 0 || errno == EEXIST) return std::nullopt;
    if (errno != ENOENT || !folder.has_relative_path()) return lastError();
    if (auto failed = makeFolder(folder.parent_path())) return failed;
    if (::mkdir(folder.c_str(), kUserOnly) == 0 || errno == EEXIST) return std::nullopt;
    return lastError();
}

void removeLeftovers(const fs::path& folder) {
    const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(1);
    std::error_code failed;
    for (fs::directory_iterator entry(folder, failed), end; !failed && entry != end;
         entry.increment(failed)) {
        std::error_code gone;
        const bool ours = entry->path().filename().native().starts_with(kTemporary);
        if (ours && entry->last_write_time(gone) < longAgo && !gone)
            fs::remove(entry->path(), gone);
    }
}

std::error_code renameWithoutReplacing(const fs::path& from, const fs::path& to) {
    const auto why = [] { return std::error_code(errno, std::generic_category()); };
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) return {};
    if (errno != EINVAL && errno != ENOSYS) return why();
    // Some file systems cannot promise it. There a hard link fails where a name is taken; those
    // without hard links are left with looking first.
    if (::link(from.c_str(), to.c_str()) == 0) {
        if (::unlink(from.c_str()) == 0) return {};
        const auto failed = why();
        ::unlink(to.c_str());
        return failed;
    }
    if (struct stat status{}; ::lstat(to.c_str(), &status) == 0)
        return std::make_error_code(std::errc::file_exists);
    return ::rename(from.c_str(), to.c_str()) == 0 ? std::error_code() : why();
}

} // namespace tintra
