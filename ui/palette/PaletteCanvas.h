#pragma once

#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/palette/SwatchLayout.h"
#include "ui/picture/PinMarks.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/Subscriptions.h"

#include <QPointer>
#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tintra {

class PlacedField;

/// The swatches of a palette window: columns, tiles or rows. Words are renamed where they stand,
/// colours are dragged from here and dropped here.
class PaletteCanvas final : public Canvas {
public:
    enum Kind { swatch, addCell };

    PaletteCanvas(Ui& ui, AppState& state, QWidget* parent);
    ~PaletteCanvas() override;

    void setDisplay(PaletteDisplay display);
    /// Rows with the numbers of the picture's pins, as beside a picture.
    void setRows(bool picturePane);
    /// The selected colour alone fills the canvas.
    void setPeeking(bool peeks);
    void beginRename(std::size_t at);

    /// As it is shown: while it is edited, as the editor has it.
    WashColor colorAt(std::size_t at) const;

    /// Is asked for a menu at a place of the screen, of the selected swatch or of the canvas.
    std::function<void(QPoint, bool onSwatch)> contextMenu;
    /// Is told from which place to which a swatch of this palette would move; none: it does not.
    std::function<void(std::optional<std::pair<std::size_t, std::size_t>>)> moving;
    /// Is told what to bring into view.
    std::function<void(const QRect&)> reveal;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintOverlay(QPainter& painter) override;
    void focusMoved(int item) override;
    void hoverMoved(int item, QPointF place) override;
    int neighbour(int from, Qt::Key key) const override;
    int overhang() const override { return 8; }

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void subscribe();
    /// The swatch that is edited, and the one that was.
    void showEdited();
    SwatchPlaces places(QSizeF size) const;
    SwatchLook look(std::size_t at) const;
    QString code(std::size_t at, const std::string& name) const;
    CanvasItem itemOf(std::size_t at, const QRectF& rect) const;
    void paintAddCell(QPainter& painter, const CanvasItem& item, ItemState state) const;
    bool hasButtons(const CanvasItem& item) const;
    std::vector<SwatchButton> buttons(const CanvasItem& item, ItemState state) const;
    /// The number of its pin, for a swatch that has one.
    void markPin(SwatchLook& look, std::size_t at) const;
    void setWhole();
    void findPins();
    void syncSelection();
    std::optional<int> buttonAt(int item, QPointF place) const;
    void press(std::size_t swatch, int button);
    void clickWords(std::size_t swatch, QPointF place);
    QRect fieldPlace(std::size_t at) const;
    void startDrag(std::size_t at);
    std::size_t insertionAt(QPointF place) const;
    QRectF insertionBar() const;
    void setInsertion(std::optional<std::size_t> at);
    void scrollOn();
    void flashCode();

    Ui& ui_;
    AppState& state_;
    PaletteDisplay display_ = PaletteDisplay::columns;
    bool rows_ = false, peeks_ = false;
    std::vector<std::optional<PinMark>> pinned_; ///< a swatch its pin, beside a picture
    int hoveredButton_ = -1, pressedButton_ = -1;
    std::optional<std::size_t> pressed_; ///< swatch under a button of the mouse
    bool wasSelected_ = false;           ///< when it was pressed
    QPointF pressedAt_;
    std::optional<std::size_t> insertion_; ///< where a drop would go
    std::optional<Drag> offered_;          ///< what is dragged over the canvas
    std::optional<std::size_t> edited_;    ///< whose colour the editor has
    QPointF draggedAt_;
    std::unique_ptr<DelayedTask> scrolling_; ///< while the drag rests near an edge
    std::optional<std::size_t> flashing_;    ///< whose code was just copied
    std::unique_ptr<DelayedTask> flash_;
    QPointer<PlacedField> field_;
    std::size_t renamed_ = 0;
    mutable SwatchPlaces stand_; ///< as the items were laid out last
    Subscriptions subscriptions_;
};

} // namespace tintra
