#include "ui/frame/FactsLine.h"

#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetrics>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace tintra {
namespace {

constexpr int kHeight = 40, kSide = 12, kGroupGap = 20, kLine = 20;

} // namespace

FactsLine::FactsLine(Ui& ui, QProperty<Vision>* vision, QWidget* parent)
    : QWidget(parent), ui_(ui), choices_(ui, vision, this) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(worded("Facts"));
    choices_.changed = [this] { layOut(); };
    subscriptions_.add(ui.theme.version(), [this] {
        updateGeometry();
        layOut();
    });
    layOut();
}

void FactsLine::setFacts(QStringList facts) {
    if (facts == facts_) return;
    facts_ = std::move(facts);
    setAccessibleDescription(facts_.join(worded(". ")));
    layOut();
}

QSize FactsLine::sizeHint() const {
    return {0, ui_.theme.scaled(kHeight)};
}

void FactsLine::layOut() {
    auto right = width() - kSide;
    const auto place = [&](PopUpButton* button) {
        if (!button) return;
        const auto hint = button->sizeHint();
        const auto high = std::max(hint.height(), ui_.theme.scaled(28));
        button->setGeometry(right - hint.width(), (height() - high) / 2, hint.width(), high);
        right -= hint.width() + kGroupGap;
    };
    place(&choices_.format());
    place(choices_.vision());
    factsEnd_ = right;
    cutFacts();
    update();
}

void FactsLine::cutFacts() {
    const auto font = ui_.theme.font(TextStyle::body);
    const auto room = factsEnd_ - kSide;
    const auto whole = facts_.join(worded(". "));
    auto left = facts_;
    shown_ = whole;
    while (left.size() > 1 && figuresWidth(font, shown_) > room) {
        left.removeFirst();
        shown_ = left.join(worded(". "));
    }
    shown_ = QFontMetrics(font).elidedText(shown_, Qt::ElideRight, room);
    setToolTip(shown_ == whole ? QString() : whole);
}

void FactsLine::resizeEvent(QResizeEvent*) {
    layOut();
}

void FactsLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto& theme = ui_.theme;
    painter.fillRect(rect(), theme.color(Token::panel));
    painter.fillRect(0, 0, width(), 1, theme.color(Token::line));
    if (choices_.vision())
        painter.fillRect(choices_.format().x() - kGroupGap / 2, (height() - kLine) / 2, 1, kLine,
                         theme.color(Token::line));
    painter.setFont(theme.font(TextStyle::body));
    painter.setPen(theme.color(Token::ink3));
    drawFigures(painter, QRect(kSide, 0, factsEnd_ - kSide, height()),
                Qt::AlignVCenter | Qt::AlignLeft, shown_);
}

} // namespace tintra
