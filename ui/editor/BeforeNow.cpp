#include "ui/editor/BeforeNow.h"

#include "ui/shared/Controls.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QPainter>

namespace tintra {
namespace {

constexpr int kRadius = metrics::kControlRadius, kInset = 10;

} // namespace

BeforeNow::BeforeNow(Theme& theme, const SwatchPainter& painter, QWidget* parent)
    : QAbstractButton(parent), theme_(theme), painter_(painter) {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
    setAccessibleName(worded("Before"));
    setToolTip(worded("Back to the colour before"));
}

void BeforeNow::show(const WashColor& before, const WashColor& now, Vision vision) {
    if (before == before_ && now == now_ && vision == vision_) return;
    before_ = before;
    now_ = now;
    vision_ = vision;
    setAccessibleDescription(
        worded("Before %1, now %2").arg(fromUtf8(before.hex()), fromUtf8(now.hex())));
    update();
}

bool BeforeNow::hitButton(const QPoint& place) const {
    return rect().contains(place) && place.x() < width() / 2;
}

void BeforeNow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto middle = width() / 2;
    const QRectF left(0, 0, middle, height()), right(middle, 0, width() - middle, height());
    painter_.fill(painter, left, before_, vision_, {kRadius, 0, 0, kRadius});
    painter_.fill(painter, right, now_, vision_, {0, kRadius, kRadius, 0});
    painter_.hairline(painter, rect(), kRadius);
    const auto write = [&](const QRectF& in, const WashColor& on, Qt::Alignment side,
                           const QString& word) {
        auto place = in.adjusted(kInset, 0, -kInset, 0);
        const auto ink = painter_.foreground(on, vision_);
        painter.setFont(theme_.font(TextStyle::caption, ink));
        if (!on.isOpaque()) {
            // Words never stand on the backdrop's pattern.
            const auto wide = painter.fontMetrics().horizontalAdvance(word) + 12.0;
            const auto high = theme_.lineHeight(TextStyle::caption) + 4.0;
            const auto x = side & Qt::AlignLeft ? place.left() - 6 : place.right() + 6 - wide;
            painter.setPen(Qt::NoPen);
            painter.setBrush(toQColor(painter_.flat(on, vision_)));
            painter.drawRoundedRect(QRectF(x, place.center().y() - high / 2, wide, high),
                                    metrics::kChipRadius, metrics::kChipRadius);
        }
        painter.setPen(ink);
        painter.drawText(place, side | Qt::AlignVCenter, word);
    };
    write(left, before_, Qt::AlignLeft, worded("Before"));
    write(right, now_, Qt::AlignRight, worded("Now"));
    if (hasFocus()) {
        const auto ink = painter_.foreground(before_, vision_);
        painter.setPen(QPen(ink, metrics::kFocusWidth));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(left.adjusted(3, 3, -3, -3), metrics::kChipRadius,
                                metrics::kChipRadius);
    }
}

} // namespace tintra
