#include "colour/CaseTable.h"
#include "colour/Contrast.h"
#include "platform/Number.h"

#include <cmath>

namespace tintra::Contrast {

namespace {

struct GradeRow {
    Grade value;
    std::string_view raw, spoken;
};

constexpr std::array kGrades{
    GradeRow{Grade::below, "below", "under 3 to 1"},
    GradeRow{Grade::large, "large", "reaches 3 to 1, AA for large text and interface parts"},
    GradeRow{Grade::body, "body", "reaches 4.5 to 1, AA for body text"},
    GradeRow{Grade::enhanced, "enhanced", "reaches 7 to 1, AAA for body text"},
};
static_assert(inCaseOrder(kGrades));

} // namespace

std::string_view caseName(Grade grade) {
    return rowOf(kGrades, grade).raw;
}
std::string_view spoken(Grade grade) {
    return rowOf(kGrades, grade).spoken;
}

std::optional<Grade> gradeFromRaw(int raw) {
    if (raw < 0 || raw >= static_cast<int>(kGrades.size())) return std::nullopt;
    return static_cast<Grade>(raw);
}

LargeText isLargeText(double sizePx, int weight) {
    const bool large = sizePx >= 24 || (weight >= 700 && sizePx >= 18.66);
    return large ? LargeText::yes : LargeText::no;
}

std::string ratioText(double ratio) {
    const int decimals = ratio < 10 ? 2 : 1;
    const double scale = ratio < 10 ? 100 : 10;
    return fixed(std::floor((ratio + 1e-9) * scale) / scale, decimals);
}

Grade wcagGrade(double ratio, LargeText large) {
    if (large == LargeText::yes) {
        if (reaches(ratio, 4.5)) return Grade::enhanced;
        return reaches(ratio, 3) ? Grade::body : Grade::below;
    }
    if (reaches(ratio, 7)) return Grade::enhanced;
    if (reaches(ratio, 4.5)) return Grade::body;
    return reaches(ratio, 3) ? Grade::large : Grade::below;
}

std::string lcText(double lc) {
    const double whole = std::floor(std::abs(lc) + 1e-9);
    const auto digits = fixed(whole, 0);
    return lc < 0 && whole > 0 ? "\u2212" + digits : digits;
}

Grade apcaGrade(double lc) {
    const double amount = std::abs(lc);
    if (reaches(amount, 75)) return Grade::enhanced;
    if (reaches(amount, 60)) return Grade::body;
    return reaches(amount, 45) ? Grade::large : Grade::below;
}

} // namespace tintra::Contrast
