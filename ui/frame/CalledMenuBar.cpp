#include "ui/frame/CalledMenuBar.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMenu>

namespace tintra {

CalledMenuBar::CalledMenuBar(QWidget* parent) : QMenuBar(parent) {
    setNativeMenuBar(false);
    hide();
}

void CalledMenuBar::setPinned(bool pinned) {
    isPinned_ = pinned;
    setVisible(pinned);
}

void CalledMenuBar::call() {
    if (hasFocus()) {
        leave();
        return;
    }
    before_ = QApplication::focusWidget();
    show();
    setFocus(Qt::MenuBarFocusReason);
    setActiveAction(actions().first());
}

void CalledMenuBar::followMenus() {
    for (const auto* action : actions())
        // Later, when it is seen whether another menu follows.
        if (auto* menu = action->menu())
            connect(
                menu, &QMenu::aboutToHide, this, [this] { leaveWhenDone(); }, Qt::QueuedConnection);
}

void CalledMenuBar::leaveWhenDone() {
    if (!activeAction() && !QApplication::activePopupWidget()) leave();
}

void CalledMenuBar::leave() {
    setActiveAction(nullptr);
    if (hasFocus() && before_) before_->setFocus(Qt::PopupFocusReason);
    setVisible(isPinned_);
}

void CalledMenuBar::keyPressEvent(QKeyEvent* event) {
    QMenuBar::keyPressEvent(event);
    leaveWhenDone();
}

void CalledMenuBar::focusOutEvent(QFocusEvent* event) {
    QMenuBar::focusOutEvent(event);
    const auto reason = event->reason();
    if (reason != Qt::PopupFocusReason && reason != Qt::ActiveWindowFocusReason)
        setVisible(isPinned_);
}

} // namespace tintra
