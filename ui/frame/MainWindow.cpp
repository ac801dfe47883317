#include "ui/frame/MainWindow.h"

#include "platform/Clipboard.h"
#include "platform/DefaultsStore.h"
#include "platform/Services.h"
#include "state/Codec.h"
#include "state/CopiedColour.h"
#include "state/Models.h"
#include "ui/actions/Menus.h"
#include "ui/actions/Shortcuts.h"
#include "ui/frame/CalledMenuBar.h"
#include "ui/frame/WindowFrame.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/NoticeBar.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace tintra {
namespace {

/// The first widget within a region that the Tab key comes to; null for none.
QWidget* firstStop(QWidget* region) {
    const auto takes = [](const QWidget* widget) {
        return widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus);
    };
    if (takes(region)) return region;
    for (auto* next = region->nextInFocusChain(); next != region; next = next->nextInFocusChain())
        if (region->isAncestorOf(next) && takes(next)) return next;
    return nullptr;
}

} // namespace

MainWindow::MainWindow(Ui& ui, WindowKind kind, ToastPlace place)
    : ui_(ui), kind_(kind), place_(place) {
    installShortcuts(*this, kind, [this] { return context(); });
}

MainWindow::~MainWindow() = default;

void MainWindow::copy(std::optional<ColorFormat> as) {
    const auto on = target();
    if (on) copyColour(ui_.services, ui_.models.preferences(), on->color, on->name, as);
}

// Put together

QWidget* MainWindow::makeMenuBar(QWidget* in) {
    menuBar_ = new CalledMenuBar(in);
    fillMenuBar(*menuBar_, kind_, [this] { return context(); });
    menuBar_->followMenus();
    return menuBar_;
}

void MainWindow::makeNotices(QWidget* body) {
    notices_ = new NoticeBar(ui_.theme, ui_.services.mainLoop, body);
}

void MainWindow::assemble(QWidget* tools, QWidget* body, QWidget* facts) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(makeMenuBar(this));
    column->addWidget(tools);
    column->addWidget(body, 1);
    column->addWidget(facts);
    makeNotices(body);
}

void MainWindow::keepFrame(const std::optional<StoredFrame>& stood, QSize usual,
                           std::function<void(const StoredFrame&)> changed) {
    if (stood)
        setGeometry(onScreen(rectOf(*stood)));
    else
        resize(usual);
    new FrameKeeper(*this, std::move(changed));
}

void MainWindow::keepFrame(const std::string& key, QSize usual) {
    auto& records = ui_.services.defaults;
    const auto record = records.data(key);
    const auto json = record ? parsedJson(*record) : std::nullopt;
    keepFrame(json ? Codec<StoredFrame>::decode(*json) : std::nullopt, usual,
              [&records, key](const StoredFrame& frame) {
                  records.set(key, jsonText(Codec<StoredFrame>::encode(frame)));
              });
}

void MainWindow::popUp(QPoint at, const std::function<void(QMenu&)>& fill) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    fill(*menu);
    menu->popup(at);
}

// Menu bar and regions

bool MainWindow::showsMenuBar() const {
    return menuBar_->isPinned();
}

void MainWindow::toggleMenuBar() {
    menuBar_->setPinned(!menuBar_->isPinned());
}

void MainWindow::openMenuBar() {
    menuBar_->call();
}

void MainWindow::focusRegion(int by) {
    auto all = regions();
    std::erase_if(
        all, [](QWidget* region) { return !region || !region->isVisible() || !firstStop(region); });
    if (all.empty()) return;
    const auto* focus = QApplication::focusWidget();
    const auto here = std::ranges::find_if(all, [focus](const QWidget* region) {
        return focus && (region == focus || region->isAncestorOf(focus));
    });
    const auto count = static_cast<std::ptrdiff_t>(all.size());
    const auto next = here == all.end() ? 0 : (here - all.begin() + by + count) % count;
    firstStop(all[static_cast<std::size_t>(next)])->setFocus(Qt::TabFocusReason);
}

void MainWindow::showContextMenu() {
    auto* focus = QApplication::focusWidget();
    if (!focus || focus->window() != this) return;
    const auto middle = focus->rect().center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, middle, focus->mapToGlobal(middle));
    QApplication::sendEvent(focus, &event);
}

bool MainWindow::isOnCanvas() const {
    auto* focus = QApplication::focusWidget();
    return !focus || focus == this || dynamic_cast<Canvas*>(focus);
}

// Events

void MainWindow::changeEvent(QEvent* event) {
    if (event->type() == QEvent::ActivationChange) {
        altAlone_ = false;
        if (isActiveWindow()) ui_.models.vision().front = place_;
    }
    QWidget::changeEvent(event);
}

bool MainWindow::event(QEvent* event) {
    // A shortcut takes its key: nothing else tells that Alt was not held for itself.
    if (event->type() == QEvent::ShortcutOverride) altAlone_ = false;
    return QWidget::event(event);
}

void MainWindow::keyPressEvent(QKeyEvent* event) {
    // While a screen reader listens, keys come later than the shortcuts that follow them.
    altAlone_ = event->key() == Qt::Key_Alt && !event->isAutoRepeat() && isActiveWindow();
    if (isOnCanvas() && performCanvasKey(*event, context())) return;
    QWidget::keyPressEvent(event);
}

void MainWindow::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Alt && std::exchange(altAlone_, false)) openMenuBar();
    QWidget::keyReleaseEvent(event);
}

} // namespace tintra
