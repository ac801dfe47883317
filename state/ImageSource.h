#pragma once

#include "palettes/ImagePalette.h"

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace tintra {

/// The picture in a palette window's picture pane.
struct ImageSource {
    std::shared_ptr<const Picture> picture;
    std::string name;          ///< of its file
    std::filesystem::path url; ///< empty for a picture that came without a file
    int count = 0;             ///< of colours, own pins not counted
    ImagePalette::Emphasis emphasis = ImagePalette::Emphasis::dominant;
    /// In order. Pins of the user's own stand last once colours have been extracted anew.
    std::vector<ImagePalette::Extracted> found;
    bool extracting = false;               ///< colours are on their way
    int most = ImagePalette::kMostColours; ///< the picture is known to have no more
    /// Held by whoever reads the picture, on whatever thread.
    std::shared_ptr<std::mutex> inUse = std::make_shared<std::mutex>();
    /// The turn of the last extraction; those that still wait for their turn are passed over.
    std::shared_ptr<std::atomic<std::uint64_t>> wanted =
        std::make_shared<std::atomic<std::uint64_t>>(0);
    /// Whether it shows the same; unlike colours that are equal by their identity alone.
    bool operator==(const ImageSource& other) const;
};

} // namespace tintra
