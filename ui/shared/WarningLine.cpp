#include "ui/shared/WarningLine.h"

#include "ui/shared/Prose.h"
#include "ui/shared/Theme.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>

namespace tintra {
namespace {

constexpr int kIcon = 16, kGap = 8, kMostLines = 3;

} // namespace

WarningLine::WarningLine(const Theme& theme, int width, QWidget* parent)
    : QWidget(parent), theme_(theme), icon_(new QLabel),
      words_(new Prose(theme, TextStyle::small, Token::ink, width ? width - kIcon - kGap : 0,
                       kMostLines)) {
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kGap);
    row->addWidget(icon_, 0, Qt::AlignTop);
    row->addWidget(words_, 1);
    drawIcon();
    hide();
}

void WarningLine::warn(const QString& sentence) {
    if (sentence == words_->prose()) return;
    words_->setProse(sentence);
    setVisible(!sentence.isEmpty());
    if (sentence.isEmpty()) return;
    QAccessibleEvent event(words_, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

const QString& WarningLine::sentence() const {
    return words_->prose();
}

void WarningLine::drawIcon() {
    icon_->setPixmap(theme_.icon("warning", kIcon, theme_.color(Token::ink), devicePixelRatioF()));
}

void WarningLine::changeEvent(QEvent* event) {
    if (event->type() == QEvent::StyleChange) drawIcon();
    QWidget::changeEvent(event);
}

} // namespace tintra
