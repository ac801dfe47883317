#pragma once

#include "platform/Bytes.h"

#include <array>
#include <optional>
#include <string>

namespace tintra {

/// The desktop's clipboard. Main loop.
class Clipboard {
public:
    struct Content {
        std::string text; ///< UTF-8
        /// Red, green, blue and alpha of sRGB, for programs that take a colour as such; they may
        /// clamp it to 0...1.
        std::optional<std::array<double, 4>> colour;
        /// A picture as the content of a PNG file; empty for none. Only put there, never read.
        Bytes png{};
        /// The same as the text, for programs that take tables and type; empty for none. Only put
        /// there, never read.
        std::string html{};
        bool operator==(const Content&) const = default;
    };

    virtual ~Clipboard() = default;

    virtual void set(const Content& content) = 0;
    /// The text and the colour that the clipboard holds now, put there by any program; empty when
    /// it holds neither.
    virtual Content content() const = 0;
};

} // namespace tintra
