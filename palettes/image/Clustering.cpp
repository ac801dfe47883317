#include "palettes/image/Clustering.h"

#include "palettes/image/Blocks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <utility>

namespace tintra::ImagePalette {

namespace {

constexpr std::uint32_t kNone = UINT32_MAX;
constexpr double kFar = 1e9;

/// Far above the rounding of squared distances (below 1e-14 for colours), and below those that
/// matter.
constexpr double kMargin = 1e-12;

constexpr auto kSize = SampleBlocks::kBlockSize;

/// The nearest centre so far of every sample of a block.
struct Winners {
    std::array<double, kSize> squared; ///< the distance
    std::array<double, kSize> centre;  ///< the index
};

class Clustering {
public:
    Clustering(std::span<const Lab> samples, std::vector<Lab> centres)
        : blocks_(samples), centres_(std::move(centres)), centreOf_(samples.size(), kNone),
          sums_(centres_.size()), counts_(centres_.size()), fromMiddle_(centres_.size()),
          all_(centres_.size()) {
        std::iota(all_.begin(), all_.end(), 0U);
    }

    Clusters run() {
        for (int round = 0; round < kMostRounds; ++round) {
            if (!assign()) break;
            moveCentres();
        }
        Clusters clusters{std::move(centres_), std::vector<std::uint32_t>(centreOf_.size())};
        for (std::size_t i = 0; i < centreOf_.size(); ++i)
            clusters.assignment[blocks_.order[i]] = centreOf_[i];
        return clusters;
    }

private:
    /// Puts every sample to its nearest centre; whether any sample changed.
    bool assign() {
        bool any = false;
        for (std::size_t i = 0; i < blocks_.blocks.size(); ++i) {
            if (i % SampleBlocks::kBlocksInGroup == 0)
                keepCandidates(blocks_.groups[i / SampleBlocks::kBlocksInGroup], all_, ofGroup_);
            const auto& block = blocks_.blocks[i];
            keepCandidates(block, ofGroup_, candidates_);
            any = (candidates_.size() == 1 ? giveAll(block) : compare(block)) || any;
        }
        return any;
    }

    /// Of some centres, those that may be nearest to a sample of the block, in order. Let n be the
    /// one nearest to the middle m. Another centre c is farther than n from every x of the box when
    /// |c - m|² - |n - m|² exceeds 2 (x - m)·(c - n), which is largest in a corner of the box.
    void keepCandidates(const Block& block, const std::vector<std::uint32_t>& of,
                        std::vector<std::uint32_t>& kept) {
        auto nearest = of.front();
        for (const auto j : of) {
            fromMiddle_[j] = squaredDistance(block.middle, centres_[j]);
            if (fromMiddle_[j] < fromMiddle_[nearest]) nearest = j;
        }
        const auto n = centres_[nearest];
        const double least = fromMiddle_[nearest];
        kept.clear();
        for (const auto j : of) {
            const auto& centre = centres_[j];
            const double most = block.half.L * std::abs(centre.L - n.L) +
                                block.half.a * std::abs(centre.a - n.a) +
                                block.half.b * std::abs(centre.b - n.b);
            if (fromMiddle_[j] - least <= 2 * most + kMargin) kept.push_back(j);
        }
    }

    bool giveAll(const Block& block) {
        bool any = false;
        for (auto i = block.begin; i < block.end; ++i)
            any = give(i, candidates_.front()) || any;
        return any;
    }

    bool compare(const Block& block) {
        Winners winners;
        winners.squared.fill(kFar);
        for (const auto j : candidates_)
            compete(block, j, winners);
        bool any = false;
        for (std::size_t i = 0; i < block.end - block.begin; ++i)
            any = give(block.begin + i, static_cast<std::uint32_t>(winners.centre[i])) || any;
        return any;
    }

    /// Lets a centre win the samples it is nearer to than those before. One assignment a loop: so
    /// the optimiser makes vectors of them.
    void compete(const Block& block, std::uint32_t centre, Winners& winners) const {
        const auto place = centres_[centre];
        const double index = centre;
        const double* const L = &blocks_.L[block.begin];
        const double* const a = &blocks_.a[block.begin];
        const double* const b = &blocks_.b[block.begin];
        std::array<double, kSize> squared;
        for (std::size_t i = 0; i < kSize; ++i)
            squared[i] = squaredDistance({L[i], a[i], b[i]}, place);
        for (std::size_t i = 0; i < kSize; ++i)
            winners.centre[i] = squared[i] < winners.squared[i] ? index : winners.centre[i];
        for (std::size_t i = 0; i < kSize; ++i)
            winners.squared[i] = std::min(winners.squared[i], squared[i]);
    }

    /// Puts a sample to a centre; whether that is another one than before.
    bool give(std::size_t i, std::uint32_t centre) {
        const auto before = std::exchange(centreOf_[i], centre);
        if (before == centre) return false;
        add(i, centre, 1);
        ++counts_[centre];
        if (before != kNone) {
            add(i, before, -1);
            --counts_[before];
        }
        return true;
    }

    void add(std::size_t i, std::uint32_t centre, double sign) {
        auto& sum = sums_[centre];
        sum.L += sign * blocks_.L[i];
        sum.a += sign * blocks_.a[i];
        sum.b += sign * blocks_.b[i];
    }

    void moveCentres() {
        for (std::size_t j = 0; j < centres_.size(); ++j) {
            if (counts_[j] == 0) continue;
            const auto n = static_cast<double>(counts_[j]);
            centres_[j] = {sums_[j].L / n, sums_[j].a / n, sums_[j].b / n};
        }
    }

    SampleBlocks blocks_;
    std::vector<Lab> centres_;
    std::vector<std::uint32_t> centreOf_; ///< in the order of the blocks
    /// Of the samples of each centre. Samples lie on a grid on which sums are exact, so they may be
    /// added and taken away in any order.
    std::vector<Lab> sums_;
    std::vector<std::size_t> counts_;
    std::vector<double> fromMiddle_;
    std::vector<std::uint32_t> all_, ofGroup_, candidates_;
};

} // namespace

Clusters cluster(std::span<const Lab> samples, std::vector<Lab> centres) {
    return Clustering(samples, std::move(centres)).run();
}

} // namespace tintra::ImagePalette
