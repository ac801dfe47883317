#pragma once

#include "state/LibraryFiles.h"
#include "state/PaletteLocations.h"
#include "ui/frame/MainWindow.h"
#include "ui/library/LibraryCanvas.h"

namespace tintra {

class LibraryFoot;
class LibraryTools;

/// The window of every palette in the watched folders, the colour picker and the system. Main loop.
class LibraryWindow final : public MainWindow {
public:
    explicit LibraryWindow(Ui& ui);
    ~LibraryWindow() override;

    LibraryModel& model() { return model_; }
    LibraryFiles& files() { return files_; }
    PaletteLocations& locations() { return locations_; }

    ActionContext context() override;
    /// The swatch in focus, of a palette that is unfolded.
    std::optional<ActionTarget> target() const override;

protected:
    std::vector<QWidget*> regions() const override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    // Folders are taken, to be watched.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void connectTools();
    void connectCanvas();
    void act(LibraryPanel::Action action);
    void answer(LibraryNote::About about, const std::optional<Uuid>& location);
    void openMenu(LibraryCanvas::MenuOf of, QPoint at);
    void takeFindRequest();

    LibraryModel model_;
    LibraryFiles files_;
    PaletteLocations locations_;
    LibraryTools* tools_;
    LibraryCanvas* canvas_;
    LibraryFoot* foot_;
    Subscriptions subscriptions_;
};

} // namespace tintra
