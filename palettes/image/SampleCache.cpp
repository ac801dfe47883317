#include "palettes/image/SampleCache.h"

namespace tintra::ImagePalette {

SampleCache& SampleCache::shared() {
    static SampleCache cache;
    return cache;
}

SampleCache::Entry SampleCache::held(const Picture& picture) {
    const std::scoped_lock lock(mutex_);
    const auto found = entries_.find(picture.identity());
    return found == entries_.end() ? nullptr : found->second;
}

std::variant<SampleCache::Entry, PictureError> SampleCache::of(const Picture& picture) {
    if (auto entry = held(picture)) return entry;
    // Decoding takes long: other pictures are not kept waiting.
    auto pixels = sample(picture, kSampledSide);
    if (auto* error = std::get_if<PictureError>(&pixels)) return std::move(*error);
    auto entry = std::make_shared<const Pixels>(std::get<Pixels>(std::move(pixels)));
    const std::scoped_lock lock(mutex_);
    entries_.insert_or_assign(picture.identity(), entry);
    return entry;
}

void SampleCache::forget(const Picture& picture) {
    const std::scoped_lock lock(mutex_);
    entries_.erase(picture.identity());
}

} // namespace tintra::ImagePalette
