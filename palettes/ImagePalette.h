#pragma once

#include "colour/WashColor.h"
#include "platform/Pictures.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

// The representative colours of a picture, found in OKLab: the picture is reduced, its pixels are
// grouped, and a number of distinct groups is chosen. The same picture always gives the same
// colours. The steps have files of their own in palettes/image/.

namespace tintra::ImagePalette {

/// What the chosen colours are to show of a picture: how much of it they cover, how strong they
/// are, or how far apart.
enum class Emphasis { dominant, vibrant, spread };

/// The text under which an emphasis is stored.
std::string_view rawValue(Emphasis emphasis);
std::optional<Emphasis> emphasis(std::string_view raw);
std::span<const Emphasis> allEmphases();

/// A place in a picture: pixels of its full size from the top left corner; the middle of the first
/// pixel is at 0.5, 0.5.
struct Point {
    double x = 0, y = 0;
};

/// A colour found in a picture, or pinned on it by the user.
struct Extracted {
    WashColor color;
    /// The fraction of the picture's opaque area that the colour stands for, 0...1.
    double share = 0;
    /// Where in the picture the colour occurs.
    Point point;
    /// The palette swatch that the colour became.
    std::optional<std::string> swatchID;
    /// Whether the user placed the pin, rather than the extraction.
    bool isOwn = false;

    /// The colour and its place: the same colour at the same place keeps its identity whatever it
    /// was asked for.
    std::string id() const;
    bool operator==(const Extracted& other) const { return id() == other.id(); }
};

/// The most colours that are worth asking for: what a palette holds.
inline constexpr int kMostColours = 256;

using Colours = std::variant<std::vector<Extracted>, PictureError>;

/// At most `count` colours of the picture, their shares adding up to 1: large shares first, shares
/// that are nearly equal by lightness from light to dark, then around the hue circle from red.
/// Empty when `count` is below 1 or the picture has no pixel of more than half opacity.
///
/// The reduced picture is kept until `forget`, so another count or emphasis reads nothing again.
/// Any thread; a picture is used by one at a time.
Colours extract(const Picture& from, int count, Emphasis emphasis);

/// The colour of the pixel at a place, with its alpha; nothing outside of the picture or when it
/// cannot be read.
std::optional<WashColor> colour(const Picture& in, Point at);

/// Drops what is kept of a picture that is closed.
void forget(const Picture& picture);

} // namespace tintra::ImagePalette

template <>
struct std::hash<tintra::ImagePalette::Extracted> {
    std::size_t operator()(const tintra::ImagePalette::Extracted& colour) const noexcept {
        return std::hash<std::string>()(colour.id());
    }
};
