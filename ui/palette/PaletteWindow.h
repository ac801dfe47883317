#pragma once

#include "state/AppState.h"
#include "ui/frame/MainWindow.h"

#include <memory>
#include <optional>
#include <vector>

namespace tintra {

/// The window of one palette: tool bar, canvas, foot, and the panels that open beside them. Main
/// loop.
class PaletteWindow final : public MainWindow {
public:
    PaletteWindow(Ui& ui, AppState& state);
    ~PaletteWindow() override;

    AppState& state() const { return state_; }

    ActionContext context() override;
    /// The selected swatch, or the colour of a harmony that has the focus.
    std::optional<ActionTarget> target() const override;
    void copy(std::optional<ColorFormat> as = {}) override;
    QProperty<Vision>* vision() const override { return &state_.vision; }
    std::optional<FrontCapabilities::Clears> clears() const override;
    void clear() override;
    void pasteColours() override;
    void showPasteSheet() override;

    /// Columns or tiles; kept for the palette.
    PaletteDisplay display() const;
    void setDisplay(PaletteDisplay display);

    void showExport();
    void beginRename();
    void setPeeking(bool peeks);
    void openMenuBar() override;
    /// What is being typed counts as typed: before the window is asked about changes.
    void finishTyping();
    /// Closes without asking; the model is gone after this.
    void closeNow();

protected:
    std::vector<QWidget*> regions() const override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    struct Parts;

    void assemble();
    void connectBody();
    void subscribe();
    void syncTitle();
    void syncPanels();
    void syncCollapsed();
    void syncOnTop();
    void setFlagInPlace(Qt::WindowType flag, bool on);
    // Sizes and places (PaletteWindowFrame.cpp)
    void restoreFrame();
    void takeModeSize();
    void growForEditor();
    void keepFrame();
    void resizeStrip();

    AppState& state_;
    std::unique_ptr<Parts> parts_;
};

} // namespace tintra
