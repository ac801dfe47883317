#include "palettes/image/Sampling.h"

#include "colour/SrgbBytes.h"
#include "platform/SrgbCurve.h"

namespace tintra::ImagePalette {

namespace {

/// Alpha up to this byte, half opacity, does not count.
constexpr std::uint8_t kTransparent = 127;

double linear(std::uint8_t value, std::uint8_t alpha) {
    if (alpha == 255) return SrgbBytes::shared().linear(value);
    return srgbDecoded(value / 255.0 / (alpha / 255.0));
}

Lab labOf(const std::uint8_t* rgba) {
    const auto alpha = rgba[3];
    const auto lab =
        oklabFromLinear({linear(rgba[0], alpha), linear(rgba[1], alpha), linear(rgba[2], alpha)});
    return onSumGrid(lab);
}

} // namespace

Lab onSumGrid(const Lab& colour) {
    // Adding this pushes all finer bits out of the mantissa.
    constexpr double kPush = 0x1.8p16;
    const auto rounded = [](double value) { return (value + kPush) - kPush; };
    return {rounded(colour.L), rounded(colour.a), rounded(colour.b)};
}

Pixels sample(const PixelBuffer& premultiplied) {
    Pixels pixels;
    pixels.reduced = premultiplied.size;
    const auto count = premultiplied.rgba.size() / 4;
    pixels.samples.reserve(count);
    pixels.places.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const auto* rgba = &premultiplied.rgba[4 * i];
        if (rgba[3] <= kTransparent) continue;
        pixels.samples.push_back(labOf(rgba));
        pixels.places.push_back(static_cast<std::uint32_t>(i));
    }
    return pixels;
}

std::variant<Pixels, PictureError> sample(const Picture& picture, int side) {
    const auto reduced = picture.reduced(side, AlphaForm::premultiplied);
    if (const auto* error = std::get_if<PictureError>(&reduced)) return *error;
    return sample(std::get<PixelBuffer>(reduced));
}

} // namespace tintra::ImagePalette
