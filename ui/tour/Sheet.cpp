#include "ui/tour/Sheet.h"

#include <QImageWriter>
#include <QPainter>
#include <QSet>
#include <algorithm>
#include <cmath>

namespace tintra::tour {
namespace {

constexpr int kGap = 24, kMargin = 32;
constexpr QRgb kGround = 0xffb8b8b8;

QSize sizeOf(const QImage& picture) {
    return (QSizeF(picture.size()) / picture.devicePixelRatio()).toSize();
}

struct Row {
    std::size_t first = 0, last = 0;
    QSize size;
};

std::vector<Row> rowsOf(const std::vector<QImage>& pictures, std::size_t perRow) {
    std::vector<Row> rows;
    for (std::size_t first = 0; first < pictures.size(); first += perRow) {
        Row row{first, std::min(pictures.size(), first + perRow), {}};
        int width = -kGap, height = 0;
        for (auto i = row.first; i < row.last; ++i) {
            const auto size = sizeOf(pictures[i]);
            width += size.width() + kGap;
            height = std::max(height, size.height());
        }
        row.size = {width, height};
        rows.push_back(row);
    }
    return rows;
}

/// Nothing for a picture of more than 256 colours.
std::vector<QRgb> coloursOf(const QImage& picture) {
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x)
            colours.insert(line[x]);
        if (colours.size() > 256) return {};
    }
    std::vector<QRgb> sorted(colours.begin(), colours.end());
    std::ranges::sort(sorted);
    return sorted;
}

} // namespace

QImage sheet(const std::vector<QImage>& pictures, int perRow) {
    const auto rows = rowsOf(pictures, static_cast<std::size_t>(perRow));
    QSize whole(0, -kGap);
    for (const auto& row : rows)
        whole = {std::max(whole.width(), row.size.width()),
                 whole.height() + row.size.height() + kGap};
    whole += QSize(2 * kMargin, 2 * kMargin);
    const auto ratio = pictures.front().devicePixelRatio();
    QImage result((QSizeF(whole) * ratio).toSize(), QImage::Format_RGB32);
    result.setDevicePixelRatio(ratio);
    result.fill(kGround);
    QPainter painter(&result);
    int top = kMargin;
    for (const auto& row : rows) {
        int left = (whole.width() - row.size.width()) / 2;
        for (auto i = row.first; i < row.last; ++i) {
            painter.drawImage(left, top, pictures[i]);
            left += sizeOf(pictures[i]).width() + kGap;
        }
        top += row.size.height() + kGap;
    }
    return result;
}

bool writeSmall(const QImage& picture, const QString& file) {
    auto written = picture.convertToFormat(QImage::Format_RGB32);
    const auto colours = coloursOf(written);
    if (!colours.empty())
        written = written.convertToFormat(QImage::Format_Indexed8,
                                          QList<QRgb>(colours.begin(), colours.end()));
    QImageWriter writer(file, "png");
    constexpr int kSmallest = 100;
    writer.setCompression(kSmallest);
    return writer.write(written);
}

} // namespace tintra::tour
