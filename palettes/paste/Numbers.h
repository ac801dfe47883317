#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace tintra::paste {

enum class Unit { none, percent, degrees, turns, radians, gradians };

/// A number as written, and the unit right behind it.
struct Quantity {
    double value = 0;
    Unit unit = Unit::none;

    bool isPercentage() const { return unit == Unit::percent; }
    /// The value where 100 % stands for `whole`.
    double over(double whole) const { return isPercentage() ? value * whole / 100 : value; }
    /// The angle in degrees; a number without a unit of angle is taken as degrees.
    double degrees() const;
};

/// A number at one place of a text and where it ends.
struct NumberAt {
    double value = 0;
    std::size_t end = 0;
};

/// The number that begins right there: an optional minus, digits, and a point with digits; the
/// digits before the point may lack. What is too large for a double is the largest one.
std::optional<NumberAt> numberAt(std::string_view text, std::size_t at);

/// Every number of the text in order, with its unit.
std::vector<Quantity> quantities(std::string_view text);

} // namespace tintra::paste
