#include "ui/editor/CodeField.h"

#include "palettes/PasteColours.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QPainter>

namespace tintra {
namespace {

constexpr int kButton = 24, kIcon = 16;

} // namespace

CodeField::CodeField(Theme& theme, QWidget* parent)
    : QLineEdit(parent), theme_(theme), copy_(new ToolButton(theme, "copy", kButton, this)) {
    setAccessibleName(worded("Code"));
    copy_->setTitle(worded("Copy"), {});
    copy_->setCursor(Qt::ArrowCursor);
    connect(copy_, &QAbstractButton::clicked, this, [this] {
        if (copied) copied();
    });
    connect(this, &QLineEdit::textEdited, this, [this](const QString& typed) {
        setRefused(false);
        const auto color = PasteColours::colour(toUtf8(typed));
        if (color && read) read(*color);
    });
    connect(this, &QLineEdit::editingFinished, this, [this] { finish(); });
    restyle();
}

void CodeField::setCode(const QString& code) {
    if (code == code_ && (isModified() || text() == code)) return;
    const bool typing = isModified() && hasFocus() && !refused_;
    code_ = code;
    if (!typing) dropTyped();
}

void CodeField::dropTyped() {
    setText(code_);
    setCursorPosition(0);
    setModified(false);
    setRefused(false);
}

void CodeField::finish() {
    if (!isModified()) return;
    if (PasteColours::colour(toUtf8(text())))
        dropTyped();
    else
        setRefused(true);
}

void CodeField::setRefused(bool is) {
    if (is == refused_) return;
    refused_ = is;
    copy_->setVisible(!is);
    update();
    if (refused) refused(is);
}

void CodeField::restyle() {
    setFont(theme_.font(TextStyle::code));
    setTextMargins(0, 0, theme_.scaled(kButton), 0);
    update();
}

void CodeField::resizeEvent(QResizeEvent* event) {
    QLineEdit::resizeEvent(event);
    const auto side = theme_.scaled(kButton);
    copy_->setGeometry(width() - side - 4, (height() - side) / 2, side, side);
}

void CodeField::paintEvent(QPaintEvent* event) {
    QLineEdit::paintEvent(event);
    if (!refused_) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme_.color(Token::ink), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), metrics::kControlRadius,
                            metrics::kControlRadius);
    painter.drawPixmap(
        QPointF(width() - kIcon - 8, (height() - kIcon) / 2.0),
        theme_.icon("warning", kIcon, theme_.color(Token::ink), devicePixelRatioF()));
}

} // namespace tintra
