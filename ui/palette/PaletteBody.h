#pragma once

#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/palette/PaletteCanvas.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/Subscriptions.h"

#include <QWidget>
#include <functional>
#include <optional>

namespace tintra {

class BandsCanvas;
class CanvasScroll;
class DropRing;
class EditorPanel;
class EmptyState;
class PaneDivider;
class PicturePane;

/// What lies between the tools and the facts of a palette window: the picture, the swatches or the
/// bands or the empty state, and the colour editor.
class PaletteBody final : public QWidget {
public:
    PaletteBody(Ui& ui, AppState& state, QWidget* parent);

    PaletteCanvas& swatches() const { return *swatches_; }
    BandsCanvas& bands() const { return *bands_; }
    EmptyState& empty() const { return *empty_; }
    QWidget* picture() const;
    QWidget* editor() const;
    /// What is shown of swatches, bands and the empty state.
    Canvas* main() const;
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
    void layOutMain(QRect room);
    /// Places the picture and the divider and answers what they leave.
    QRect layOutPicture(QRect room);

    Ui& ui_;
    AppState& state_;
    PicturePane* picture_;
    PaneDivider* divider_;
    CanvasScroll *swatchScroll_, *bandScroll_;
    PaletteCanvas* swatches_;
    BandsCanvas* bands_;
    EmptyState* empty_;
    EditorPanel* editor_;
    DropRing* ring_; ///< round all of it while something is dragged over it
    Subscriptions subscriptions_;
};

} // namespace tintra
