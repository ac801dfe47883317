#include "colour/CaseTable.h"
#include "platform/Number.h"
#include "state/ContrastBoard.h"

#include <array>

namespace tintra {

namespace {

struct ModeRow {
    ContrastBoard::Mode value;
    std::string_view raw;
};
struct MeasureRow {
    ContrastBoard::Measure value;
    std::string_view raw;
};

constexpr std::array kModes{
    ModeRow{ContrastBoard::Mode::pair, "pair"},
    ModeRow{ContrastBoard::Mode::matrix, "matrix"},
    ModeRow{ContrastBoard::Mode::ladder, "ladder"},
};
static_assert(inCaseOrder(kModes));
constexpr std::array kMeasures{
    MeasureRow{ContrastBoard::Measure::wcag, "wcag"},
    MeasureRow{ContrastBoard::Measure::apca, "apca"},
};
static_assert(inCaseOrder(kMeasures));

} // namespace

std::string_view rawValue(ContrastBoard::Mode mode) {
    return rowOf(kModes, mode).raw;
}
std::string_view rawValue(ContrastBoard::Measure measure) {
    return rowOf(kMeasures, measure).raw;
}
std::optional<ContrastBoard::Mode> contrastMode(std::string_view raw) {
    return caseOf(kModes, raw);
}
std::optional<ContrastBoard::Measure> contrastMeasure(std::string_view raw) {
    return caseOf(kMeasures, raw);
}

Contrast::LargeText ContrastBoard::isLargeText() const {
    return Contrast::isLargeText(size, weight);
}

Contrast::Grade ContrastBoard::mark(double ratio) const {
    return Contrast::wcagGrade(ratio, isLargeText());
}

std::string ContrastBoard::title(Target of) const {
    return Contrast::title(of, isLargeText());
}

std::string ContrastBoard::verdict(double ratio) const {
    return Contrast::verdict(ratio, isLargeText());
}

std::string ContrastBoard::typeDescription() const {
    return family.value().value_or("the system face") + ", in " + fixed(size, 1) + " px, weight " +
           std::to_string(weight);
}

} // namespace tintra
