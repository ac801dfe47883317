#include "ui/program/Application.h"

#include "colour/ColorNames.h"
#include "state/Preferences.h"
#include "state/Workspaces.h"
#include "ui/bench/BenchWindow.h"
#include "ui/contrast/ContrastWindow.h"
#include "ui/exporting/ExportDialogue.h"
#include "ui/help/AboutWindow.h"
#include "ui/help/ShortcutsWindow.h"
#include "ui/library/LibraryWindow.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/settings/SettingsWindow.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/PanelAccessibility.h"
#include "ui/shared/TintraStyle.h"

#include <QApplication>
#include <algorithm>
#include <type_traits>
#include <utility>

namespace tintra {
namespace {

/// In front of other windows, with the keyboard.
void bringUp(QWidget& window) {
    window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
    window.show();
    // A menu that asked for it gives the keyboard back to its own window first.
    const auto raise = [&window] {
        window.raise();
        window.activateWindow();
    };
    QMetaObject::invokeMethod(&window, raise, Qt::QueuedConnection);
}

/// Leaves the keyboard where it is.
void showQuietly(QWidget& window) {
    window.setAttribute(Qt::WA_ShowWithoutActivating);
    window.show();
    window.setAttribute(Qt::WA_ShowWithoutActivating, false);
}

/// Decides first whether colours are light or dark where the style asks for a palette.
Rgb rgbOf(const QColor& color) {
    return {color.redF(), color.greenF(), color.blueF()};
}

Rgb meanOf(const QColor& one, const QColor& other) {
    return {(one.redF() + other.redF()) / 2.0, (one.greenF() + other.greenF()) / 2.0,
            (one.blueF() + other.blueF()) / 2.0};
}

} // namespace

Application::Application(Surroundings surroundings)
    : desktopSettings_(std::move(surroundings.settings)), toasts_(notices_, notifications_),
      services_(std::move(surroundings), toasts_, dialogues_),
      models_(services_.services(),
              PaletteSurroundings::ofThisSystem(
                  services_.services().mainLoop, services_.services().background,
                  services_.services().folderWatch, services_.services().trash)),
      theme_(models_.preferences(), *desktopSettings_),
      painter_(theme_, models_.preferences()), ui_{models_, services_.services(),
                                                   theme_,  painter_,
                                                   *this,   notices_},
      requests_(ui_),
      sessionEnd_({.keep = [this] { models_.keep(); }, .leave = [this] { leave(); }}) {
    // The first colours that are shown need their names: they are read beside all that follows.
    services_.services().background.run([] { ColorNames::shared().loadIfNeeded(); });
    installPanelAccessibility();
    installCanvasAccessibility();
    dialogues_.setTheme(theme_);
    dialogues_.windowOf = [this](const ToastPlace& place) { return window(place); };
    dialogues_.saveDialogue = [this](const SaveQuestion& question, auto answered) {
        auto* state = models_.workspaces().state(question.over.palette);
        if (state)
            (new ExportDialogue(ui_, *state, question, std::move(answered), window(question.over)))
                ->open();
        else
            answered(std::nullopt);
    };
    connectNotices();
    connectModels();
    applyTheme();
}

Application::~Application() {
    delete bench_;
    delete contrast_;
    delete library_;
    delete settings_;
    delete shortcuts_;
    delete about_;
}

void Application::connectNotices() {
    toasts_.barOf = [this](const ToastPlace& place) -> NoticeBar* {
        if (place.window == ToastWindow::settings && settings_) return &settings_->notices();
        auto* window = mainWindow(place);
        return window ? &window->notices() : nullptr;
    };
}

void Application::connectModels() {
    auto& requests = models_.preferences().windows;
    requests.openMainWindow = [this] { requests_.activate(); };
    requests.openBenchWindow = [this] { openBench(); };
    requests.openContrastWindow = [this] { openContrast(); };
    requests.openLibraryWindow = [this] { openLibrary(); };
    // Who sends one colour after the other goes on where he is.
    models_.bench().openWindow = [this] { showBeside(bench_); };
    requests.openSettingsWindow = [this] { openSettings(); };
    requests.openShortcutsWindow = [this] { openShortcuts(); };
    requests.openAboutWindow = [this] { openAbout(); };
    requests.openAcknowledgementsWindow = [this] { openAcknowledgements(); };
    requests.openNewWindow = [this](const Uuid& id) { openPalette(id); };
    models_.setThemeSurfaces([this] {
        return ThemeSurfaces{
            .ground = rgbOf(theme_.color(Token::ground)),
            .checks = meanOf(theme_.color(Token::checkLight), theme_.color(Token::checkDark))};
    });
    QObject::connect(qApp, &QGuiApplication::lastWindowClosed, qApp, [this] { quit(); });
}

void Application::applyTheme() {
    const auto apply = [this] {
        // A new style makes every widget measure itself anew, which fonts of another size need.
        qApp->setStyle(new TintraStyle(theme_));
        qApp->setPalette(qApp->style()->standardPalette());
        qApp->setFont(theme_.font(TextStyle::body));
    };
    apply();
    themeChanged_ = QPropertyNotifier(theme_.version(), apply);
}

void Application::start(const std::vector<std::filesystem::path>& files) {
    // The first is in front; the display may show windows in another order than it is told of them.
    const auto opening = models_.start([this](const Uuid& id) {
        if (palettes_.empty())
            openPalette(id);
        else
            showQuietly(paletteWindow(id));
    });
    if (opening.library) showBeside(library_);
    if (opening.bench) showBeside(bench_);
    if (opening.contrast) showBeside(contrast_);
    if (palettes_.empty() && opening == Models::Opening{})
        openPalette(models_.workspaces().openPrimary().id());
    if (!files.empty()) requests_.open(files);
}

PaletteWindow* Application::palette(const Uuid& id) const {
    const auto found = palettes_.find(id);
    return found == palettes_.end() ? nullptr : found->second.get();
}

std::vector<PaletteWindow*> Application::palettes() const {
    std::vector<PaletteWindow*> windows;
    for (const auto& id : ui_.models.workspaces().order().value())
        if (auto* window = palette(id)) windows.push_back(window);
    return windows;
}

QWidget* Application::window(const ToastPlace& place) const {
    if (place.window == ToastWindow::settings) return settings_;
    return mainWindow(place);
}

MainWindow* Application::mainWindow(const ToastPlace& place) const {
    switch (place.window) {
    case ToastWindow::palette:
        return palette(place.palette);
    case ToastWindow::bench:
        return bench_;
    case ToastWindow::contrast:
        return contrast_;
    case ToastWindow::library:
        return library_;
    case ToastWindow::settings:
    case ToastWindow::none:
        break;
    }
    return nullptr;
}

PaletteWindow& Application::paletteWindow(const Uuid& id) {
    auto& window = palettes_[id];
    if (!window) window = std::make_unique<PaletteWindow>(ui_, *models_.workspaces().state(id));
    return *window;
}

void Application::openPalette(const Uuid& id) {
    bringUp(paletteWindow(id));
}

bool Application::isOnlyWindow(const QWidget* window) const {
    const auto others = QApplication::topLevelWidgets();
    return std::ranges::none_of(others, [window](const QWidget* other) {
        return other != window && other->isVisible() && other->windowType() == Qt::Window &&
               !other->parentWidget() && other->testAttribute(Qt::WA_QuitOnClose);
    });
}

void Application::closePalette(const Uuid& id) {
    // The last window is the program: it comes back at the next start.
    if (isOnlyWindow(palette(id))) return quit();
    models_.workspaces().close(id, [this, id](bool closed) {
        if (!closed) return;
        // The window may be in the middle of the event that closes it.
        const auto window = palettes_.extract(id);
        if (window.empty()) return;
        window.mapped()->closeNow();
        window.mapped().release()->deleteLater();
    });
}

template <class Window>
Window& Application::only(QPointer<Window>& window) {
    if (!window) {
        window = new Window(ui_);
        window->setAttribute(Qt::WA_DeleteOnClose);
        // Settings and help do not keep the program running.
        window->setAttribute(Qt::WA_QuitOnClose, std::is_base_of_v<MainWindow, Window>);
    }
    return *window;
}

template <class Window>
void Application::showOnly(QPointer<Window>& window) {
    bringUp(only(window));
}

template <class Window>
void Application::showBeside(QPointer<Window>& window) {
    if (!window) showQuietly(only(window));
}

void Application::openBench() {
    showOnly(bench_);
}

void Application::openContrast() {
    showOnly(contrast_);
}

void Application::openLibrary() {
    showOnly(library_);
}

void Application::openSettings() {
    showOnly(settings_);
}

void Application::openShortcuts() {
    showOnly(shortcuts_);
}

void Application::openAbout() {
    showOnly(about_);
}

void Application::openAcknowledgements() {
    showOnly(about_);
    about_->showAcknowledgements();
}

void Application::quit() {
    for (auto* window : palettes())
        window->finishTyping();
    models_.quit([](bool quits) {
        // Not QApplication::quit, which would close every window again, each with its question.
        if (quits) QApplication::exit();
    });
}

void Application::leave() {
    for (auto* window : palettes())
        window->finishTyping();
    models_.keep();
    QApplication::exit();
}

} // namespace tintra
