#include "palettes/image/Seeds.h"

#include <algorithm>

namespace tintra::ImagePalette {

namespace {

constexpr int kCellsPerAxis = 12;
/// The chroma axes are divided from -0.4 to 0.4.
constexpr double kChromaReach = 0.4;
/// Seeds of the first pass lie at least 0.06 apart, squared.
constexpr double kApart = 0.0036;

struct Cell {
    Lab sum;
    std::size_t count = 0;

    void add(const Lab& sample) {
        sum = {sum.L + sample.L, sum.a + sample.a, sum.b + sample.b};
        ++count;
    }
    Lab mean() const {
        const auto n = static_cast<double>(count);
        return {sum.L / n, sum.a / n, sum.b / n};
    }
};

/// The index along an axis of a value that runs from 0 to 1 over the grid.
std::size_t along(double value) {
    return static_cast<std::size_t>(
        std::clamp(static_cast<int>(kCellsPerAxis * value), 0, kCellsPerAxis - 1));
}

std::size_t cellOf(const Lab& sample) {
    const auto chroma = [](double v) { return along((v + kChromaReach) / (2 * kChromaReach)); };
    return (along(sample.L) * kCellsPerAxis + chroma(sample.a)) * kCellsPerAxis + chroma(sample.b);
}

/// The occupied cells, the fullest first.
std::vector<Cell> fullestCells(std::span<const Lab> samples) {
    std::vector<Cell> cells(std::size_t{kCellsPerAxis} * kCellsPerAxis * kCellsPerAxis);
    for (const auto& sample : samples)
        cells[cellOf(sample)].add(sample);
    std::erase_if(cells, [](const Cell& cell) { return cell.count == 0; });
    std::ranges::stable_sort(cells, std::ranges::greater(), &Cell::count);
    return cells;
}

bool liesApart(const Lab& mean, const std::vector<Lab>& taken) {
    return std::ranges::all_of(
        taken, [&](const Lab& other) { return squaredDistance(mean, other) >= kApart; });
}

} // namespace

std::vector<Lab> seeds(std::span<const Lab> samples, std::size_t k) {
    std::vector<Lab> taken, left;
    for (const auto& cell : fullestCells(samples)) {
        const auto mean = cell.mean();
        const bool takes = taken.size() < k && liesApart(mean, taken);
        (takes ? taken : left).push_back(mean);
    }
    const auto more = std::min(k - taken.size(), left.size());
    taken.insert(taken.end(), left.begin(), left.begin() + static_cast<std::ptrdiff_t>(more));
    return taken;
}

} // namespace tintra::ImagePalette
