#pragma once

#include "state/BenchContent.h"
#include "state/Geometry.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tintra {

/// The persisted form of the Bench. Items refer to each other by their places in the lists.
struct StoredBench {
    static constexpr std::string_view kKey = "TintraBench";

    struct ColumnSnapshot {
        WashColor color;
        BenchColumn::Kind kind = BenchColumn::Kind::staged;
        std::optional<std::string> paletteName, name;
        // So that links to swatches survive a restart.
        std::optional<Uuid> windowID, swatchID;
        std::optional<std::size_t> index;
        bool operator==(const ColumnSnapshot&) const = default;
    };
    struct WellSnapshot {
        std::size_t parentAIndex = 0, parentBIndex = 0;
        double ratio = 0.5, white = 0, black = 0; ///< 0...1
        bool operator==(const WellSnapshot&) const = default;
    };
    struct ActiveSnapshot {
        bool isWell = false;
        std::size_t index = 0;
        bool operator==(const ActiveSnapshot&) const = default;
    };

    bool wasOpenAtLastQuit = false;
    std::vector<ColumnSnapshot> columns;
    std::vector<WellSnapshot> wells;
    std::optional<ActiveSnapshot> active;
    std::optional<StoredFrame> frame;
    bool operator==(const StoredBench&) const = default;
};

/// The record as text.
std::string encodedBench(const StoredBench& bench);

/// A record read; nothing for a text that is no such record. What it answers is sound: columns that
/// have no colour and wells without two different parents, or with those of an earlier well, are
/// left out, and every place means the same item as before; amounts are within their range and
/// colours opaque. A column of an unknown kind is a staged one.
std::optional<StoredBench> decodedBench(std::string_view text);

} // namespace tintra
