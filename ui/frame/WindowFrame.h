#pragma once

#include "state/Geometry.h"

#include <QObject>
#include <QRect>
#include <functional>

class QWidget;

namespace tintra {

/// A window's inner frame as it is kept, and back, in whole pixels and sane bounds.
QRect rectOf(const StoredFrame& frame);
StoredFrame storedFrame(const QRect& rect);
/// Brought onto the screen where it stood, or the first one, when that has gone.
QRect onScreen(QRect frame);

/// Tells where the user puts a window and how large he makes it. Not told of while it is hidden,
/// maximised, full screen or minimised: it goes back from there. Owned by the window.
class FrameKeeper final : public QObject {
public:
    FrameKeeper(QWidget& window, std::function<void(const StoredFrame&)> changed);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& window_;
    std::function<void(const StoredFrame&)> changed_;
};

} // namespace tintra
