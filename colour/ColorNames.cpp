#include "colour/ColorNames.h"

#include "platform/File.h"
#include "platform/Locations.h"

#include <cmath>

namespace tintra {

namespace {

/// No component is clamped: a colour outside sRGB is looked up where it lies. NaN becomes 0, as
/// it does in hex, because a NaN would never be found in the cache again.
double rounded(double component) {
    return std::isnan(component) ? 0 : std::round(component * 255) / 255;
}

WashColor roundedTo8Bits(const WashColor& colour) {
    return {rounded(colour.r), rounded(colour.g), rounded(colour.b), 1};
}

NameList listFrom(const std::filesystem::path& path) {
    auto file = readFile(path);
    auto* const bytes = std::get_if<Bytes>(&file);
    return bytes != nullptr ? NameList(std::move(*bytes)) : NameList();
}

} // namespace

ColorNames& ColorNames::shared() {
    static ColorNames names(shippedFile("colornames.tsv"));
    return names;
}

ColorNames::ColorNames(std::filesystem::path list) : list_(std::move(list)) {}

void ColorNames::loadIfNeeded() {
    const std::lock_guard guard(lock_);
    if (loaded_) return;
    loaded_ = true;
    names_ = listFrom(list_);
}

std::optional<std::string_view> ColorNames::cached(const WashColor& key) {
    const std::lock_guard guard(lock_);
    const auto found = cache_.find(key);
    return found != cache_.end() ? std::optional(found->second) : std::nullopt;
}

std::string ColorNames::name(const WashColor& colour) {
    const auto key = roundedTo8Bits(colour);
    if (const auto known = cached(key)) return std::string(*known);
    loadIfNeeded();
    if (names_.empty()) return key.hex();
    const auto nearest = names_.nearest(key.oklab());
    const std::lock_guard guard(lock_);
    cache_.insert_or_assign(key, nearest);
    return std::string(nearest);
}

} // namespace tintra
