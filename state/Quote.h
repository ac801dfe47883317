#pragma once

#include <span>
#include <string_view>

namespace tintra {

/// A quotation about colour, shown while a palette is empty.
struct Quote {
    std::string_view text, author;

    /// The fixed list.
    static std::span<const Quote> all();
};

} // namespace tintra
