#pragma once

#include "platform/Toasts.h"

#include <QPointer>
#include <QString>
#include <QWidget>
#include <deque>
#include <functional>
#include <memory>

namespace tintra {

class MainLoop;
class DelayedTask;
class Theme;

/// The last twenty notices of the run, oldest first.
class NoticeHistory {
public:
    void add(QString text);
    const std::deque<QString>& texts() const { return texts_; }

private:
    std::deque<QString> texts_;
};

/// The notice of a window: a pill at the top centre of its parent, 12 px below the top, replaced by
/// the next one. Pointer or keyboard focus stop its clock; a screen reader hears it.
class NoticeBar final : public QWidget {
public:
    NoticeBar(Theme& theme, MainLoop& loop, QWidget* over);
    ~NoticeBar() override;

    void present(const QString& text, double seconds, std::optional<ToastAction> action);
    const QString& text() const { return text_; }
    void dismiss();
    /// Goes, and does what the notice offers.
    void act();
    /// Px below the top of the parent.
    void setTop(int top);

protected:
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void place();
    void startClock();

    Theme& theme_;
    MainLoop& loop_;
    QString text_;
    double seconds_ = 0;
    std::optional<ToastAction> action_;
    std::unique_ptr<DelayedTask> clock_;
    QPointer<QWidget> cameFrom_; ///< what had the keyboard before
    int top_ = 12;
};

} // namespace tintra
