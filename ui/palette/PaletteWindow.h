#pragma once

#include "colour/WashColor.h"
#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/actions/ActionTable.h"

#include <QWidget>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tintra {

class NoticeBar;

/// The window of one palette: tool bar, canvas, foot, and the panels that open beside them. Main
/// loop.
class PaletteWindow final : public QWidget {
public:
    PaletteWindow(Ui& ui, AppState& state);
    ~PaletteWindow() override;

    AppState& state() const { return state_; }
    NoticeBar& notices() const;

    /// What swatch actions act on: the selected swatch, or the colour of a harmony that has the
    /// focus.
    struct Target {
        WashColor color;
        std::optional<std::string> name;   ///< given by the user
        std::optional<std::size_t> swatch; ///< its place in the palette; none for a harmony's
    };
    std::optional<Target> target() const;

    /// Columns or tiles; kept for the palette.
    PaletteDisplay display() const;
    void setDisplay(PaletteDisplay display);

    void showPasteSheet();
    void showExport();
    void beginRename();
    void setPeeking(bool peeks);
    bool showsMenuBar() const;
    void toggleMenuBar();
    /// Gives the keyboard to the menu bar, shown until it is done with.
    void openMenuBar();
    /// Gives the keyboard to the next (1) or the previous (-1) region.
    void focusRegion(int by);
    void showContextMenu();
    /// What is being typed counts as typed: before the window is asked about changes.
    void finishTyping();
    /// Closes without asking; the model is gone after this.
    void closeNow();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    struct Parts;

    ActionContext context();
    void assemble();
    void connectBody();
    void subscribe();
    void syncTitle();
    void syncPanels();
    void syncCollapsed();
    void syncOnTop();
    void popUp(QPoint at, void (*fill)(QMenu&, const ActionContext&));
    void setFlagInPlace(Qt::WindowType flag, bool on);
    /// The keyboard is where single letters are commands.
    bool isOnCanvas() const;
    std::vector<QWidget*> regions() const;
    // Sizes and places (PaletteWindowFrame.cpp)
    void restoreFrame();
    void takeModeSize();
    void growForEditor();
    void keepFrame();
    void resizeStrip();

    Ui& ui_;
    AppState& state_;
    std::unique_ptr<Parts> parts_;
};

} // namespace tintra
