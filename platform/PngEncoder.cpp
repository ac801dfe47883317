#include "platform/PngEncoder.h"

#include <png.h>

#include <csetjmp>
#include <exception>
#include <vector>

namespace tintra {

namespace {

// The encoder's library reports an error by a long jump, which runs no destructors. So each call
// into it stands in a small function of its own that arms the jump and holds nothing to destroy.

constexpr int kLongestSide = 1'000'000;
static_assert(sizeof(Rgba8) == 4);

void fail(png_structp png, png_const_charp /*why*/) {
    png_longjmp(png, 1);
}

void ignore(png_structp /*png*/, png_const_charp /*warning*/) {}

bool appended(Bytes& out, ByteView more) noexcept {
    try {
        out.insert(out.end(), more.begin(), more.end());
        return true;
    } catch (const std::exception&) {
        return false;
    }
}

void collect(png_structp png, png_bytep data, std::size_t size) {
    auto& out = *static_cast<Bytes*>(png_get_io_ptr(png));
    if (!appended(out, std::as_bytes(std::span(data, size)))) png_error(png, "out of memory");
}

void flush(png_structp /*png*/) {}

// NOLINTBEGIN(cert-err52-cpp): the library knows no other way to report an error
bool writeHeader(png_structp png, png_infop info, std::uint32_t width, std::uint32_t height) {
    if (setjmp(png_jmpbuf(png)) != 0) return false;
    png_set_IHDR(png, info, width, height, 8, PNG_COLOR_TYPE_RGB_ALPHA, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_set_sRGB(png, info, PNG_sRGB_INTENT_RELATIVE);
    // The other filters cost four times as much and make flat areas no smaller.
    png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FAST_FILTERS);
    png_write_info(png, info);
    return true;
}

bool writeRow(png_structp png, const Rgba8* row) {
    if (setjmp(png_jmpbuf(png)) != 0) return false;
    png_write_row(png, reinterpret_cast<png_const_bytep>(row));
    return true;
}

bool writeEnd(png_structp png) {
    if (setjmp(png_jmpbuf(png)) != 0) return false;
    png_write_end(png, nullptr);
    return true;
}
// NOLINTEND(cert-err52-cpp)

/// The library's two records of a picture that is being written.
class Encoder {
public:
    explicit Encoder(Bytes& out)
        : png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, fail, ignore)),
          info_(png_ == nullptr ? nullptr : png_create_info_struct(png_)) {
        if (png_ != nullptr) png_set_write_fn(png_, &out, collect, flush);
    }
    ~Encoder() { png_destroy_write_struct(&png_, &info_); }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;

    bool write(PictureSize size, const PaintRow& paint) {
        if (info_ == nullptr) return false;
        if (!writeHeader(png_, info_, static_cast<std::uint32_t>(size.width),
                         static_cast<std::uint32_t>(size.height)))
            return false;
        std::vector<Rgba8> row(static_cast<std::size_t>(size.width));
        for (std::size_t y = 0; y < static_cast<std::size_t>(size.height); ++y) {
            paint(y, row);
            if (!writeRow(png_, row.data())) return false;
        }
        return writeEnd(png_);
    }

private:
    png_structp png_;
    png_infop info_;
};

} // namespace

std::optional<Bytes> encodePng(PictureSize size, const PaintRow& paint) {
    const auto usable = [](int side) { return side > 0 && side <= kLongestSide; };
    if (!usable(size.width) || !usable(size.height)) return std::nullopt;
    Bytes out;
    if (!Encoder(out).write(size, paint)) return std::nullopt;
    return out;
}

} // namespace tintra
