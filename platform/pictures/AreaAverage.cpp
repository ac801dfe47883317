#include "platform/pictures/AreaAverage.h"

#include <algorithm>

namespace tintra {

namespace {

using std::uint64_t;
using std::uint8_t;

uint64_t asWeight(int side) {
    return static_cast<uint64_t>(side);
}

uint8_t rounded(uint64_t sum, uint64_t whole) {
    return static_cast<uint8_t>((sum + whole / 2) / whole);
}

/// A pixel's share of the sums, at weight 1.
template <Opacity opacity, typename Sums>
void addPixel(Sums& sums, const uint8_t* rgba) {
    const uint64_t alpha = opacity == Opacity::opaque ? 1 : rgba[3];
    sums.r += rgba[0] * alpha;
    sums.g += rgba[1] * alpha;
    sums.b += rgba[2] * alpha;
    sums.a += alpha;
}

} // namespace

void premultiply(uint8_t* rgba) {
    for (int i = 0; i < 3; ++i)
        rgba[i] = rounded(uint64_t{rgba[i]} * rgba[3], 255);
}

void AreaAverage::Sums::add(const Sums& other, uint64_t weight) {
    r += other.r * weight;
    g += other.g * weight;
    b += other.b * weight;
    a += other.a * weight;
}

AreaAverage::AreaAverage(PictureSize from, PictureSize to, Opacity opacity, AlphaForm form)
    : from_(from), to_(to), opacity_(opacity), form_(form),
      area_(asWeight(from.width) * asWeight(from.height)), columns_(asWeight(to.width)),
      sums_(asWeight(to.width)) {
    result_.size = to;
    result_.rgba.reserve(asWeight(to.width) * asWeight(to.height) * 4);
}

void AreaAverage::addRow(const uint8_t* rgba) {
    if (complete()) return;
    if (from_ == to_) return copyRow(rgba);
    if (opacity_ == Opacity::opaque)
        sumColumns<Opacity::opaque>(rgba);
    else
        sumColumns<Opacity::translucent>(rgba);
    // A row of the result is `from.height` high and a row of `from` is `to.height` high.
    const auto begin = asWeight(row_) * asWeight(to_.height);
    const auto end = begin + asWeight(to_.height);
    const auto edge = (begin / asWeight(from_.height) + 1) * asWeight(from_.height);
    addToRow(std::min(end, edge) - begin);
    if (end >= edge) finishRow();
    if (end > edge) addToRow(end - edge);
    ++row_;
}

void AreaAverage::copyRow(const uint8_t* rgba) {
    const auto first = result_.rgba.size();
    result_.rgba.insert(result_.rgba.end(), rgba, rgba + asWeight(to_.width) * 4);
    if (opacity_ == Opacity::translucent && form_ == AlphaForm::premultiplied)
        for (auto i = first; i < result_.rgba.size(); i += 4)
            premultiply(&result_.rgba[i]);
    ++row_;
}

/// The same division of lengths as for rows, along one row.
template <Opacity opacity>
void AreaAverage::sumColumns(const uint8_t* rgba) {
    const auto whole = asWeight(from_.width), part = asWeight(to_.width);
    for (uint64_t i = 0; i < part; ++i) {
        const auto begin = i * whole, end = begin + whole;
        auto x = begin / part;
        Sums sums, pixel;
        addPixel<opacity>(pixel, rgba + x * 4);
        sums.add(pixel, std::min((x + 1) * part, end) - begin);
        Sums inside;
        for (++x; (x + 1) * part <= end; ++x)
            addPixel<opacity>(inside, rgba + x * 4);
        sums.add(inside, part);
        if (x * part < end) {
            pixel = {};
            addPixel<opacity>(pixel, rgba + x * 4);
            sums.add(pixel, end - x * part);
        }
        columns_[i] = sums;
    }
}

void AreaAverage::addToRow(uint64_t weight) {
    for (std::size_t i = 0; i < sums_.size(); ++i)
        sums_[i].add(columns_[i], weight);
}

void AreaAverage::finishRow() {
    for (auto& sums : sums_) {
        store(sums);
        sums = {};
    }
}

void AreaAverage::store(const Sums& sums) {
    const bool opaque = opacity_ == Opacity::opaque;
    const auto alpha = opaque ? uint8_t{255} : rounded(sums.a, area_);
    const auto premultiplied = opaque ? area_ : area_ * 255;
    const auto whole =
        form_ == AlphaForm::premultiplied ? premultiplied : std::max(sums.a, uint64_t{1});
    for (const auto sum : {sums.r, sums.g, sums.b})
        result_.rgba.push_back(rounded(sum, whole));
    result_.rgba.push_back(alpha);
}

} // namespace tintra
