#include "palettes/ComparedPalette.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tintra {

namespace {

constexpr double kLeastSaturation = 0.15;
/// Stands between names; a folded text never holds one.
constexpr char kBreak = '\n';

} // namespace

std::optional<double> comparableHue(const WashColor& color) {
    const auto hsb = color.hsb();
    if (!(hsb.s >= kLeastSaturation - kMatchTolerance)) return std::nullopt;
    return hsb.h * 360;
}

ComparedPalette::ComparedPalette(std::span<const PaletteFile::Swatch> swatches)
    : size_(swatches.size()), columns_(size_ * static_cast<std::size_t>(Column::count)) {
    nameEnds_.reserve(size_);
    for (std::size_t i = 0; i < size_; ++i) {
        const auto& color = swatches[i].color;
        const auto set = [&](Column column, double value) {
            columns_[static_cast<std::size_t>(column) * size_ + i] = value;
        };
        const auto d50 = color.lab(LabIlluminant::d50), d65 = color.lab(LabIlluminant::d65);
        set(Column::lD50, d50.L);
        set(Column::aD50, d50.a);
        set(Column::bD50, d50.b);
        set(Column::lD65, d65.L);
        set(Column::aD65, d65.a);
        set(Column::bD65, d65.b);
        // What is not a number is never nearer than anything.
        set(Column::hue, comparableHue(color).value_or(std::numeric_limits<double>::quiet_NaN()));
        names_ += kBreak;
        if (swatches[i].name) names_ += FoldedText(*swatches[i].name).text();
        nameEnds_.push_back(static_cast<std::uint32_t>(names_.size()));
    }
}

const double* ComparedPalette::column(Column column) const {
    return columns_.data() + static_cast<std::size_t>(column) * size_;
}

std::optional<ComparedPalette::Nearest> ComparedPalette::nearest(const Lab& lab,
                                                                 LabIlluminant illuminant) const {
    const bool d50 = illuminant == LabIlluminant::d50;
    const double* const L = column(d50 ? Column::lD50 : Column::lD65);
    const double* const a = column(d50 ? Column::aD50 : Column::aD65);
    const double* const b = column(d50 ? Column::bD50 : Column::bD65);
    double least = std::numeric_limits<double>::infinity();
    std::size_t index = 0;
    for (std::size_t i = 0; i < size_; ++i) {
        const double dL = L[i] - lab.L, da = a[i] - lab.a, db = b[i] - lab.b;
        const double square = dL * dL + da * da + db * db;
        if (square < least) {
            least = square;
            index = i;
        }
    }
    if (std::isinf(least)) return std::nullopt;
    return Nearest{index, std::sqrt(least)};
}

std::optional<ComparedPalette::Nearest> ComparedPalette::nearestHue(double degrees) const {
    const double* const hue = column(Column::hue);
    double least = std::numeric_limits<double>::infinity();
    std::size_t index = 0;
    for (std::size_t i = 0; i < size_; ++i) {
        const double apart = std::abs(hue[i] - degrees);
        const double difference = apart > 180 ? 360 - apart : apart;
        if (difference < least) {
            least = difference;
            index = i;
        }
    }
    if (std::isinf(least)) return std::nullopt;
    return Nearest{index, least};
}

std::optional<std::size_t> ComparedPalette::firstNamed(const FoldedText& words) const {
    const auto at = names_.find(words.text());
    if (words.isEmpty() || at == std::string::npos) return std::nullopt;
    const auto end = std::ranges::upper_bound(nameEnds_, at);
    return static_cast<std::size_t>(end - nameEnds_.begin());
}

} // namespace tintra
