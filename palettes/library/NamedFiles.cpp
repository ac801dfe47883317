#include "palettes/library/NamedFiles.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <system_error>

namespace tintra {

namespace {

namespace fs = std::filesystem;

fs::path fileOf(const fs::path& folder, const std::string& name, const NewFile& file) {
    return folder / fmt::format("{}.{}", name, file.extension);
}

bool isThere(const fs::path& file) {
    std::error_code ignored;
    return fs::exists(fs::symlink_status(file, ignored));
}

/// The steps of putting files into a folder; what is not kept is undone at the end.
class Placing {
public:
    Placing(const fs::path& folder, const std::string& name, const std::vector<NewFile>& files,
            Trash& trash)
        : files_(files), trash_(trash) {
        for (const auto& file : files) {
            targets_.push_back(fileOf(folder, name, file));
            staged_.push_back(folder /
                              fmt::format(".tintra-new-{}.{}", ::getpid(), file.extension));
        }
    }
    ~Placing() {
        std::error_code ignored;
        for (const auto& staged : staged_)
            fs::remove(staged, ignored);
        if (isKept_) return;
        for (const auto& target : placed_)
            fs::remove(target, ignored);
        for (const auto& old : trashed_)
            trash_.putBack(old);
    }
    Placing(const Placing&) = delete;
    Placing& operator=(const Placing&) = delete;

    /// The disk may be full: everything is written before anything is moved.
    std::optional<FileError> stage() const {
        for (std::size_t i = 0; i < files_.size(); ++i)
            if (auto error = writeFile(staged_[i], files_[i].content, Existing::replace))
                return error;
        return std::nullopt;
    }

    std::optional<FileError> clear() {
        for (const auto& target : targets_) {
            if (!isThere(target)) continue;
            auto trashed = trash_.trash(target);
            if (auto* error = std::get_if<FileError>(&trashed)) return std::move(*error);
            trashed_.push_back(std::get<TrashedFile>(std::move(trashed)));
        }
        return std::nullopt;
    }

    std::optional<FileError> place() {
        for (std::size_t i = 0; i < files_.size(); ++i) {
            if (const auto error = renameWithoutReplacing(staged_[i], targets_[i]))
                return FileError{error.message()};
            placed_.push_back(targets_[i]);
        }
        return std::nullopt;
    }

    std::vector<TrashedFile> keep() {
        isKept_ = true;
        return std::move(trashed_);
    }

private:
    const std::vector<NewFile>& files_;
    Trash& trash_;
    std::vector<fs::path> targets_, staged_, placed_;
    std::vector<TrashedFile> trashed_;
    bool isKept_ = false;
};

} // namespace

bool isTaken(const fs::path& folder, const std::string& name, const std::vector<NewFile>& files) {
    return std::ranges::any_of(
        files, [&](const NewFile& file) { return isThere(fileOf(folder, name, file)); });
}

std::string freeName(const fs::path& folder, const std::string& name,
                     const std::vector<NewFile>& files) {
    auto free = name;
    for (int number = 2; isTaken(folder, free, files); ++number)
        free = fmt::format("{} {}", name, number);
    return free;
}

std::variant<std::vector<TrashedFile>, FileError> putNamedFiles(const fs::path& folder,
                                                                const std::string& name,
                                                                const std::vector<NewFile>& files,
                                                                Trash& trash) {
    std::error_code failed;
    fs::create_directories(folder, failed);
    if (failed) return FileError{failed.message()};
    Placing placing(folder, name, files, trash);
    if (auto error = placing.stage()) return std::move(*error);
    if (auto error = placing.clear()) return std::move(*error);
    if (auto error = placing.place()) return std::move(*error);
    return placing.keep();
}

} // namespace tintra
