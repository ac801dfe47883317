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
    for (const auto* action : actions()) {
        auto* menu = action->menu();
        if (!menu) continue;
        menu->installEventFilter(this);
        // Later, when it is seen whether another menu follows.
        connect(
            menu, &QMenu::aboutToHide, this, [this] { leaveWhenDone(); }, Qt::QueuedConnection);
    }
}

bool CalledMenuBar::eventFilter(QObject* watched, QEvent* event) {
    const auto* menu = qobject_cast<QMenu*>(watched);
    if (event->type() != QEvent::KeyPress || !menu || menu->isVisible())
        return QMenuBar::eventFilter(watched, event);
    // A key that was under way when a menu closed (the toolkit asks the accessibility bus about
    // each) still comes to it: it is for the bar, or for what the bar has gone back to.
    leaveWhenDone();
    if (auto* keyboard = window()->focusWidget()) QCoreApplication::sendEvent(keyboard, event);
    return true;
}

void CalledMenuBar::leaveWhenDone() {
    if (!activeAction() && !QApplication::activePopupWidget()) leave();
}

void CalledMenuBar::leave() {
    setActiveAction(nullptr);
    // The window itself may not have the keyboard back yet.
    if (window()->focusWidget() == this && before_) before_->setFocus(Qt::PopupFocusReason);
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
