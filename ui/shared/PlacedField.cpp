#include "ui/shared/PlacedField.h"

#include <QKeyEvent>

namespace tintra {

PlacedField::PlacedField(const QString& text, const QRect& in, QWidget* on) : QLineEdit(text, on) {
    setGeometry(in);
    setTextMargins(6, 0, 6, 0);
    selectAll();
    show();
    setFocus(Qt::OtherFocusReason);
}

void PlacedField::end(bool keep) {
    if (done_) return;
    done_ = true;
    const bool hadKeyboard = hasFocus();
    hide();
    // It may be in the middle of the event that ends it.
    deleteLater();
    if (keep && kept) kept(text());
    if (ended) ended();
    if (hadKeyboard) parentWidget()->setFocus(Qt::OtherFocusReason);
}

void PlacedField::keyPressEvent(QKeyEvent* event) {
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
        // What the field has no use for is no command of the canvas.
        event->accept();
    }
}

void PlacedField::focusOutEvent(QFocusEvent* event) {
    QLineEdit::focusOutEvent(event);
    // Its own context menu is no leaving.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        end(true);
}

} // namespace tintra
