#pragma once

#include "platform/desktop/services/DesktopNotifications.h"
#include "state/Models.h"
#include "ui/Ui.h"
#include "ui/program/DesktopRequests.h"
#include "ui/program/DesktopServices.h"
#include "ui/program/SessionEnd.h"
#include "ui/program/Windows.h"
#include "ui/shared/NoticeBar.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Theme.h"
#include "ui/shared/WindowDialogues.h"
#include "ui/shared/WindowToasts.h"

#include <QPointer>
#include <filesystem>
#include <memory>
#include <unordered_map>
#include <vector>

namespace tintra {

class AboutWindow;
class BenchWindow;
class ContrastWindow;
class LibraryWindow;
class MainWindow;
class SettingsWindow;
class ShortcutsWindow;

/// The composition root of the desktop application: services, models, theme and windows, put
/// together. One a process. Main loop.
class Application final : public Windows {
public:
    explicit Application(Surroundings surroundings = Surroundings::ofThisDesktop());
    ~Application() override;

    /// Brings back what was there, opens the files and shows the windows.
    void start(const std::vector<std::filesystem::path>& files);
    DesktopRequests& requests() { return requests_; }
    Ui& ui() { return ui_; }

    PaletteWindow* palette(const Uuid& id) const override;
    std::vector<PaletteWindow*> palettes() const override;
    QWidget* window(const ToastPlace& place) const override;
    void openPalette(const Uuid& id) override;
    void closePalette(const Uuid& id) override;
    void openBench() override;
    void openContrast() override;
    void openLibrary() override;
    void openSettings() override;
    void openShortcuts() override;
    void openAbout() override;
    void openAcknowledgements() override;
    void quit() override;

private:
    void applyTheme();
    void connectModels();
    void connectNotices();
    /// The main window of a place; none while it is closed.
    MainWindow* mainWindow(const ToastPlace& place) const;
    /// The window of a palette, made when it is not open.
    PaletteWindow& paletteWindow(const Uuid& id);
    bool isOnlyWindow(const QWidget* window) const;
    /// Ends the program without a question: everything is kept and comes back.
    void leave();
    /// The one window of its kind, made when it is not open.
    template <class Window>
    Window& only(QPointer<Window>& window);
    /// Shows it at the front, with the keyboard.
    template <class Window>
    void showOnly(QPointer<Window>& window);
    /// Shows it and leaves the keyboard where it is; nothing when it is open.
    template <class Window>
    void showBeside(QPointer<Window>& window);

    std::unique_ptr<DesktopSettings> desktopSettings_;
    NoticeHistory notices_;
    DesktopNotifications notifications_;
    WindowToasts toasts_;
    WindowDialogues dialogues_;
    DesktopServices services_;
    Models models_;
    Theme theme_;
    SwatchPainter painter_;
    Ui ui_;
    std::unordered_map<Uuid, std::unique_ptr<PaletteWindow>> palettes_;
    QPointer<BenchWindow> bench_;
    QPointer<ContrastWindow> contrast_;
    QPointer<LibraryWindow> library_;
    QPointer<SettingsWindow> settings_;
    QPointer<ShortcutsWindow> shortcuts_;
    QPointer<AboutWindow> about_;
    QPropertyNotifier themeChanged_;
    DesktopRequests requests_;
    SessionEnd sessionEnd_;
};

} // namespace tintra
