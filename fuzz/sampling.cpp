#include "palettes/image/Clustering.h"
#include "palettes/image/Groups.h"
#include "palettes/image/Ranking.h"
#include "palettes/image/Seeds.h"
#include "palettes/image/Selection.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numeric>

// Any bytes as a reduced picture: the first three are its width, the count and the emphasis; pixels
// follow from the fifth on.

namespace {

using namespace tintra;
using namespace tintra::ImagePalette;

void require(bool holds) {
    if (!holds) std::abort();
}

PixelBuffer pictureOf(const std::uint8_t* data, std::size_t size, int width) {
    PixelBuffer picture;
    picture.size = {width, static_cast<int>(size / 4) / width};
    const auto bytes = 4 * static_cast<std::size_t>(picture.size.width) *
                       static_cast<std::size_t>(picture.size.height);
    picture.rgba.assign(data, data + bytes);
    return picture;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 4) return 0;
    const int width = 1 + data[0] % kSampledSide;
    const std::size_t count = 1U + data[1];
    const auto emphasis = allEmphases()[data[2] % allEmphases().size()];
    const auto picture = pictureOf(data + 4, std::min<std::size_t>(size - 4, 102'400), width);
    const auto pixels = sample(picture);
    require(pixels.samples.size() == pixels.places.size());
    for (const auto& [L, a, b] : pixels.samples)
        require(std::isfinite(L) && std::abs(L) < 8 && std::abs(a) < 8 && std::abs(b) < 8);
    if (pixels.samples.empty()) return 0;

    const auto total = pixels.samples.size();
    const auto centres =
        seeds(pixels.samples, std::min(std::max<std::size_t>(3 * count, 12), total));
    require(!centres.empty());
    const auto found = groups(pixels, cluster(pixels.samples, centres));
    auto chosen = select(count, emphasis, total, found);
    sortByRank(chosen, total);
    require(!chosen.empty() && chosen.size() <= std::min(count, found.size()));
    require(total ==
            std::accumulate(chosen.begin(), chosen.end(), std::size_t{0},
                            [](std::size_t sum, const Group& g) { return sum + g.count; }));
    for (const auto& group : chosen)
        require(group.sample < total);
    return 0;
}
