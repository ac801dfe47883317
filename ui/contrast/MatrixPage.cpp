#include "ui/contrast/MatrixPage.h"

#include "state/Models.h"
#include "ui/contrast/MatrixCanvas.h"
#include "ui/shared/CanvasScroll.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetrics>
#include <QPainter>

namespace tintra {
namespace {

constexpr int kHead = 54, kSide = 20, kTop = 16, kGap = 8;

} // namespace

MatrixPage::MatrixPage(Ui& ui, QWidget* parent)
    : QWidget(parent), ui_(ui),
      rows_(new Segmented(ui.theme, {{worded("Text"), {}}, {worded("Ground"), {}}}, this)),
      scroll_(new CanvasScroll(this)), matrix_(new MatrixCanvas(ui, nullptr)) {
    auto& board = ui.models.contrast();
    rows_->setAccessibleName(worded("Rows are"));
    rows_->chosen = [&board](int choice) { board.matrixRowsAreText = choice == 0; };
    scroll_->hold(*matrix_);
    matrix_->reveal = [this](const QRect& what) { scroll_->reveal(what); };
    const auto again = [this] { sync(); };
    subscriptions_.add(board.content(), again);
    subscriptions_.add(board.measure, again);
    subscriptions_.add(board.target, again);
    subscriptions_.add(board.size, again);
    subscriptions_.add(board.weight, again);
    subscriptions_.add(board.matrixRowsAreText, again);
    subscriptions_.add(ui.theme.version(), [this] {
        layOut();
        update();
    });
    sync();
}

void MatrixPage::sync() {
    rows_->setCurrent(ui_.models.contrast().matrixRowsAreText ? 0 : 1);
    update(0, 0, width(), scroll_->y());
}

void MatrixPage::layOut() {
    const auto head = ui_.theme.scaled(kHead);
    const auto size = rows_->sizeHint();
    rows_->setGeometry(QRect(QPoint(width() - kSide - size.width(), kTop), size));
    scroll_->setGeometry(0, head, width(), height() - head);
}

void MatrixPage::resizeEvent(QResizeEvent*) {
    layOut();
}

void MatrixPage::paintEvent(QPaintEvent*) {
    const auto& theme = ui_.theme;
    const auto& board = ui_.models.contrast();
    QPainter painter(this);
    painter.fillRect(rect(), theme.color(Token::ground));
    const auto [passing, of] = matrix_->passing();
    auto left = kSide;
    const auto write = [&](const QString& words, TextStyle style, Token ink) {
        const auto font = theme.font(style);
        painter.setFont(font);
        painter.setPen(theme.color(ink));
        painter.drawText(QRect(left, rows_->y(), width(), rows_->height()),
                         Qt::AlignLeft | Qt::AlignVCenter, words);
        left += QFontMetrics(font).horizontalAdvance(words) + kGap;
    };
    write(worded("%1 of %2 pairs pass").arg(passing).arg(of), TextStyle::name, Token::ink);
    write(shown(board.title(board.target)), TextStyle::body, Token::ink2);
    const auto label = worded("Rows are");
    painter.setFont(theme.font(TextStyle::body));
    const auto end = rows_->x() - kGap;
    if (left + painter.fontMetrics().horizontalAdvance(label) < end)
        painter.drawText(QRect(0, rows_->y(), end, rows_->height()),
                         Qt::AlignRight | Qt::AlignVCenter, label);
}

} // namespace tintra
