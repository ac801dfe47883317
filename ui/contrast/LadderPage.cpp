#include "ui/contrast/LadderPage.h"

#include "state/Models.h"
#include "ui/contrast/FixedColour.h"
#include "ui/contrast/LadderCanvas.h"
#include "ui/shared/CanvasScroll.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QPainter>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kHead = 58, kTop = 3, kSide = 20, kGap = 12, kRing = 4;

} // namespace

LadderPage::LadderPage(Ui& ui, QWidget* parent)
    : QWidget(parent), ui_(ui), fixed_(new FixedColour(ui, this)),
      fixes_(new Segmented(ui.theme, {{worded("Ground"), {}}, {worded("Text"), {}}}, this)),
      scroll_(new CanvasScroll(this)), ladder_(new LadderCanvas(ui, nullptr)) {
    auto& board = ui.models.contrast();
    fixes_->setAccessibleName(worded("Fixed colour is the"));
    fixes_->chosen = [&board](int choice) { board.ladderFixesGround = choice == 0; };
    scroll_->hold(*ladder_);
    ladder_->reveal = [this](const QRect& what) { scroll_->reveal(what); };
    const auto again = [this] { sync(); };
    subscriptions_.add(board.content(), again);
    subscriptions_.add(board.ladderFixesGround, again);
    subscriptions_.add(ui.models.preferences().format, again);
    subscriptions_.add(ui.theme.version(), again);
    sync();
}

void LadderPage::sync() {
    fixes_->setCurrent(ui_.models.contrast().ladderFixesGround ? 0 : 1);
    layOut();
    update();
}

void LadderPage::layOut() {
    const auto head = ui_.theme.scaled(kHead);
    const auto size = fixes_->sizeHint();
    fixes_->setGeometry(
        QRect(QPoint(width() - kSide - size.width(), (head - size.height()) / 2 + kTop), size));
    const auto fixed = fixed_->sizeHint();
    const auto most = fixes_->x() - kSide - kGap;
    fixed_->setGeometry(kSide - kRing, (head - fixed.height()) / 2 + kTop,
                        std::min(fixed.width(), std::max(0, most)), fixed.height());
    scroll_->setGeometry(0, head, width(), height() - head);
}

void LadderPage::resizeEvent(QResizeEvent*) {
    layOut();
}

void LadderPage::paintEvent(QPaintEvent*) {
    const auto& theme = ui_.theme;
    QPainter painter(this);
    painter.fillRect(rect(), theme.color(Token::ground));
    painter.setFont(theme.font(TextStyle::body));
    painter.setPen(theme.color(Token::ink2));
    const auto label = worded("Fixed colour is the");
    const auto end = fixes_->x() - kGap;
    if (fixed_->geometry().right() + kGap + painter.fontMetrics().horizontalAdvance(label) < end)
        painter.drawText(QRect(0, fixes_->y(), end, fixes_->height()),
                         Qt::AlignRight | Qt::AlignVCenter, label);
}

} // namespace tintra
