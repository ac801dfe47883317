#include "ui/shared/NameField.h"

#include "ui/shared/Canvas.h"
#include "ui/shared/Theme.h"

#include <QKeyEvent>

namespace tintra {

NameField::NameField(Canvas& on, const QRect& place, const QString& name,
                     const QString& placeholder)
    : QLineEdit(&on), canvas_(on) {
    setFont(on.theme().font(TextStyle::name));
    setGeometry(place);
    setText(name);
    setPlaceholderText(placeholder);
    setTextMargins(6, 0, 6, 0);
    selectAll();
    connect(this, &QLineEdit::editingFinished, this, [this] { end(true); });
    show();
    setFocus();
}

void NameField::end(bool keep) {
    if (ended_) return;
    ended_ = true;
    const bool hadKeyboard = hasFocus();
    hide();
    // It may be in the middle of the event that ends it.
    deleteLater();
    if (keep && kept) kept(text());
    if (gone) gone();
    if (hadKeyboard) canvas_.setFocus(Qt::OtherFocusReason);
}

void NameField::keyPressEvent(QKeyEvent* event) {
    // The keys that end it must not go on to the canvas, where they mean something else.
    switch (event->key()) {
    case Qt::Key_Escape:
        end(false);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        end(true);
        return;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace tintra
