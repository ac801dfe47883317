#include "ui/picture/PictureCopy.h"

#include "platform/Pictures.h"
#include "state/Errands.h"

#include <algorithm>
#include <cstring>
#include <variant>

namespace tintra {
namespace {

/// Pixels on the longer side that are read at least, so that a magnified place shows more than the
/// pixels of the screen.
constexpr int kDetail = 2048;

QImage imageOf(const PixelBuffer& pixels) {
    QImage image(pixels.size.width, pixels.size.height, QImage::Format_RGBA8888_Premultiplied);
    if (image.isNull()) return {};
    const auto row = static_cast<std::size_t>(pixels.size.width) * 4;
    for (int y = 0; y < pixels.size.height; ++y)
        std::memcpy(image.scanLine(y), pixels.rgba.data() + static_cast<std::size_t>(y) * row, row);
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    return image;
}

/// Pixels that stand far apart stay squares; others blend.
QImage scaledTo(const QImage& image, QSize size) {
    constexpr int kEnlarged = 4;
    const auto mode = size.width() >= image.width() * kEnlarged ? Qt::FastTransformation
                                                                : Qt::SmoothTransformation;
    return image.scaled(size, Qt::IgnoreAspectRatio, mode);
}

} // namespace

/// What a thread needs to make a copy.
struct PictureCopy::Order {
    std::shared_ptr<const Picture> picture;
    std::shared_ptr<std::mutex> inUse;
    QImage detail; ///< null: to be read
    int side = 0;  ///< in which detail
    QSize size;
};

PictureCopy::Made PictureCopy::make(const Order& order) {
    Made made{order.detail, {}, false};
    if (made.detail.isNull()) {
        const std::scoped_lock lock(*order.inUse);
        const auto read = order.picture->reduced(order.side, AlphaForm::premultiplied);
        if (const auto* const pixels = std::get_if<PixelBuffer>(&read))
            made.detail = imageOf(*pixels);
        made.failed = made.detail.isNull();
    }
    if (!made.failed && !order.size.isEmpty()) made.scaled = scaledTo(made.detail, order.size);
    return made;
}

void PictureCopy::setSource(const ImageSource& source) {
    if (source.picture == source_.picture) return;
    source_.picture = source.picture;
    source_.inUse = source.inUse;
    detail_ = scaled_ = {};
    failed_ = isWorking_ = isStale_ = false;
    alive_ = std::make_shared<bool>(true);
    if (source_.picture) begin();
}

void PictureCopy::setSize(QSize size) {
    if (size == size_) return;
    size_ = size;
    if (source_.picture) begin();
}

int PictureCopy::sideWanted() const {
    return std::max({kDetail, size_.width(), size_.height()});
}

void PictureCopy::begin() {
    if (failed_) return;
    isStale_ = isWorking_;
    if (isWorking_) return;
    isWorking_ = true;
    const auto full = source_.picture->size();
    const bool isWhole = detail_.width() == full.width && detail_.height() == full.height;
    const bool isEnough = !detail_.isNull() && (isWhole || detailSide_ >= sideWanted());
    if (!isEnough) detailSide_ = sideWanted();
    inBackground(
        services_, alive_,
        [order = Order{source_.picture, source_.inUse, isEnough ? detail_ : QImage(), detailSide_,
                       size_}] { return make(order); },
        [this](Made&& made) { take(std::move(made)); });
}

void PictureCopy::take(Made made) {
    isWorking_ = false;
    failed_ = made.failed;
    detail_ = std::move(made.detail);
    if (!made.scaled.isNull()) scaled_ = std::move(made.scaled);
    if (isStale_) begin();
    if (changed) changed();
}

} // namespace tintra
