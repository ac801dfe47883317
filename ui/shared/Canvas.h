#pragma once

#include <QAccessible>
#include <QPointer>
#include <QWidget>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace tintra {

class Theme;

/// A thing on a canvas. Painting, hit tests, the keyboard walk, drops and accessibility read the
/// same list of them.
struct CanvasItem {
    QRectF rect;           ///< in the canvas
    int kind = 0;          ///< of the canvas's own list of kinds
    std::size_t index = 0; ///< which of its kind
    // What accessibility says of it. Items without a role are drawn and hit but not walked to:
    // text.
    QAccessible::Role role = QAccessible::NoRole;
    QString name{}, value{}, description{};
    bool selected = false;
    std::optional<bool> checked{};  ///< none for what is not checked and unchecked
    std::optional<bool> expanded{}; ///< none for what is not folded and unfolded
};

/// A painted view of items: one stop of the Tab key, walked with the arrows. A subclass says where
/// items are and paints each; everything else follows. Main loop.
class Canvas : public QWidget {
public:
    explicit Canvas(Theme& theme, QWidget* parent = nullptr);
    ~Canvas() override;

    const std::vector<CanvasItem>& items() const { return items_; }
    /// The topmost item at a place; -1 for none.
    int itemAt(QPointF place) const;
    int find(int kind, std::size_t index) const;
    /// Under the pointer, with the keyboard's focus; -1 for none.
    int hovered() const { return hovered_; }
    int focused() const { return focused_; }
    void setFocused(int item);
    /// Gives an item the keyboard's focus, and does with it what `activate` says.
    void takeFocus(int item);
    void press(int item);
    bool canPress(int item) const;
    /// The focus is shown: it came by keyboard, or contrast is high.
    bool showsFocus() const;

    /// Lays out anew, keeps focus on the same kind and index, tells accessibility what changed and
    /// repaints. Cheap to call often: it happens once before the next paint.
    void relayout();
    /// Repaints what an item covers, ring and bar included.
    void repaintItem(int item);

    Theme& theme() const { return theme_; }
    /// Is told when the focus has come to another item or items were laid out anew.
    std::function<void()> changed;
    /// What screen readers call the whole, and its role (List unless set).
    QAccessible::Role containerRole = QAccessible::List;

protected:
    /// How an item stands at the moment.
    struct ItemState {
        bool hovered = false, focused = false, pressed = false;
    };

    /// The items for a size, from back to front.
    virtual std::vector<CanvasItem> layoutItems(QSizeF size) const = 0;
    /// Covers all of `dirty`; the painter does not smooth edges.
    virtual void paintGround(QPainter& painter, const QRect& dirty);
    virtual void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) = 0;
    /// After all items: insertion bars, rings that overlap neighbours.
    virtual void paintOverlay(QPainter&) {}
    /// Whether the keyboard is being used: the focus is shown while it is, whatever brought it.
    void useKeyboard(bool uses);
    /// Where an arrow, Home, End or Page key leads from an item; the nearest item in that direction
    /// unless overridden; -1 to stay.
    virtual int neighbour(int from, Qt::Key key) const;
    /// The focus or the pointer has come to an item (-1: to none).
    virtual void focusMoved(int /*item*/) {}
    virtual void hoverMoved(int /*item*/, QPointF /*place*/) {}
    /// What a press or a toggle by a screen reader does; the Enter key unless overridden.
    virtual void activate(int item);
    /// Whether that does anything there.
    virtual bool activates(const CanvasItem& item) const;
    /// Makes one item the selected one (-1: none), without laying out anew.
    void markSelected(int item);
    /// Puts what has changed of one item in its place, and repaints it where it was and is.
    void setItem(int item, CanvasItem now);
    /// How far beyond its rectangle an item paints, px.
    virtual int overhang() const { return 6; }

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void layOut();
    void announce(QAccessible::Event what, int item);
    /// Tells accessibility how the items differ from those before.
    void announceChanges(const std::vector<CanvasItem>& before);
    void announceChange(const CanvasItem& was, int item);
    int pageNeighbour(int from, bool forward) const;

    Theme& theme_;
    std::vector<CanvasItem> items_;
    int hovered_ = -1, focused_ = -1;
    bool stale_ = true;
    bool focusByKeyboard_ = false;
};

/// Makes accessible children out of the items of every canvas; called once at start.
void installCanvasAccessibility();

} // namespace tintra
