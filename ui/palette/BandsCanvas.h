#pragma once

#include "platform/MainLoop.h"
#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/palette/BandsLayout.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/Subscriptions.h"

#include <functional>
#include <memory>
#include <optional>

class QMenu;

namespace tintra {

/// The colours of a harmony, a row a band: a table that is walked in two dimensions. Stands in a
/// scroll area, whose height it fills and where it grows beyond it.
class BandsCanvas final : public Canvas {
public:
    enum Kind { label, cell, more };
    /// Where a colour stands.
    struct Spot {
        std::size_t band = 0, column = 0;
        bool operator==(const Spot&) const = default;
    };

    BandsCanvas(Ui& ui, AppState& state, QWidget* parent);
    ~BandsCanvas() override;

    /// The colour that has the focus, or the first one.
    std::optional<ActionTarget> target() const;
    /// The item of a colour; -1 for none.
    int itemOf(Spot spot) const;

    /// Adds the rows about the colour that has the focus to its context menu.
    std::function<void(QMenu&)> fillMenu;
    /// Is told what to bring into view.
    std::function<void(const QRect&)> reveal;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void focusMoved(int item) override;
    void hoverMoved(int item, QPointF place) override;
    int neighbour(int from, Qt::Key key) const override;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void subscribe();
    void setWhole();
    BandPlaces places(QSizeF size) const;
    static Spot spotOf(const CanvasItem& item);
    /// The spot of the focus while the bands hold it.
    std::optional<Spot> current() const;
    const WashColor& colorAt(Spot spot) const;
    QString code(Spot spot) const;
    /// What a band or a colour is in its harmony: "120°", "First"; empty for most.
    QString labelOf(std::size_t band) const;
    QString markOf(Spot spot) const;
    CanvasItem cellItem(Spot spot, const QRectF& rect) const;
    SwatchLook look(const CanvasItem& item, ItemState state) const;
    void paintCell(QPainter& painter, const CanvasItem& item, ItemState state);
    void paintMore(QPainter& painter, const CanvasItem& item, ItemState state) const;

    std::size_t buttonsIn(const QRectF& cell) const;
    std::optional<int> buttonAt(int item, QPointF place) const;
    QString tipOf(int item, int button) const;
    void press(Spot spot, int button);
    void add(Spot spot);
    void startDrag(Spot spot);
    void flashCode();
    void openMenu(int item, QPoint at);
    void fillBandMenu(QMenu& menu, std::size_t band);
    void benchBand(std::size_t band);
    bool isBandBenched(std::size_t band) const;

    Ui& ui_;
    AppState& state_;
    mutable BandPlaces stand_; ///< what the items were made from
    int hoveredButton_ = -1, pressedButton_ = -1;
    int pressed_ = -1; ///< the item under a button of the mouse
    QPointF pressedAt_;
    std::optional<Spot> flashing_; ///< whose code was just copied
    std::unique_ptr<DelayedTask> flash_;
    Subscriptions subscriptions_;
};

} // namespace tintra
