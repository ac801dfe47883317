#pragma once

#include <libheif/heif.h>

#include <cstdint>
#include <memory>

namespace tintra {

struct FreeHeif {
    void operator()(heif_context* context) const { heif_context_free(context); }
    void operator()(heif_image_handle* handle) const { heif_image_handle_release(handle); }
    void operator()(heif_image* image) const { heif_image_release(image); }
    void operator()(heif_decoding_options* options) const { heif_decoding_options_free(options); }
    void operator()(heif_color_profile_nclx* profile) const {
        heif_nclx_color_profile_free(profile);
    }
};
template <typename Handle>
using HeifOwner = std::unique_ptr<Handle, FreeHeif>;

/// An AVIF or HEIC file that libheif reads through a descriptor, so that only the parts that are
/// needed are held.
class HeifFile {
public:
    explicit HeifFile(int descriptor);

    /// The picture to show; null when the file has none that can be read.
    HeifOwner<heif_image_handle> primaryImage();

private:
    static const heif_reader kReader;

    HeifOwner<heif_context> context_;
    int descriptor_;
    std::int64_t size_ = 0;
    std::int64_t position_ = 0;
};

} // namespace tintra
