#include "palettes/ImagePalette.h"

#include "palettes/image/Distinct.h"
#include "palettes/image/Ranking.h"
#include "palettes/image/Selection.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <limits>
#include <numeric>
#include <random>
#include <set>

namespace tintra::ImagePalette {
namespace {

/// A picture held in memory, so small that it is not reduced; counts how often it is decoded.
class PaintedPicture : public Picture {
public:
    using Paint = std::function<Rgba8(int x, int y)>;
    PaintedPicture(PictureSize size, Paint paint) : size_(size), paint_(std::move(paint)) {}

    PictureSize size() const override { return size_; }
    std::variant<PixelBuffer, PictureError> reduced(int, AlphaForm) const override {
        ++decoded;
        PixelBuffer pixels{size_, {}};
        for (int y = 0; y < size_.height; ++y)
            for (int x = 0; x < size_.width; ++x) {
                const auto [r, g, b, a] = paint_(x, y);
                for (const int c : {int{r}, int{g}, int{b}})
                    pixels.rgba.push_back(static_cast<std::uint8_t>((c * a + 127) / 255));
                pixels.rgba.push_back(a);
            }
        return pixels;
    }
    std::variant<Rgba8, PictureError> pixel(int column, int row) const override {
        return paint_(column, row);
    }

    mutable int decoded = 0;

private:
    PictureSize size_;
    Paint paint_;
};

constexpr Rgba8 kRed{230, 30, 40, 255}, kBlue{20, 60, 200, 255}, kGrey{128, 128, 128, 255},
    kPaper{240, 236, 228, 255}, kClear{0, 0, 0, 0};

std::vector<Extracted> extracted(const Picture& picture, int count,
                                 Emphasis emphasis = Emphasis::dominant) {
    auto result = extract(picture, count, emphasis);
    forget(picture);
    return std::get<0>(std::move(result));
}

std::string hex(const Rgba8& p) {
    return WashColor{p.r / 255.0, p.g / 255.0, p.b / 255.0}.hex();
}

std::vector<std::string> hexes(const std::vector<Extracted>& colours) {
    std::vector<std::string> list(colours.size());
    std::ranges::transform(colours, list.begin(),
                           [](const Extracted& colour) { return colour.color.hex(); });
    return list;
}

using Hexes = std::vector<std::string>;

TEST(ImagePalette, FindsTheColoursOfFlatFieldsWithTheirSharesAndPlaces) {
    const PaintedPicture picture({100, 50}, [](int x, int) { return x < 70 ? kBlue : kRed; });
    const auto found = extracted(picture, 5);
    EXPECT_EQ(hexes(found), (Hexes{hex(kBlue), hex(kRed)}));
    EXPECT_DOUBLE_EQ(found[0].share, 0.7);
    EXPECT_DOUBLE_EQ(found[1].share, 0.3);
    // Of equal pixels the one nearest to the middle (50, 25), of two such the upper one.
    EXPECT_EQ(found[0].point.x, 49.5);
    EXPECT_EQ(found[0].point.y, 24.5);
    EXPECT_EQ(found[1].point.x, 70.5);
    EXPECT_FALSE(found[0].isOwn);
    EXPECT_EQ(found[0].id(), "143CC8FF@49500,24500");
}

TEST(ImagePalette, AFlatPictureHasOneColourAndACountBelowOneNone) {
    const PaintedPicture flat({9, 7}, [](int, int) { return kRed; });
    for (const auto emphasis : allEmphases()) {
        const auto found = extracted(flat, 5, emphasis);
        EXPECT_EQ(hexes(found), Hexes{hex(kRed)});
        EXPECT_EQ(found[0].share, 1);
    }
    EXPECT_TRUE(extracted(flat, 0).empty());
    EXPECT_TRUE(extracted(flat, -3).empty());
}

TEST(ImagePalette, OnlyWhatIsMoreThanHalfOpaqueCounts) {
    const PaintedPicture icon({40, 40}, [](int x, int y) {
        if (x > 10 && y > 10) return kRed;
        return y == 0 ? Rgba8{0, 255, 0, 127} : kClear;
    });
    EXPECT_EQ(hexes(extracted(icon, 4)), Hexes{hex(kRed)});
    // Just above half: the colour as it is without its alpha, to the rounding of its bytes.
    const PaintedPicture glass({4, 4}, [](int, int) { return Rgba8{254, 100, 0, 128}; });
    const auto found = extracted(glass, 1);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_NEAR(found[0].color.r * 255, 254, 2);
    EXPECT_NEAR(found[0].color.g * 255, 100, 2);
    EXPECT_TRUE(extracted(PaintedPicture({5, 5}, [](int, int) { return kClear; }), 3).empty());
}

TEST(ImagePalette, VibrantFindsTheAccentThatDominantPassesOver) {
    // A poster of paper and greys with a red of one percent.
    const PaintedPicture poster({100, 100}, [](int x, int y) {
        if (y == 99) return kRed;
        if (y < 60) return kPaper;
        return x < 50 ? kGrey : Rgba8{40, 40, 44, 255};
    });
    EXPECT_EQ(hexes(extracted(poster, 2)), (Hexes{hex(kPaper), "#28282C"}));
    const auto vibrant = hexes(extracted(poster, 2, Emphasis::vibrant));
    EXPECT_NE(std::ranges::find(vibrant, hex(kRed)), vibrant.end());
}

TEST(ImagePalette, SpreadTakesTheFarthestWhateverItsShare) {
    // Greys of L 0.60 (most), 0.55, 0.30 and 0.90: from 0.60 the farthest are 0.30 and 0.90.
    const auto group = [](double L, std::size_t count) {
        return Group{{L, 0, 0}, count, 0, count};
    };
    const std::vector groups{group(0.55, 30), group(0.60, 50), group(0.91, 2), group(0.3, 1)};
    const auto taken = select(3, Emphasis::spread, 83, groups);
    ASSERT_EQ(taken.size(), 3U);
    EXPECT_EQ(taken[0].mean.L, 0.60);
    EXPECT_EQ(taken[1].mean.L, 0.91);
    EXPECT_EQ(taken[2].mean.L, 0.3);
    EXPECT_EQ(taken[0].count, 80U) << "with what 0.55 stood for";
    // Exact repeats stay to the last and none is taken twice.
    const std::vector repeats{group(0.5, 3), Group{{0.5, 0, 0}, 2, 0, 7},
                              Group{{0.5, 0, 0}, 1, 0, 8}};
    const auto two = select(2, Emphasis::spread, 6, repeats);
    EXPECT_EQ(two[0].count + two[1].count, 6U);
}

TEST(ImagePalette, DistinctKeepsApartBy014WithChromaCountingDouble) {
    const struct {
        Lab second;
        bool apart;
    } rows[] = {{{0.64, 0, 0}, true},      {{0.6399, 0, 0}, false},   {{0.5, 0.0701, 0}, true},
                {{0.5, 0, -0.0701}, true}, {{0.5, 0.0699, 0}, false}, {{0.5, 0.05, 0.05}, true},
                {{0.57, 0, 0}, false}};
    for (const auto& [second, apart] : rows) {
        // The third lies far off: it comes second exactly where the second is too near.
        const std::vector groups{Group{{0.5, 0, 0}, 3, 0, 0}, Group{second, 2, 0, 1},
                                 Group{{0.9, 0, 0}, 1, 0, 2}};
        const auto taken = distinct(2, groups, 0);
        EXPECT_EQ(taken[1].sample, apart ? 1U : 2U) << second.L << ' ' << second.a;
    }
}

TEST(ImagePalette, DistinctFillsUpWithoutRepeatsAndBelowTheFloor) {
    const std::vector groups{Group{{0.5, 0.08, 0}, 5, 0.08, 0}, Group{{0.8, 0, 0}, 4, 0, 1},
                             Group{{0.5, 0.08, 0}, 3, 0.08, 2}, Group{{0.2, 0.1, 0}, 2, 0.1, 3}};
    auto taken = distinct(4, groups, 0.07);
    ASSERT_EQ(taken.size(), 3U) << "the exact repeat is passed over";
    EXPECT_EQ(taken[1].sample, 3U) << "first those above the floor";
    EXPECT_EQ(taken[2].sample, 1U);
    absorb(taken, groups);
    EXPECT_EQ(taken[0].count, 8U);
}

TEST(ImagePalette, RanksByShareThenLightnessThenHue) {
    const auto at = [](double degrees) {
        const double angle = degrees * 3.14159265358979323846 / 180;
        return Lab{0.5, 0.1 * std::cos(angle), 0.1 * std::sin(angle)};
    };
    const struct {
        Lab mean;
        std::size_t count;
        Rank expected;
    } rows[] = {{{0.5, 0, 0}, 100, {5, 5, 0}},   {{0.44, 0, 0}, 109, {5, 4, 0}},
                {{0.96, 0, 0}, 110, {6, 10, 0}}, {at(31), 0, {0, 5, 1}},
                {at(-1), 0, {0, 5, 11}},         {at(181), 0, {0, 5, 6}}};
    for (const auto& [mean, count, expected] : rows)
        EXPECT_EQ(rank({mean, count, 0, 0}, 1000), expected) << mean.L << ' ' << count;
    std::vector<Group> groups{{at(200), 100, 0, 0},
                              {at(20), 101, 0, 1},
                              {{0.9, 0, 0}, 99, 0, 2},
                              {{0.1, 0, 0}, 300, 0, 3},
                              {at(205), 100, 0, 4}};
    sortByRank(groups, 1000);
    std::vector<std::size_t> order(groups.size());
    std::ranges::transform(groups, order.begin(), &Group::sample);
    EXPECT_EQ(order, (std::vector<std::size_t>{3, 2, 1, 0, 4}));
}

TEST(ImagePalette, SharesAddUpAndTheSamePictureGivesTheSameColours) {
    std::mt19937 random(3); // NOLINT(cert-msc*): the same scenes every time
    for (int scene = 0; scene < 6; ++scene) {
        std::vector<Rgba8> pixels(2800);
        for (auto& pixel : pixels) {
            const auto value = random();
            const auto mask = static_cast<std::uint8_t>(0xFF << scene);
            pixel = {static_cast<std::uint8_t>(value & mask),
                     static_cast<std::uint8_t>(value >> 8 & mask),
                     static_cast<std::uint8_t>(value >> 16), 255};
        }
        const auto paint = [&](int x, int y) {
            return pixels[static_cast<std::size_t>(y) * 70 + static_cast<std::size_t>(x)];
        };
        const PaintedPicture picture({70, 40}, paint), again({70, 40}, paint);
        for (const auto emphasis : allEmphases())
            for (const int count : {1, 2, 8, 30}) {
                const auto found = extracted(picture, count, emphasis);
                EXPECT_EQ(found, extracted(again, count, emphasis));
                EXPECT_EQ(static_cast<int>(found.size()), count);
                const double sum = std::accumulate(
                    found.begin(), found.end(), 0.0,
                    [](double total, const Extracted& colour) { return total + colour.share; });
                EXPECT_NEAR(sum, 1, 1e-12);
                for (const auto& colour : found)
                    EXPECT_TRUE(colour.point.x < 70 && colour.point.y < 40 && colour.share > 0);
            }
    }
}

TEST(ImagePalette, DecodesOnceUntilThePictureIsForgotten) {
    const PaintedPicture picture({20, 20}, [](int x, int) { return x < 9 ? kRed : kBlue; });
    extract(picture, 3, Emphasis::dominant);
    extract(picture, 5, Emphasis::spread);
    EXPECT_EQ(picture.decoded, 1);
    forget(picture);
    extract(picture, 3, Emphasis::dominant);
    EXPECT_EQ(picture.decoded, 2);
    forget(picture);
}

TEST(ImagePalette, AFailureIsHandedOnAndNotKept) {
    class Broken : public PaintedPicture {
    public:
        using PaintedPicture::PaintedPicture;
        std::variant<PixelBuffer, PictureError> reduced(int, AlphaForm) const override {
            ++decoded;
            return PictureError{PictureError::Kind::content, "broken"};
        }
    } picture({4, 4}, [](int, int) { return kRed; });
    EXPECT_EQ(std::get<PictureError>(extract(picture, 2, Emphasis::dominant)).why, "broken");
    EXPECT_EQ(std::get<PictureError>(extract(picture, 2, Emphasis::dominant)).why, "broken");
    EXPECT_EQ(picture.decoded, 2);
}

TEST(ImagePalette, TheColourAtAPointIsThePixelUnderIt) {
    const PaintedPicture picture({4, 2}, [](int x, int y) {
        return Rgba8{static_cast<std::uint8_t>(x * 51), static_cast<std::uint8_t>(y * 255), 0, 204};
    });
    EXPECT_EQ(colour(picture, {3.99, 1}), (WashColor{0.6, 1, 0, 0.8}));
    EXPECT_EQ(colour(picture, {0, 0}), (WashColor{0, 0, 0, 0.8}));
    const double infinity = std::numeric_limits<double>::infinity(), nan = std::nan("");
    for (const Point outside :
         {Point{4, 0}, {0, 2}, {-0.001, 0}, {0, -1}, {nan, 0}, {0, infinity}, {1e300, 1}})
        EXPECT_EQ(colour(picture, outside), std::nullopt) << outside.x << ' ' << outside.y;
}

TEST(ImagePalette, EveryEmphasisIsReadBackFromItsText) {
    std::set<std::string_view> texts;
    for (const auto each : allEmphases()) {
        EXPECT_EQ(emphasis(rawValue(each)), each);
        texts.insert(rawValue(each));
    }
    EXPECT_EQ(texts, (std::set<std::string_view>{"dominant", "vibrant", "spread"}));
    EXPECT_EQ(emphasis("Dominant"), std::nullopt);
}

} // namespace
} // namespace tintra::ImagePalette
