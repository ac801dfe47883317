#pragma once

#include "palettes/Swatch.h"
#include "platform/FileStamp.h"
#include "platform/Uuid.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tintra {

class AppState;

/// Which state of a palette file a window knows: how often windows had saved it, and what the disk
/// told of it.
struct FileVersion {
    std::uint64_t saves = 0;
    std::optional<FileStamp> stamp;
    bool operator==(const FileVersion&) const = default;
};

/// A palette that was read and is to be shown.
struct LoadedPalette {
    std::string name;
    /// None for a palette without a file to save back to.
    std::optional<std::filesystem::path> url;
    std::vector<PaletteFile::Swatch> swatches;
    FileVersion version; ///< of the file when it was read
};

/// What a palette window may ask about the others and tell them. Main loop.
class PaletteWindows {
public:
    virtual ~PaletteWindows() = default;

    /// The untitled names of the other open windows that have no palette file.
    virtual std::vector<std::string> untitledNames(const Uuid& except) const = 0;

    /// The state of a file now.
    virtual FileVersion version(const std::filesystem::path& file) const = 0;
    /// Notes a save and answers the file's new version.
    virtual FileVersion saved(const std::filesystem::path& file) = 0;
    /// Lets every other window that shows the file unchanged take what `by` saved.
    virtual void offerSaved(const AppState& by) = 0;

    /// Opens a further palette window with the palette in it.
    virtual void openInNewWindow(LoadedPalette palette) = 0;

    /// The palette or its name has changed: links to its swatches are brought in step.
    virtual void paletteChanged(const AppState& of) = 0;
    /// Writes the workspace record of a window (a further window's into the list of all of them).
    virtual void write(const AppState& of) = 0;
};

} // namespace tintra
