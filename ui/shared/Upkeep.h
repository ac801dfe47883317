#pragma once

#include <QEvent>
#include <QObject>
#include <QWidget>
#include <functional>
#include <utility>

namespace tintra {

/// Keeps what a widget shows in step with the models: at once while it is shown; else not before it
/// is laid out or shown, so that views which are away cost nothing. Main loop.
class Upkeep final : public QObject {
public:
    Upkeep(QWidget& of, std::function<void()> sync) : of_(of), sync_(std::move(sync)) {
        of.installEventFilter(this);
    }

    /// The models have changed.
    void due() {
        isDue_ = true;
        if (of_.isVisible()) keep();
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        switch (event->type()) {
        case QEvent::Show:
        case QEvent::Resize:
        case QEvent::StyleChange:
        case QEvent::LayoutRequest:
            keep();
            break;
        default:
            break;
        }
        return false;
    }

private:
    void keep() {
        if (std::exchange(isDue_, false)) sync_();
    }

    QWidget& of_;
    std::function<void()> sync_;
    bool isDue_ = false;
};

} // namespace tintra
