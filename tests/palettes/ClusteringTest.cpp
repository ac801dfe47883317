#include "palettes/image/Clustering.h"

#include "palettes/image/Seeds.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <random>

namespace tintra::ImagePalette {
namespace {

/// Lloyd's k-means as it is written in textbooks: every distance, sums in the order of samples.
Clusters plainly(std::span<const Lab> samples, std::vector<Lab> centres) {
    std::vector<std::uint32_t> assignment(samples.size(), UINT32_MAX);
    for (int round = 0; round < kMostRounds; ++round) {
        bool changed = false;
        std::vector<Lab> sums(centres.size());
        std::vector<double> counts(centres.size());
        for (std::size_t i = 0; i < samples.size(); ++i) {
            std::uint32_t best = 0;
            for (std::uint32_t j = 1; j < centres.size(); ++j)
                if (squaredDistance(samples[i], centres[j]) <
                    squaredDistance(samples[i], centres[best]))
                    best = j;
            changed = changed || best != assignment[i];
            assignment[i] = best;
            sums[best] = {sums[best].L + samples[i].L, sums[best].a + samples[i].a,
                          sums[best].b + samples[i].b};
            ++counts[best];
        }
        if (!changed) break;
        for (std::size_t j = 0; j < centres.size(); ++j)
            if (counts[j] > 0)
                centres[j] = {sums[j].L / counts[j], sums[j].a / counts[j], sums[j].b / counts[j]};
    }
    return {std::move(centres), std::move(assignment)};
}

bool same(const Lab& p, const Lab& q) {
    return p.L == q.L && p.a == q.a && p.b == q.b;
}

using Maker = std::function<Lab(std::mt19937&)>;

double unit(std::mt19937& random) {
    return std::uniform_real_distribution<double>()(random);
}

/// A whole number from 0 on, below `count`.
double step(std::mt19937& random, unsigned count) {
    return std::uniform_int_distribution<unsigned>(0, count - 1)(random);
}

const std::pair<const char*, Maker> kScenes[] = {
    {"noise",
     [](auto& r) {
         return Lab{unit(r), unit(r) - 0.5, unit(r) - 0.5};
     }},
    {"a narrow cloud",
     [](auto& r) {
         return Lab{0.5 + unit(r) * 1e-3, unit(r) * 1e-3, 0.1};
     }},
    // Whole tenths: many samples lie exactly between two centres.
    {"a lattice of ties",
     [](auto& r) {
         return Lab{step(r, 9) / 8.0, step(r, 5) / 8.0 - 0.25, step(r, 5) / 8.0 - 0.25};
     }},
    {"greys",
     [](auto& r) {
         return Lab{step(r, 256) / 255.0, 0, 0};
     }},
    {"two colours",
     [](auto& r) {
         return r() % 7 == 0 ? Lab{0.6, 0.2, 0.1} : Lab{0.3, 0, -0.2};
     }},
    // Neighbouring numbers, where rounding decides.
    {"hairs apart",
     [](auto& r) {
         return Lab{0.5 + step(r, 64) * 0x1p-36, step(r, 3) * 0x1p-36, 0};
     }},
    {"spheres around two poles",
     [](auto& r) {
         const double angle = unit(r) * 6.283185307179586;
         return Lab{r() % 2 == 0 ? 0.25 : 0.75, 0.2 * std::cos(angle), 0.2 * std::sin(angle)};
     }},
};

TEST(Clustering, AnswersWhatPlainKMeansAnswersToTheLastBit) {
    std::mt19937 random(7); // NOLINT(cert-msc*): the same scenes every time
    for (const auto& [name, make] : kScenes)
        for (const auto& [count, k] : {std::pair{1U, 1U}, {31U, 5U}, {700U, 12U}, {6000U, 24U}}) {
            std::vector<Lab> samples;
            for (unsigned i = 0; i < count; ++i)
                samples.push_back(onSumGrid(make(random)));
            // Random samples as centres repeat colours and leave centres empty; seeds do not.
            std::vector<Lab> drawn;
            for (unsigned i = 0; i < k; ++i)
                drawn.push_back(samples[random() % count]);
            for (const auto& centres : {drawn, seeds(samples, k)}) {
                const auto fast = cluster(samples, centres);
                const auto plain = plainly(samples, centres);
                EXPECT_EQ(fast.assignment, plain.assignment) << name << ' ' << count;
                EXPECT_TRUE(std::ranges::equal(fast.centres, plain.centres, same)) << name;
            }
        }
}

TEST(Clustering, SeedsAreFullCellsThatLieApartThenTheRest) {
    // Cells of the grid are 1/12 of L high: 0.30 and 0.32 share one, 0.34 lies in the next, nearer
    // than 0.06 to their mean.
    const std::vector<Lab> samples{{0.30, 0, 0}, {0.32, 0, 0}, {0.34, 0, 0},
                                   {0.9, 0, 0},  {0.9, 0, 0},  {0.9, 0, 0},
                                   {0.34, 0, 0}, {0.31, 0, 0}, {0.9, 0, 0}};
    const auto all = seeds(samples, 9);
    ASSERT_EQ(all.size(), 3U);
    EXPECT_NEAR(all[0].L, 0.9, 1e-12);
    EXPECT_NEAR(all[1].L, 0.31, 1e-12) << "the mean of three";
    EXPECT_NEAR(all[2].L, 0.34, 1e-12) << "by the second pass";
    EXPECT_EQ(seeds(samples, 2).size(), 2U);
}

} // namespace
} // namespace tintra::ImagePalette
