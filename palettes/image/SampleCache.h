#pragma once

#include "palettes/image/Sampling.h"

#include <map>
#include <memory>
#include <mutex>
#include <variant>

namespace tintra::ImagePalette {

/// The samples of the pictures that are open, so that each is decoded once. Any thread.
class SampleCache {
public:
    using Entry = std::shared_ptr<const Pixels>;

    static SampleCache& shared();

    /// The picture's samples, read when they are not held. A failure is not kept.
    std::variant<Entry, PictureError> of(const Picture& picture);
    void forget(const Picture& picture);

private:
    Entry held(const Picture& picture);

    std::mutex mutex_;
    std::map<std::uint64_t, Entry> entries_; ///< by the identity of the picture
};

} // namespace tintra::ImagePalette
