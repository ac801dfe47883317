#include "ui/contrast/ResultPanel.h"

#include "ui/contrast/LightnessRow.h"
#include "ui/contrast/ReachCanvas.h"
#include "ui/contrast/VerdictCanvas.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QPainter>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kTop = 16, kSide = 20, kGap = 28, kNarrowGap = 16, kVerdict = 312, kLeast = 240;
constexpr int kReachGap = 4;

} // namespace

ResultPanel::ResultPanel(Ui& ui, QWidget* parent)
    : QWidget(parent), ui_(ui), verdict_(new VerdictCanvas(ui, this)),
      text_(new LightnessRow(ui, ContrastBoard::Role::text, this)),
      ground_(new LightnessRow(ui, ContrastBoard::Role::ground, this)),
      reach_(new ReachCanvas(ui, this)) {
    setAccessibleName(worded("Result"));
    subscriptions_.add(ui.theme.version(), [this] {
        updateGeometry();
        layOut();
        update();
    });
}

QSize ResultPanel::sizeHint() const {
    const auto moves = 2 * text_->sizeHint().height() + kReachGap + reach_->heightNeeded();
    return {0, std::max(verdict_->heightNeeded(), moves) + 2 * kTop};
}

void ResultPanel::layOut() {
    const auto& theme = ui_.theme;
    const auto inner = width() - 2 * kSide;
    const auto verdict =
        std::min(theme.scaled(kVerdict), std::max(theme.scaled(kLeast), inner * 38 / 100));
    const auto left = kSide + verdict + (inner > theme.scaled(640) ? kGap : kNarrowGap);
    const auto wide = std::max(0, width() - kSide - left);
    const auto row = text_->sizeHint().height();
    verdict_->setGeometry(kSide, kTop, verdict, height() - 2 * kTop);
    text_->setGeometry(left, kTop, wide, row);
    ground_->setGeometry(left, kTop + row, wide, row);
    reach_->setGeometry(left, kTop + 2 * row + kReachGap, wide, reach_->heightNeeded());
}

void ResultPanel::resizeEvent(QResizeEvent*) {
    layOut();
}

void ResultPanel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(ui_.theme.color(Token::panel));
    painter.drawRoundedRect(rect(), metrics::kGroupRadius, metrics::kGroupRadius);
}

} // namespace tintra
