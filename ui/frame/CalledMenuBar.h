#pragma once

#include <QMenuBar>
#include <QPointer>

namespace tintra {

/// A menu bar that is hidden until it is called, unless it is pinned, and gives the focus back when
/// it is left. Main loop.
class CalledMenuBar final : public QMenuBar {
public:
    explicit CalledMenuBar(QWidget* parent);

    bool isPinned() const { return isPinned_; }
    void setPinned(bool pinned);
    /// Shows it and opens its first menu; where it is being used already, leaves it.
    void call();
    /// Once its menus are there: follows when they close.
    void followMenus();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void leave();
    void leaveWhenDone();

    QPointer<QWidget> before_; ///< had the focus when it was called
    bool isPinned_ = false;
};

} // namespace tintra
