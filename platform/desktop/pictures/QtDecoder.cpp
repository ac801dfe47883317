#include "platform/desktop/pictures/QtDecoder.h"

#include "platform/desktop/pictures/HandOver.h"
#include "platform/desktop/pictures/SvgApplication.h"
#include "platform/desktop/pictures/SvgFilter.h"

#include <unistd.h>

#include <QBuffer>
#include <QFile>
#include <algorithm>

namespace tintra {

namespace {

/// How much larger than asked for a drawing is painted, so that its reduction averages areas.
constexpr int kSupersampling = 4;

/// Larger drawings are refused: the whole text and its tree are held in memory.
constexpr qint64 kLargestSvg = qint64{32} << 20U;

constexpr int kBytesPerMegabyte = 1 << 20U;

/// Readers also allocate by what stands deeper in a file than its head.
void limitAllocations(const PictureLimits& limits) {
    const auto most =
        std::min<std::uint64_t>(limits.decodedBytes / kBytesPerMegabyte + 1, 1U << 20U);
    if (QImageReader::allocationLimit() != static_cast<int>(most))
        QImageReader::setAllocationLimit(static_cast<int>(most));
}

/// What a pixel of a format takes, at least 4. Readers answer numbers that are no format where a
/// file is broken.
int bytesOf(QImage::Format format) {
    if (format <= QImage::Format_Invalid || format >= QImage::NImageFormats) return 4;
    return std::max(4, QImage::toPixelFormat(format).bitsPerPixel() / 8);
}

/// Opens the file at its start without taking over the descriptor.
bool openAtStart(QFile& file, int descriptor) {
    return ::lseek(descriptor, 0, SEEK_SET) == 0 && file.open(descriptor, QIODevice::ReadOnly);
}

/// The text of a drawing without anything that reaches beyond it; empty when it has none.
QByteArray safeSvg(const PictureSource& source) {
    QFile file;
    if (!openAtStart(file, source.descriptor) || file.size() > kLargestSvg) return {};
    if (!ensureSvgApplication()) return {};
    return selfContainedSvg(file.readAll(), source.limits.decodedBytes).value_or(QByteArray());
}

} // namespace

class QtDecoder::Reader : public QImageReader {
public:
    explicit Reader(const QtDecoder& decoder) {
        if (decoder.content_.isEmpty()) {
            openAtStart(file_, decoder.descriptor_);
            setDevice(&file_);
        } else {
            buffer_.setData(decoder.content_);
            buffer_.open(QIODevice::ReadOnly);
            setDevice(&buffer_);
        }
        setFormat(decoder.format_);
        setAutoDetectImageFormat(false);
        setDecideFormatFromContent(false);
    }

private:
    QFile file_;
    QBuffer buffer_;
};

QtDecoder::QtDecoder(int descriptor, QByteArray format, QByteArray content)
    : descriptor_(descriptor), format_(std::move(format)), content_(std::move(content)) {}

std::unique_ptr<QtDecoder> QtDecoder::open(const PictureSource& source) {
    limitAllocations(source.limits);
    const QByteArray format(source.kind.data(), static_cast<qsizetype>(source.kind.size()));
    QByteArray content;
    if (format == "svg") {
        content = safeSvg(source);
        if (content.isEmpty()) return nullptr;
    }
    std::unique_ptr<QtDecoder> decoder(
        new QtDecoder(source.descriptor, format, std::move(content)));
    return decoder->readHead() ? std::move(decoder) : nullptr;
}

bool QtDecoder::readHead() {
    Reader reader(*this);
    stored_ = reader.size();
    if (stored_.isEmpty()) return false;
    orientation_ = reader.transformation();
    bytesPerPixel_ = bytesOf(reader.imageFormat());
    return true;
}

PictureSize QtDecoder::size() const {
    const bool turned = orientation_.testFlag(QImageIOHandler::TransformationRotate90);
    const auto shown = turned ? stored_.transposed() : stored_;
    return {shown.width(), shown.height()};
}

/// JPEG is decoded at an eighth, a quarter or half of its size for a fraction of the cost, the mean
/// of each block; drawings are painted at any size. Whatever else is decoded as it is: empty.
QSize QtDecoder::cheapSize(PictureSize least) const {
    QSize wanted(least.width, least.height);
    if (orientation_.testFlag(QImageIOHandler::TransformationRotate90)) wanted.transpose();
    if (format_ == "svg") return (wanted * kSupersampling).boundedTo(stored_);
    if (format_ != "jpeg") return {};
    for (const int part : {8, 4, 2}) {
        const QSize reduced(stored_.width() / part, stored_.height() / part);
        if (reduced.width() >= wanted.width() && reduced.height() >= wanted.height())
            return reduced;
    }
    return {};
}

bool QtDecoder::decode(PictureSize least, PixelRows& rows) {
    Reader reader(*this);
    reader.setAutoTransform(true);
    if (const auto cheap = cheapSize(least); !cheap.isEmpty()) reader.setScaledSize(cheap);
    return handOver(reader.read(), rows);
}

/// Qt mirrors, then turns by 90 degrees clockwise; this is the way back.
QPoint QtDecoder::storedPoint(int column, int row) const {
    QPoint point(column, row);
    if (orientation_.testFlag(QImageIOHandler::TransformationRotate90))
        point = {row, stored_.height() - 1 - column};
    if (orientation_.testFlag(QImageIOHandler::TransformationMirror))
        point.setX(stored_.width() - 1 - point.x());
    if (orientation_.testFlag(QImageIOHandler::TransformationFlip))
        point.setY(stored_.height() - 1 - point.y());
    return point;
}

bool QtDecoder::decodePixel(int column, int row, PixelRows& rows) {
    Reader reader(*this);
    reader.setClipRect({storedPoint(column, row), QSize(1, 1)});
    return handOver(reader.read(), rows);
}

} // namespace tintra
