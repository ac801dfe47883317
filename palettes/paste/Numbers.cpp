#include "palettes/paste/Numbers.h"

#include "palettes/PasteColours.h"
#include "platform/Number.h"
#include "platform/Unicode.h"

#include <algorithm>
#include <limits>
#include <numbers>

namespace tintra::paste {

namespace {

constexpr std::string_view kDigits = "0123456789";

std::size_t afterDigits(std::string_view text, std::size_t at) {
    return std::min(text.find_first_not_of(kDigits, at), text.size());
}

bool isDigitAt(std::string_view text, std::size_t at) {
    return at < text.size() && text[at] >= '0' && text[at] <= '9';
}

/// The value of digits that `number` refuses for their size: far above or below all doubles.
double beyondDoubles(std::string_view digits) {
    const auto whole = digits.substr(0, digits.find('.'));
    const bool isTiny = whole.find_first_not_of("-0") == std::string_view::npos;
    if (isTiny) return 0;
    constexpr double kLargest = std::numeric_limits<double>::max();
    return digits.starts_with('-') ? -kLargest : kLargest;
}

struct UnitRow {
    std::string_view text;
    Unit unit;
};
constexpr UnitRow kUnits[] = {
    {"deg", Unit::degrees},
    {"turn", Unit::turns},
    {"rad", Unit::radians},
    {"grad", Unit::gradians},
};

Unit unitAt(std::string_view text, std::size_t at) {
    if (text.substr(at).starts_with('%')) return Unit::percent;
    for (const auto& row : kUnits)
        if (asciiLowerCased(text.substr(at, row.text.size())) == row.text) return row.unit;
    return Unit::none;
}

} // namespace

double Quantity::degrees() const {
    switch (unit) {
    case Unit::turns:
        return value * 360;
    case Unit::radians:
        return value * 180 / std::numbers::pi;
    case Unit::gradians:
        return value * 360 / 400;
    default:
        return value;
    }
}

std::optional<NumberAt> numberAt(std::string_view text, std::size_t at) {
    const auto begin = at < text.size() && text[at] == '-' ? at + 1 : at;
    auto end = afterDigits(text, begin);
    if (end < text.size() && text[end] == '.' && isDigitAt(text, end + 1))
        end = afterDigits(text, end + 1);
    if (end == begin) return std::nullopt;
    const auto written = text.substr(at, end - at);
    const auto value = number(written);
    return NumberAt{value ? *value : beyondDoubles(written), end};
}

std::vector<Quantity> quantities(std::string_view text) {
    std::vector<Quantity> all;
    for (auto at = text.find_first_of("-.0123456789"); at < text.size();
         at = text.find_first_of("-.0123456789", at)) {
        const auto found = numberAt(text, at);
        if (found) all.push_back({found->value, unitAt(text, found->end)});
        at = found ? found->end : at + 1;
    }
    return all;
}

} // namespace tintra::paste

namespace tintra::PasteColours {

std::vector<double> allNumbers(std::string_view in) {
    std::vector<double> values;
    for (const auto& quantity : paste::quantities(in))
        values.push_back(quantity.value);
    return values;
}

} // namespace tintra::PasteColours
