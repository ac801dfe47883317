#pragma once

#include "platform/MainLoop.h"
#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/Subscriptions.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tintra {

/// The colours of a collapsed palette window, side by side or one below the other: the swatches, or
/// the harmony while the window shows one. Those that find no room of 24 px stand on further pages.
class StripCells final : public Canvas {
public:
    StripCells(Ui& ui, AppState& state, QWidget* parent);
    ~StripCells() override;

    void setOrientation(Qt::Orientation orientation);
    std::size_t pages() const;
    std::size_t page() const { return page_; }
    void turn(int by);
    /// Is told when there are other pages or another one is shown.
    std::function<void()> paged;
    /// Is asked for a menu at a place of the screen, of the colour that has the focus.
    std::function<void(QPoint)> contextMenu;
    /// The colour that has the focus; none without one.
    std::optional<WashColor> current() const;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void focusMoved(int item) override;
    void hoverMoved(int item, QPointF place) override;
    int neighbour(int from, Qt::Key key) const override;
    int overhang() const override { return 0; }

    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool showsSwatches() const;
    std::vector<WashColor> colours() const;
    std::optional<std::string> givenName(std::size_t at) const;
    std::string nameOf(std::size_t at, const WashColor& colour) const;
    std::size_t perPage() const;
    void showPage(std::size_t page);
    void again();
    void syncSelection();
    void copy(std::size_t at);
    void startDrag(std::size_t at);

    Ui& ui_;
    AppState& state_;
    Qt::Orientation orientation_ = Qt::Horizontal;
    std::size_t page_ = 0;
    int pressed_ = -1;
    QPointF pressedAt_;
    std::optional<std::size_t> copied_; ///< what was just copied
    std::unique_ptr<DelayedTask> copiedShown_;
    Subscriptions subscriptions_;
};

} // namespace tintra
