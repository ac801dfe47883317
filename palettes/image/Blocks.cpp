#include "palettes/image/Blocks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>

namespace tintra::ImagePalette {

namespace {

/// A key interleaves so many bits of each axis, so that near keys are near colours.
constexpr unsigned kBitsPerAxis = 6;
constexpr unsigned kDigitBits = 9;
constexpr std::size_t kDigits = std::size_t{1} << kDigitBits;

/// More than the rounding of a box's middle and sides.
constexpr double kRounding = 1e-12;

/// A box along one axis.
struct Extent {
    double middle, half;
};

struct Box {
    Lab low, high;
    double side() const { return std::max({high.L - low.L, high.a - low.a, high.b - low.b, 1e-9}); }
};

Box boxOf(std::span<const Lab> samples) {
    Box box{samples.front(), samples.front()};
    for (const auto& s : samples) {
        box.low = {std::min(box.low.L, s.L), std::min(box.low.a, s.a), std::min(box.low.b, s.b)};
        box.high = {std::max(box.high.L, s.L), std::max(box.high.a, s.a),
                    std::max(box.high.b, s.b)};
    }
    return box;
}

/// The bits of a number with two zeros between each and the next.
std::uint32_t spread(std::uint32_t bits) {
    std::uint32_t result = 0;
    for (unsigned i = 0; i < kBitsPerAxis; ++i)
        result |= (bits >> i & 1U) << (3 * i);
    return result;
}

std::vector<std::uint32_t> keys(std::span<const Lab> samples) {
    constexpr int most = (1 << kBitsPerAxis) - 1;
    std::array<std::uint32_t, most + 1> spreads{};
    for (std::uint32_t i = 0; i <= most; ++i)
        spreads[i] = spread(i);
    const auto box = boxOf(samples);
    const double scale = most / box.side();
    const auto cell = [&](double value, double low) {
        return spreads[static_cast<std::size_t>(
            std::clamp(static_cast<int>((value - low) * scale), 0, most))];
    };
    std::vector<std::uint32_t> result;
    result.reserve(samples.size());
    for (const auto& s : samples)
        result.push_back(cell(s.L, box.low.L) << 2U | cell(s.a, box.low.a) << 1U |
                         cell(s.b, box.low.b));
    return result;
}

/// One pass of a radix sort: by one digit of the keys, the order of equals kept.
void sortByDigit(std::vector<std::uint32_t>& order, const std::vector<std::uint32_t>& keys,
                 unsigned shift) {
    const auto digit = [&](std::uint32_t i) { return keys[i] >> shift & (kDigits - 1); };
    std::array<std::size_t, kDigits + 1> starts{};
    for (const auto i : order)
        ++starts[digit(i) + 1];
    std::partial_sum(starts.begin(), starts.end(), starts.begin());
    std::vector<std::uint32_t> sorted(order.size());
    for (const auto i : order)
        sorted[starts[digit(i)]++] = i;
    order = std::move(sorted);
}

} // namespace

SampleBlocks::SampleBlocks(std::span<const Lab> samples) : order(samples.size()) {
    if (samples.empty()) return;
    std::iota(order.begin(), order.end(), 0U);
    const auto sortKeys = keys(samples);
    for (unsigned shift = 0; shift < 3 * kBitsPerAxis; shift += kDigitBits)
        sortByDigit(order, sortKeys, shift);
    fill(samples);
    blocks = cut(kBlockSize);
    groups = cut(kBlockSize * kBlocksInGroup);
}

void SampleBlocks::fill(std::span<const Lab> samples) {
    const auto whole = (samples.size() + kBlockSize - 1) / kBlockSize * kBlockSize;
    for (auto* axis : {&L, &a, &b})
        axis->resize(whole);
    for (std::size_t i = 0; i < order.size(); ++i) {
        L[i] = samples[order[i]].L;
        a[i] = samples[order[i]].a;
        b[i] = samples[order[i]].b;
    }
}

std::vector<Block> SampleBlocks::cut(std::size_t size) const {
    std::vector<Block> made;
    for (std::size_t begin = 0; begin < order.size(); begin += size) {
        const auto count = std::min(size, order.size() - begin);
        const auto along = [&](const std::vector<double>& axis) {
            const auto [low, high] = std::ranges::minmax(std::span(axis).subspan(begin, count));
            return Extent{(low + high) / 2, (high - low) / 2 + kRounding};
        };
        const auto onL = along(L), onA = along(a), onB = along(b);
        made.push_back({begin,
                        begin + count,
                        {onL.middle, onA.middle, onB.middle},
                        {onL.half, onA.half, onB.half}});
    }
    return made;
}

} // namespace tintra::ImagePalette
