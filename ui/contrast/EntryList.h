#pragma once

#include "state/ContrastBoard.h"
#include "ui/Ui.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/Subscriptions.h"

#include <QPointer>
#include <cstddef>
#include <functional>
#include <optional>

class QMenu;

namespace tintra {

class PlacedField;

/// The colours of the contrast board in the user's order, with the roles that two of them have.
/// Colours are dragged from here and dropped here, and moved within; a narrow list shows their
/// chips alone.
class EntryList final : public Canvas {
public:
    enum Kind { entry, addRow };

    /// px at regular text size.
    static constexpr int kWidth = 224, kCompactWidth = 64;

    EntryList(Ui& ui, QWidget* parent);
    ~EntryList() override;

    /// The colour that commands act on; none while none has the focus.
    std::optional<Uuid> target() const;
    void beginRename(const Uuid& id);
    /// How high all rows together are, px.
    int heightNeeded() const;

    /// Is asked for the menu of the colour that has the focus.
    std::function<void(QMenu&)> fillMenu;
    /// Is asked for another colour.
    std::function<void()> addColour;
    /// Is told what to bring into view.
    std::function<void(const QRect&)> reveal;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void paintOverlay(QPainter& painter) override;
    void focusMoved(int item) override;
    void hoverMoved(int item, QPointF place) override;
    int neighbour(int from, Qt::Key key) const override;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    using Entry = ContrastBoard::Entry;
    using Role = ContrastBoard::Role;

    bool isCompact() const;
    std::optional<Role> roleOf(const Entry& of) const;
    QRectF chipRect(const CanvasItem& row) const;
    QRectF nameRect(const CanvasItem& row) const;
    /// The button that gives the row's colour a role.
    QRectF roleRect(const CanvasItem& row, Role role) const;
    std::optional<Role> roleAt(int item, QPointF place) const;
    void paintWords(QPainter& painter, const CanvasItem& row, bool hovered) const;
    void paintBadge(QPainter& painter, const CanvasItem& row, Role role) const;
    void paintRoleButtons(QPainter& painter, const CanvasItem& row) const;
    void paintAddRow(QPainter& painter, const CanvasItem& row, bool hovered) const;
    void startDrag(std::size_t at);
    void followEntry();
    std::size_t insertionAt(QPointF place) const;
    QRectF insertionBar() const;

    Ui& ui_;
    ContrastBoard& board_;
    std::optional<Role> hoveredRole_;
    int pressed_ = -1;
    QPointF pressedAt_;
    std::optional<std::size_t> insertion_; ///< where an entry would move to
    bool isOver_ = false;                  ///< something that can be taken is dragged over it
    bool isMoving_ = false;                ///< that is an entry of the list
    std::optional<Uuid> entry_;            ///< the one with the focus, wherever it stands
    QPointer<PlacedField> field_;
    Subscriptions subscriptions_;
};

} // namespace tintra
