#include "ui/settings/ListFrame.h"

#include "ui/shared/Canvas.h"
#include "ui/shared/Theme.h"

#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace tintra {
namespace {

/// Keeps the corners of the canvas within the round ones of the border.
constexpr int kInset = 3;

} // namespace

ListFrame::ListFrame(Theme& theme, Canvas* canvas, QWidget* parent)
    : QWidget(parent), theme_(theme), scroll_(new QScrollArea(this)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kInset, kInset, kInset, kInset);
    layout->addWidget(scroll_);
    scroll_->setFrameShape(QFrame::NoFrame);
    scroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll_->setWidgetResizable(true);
    scroll_->setFocusPolicy(Qt::NoFocus);
    scroll_->verticalScrollBar()->setBackgroundRole(QPalette::Base);
    scroll_->setWidget(canvas);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void ListFrame::reveal(const QRectF& part) {
    const auto middle = part.center().toPoint();
    scroll_->ensureVisible(middle.x(), middle.y(), 0, static_cast<int>(part.height() / 2) + 1);
}

void ListFrame::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme_.color(Token::edge), 1));
    painter.setBrush(theme_.color(Token::raised));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), metrics::kControlRadius,
                            metrics::kControlRadius);
}

} // namespace tintra
