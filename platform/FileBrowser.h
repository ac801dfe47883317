#pragma once

#include <filesystem>

namespace tintra {

/// The desktop's file browser. Main loop.
class FileBrowser {
public:
    virtual ~FileBrowser() = default;

    /// Shows the file in its folder; returns at once. Does nothing where no browser answers.
    virtual void reveal(const std::filesystem::path& file) = 0;
};

} // namespace tintra
