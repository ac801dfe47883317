#include "platform/Descriptor.h"
#include "platform/File.h"
#include "platform/Pictures.h"
#include "platform/pictures/AreaAverage.h"
#include "platform/pictures/PictureKind.h"
#include "platform/pictures/PictureModule.h"
#include "platform/pictures/PictureProfile.h"
#include "platform/pictures/QuietStandardError.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <system_error>
#include <utility>

namespace tintra {

namespace {

using Kind = PictureError::Kind;

PictureError systemError() {
    return {Kind::file, std::generic_category().message(errno)};
}

PictureError noPicture() {
    return {Kind::content, "not a picture"};
}

std::uint64_t pixelCount(PictureSize size) {
    return static_cast<std::uint64_t>(size.width) * static_cast<std::uint64_t>(size.height);
}

/// Receives decoded rows and keeps them reduced and in sRGB.
class ReducedRows : public PixelRows {
public:
    ReducedRows(PictureSize target, AlphaForm form) : target_(target), form_(form) {}

    void begin(const Start& start) override {
        profile_ = PictureProfile::of(start.profile, start.colours);
        const PictureSize to{std::min(target_.width, start.size.width),
                             std::min(target_.height, start.size.height)};
        // A profile is for colours that are not multiplied by their alpha.
        average_.emplace(start.size, to, start.opaque ? Opacity::opaque : Opacity::translucent,
                         profile_ == nullptr ? form_ : AlphaForm::straight);
    }

    void row(const std::uint8_t* rgba) override { average_->addRow(rgba); }

    std::optional<PixelBuffer> take() {
        if (!average_ || !average_->complete()) return std::nullopt;
        auto pixels = average_->take();
        if (profile_ == nullptr) return pixels;
        profile_->toSrgb(pixels.rgba.data(), pixels.rgba.size() / 4);
        if (form_ == AlphaForm::premultiplied)
            for (std::size_t i = 0; i < pixels.rgba.size(); i += 4)
                premultiply(&pixels.rgba[i]);
        return pixels;
    }

private:
    PictureSize target_;
    AlphaForm form_;
    std::unique_ptr<PictureProfile> profile_;
    std::optional<AreaAverage> average_;
};

class FilePicture : public Picture {
public:
    FilePicture(Descriptor file, std::unique_ptr<PictureDecoder> decoder)
        : file_(std::move(file)), decoder_(std::move(decoder)) {}

    PictureSize size() const override { return decoder_->size(); }

    std::variant<PixelBuffer, PictureError> reduced(int longerSide, AlphaForm form) const override {
        const QuietStandardError quiet;
        const auto target = reducedSize(size(), longerSide);
        ReducedRows rows(target, form);
        const bool decoded = decoder_->decode(target, rows);
        auto pixels = rows.take();
        if (!decoded || !pixels || pixels->size != target) return noPicture();
        return std::move(*pixels);
    }

    std::variant<Rgba8, PictureError> pixel(int column, int row) const override {
        if (column < 0 || row < 0 || column >= size().width || row >= size().height)
            return PictureError{Kind::content, "outside of the picture"};
        const QuietStandardError quiet;
        ReducedRows rows({1, 1}, AlphaForm::straight);
        const bool decoded = decoder_->decodePixel(column, row, rows);
        const auto pixels = rows.take();
        if (!decoded || !pixels) return noPicture();
        return Rgba8{pixels->rgba[0], pixels->rgba[1], pixels->rgba[2], pixels->rgba[3]};
    }

private:
    Descriptor file_;
    std::unique_ptr<PictureDecoder> decoder_;
};

/// What the picture would take at its full size, where that is more than allowed.
std::optional<PictureError> excess(const PictureDecoder& decoder, const PictureLimits& limits) {
    const auto size = decoder.size();
    const auto depth = static_cast<std::uint64_t>(decoder.bytesPerPixel());
    if (pixelCount(size) <= limits.decodedBytes / depth) return std::nullopt;
    return PictureError{Kind::tooLarge,
                        fmt::format("{} × {} pixels take more than {} MB", size.width, size.height,
                                    limits.decodedBytes >> 20U)};
}

Bytes headOf(int descriptor) {
    Bytes head(kPictureHeadSize);
    const auto count = ::pread(descriptor, head.data(), head.size(), 0);
    head.resize(static_cast<std::size_t>(std::max(count, ssize_t{0})));
    return head;
}

OpenedPicture open(Descriptor file, const PictureLimits& limits) {
    const auto head = headOf(file.number());
    const auto kind = pictureKind(head);
    if (!kind) return noPicture();
    const auto module = pictureModule(kind->module);
    if (const auto* why = std::get_if<std::string>(&module))
        return PictureError{Kind::service, *why};
    const QuietStandardError quiet;
    std::unique_ptr<PictureDecoder> decoder(
        std::get<OpenPictureDecoder*>(module)({file.number(), kind->name, limits}));
    if (decoder == nullptr) return noPicture();
    if (auto error = excess(*decoder, limits)) return *std::move(error);
    return std::make_shared<const FilePicture>(std::move(file), std::move(decoder));
}

bool writeWhole(int descriptor, ByteView content) {
    while (!content.empty()) {
        const auto written = ::write(descriptor, content.data(), content.size());
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        content = content.subspan(static_cast<std::size_t>(written));
    }
    return true;
}

} // namespace

std::uint64_t Picture::nextIdentity() {
    static std::atomic<std::uint64_t> last = 0;
    return ++last;
}

PictureSize reducedSize(PictureSize full, int longerSide) {
    const int longer = std::max(full.width, full.height);
    if (longer <= longerSide) return full;
    const auto scaled = [&](int side) {
        return static_cast<int>(
            std::max(std::int64_t{side} * longerSide / longer, std::int64_t{1}));
    };
    return {scaled(full.width), scaled(full.height)};
}

OpenedPicture openPicture(const std::filesystem::path& file, const PictureLimits& limits) {
    std::error_code failed;
    if (!std::filesystem::is_regular_file(file, failed)) {
        const auto content = readFile(file);
        if (const auto* error = std::get_if<FileError>(&content))
            return PictureError{Kind::file, error->why};
        return openPicture(ByteView(std::get<Bytes>(content)), limits);
    }
    Descriptor descriptor(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
    if (!descriptor.isOpen()) return systemError();
    return open(std::move(descriptor), limits);
}

OpenedPicture openPicture(ByteView content, const PictureLimits& limits) {
    Descriptor file(::memfd_create("picture", MFD_CLOEXEC));
    if (file.number() < 0 || !writeWhole(file.number(), content)) return systemError();
    return open(std::move(file), limits);
}

} // namespace tintra
