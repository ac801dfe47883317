#include "colour/FormatOptions.h"

#include "platform/Number.h"

#include <algorithm>

namespace tintra {

std::string FormatOptions::decimal(double value) const {
    return fixed(value, std::clamp(decimals, 1, 5));
}

std::string FormatOptions::number(double value, std::string_view over) const {
    if (!useFractions) return decimal(value);
    return fixed(value * 255, 1).append("/").append(over);
}

} // namespace tintra
