#include "ui/palette/PaneDivider.h"

#include "state/Models.h"
#include "ui/picture/PictureSplit.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>

namespace tintra {
PaneDivider::PaneDivider(Ui& ui, QWidget* parent) : QWidget(parent), ui_(ui) {
    setCursor(Qt::SplitHCursor);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(worded("Share of the picture"));
}

void PaneDivider::paintEvent(QPaintEvent*) {
    if (!hasFocus()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintFocusRing(painter, ui_.theme, QRectF(rect()).adjusted(3, 3, -3, -3), 2);
}

void PaneDivider::mouseMoveEvent(QMouseEvent* event) {
    const auto at = mapToParent(event->pos()).x();
    ui_.models.preferences().pictureShare = PictureSplit::nearest(at, parentWidget()->width());
}

void PaneDivider::step(int by) {
    auto& share = ui_.models.preferences().pictureShare;
    const auto shares = allChoices<PictureShare>();
    const auto now = std::ranges::find(shares, share.value()) - shares.begin();
    const auto last = static_cast<std::ptrdiff_t>(shares.size()) - 1;
    share = shares[static_cast<std::size_t>(std::clamp<std::ptrdiff_t>(now + by, 0, last))];
}

void PaneDivider::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Left)
        step(-1);
    else if (event->key() == Qt::Key_Right)
        step(1);
    else
        QWidget::keyPressEvent(event);
}

} // namespace tintra
