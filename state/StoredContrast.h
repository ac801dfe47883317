#pragma once

#include "colour/WashColor.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tintra {

/// The persisted form of the contrast board.
struct StoredContrast {
    std::vector<WashColor> colours;
    std::optional<int> text, ground; ///< index of a colour, not checked
    double size = 16;                ///< px
    int weight = 400;
    std::string specimen;
    std::string target; ///< raw text
    bool wasOpen = false;
    // Older records end here.
    std::string mode = "pair";      ///< raw text
    std::vector<std::string> names; ///< in step with the colours, or fewer; empty for none
    std::optional<std::string> family;
    bool ladderFixesGround = true;
    bool matrixRowsAreText = true;
    bool operator==(const StoredContrast&) const = default;
};

/// The record as text, and a record read; nothing for a text that is no such record, and for one
/// with something else than a colour among its colours, since indexes count them. Pure.
std::string encodedContrast(const StoredContrast& contrast);
std::optional<StoredContrast> decodedContrast(std::string_view text);

} // namespace tintra
