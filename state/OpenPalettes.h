#pragma once

#include "state/PaletteSwatch.h"

#include <cstddef>
#include <optional>
#include <string>

namespace tintra {

/// Where a swatch was when it was last seen.
struct PaletteOrigin {
    /// The place of a swatch whose record did not tell it.
    static constexpr std::size_t kUnknownIndex = static_cast<std::size_t>(-1);

    std::optional<std::string> paletteName; ///< none for an untitled palette
    Uuid windowID;
    Uuid swatchID;
    std::size_t index = 0;
    bool operator==(const PaletteOrigin&) const = default;
};

/// What the shared models know of the palette windows. Main loop.
class OpenPalettes {
public:
    /// A swatch in an open window.
    struct Sighting {
        WashColor color;
        std::optional<std::string> name;
        PaletteOrigin origin;
    };
    enum class Absence {
        away, ///< its window is closed
        gone, ///< its window is open and no longer holds it
    };

    virtual ~OpenPalettes() = default;

    /// The swatch of that window and identifier; nothing when it is not there.
    virtual std::optional<Sighting> swatch(const Uuid& window, const Uuid& swatch) const = 0;
    /// Why `swatch` found nothing. A swatch that an undo step of its window could bring back is
    /// `gone` like any other; when it comes back, it is found under its identifier again.
    virtual Absence absence(const Uuid& window) const = 0;
    /// The swatch at a place of an open palette of that name, if it has this identity; for records
    /// that hold no identifiers.
    virtual std::optional<Sighting> swatch(const std::string& paletteName, std::size_t index,
                                           const WashColor& color) const = 0;
    /// Whether an open palette holds the colour, by identity without alpha when it is opaque.
    virtual bool holds(const WashColor& color) const = 0;
};

} // namespace tintra
