#pragma once

namespace tintra {

/// A window's frame, in screen points from the top left.
struct StoredFrame {
    double x = 0, y = 0, width = 0, height = 0;
    bool operator==(const StoredFrame&) const = default;
};

/// A window's size, in screen points.
struct StoredSize {
    double width = 0, height = 0;
    bool operator==(const StoredSize&) const = default;
};

} // namespace tintra
