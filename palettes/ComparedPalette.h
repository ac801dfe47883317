#pragma once

#include "colour/Lab.h"
#include "palettes/FoldedText.h"
#include "palettes/Swatch.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace tintra {

/// A palette's swatches in the form that searches compare, made once when it is read: columns of
/// numbers side by side and one text of all names. Never changes; any thread.
class ComparedPalette {
public:
    ComparedPalette() = default;
    explicit ComparedPalette(std::span<const PaletteFile::Swatch> swatches);

    /// A swatch and how far it is from what was asked for.
    struct Nearest {
        std::size_t index;
        double distance;
    };
    /// The swatch at the smallest Euclidean distance in Lab, of equal ones the first.
    std::optional<Nearest> nearest(const Lab& lab, LabIlluminant illuminant) const;
    /// The swatch at the smallest difference of hues in degrees, of equal ones the first; greyish
    /// ones (see `comparableHue`) do not count.
    std::optional<Nearest> nearestHue(double degrees) const;
    /// The first swatch whose name holds the words.
    std::optional<std::size_t> firstNamed(const FoldedText& words) const;

private:
    enum class Column { lD50, aD50, bD50, lD65, aD65, bD65, hue, count };
    const double* column(Column column) const;

    std::size_t size_ = 0;
    std::vector<double> columns_;         ///< `size_` numbers a column
    std::string names_;                   ///< folded, each behind a line break
    std::vector<std::uint32_t> nameEnds_; ///< in step with the swatches
};

/// How far a measurement may lie beyond a threshold and still count as on it: rounding must not
/// decide about a colour that lies exactly there.
inline constexpr double kMatchTolerance = 1e-9;

/// The HSB hue in degrees of a colour whose saturation is at least 0.15; nothing for a greyer one.
std::optional<double> comparableHue(const WashColor& color);

} // namespace tintra
