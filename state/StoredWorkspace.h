#pragma once

#include "colour/Harmony.h"
#include "colour/WashColor.h"
#include "platform/FileStamp.h"
#include "platform/Uuid.h"
#include "state/Choices.h"
#include "state/Geometry.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tintra {

/// The persisted form of a palette window.
struct StoredWorkspace {
    WashColor first, last;
    int stepCount = 5;
    BlendSpace blendSpace = BlendSpace::sRGB;
    HarmonyMode mode = HarmonyMode::paletteBuilder;
    int shadesPerAnchor = 1;
    std::vector<WashColor> customPalette;
    std::vector<std::string> customPaletteNames; ///< in step with the colours; empty for none
    bool paletteIsDirty = false;
    std::optional<std::string> currentPaletteName, currentPalettePath;
    bool isCollapsed = false;
    std::optional<StoredFrame> frame;
    std::map<HarmonyMode, StoredSize> modeSizes;
    std::optional<CompactOrientation> compactOrientation;
    std::optional<std::size_t> selectedSwatch;
    // So that links to the swatches survive a restart.
    std::optional<Uuid> id;
    std::optional<std::vector<Uuid>> swatchIDs; ///< in step with the colours
    /// Of the attached file when the window loaded or saved it, so that a change by another program
    /// between two runs is noticed.
    std::optional<FileStamp> fileStamp;
    bool operator==(const StoredWorkspace&) const = default;
};

/// The record as text, and a record read; nothing for a text that is no such record, nor for one
/// with something else than a colour among its swatches. Names that are a map, from position or
/// from the swatch's identifier, are read too.
std::string encodedWorkspace(const StoredWorkspace& workspace);
std::optional<StoredWorkspace> decodedWorkspace(std::string_view text);
/// A list of records; nothing when it is no list. Elements that are no records are left out.
std::string encodedWorkspaces(const std::vector<StoredWorkspace>& workspaces);
std::optional<std::vector<StoredWorkspace>> decodedWorkspaces(std::string_view text);

} // namespace tintra
