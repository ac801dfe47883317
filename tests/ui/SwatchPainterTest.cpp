#include "ui/shared/SwatchPainter.h"

#include "tests/ui/Desk.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <set>

namespace tintra::test {
namespace {

const WashColor kRed{1, 0, 0, 1}, kBlue{0, 0, 1, 1};

TEST(SwatchPainterTest, NeighboursMeetWithoutASeamAtEveryRatio) {
    Desk desk;
    for (const auto ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        for (const auto edge : {41, 42, 43}) {
            SCOPED_TRACE(std::to_string(ratio) + " at " + std::to_string(edge));
            QImage image((QSizeF(100, 40) * ratio).toSize(), QImage::Format_RGB32);
            image.setDevicePixelRatio(ratio);
            image.fill(Qt::green);
            QPainter painter(&image);
            painter.setRenderHint(QPainter::Antialiasing);
            // The first has round corners at its left, as in a group.
            desk.painter.fill(painter, QRectF(0, 0, edge, 40), kRed, Vision::typical, {8, 0, 0, 8});
            desk.painter.fill(painter, QRectF(edge, 0, 100 - edge, 40), kBlue, Vision::typical);
            painter.end();
            std::set<QRgb> colours;
            for (int x = 0; x < image.width(); ++x)
                colours.insert(image.pixel(x, image.height() / 2));
            EXPECT_EQ(colours, (std::set<QRgb>{0xffff0000, 0xff0000ff}));
        }
    }
}

TEST(SwatchPainterTest, ButtonsStandWithinTheSwatchAndBesideEachOther) {
    Desk desk;
    struct Row {
        SwatchShape shape;
        QSizeF size;
        bool stacks;
    };
    for (const auto& row :
         {Row{SwatchShape::column, {84, 480}, true}, Row{SwatchShape::column, {200, 480}, false},
          Row{SwatchShape::column, {84, 200}, false}, Row{SwatchShape::onSide, {64, 400}, true},
          Row{SwatchShape::tile, {164, 140}, false}, Row{SwatchShape::row, {280, 44}, false}}) {
        SCOPED_TRACE(std::to_string(row.size.width()) + " by " + std::to_string(row.size.height()));
        const QRectF swatch(QPointF(10, 20), row.size);
        const auto buttons = desk.painter.buttonRects(swatch, row.shape, 5);
        ASSERT_EQ(buttons.size(), 5U);
        std::set<qreal> lefts;
        for (const auto& one : buttons) {
            lefts.insert(one.left());
            EXPECT_TRUE(swatch.contains(one));
            for (const auto& other : buttons)
                EXPECT_TRUE(&one == &other || !one.intersects(other));
        }
        EXPECT_EQ(lefts.size() == 1, row.stacks);
    }
}

} // namespace
} // namespace tintra::test
