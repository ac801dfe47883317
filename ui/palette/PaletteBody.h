#pragma once

#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/palette/PaletteCanvas.h"
#include "ui/palette/PalettePanels.h"
#include "ui/shared/Subscriptions.h"

#include <QWidget>
#include <functional>
#include <optional>

class QScrollArea;

namespace tintra {

class PaneDivider;

/// What lies between the tools and the facts of a palette window: the picture, the swatches or the
/// bands or the empty state, and the colour editor.
class PaletteBody final : public QWidget {
public:
    PaletteBody(Ui& ui, AppState& state, QWidget* parent);

    PaletteCanvas& swatches() const { return *swatches_; }
    /// The colour of a harmony that has the focus.
    std::optional<PaletteWindow::Target> bandTarget() const { return bands_.target(); }
    QWidget* empty() const { return empty_; }
    QWidget* picture() const { return picture_; }
    QWidget* editor() const { return editor_; }
    /// What is shown of swatches, bands and the empty state.
    QWidget* main() const;
    void setDisplay(PaletteDisplay display) { swatches_->setDisplay(display); }

    /// Is told when what actions act on may have changed.
    std::function<void()> targetChanged;

    /// The width of the editor, px; beneath `kOverlayBelow` of the window it lies over the canvas.
    int editorWidth() const;
    static constexpr int kOverlayBelow = 640;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void subscribe();
    void layOut();
    /// Places the picture and the divider and answers what they leave.
    QRect layOutPicture(QRect room);

    Ui& ui_;
    AppState& state_;
    QScrollArea* scroll_;
    PaletteCanvas* swatches_;
    QWidget* empty_;
    palettePanels::Bands bands_;
    QWidget* picture_;
    PaneDivider* divider_;
    QWidget* editor_;
    QWidget* ring_; ///< round all of it while something is dragged over it
    Subscriptions subscriptions_;
};

} // namespace tintra
