#include "palettes/ImagePalette.h"

#include "palettes/image/Clustering.h"
#include "palettes/image/Groups.h"
#include "palettes/image/Ranking.h"
#include "palettes/image/SampleCache.h"
#include "palettes/image/Seeds.h"
#include "palettes/image/Selection.h"
#include "platform/Number.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tintra::ImagePalette {

namespace {

struct EmphasisRow {
    Emphasis emphasis;
    std::string_view raw;
};

constexpr std::array kEmphases{Emphasis::dominant, Emphasis::vibrant, Emphasis::spread};
constexpr std::array kRows{
    EmphasisRow{Emphasis::dominant, "dominant"},
    EmphasisRow{Emphasis::vibrant, "vibrant"},
    EmphasisRow{Emphasis::spread, "spread"},
};

/// The middle of a sample's area, in pixels of the full size.
Point pointOf(const Pixels& pixels, std::size_t sample, PictureSize full) {
    const auto place = static_cast<int>(pixels.places[sample]);
    const auto [width, height] = pixels.reduced;
    const int column = place % width, row = place / width;
    return {(column + 0.5) * full.width / width, (row + 0.5) * full.height / height};
}

std::vector<Extracted> colours(const Pixels& pixels, PictureSize full, int count,
                               Emphasis emphasis) {
    const auto total = pixels.samples.size();
    if (count < 1 || total == 0) return {};
    const auto wanted = static_cast<std::size_t>(std::min(count, kMostColours));
    const auto k = std::min(std::max(3 * wanted, std::size_t{12}), total);
    const auto found = groups(pixels, cluster(pixels.samples, seeds(pixels.samples, k)));
    auto chosen = select(wanted, emphasis, total, found);
    sortByRank(chosen, total);
    std::vector<Extracted> result;
    result.reserve(chosen.size());
    for (const auto& group : chosen)
        result.push_back({WashColor::fromOklab(group.mean, 1),
                          static_cast<double>(group.count) / static_cast<double>(total),
                          pointOf(pixels, group.sample, full),
                          {}});
    return result;
}

std::string thousandths(double value) {
    return fixed(std::round(value * 1000), 0);
}

} // namespace

std::string_view rawValue(Emphasis emphasis) {
    return std::ranges::find(kRows, emphasis, &EmphasisRow::emphasis)->raw;
}

std::optional<Emphasis> emphasis(std::string_view raw) {
    const auto* const row = std::ranges::find(kRows, raw, &EmphasisRow::raw);
    if (row == kRows.end()) return std::nullopt;
    return row->emphasis;
}

std::span<const Emphasis> allEmphases() {
    return kEmphases;
}

std::string Extracted::id() const {
    return color.identity() + "@" + thousandths(point.x) + "," + thousandths(point.y);
}

Colours extract(const Picture& from, int count, Emphasis emphasis) {
    if (count < 1) return std::vector<Extracted>();
    const auto pixels = SampleCache::shared().of(from);
    if (const auto* error = std::get_if<PictureError>(&pixels)) return *error;
    return colours(*std::get<SampleCache::Entry>(pixels), from.size(), count, emphasis);
}

std::optional<WashColor> colour(const Picture& in, Point at) {
    const auto size = in.size();
    // Compared before the conversion: a far or undefined place has no whole number.
    if (!(at.x >= 0 && at.y >= 0 && at.x < size.width && at.y < size.height)) return std::nullopt;
    const auto read = in.pixel(static_cast<int>(at.x), static_cast<int>(at.y));
    const auto* const pixel = std::get_if<Rgba8>(&read);
    if (pixel == nullptr) return std::nullopt;
    return WashColor{pixel->r / 255.0, pixel->g / 255.0, pixel->b / 255.0, pixel->a / 255.0};
}

void forget(const Picture& picture) {
    SampleCache::shared().forget(picture);
}

} // namespace tintra::ImagePalette
