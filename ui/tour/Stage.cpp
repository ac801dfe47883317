#include "ui/tour/Stage.h"

#include "state/AppState.h"
#include "state/Preferences.h"
#include "state/Workspaces.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/Text.h"

#include <QEventLoop>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <QPainter>
#include <QStyleFactory>
#include <QTimer>
#include <cstdint>
#include <deque>
#include <stdexcept>
#include <utility>

namespace tintra::tour {

/// Work in the order in which it was given, between two events, unless it is held.
class OnMainLoop final : public Background {
public:
    void run(std::function<void()> work) override {
        if (holds_)
            held_.push_back(std::move(work));
        else
            QTimer::singleShot(0, &while_, std::move(work));
    }
    void hold() { holds_ = true; }
    void doHeld(Stage::Held which) {
        if (held_.empty()) throw std::logic_error("a scene waits for work that nobody asked for");
        const auto at = which == Stage::Held::first ? held_.begin() : held_.end() - 1;
        const auto work = std::move(*at);
        held_.erase(at);
        work();
    }

private:
    QObject while_;
    bool holds_ = false;
    std::deque<std::function<void()>> held_;
};

namespace {

/// The same values in every run (a multiplicative congruential generator, Knuth's MMIX multiplier;
/// its low bits are weak and are folded onto the high ones).
class FixedChance final : public Chance {
public:
    std::uint64_t bits() override {
        state_ = state_ * 6364136223846793005U + 1442695040888963407U;
        return state_ ^ (state_ >> 29U);
    }

private:
    // With this one an empty window shows the quotation that the guide shows.
    std::uint64_t state_ = 6;
};

struct FixedSettings final : DesktopSettings {
    explicit FixedSettings(bool contrast) {
        prefersHighContrast = contrast;
        reducesMotion = true;
    }
};

Surroundings surroundings(Look look, std::unique_ptr<Background> background) {
    const bool contrast = look == Look::contrastLight || look == Look::contrastDark;
    return {std::make_unique<FixedChance>(), std::move(background),
            std::make_unique<FixedSettings>(contrast)};
}

} // namespace

Stage::Stage(Look look) {
    const auto own = folder_.path().toUtf8();
    for (const auto* variable :
         {"HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR"})
        qputenv(variable, own);
    auto background = std::make_unique<OnMainLoop>();
    background_ = background.get();
    app_ = std::make_unique<Application>(surroundings(look, std::move(background)));
    app_->start({});
    const bool dark = look == Look::dark || look == Look::contrastDark;
    preferences().appearance = dark ? Appearance::dark : Appearance::light;
    settle();
}

Stage::~Stage() {
    app_.reset();
    // The style was the application's.
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

AppState& Stage::state() {
    return ui().models.workspaces().openPrimary();
}

PaletteWindow& Stage::window() {
    return *app_->palette(state().id());
}

void Stage::fill(const Palette& palette, QSize size) {
    window().resize(size);
    state().replacePalette(palette.colours, palette.names);
    const auto home = folder() / "Design" / "Palettes";
    std::filesystem::create_directories(home);
    if (!palette.name.empty()) state().saveAs(home / (palette.name + ".ase"), ExportFormat::ase);
    settle();
    window().notices().dismiss();
    ui().models.undo().discardEntries(state().id());
    settle();
}

void Stage::perform(ActionId action) {
    if (!tintra::perform(action, window().context()))
        throw std::logic_error("a scene asks for what cannot be done now");
    settle();
}

void Stage::settle(int milliseconds) {
    if (milliseconds > 0) {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }
    // What is posted by what happens is due too.
    constexpr int kRounds = 8;
    for (int round = 0; round < kRounds; ++round) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void Stage::holdBackground() {
    background_->hold();
}

void Stage::doHeld(Held which) {
    background_->doHeld(which);
    settle();
}

void Stage::mouse(QWidget& window, QPoint at, QEvent::Type type, Qt::MouseButton button) {
    auto* on = window.childAt(at);
    if (!on) on = &window;
    const auto buttons = type == QEvent::MouseButtonPress ? button : Qt::NoButton;
    QMouseEvent event(type, on->mapFrom(&window, at), window.mapToGlobal(at), button, buttons, {});
    QApplication::sendEvent(on, &event);
}

void Stage::point(QWidget& window, QPoint at) {
    mouse(window, at, QEvent::MouseMove, Qt::NoButton);
    settle();
}

void Stage::click(QWidget& window, QPoint at) {
    mouse(window, at, QEvent::MouseButtonPress, Qt::LeftButton);
    mouse(window, at, QEvent::MouseButtonRelease, Qt::LeftButton);
    settle();
}

void Stage::press(Qt::Key key, Qt::KeyboardModifiers with, const QString& text) {
    auto* on = QApplication::focusWidget();
    if (!on) throw std::logic_error("a scene presses a key where nothing has the keyboard");
    QKeyEvent down(QEvent::KeyPress, key, with, text), up(QEvent::KeyRelease, key, with, text);
    QApplication::sendEvent(on, &down);
    QApplication::sendEvent(on, &up);
    settle();
}

void Stage::write(const QString& text) {
    for (const auto letter : text)
        press(letter == u'\n' ? Qt::Key_Return : Qt::Key_unknown, {}, letter);
}

std::filesystem::path Stage::folder() const {
    return folder_.path().toStdString();
}

QImage Stage::grab(QWidget& widget) {
    settle();
    const auto whole = widget.grab().toImage();
    if (widget.mask().isEmpty()) return whole;
    QImage shown(whole.size(), QImage::Format_ARGB32_Premultiplied);
    shown.setDevicePixelRatio(whole.devicePixelRatio());
    shown.fill(Qt::transparent);
    QPainter painter(&shown);
    painter.setClipRegion(widget.mask());
    painter.drawImage(0, 0, whole);
    return shown;
}

} // namespace tintra::tour
