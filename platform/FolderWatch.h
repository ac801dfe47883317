#pragma once

#include <filesystem>
#include <functional>
#include <vector>

namespace tintra {

/// Tells of changes in folders. Main loop.
class FolderWatch {
public:
    virtual ~FolderWatch() = default;

    /// The folders to watch from now on, in place of those before. One that does not exist now is
    /// told of when it appears.
    virtual void watch(std::vector<std::filesystem::path> folders) = 0;

    /// Is told when a watched folder or a file directly in it was changed, added, replaced or
    /// removed; changes that follow each other closely are told of once.
    virtual void whenChanged(std::function<void(const std::filesystem::path& folder)> told) = 0;
};

} // namespace tintra
