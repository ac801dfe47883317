#pragma once

#include <optional>
#include <string>
#include <string_view>

// Numbers as text, always with a point and never through a locale.

namespace tintra {

/// Appends the value with exactly `decimals` digits after the point, as printf's "%.Nf" in the C
/// locale writes it: halves of the exact binary value go to even.
void appendFixed(std::string& out, double value, int decimals);

/// The text of `appendFixed`.
std::string fixed(double value, int decimals);

/// The shortest text that reads back to the same value.
std::string shortest(double value);

/// Appends an integer in decimal.
void appendInteger(std::string& out, int value);

/// The number that the whole text is: an optional sign, digits with at most one point and an
/// optional exponent ("-.5", "+1", "2e-3"). Nothing for anything else, for "nan" and "inf", and
/// for what overflows.
std::optional<double> number(std::string_view text);

} // namespace tintra
