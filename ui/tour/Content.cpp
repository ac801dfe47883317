#include "ui/tour/Content.h"

#include <QBuffer>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <string_view>
#include <utility>

namespace tintra::tour {
namespace {

using Named = std::pair<const char*, std::string_view>;

constexpr std::array kHarbour{
    Named{"Ink Well", "14213d"},     Named{"Harbour", "1f4e79"},  Named{"Slack Tide", "3e7cb1"},
    Named{"Morning Haze", "a3c9e2"}, Named{"Salt", "eef1ec"},     Named{"Buoy", "f4a93b"},
    Named{"Signal", "e4572e"},       Named{"Dry Dock", "8f2d20"}, Named{"Rope", "cbae82"},
    Named{"Kelp", "36543a"},         Named{"Lichen", "9db17c"},   Named{"Slate Roof", "58626b"},
};

struct Hue {
    const char* name;
    std::array<std::string_view, 8> steps;
};
constexpr std::array kScale{
    Hue{"Brick", {"ffe9e5", "fcbcb3", "f29184", "e26457", "c24238", "992c25", "6e1d18", "42130f"}},
    Hue{"Amber", {"ffebd6", "f0c69a", "e1a055", "ca7d00", "a26400", "7c4b00", "593400", "381e00"}},
    Hue{"Moss", {"e8f3db", "c0d8a4", "99be68", "74a220", "5a8300", "446400", "2f4600", "1b2b00"}},
    Hue{"Sea", {"d4f6fa", "92dde6", "2ec5d3", "00a4b1", "00848e", "00646d", "00474d", "002b30"}},
    Hue{"Indigo", {"e9eeff", "bdccff", "95aafb", "7087f2", "5468d3", "3e4da8", "2a3679", "192149"}},
};

constexpr QSize kFerry(1168, 904);

void paintSkyAndSea(QPainter& painter) {
    QLinearGradient sky(0, 0, 0, 492);
    for (const auto& [at, colour] : {std::pair(0.0, 0xff2f4270U), std::pair(0.42, 0xff8c7aa0U),
                                     std::pair(0.73, 0xffe8a27aU), std::pair(1.0, 0xfff3cf86U)})
        sky.setColorAt(at, QColor::fromRgb(colour));
    painter.fillRect(0, 0, 1168, 492, sky);
    QLinearGradient sea(0, 492, 0, 904);
    for (const auto& [at, colour] :
         {std::pair(0.0, 0xffe8a27aU), std::pair(0.4, 0xff6d6792U), std::pair(1.0, 0xff2c4066U)})
        sea.setColorAt(at, QColor::fromRgb(colour));
    painter.fillRect(0, 492, 1168, 412, sea);
    painter.setBrush(QColor(0xfb, 0xe3, 0xa3));
    painter.drawEllipse(QPointF(786, 386), 74, 74);
    painter.setBrush(QColor(0xe9, 0xb9, 0x80));
    for (const auto& glint :
         {QRectF(724, 512, 124, 6), QRectF(748, 540, 78, 6), QRectF(708, 570, 152, 6),
          QRectF(758, 606, 72, 6), QRectF(732, 648, 112, 6)})
        painter.drawRoundedRect(glint, 3, 3);
}

void paintHills(QPainter& painter) {
    QPainterPath far(QPointF(0, 462));
    far.cubicTo(160, 330, 350, 380, 460, 430);
    far.cubicTo(640, 500, 800, 380, 1168, 474);
    far.lineTo(1168, 494);
    far.lineTo(0, 494);
    painter.fillPath(far, QColor(0x54, 0x50, 0x70));
    QPainterPath near(QPointF(0, 490));
    near.cubicTo(200, 440, 360, 490, 560, 484);
    near.cubicTo(760, 476, 960, 490, 1168, 490);
    near.lineTo(1168, 494);
    near.lineTo(0, 494);
    painter.fillPath(near, QColor(0x3a, 0x3f, 0x5c));
    QPainterPath left(QPointF(0, 800));
    left.cubicTo(180, 740, 280, 850, 420, 850);
    left.cubicTo(560, 850, 620, 890, 704, 904);
    left.lineTo(0, 904);
    painter.fillPath(left, QColor(0x1c, 0x2b, 0x2e));
    QPainterPath right(QPointF(780, 904));
    right.cubicTo(940, 830, 980, 780, 1168, 770);
    right.lineTo(1168, 904);
    painter.fillPath(right, QColor(0x25, 0x3a, 0x3c));
}

void paintBoat(QPainter& painter) {
    painter.setBrush(QColor(0xe2, 0xb0, 0x4a));
    painter.drawPolygon(QPolygon{QPoint(354, 448), QPoint(354, 700), QPoint(250, 700)});
    painter.setBrush(QColor(0xf1, 0xe7, 0xd2));
    painter.drawPolygon(QPolygon{QPoint(370, 400), QPoint(370, 700), QPoint(510, 700)});
    painter.fillRect(QRect(356, 374, 12, 336), QColor(0x2b, 0x23, 0x3c));
    painter.fillRect(QRect(250, 810, 272, 18), QColor(0x6d, 0x30, 0x40));
    QPainterPath hull(QPointF(232, 728));
    hull.lineTo(606, 728);
    hull.cubicTo(600, 780, 570, 788, 540, 788);
    hull.lineTo(300, 788);
    hull.cubicTo(270, 788, 244, 770, 232, 728);
    painter.fillPath(hull, QColor(0xc2, 0x45, 0x2d));
    painter.fillRect(QRect(228, 710, 382, 20), QColor(0xf1, 0xe7, 0xd2));
}

} // namespace

WashColor colour(std::string_view hex) {
    std::uint32_t rgb = 0;
    std::from_chars(hex.data(), hex.data() + hex.size(), rgb, 16);
    const auto part = [rgb](unsigned shift) { return (rgb >> shift & 0xffU) / 255.0; };
    return {part(16), part(8), part(0), 1};
}

Palette harbourLight(std::size_t count) {
    Palette palette{"Harbour Light", {}, {}};
    for (std::size_t i = 0; i < std::min(count, kHarbour.size()); ++i) {
        palette.colours.push_back(colour(kHarbour.at(i).second));
        palette.names.emplace_back(kHarbour.at(i).first);
    }
    return palette;
}

Palette interfaceScale() {
    Palette palette{"Interface Scale", {}, {}};
    for (const auto& hue : kScale)
        for (std::size_t i = 0; i < hue.steps.size(); ++i) {
            palette.colours.push_back(colour(hue.steps.at(i)));
            palette.names.emplace_back(std::string(hue.name) + ' ' + std::to_string(i + 1) + "00");
        }
    return palette;
}

std::string eveningFerry() {
    QImage picture(kFerry, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    paintSkyAndSea(painter);
    paintHills(painter);
    paintBoat(painter);
    painter.end();
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "png");
    return bytes.toStdString();
}

} // namespace tintra::tour
