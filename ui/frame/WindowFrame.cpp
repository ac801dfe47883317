#include "ui/frame/WindowFrame.h"

#include <QEvent>
#include <QGuiApplication>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

int rounded(double length) {
    constexpr double kMost = 100'000;
    return static_cast<int>(std::lround(std::clamp(length, -kMost, kMost)));
}

} // namespace

QRect rectOf(const StoredFrame& frame) {
    return {rounded(frame.x), rounded(frame.y), rounded(frame.width), rounded(frame.height)};
}

StoredFrame storedFrame(const QRect& rect) {
    return {static_cast<double>(rect.x()), static_cast<double>(rect.y()),
            static_cast<double>(rect.width()), static_cast<double>(rect.height())};
}

QRect onScreen(QRect frame) {
    const auto* screen = QGuiApplication::screenAt(frame.center());
    if (!screen) screen = QGuiApplication::primaryScreen();
    if (!screen) return frame;
    const auto room = screen->availableGeometry();
    frame.setSize(frame.size().boundedTo(room.size()));
    frame.moveLeft(std::clamp(frame.left(), room.left(), room.right() + 1 - frame.width()));
    frame.moveTop(std::clamp(frame.top(), room.top(), room.bottom() + 1 - frame.height()));
    return frame;
}

FrameKeeper::FrameKeeper(QWidget& window, std::function<void(const StoredFrame&)> changed)
    : QObject(&window), window_(window), changed_(std::move(changed)) {
    window.installEventFilter(this);
}

bool FrameKeeper::eventFilter(QObject*, QEvent* event) {
    const bool moved = event->type() == QEvent::Move || event->type() == QEvent::Resize;
    const bool stands = window_.isVisible() && !window_.isMaximized() && !window_.isFullScreen() &&
                        !window_.isMinimized();
    if (moved && stands) changed_(storedFrame(window_.geometry()));
    return false;
}

} // namespace tintra
