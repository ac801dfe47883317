#include "platform/desktop/heif/HeifDecoder.h"

#include <algorithm>
#include <vector>

namespace tintra {

namespace {

/// Decoded pixels: red, green, blue and alpha, a byte each.
struct Decoded {
    HeifOwner<heif_image> image;
    PictureSize size;
    const std::uint8_t* rgba = nullptr;
    int stride = 0;

    const std::uint8_t* at(int column, int row) const {
        return rgba + std::ptrdiff_t{row} * stride + std::ptrdiff_t{column} * 4;
    }
};

/// Without pixels when the content cannot be decoded.
Decoded decoded(const heif_image_handle* handle) {
    const HeifOwner<heif_decoding_options> options(heif_decoding_options_alloc());
    options->convert_hdr_to_8bit = 1;
    heif_image* image = nullptr;
    heif_decode_image(handle, &image, heif_colorspace_RGB, heif_chroma_interleaved_RGBA,
                      options.get());
    Decoded result{HeifOwner<heif_image>(image), {}, nullptr, 0};
    if (image == nullptr) return result;
    result.size = {heif_image_get_width(image, heif_channel_interleaved),
                   heif_image_get_height(image, heif_channel_interleaved)};
    result.rgba = heif_image_get_plane_readonly(image, heif_channel_interleaved, &result.stride);
    return result;
}

std::vector<std::byte> profileOf(const heif_image_handle* handle) {
    std::vector<std::byte> profile(heif_image_handle_get_raw_color_profile_size(handle));
    if (!profile.empty()) heif_image_handle_get_raw_color_profile(handle, profile.data());
    return profile;
}

/// The primaries that stand in the place of a profile (ITU-T H.273).
PictureColours coloursOf(const heif_image_handle* handle) {
    heif_color_profile_nclx* found = nullptr;
    heif_image_handle_get_nclx_color_profile(handle, &found);
    const HeifOwner<heif_color_profile_nclx> nclx(found);
    if (nclx == nullptr) return PictureColours::sRGB;
    if (nclx->color_primaries == heif_color_primaries_SMPTE_EG_432_1)
        return PictureColours::displayP3;
    if (nclx->color_primaries == heif_color_primaries_ITU_R_BT_2020_2_and_2100_0)
        return PictureColours::ituRBT2020;
    return PictureColours::sRGB;
}

/// Divides by the alpha what the file holds multiplied by it.
void straighten(std::vector<std::uint8_t>& row) {
    for (std::size_t i = 0; i < row.size(); i += 4) {
        const int alpha = row[i + 3];
        if (alpha == 0) continue;
        for (std::size_t c = i; c < i + 3; ++c)
            row[c] = static_cast<std::uint8_t>(std::min(255, (row[c] * 255 + alpha / 2) / alpha));
    }
}

void handOver(const heif_image_handle* handle, const Decoded& picture, PictureSize size,
              const std::uint8_t* first, PixelRows& rows) {
    const auto profile = profileOf(handle);
    rows.begin(
        {size, heif_image_handle_has_alpha_channel(handle) == 0, profile, coloursOf(handle)});
    const bool multiplied = heif_image_handle_is_premultiplied_alpha(handle) != 0;
    std::vector<std::uint8_t> copy;
    for (int y = 0; y < size.height; ++y) {
        const auto* row = first + std::ptrdiff_t{y} * picture.stride;
        copy.assign(row, row + std::ptrdiff_t{size.width} * 4);
        if (multiplied) straighten(copy);
        rows.row(copy.data());
    }
}

} // namespace

std::unique_ptr<HeifDecoder> HeifDecoder::open(const PictureSource& source) {
    std::unique_ptr<HeifDecoder> decoder(new HeifDecoder(source.descriptor));
    if (decoder->handle_ == nullptr) return nullptr;
    const auto size = decoder->size();
    return size.width > 0 && size.height > 0 ? std::move(decoder) : nullptr;
}

PictureSize HeifDecoder::size() const {
    return {heif_image_handle_get_width(handle_.get()),
            heif_image_handle_get_height(handle_.get())};
}

int HeifDecoder::bytesPerPixel() const {
    return heif_image_handle_get_luma_bits_per_pixel(handle_.get()) > 8 ? 8 : 4;
}

bool HeifDecoder::decode(PictureSize, PixelRows& rows) {
    const auto picture = decoded(handle_.get());
    if (picture.rgba == nullptr) return false;
    handOver(handle_.get(), picture, picture.size, picture.rgba, rows);
    return true;
}

bool HeifDecoder::decodePixel(int column, int row, PixelRows& rows) {
    const auto picture = decoded(handle_.get());
    if (picture.rgba == nullptr || column >= picture.size.width || row >= picture.size.height)
        return false;
    handOver(handle_.get(), picture, {1, 1}, picture.at(column, row), rows);
    return true;
}

} // namespace tintra
