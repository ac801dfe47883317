#pragma once

#include "state/Bench.h"
#include "ui/Ui.h"
#include "ui/bench/BenchLayout.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/Subscriptions.h"

#include <QPointer>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tintra {

class DelayedTask;
class PlacedField;

/// The columns of the Bench, the figures between them and the wells over them; while there are
/// none, what to begin with.
class BenchCanvas final : public Canvas {
public:
    enum Kind { column, link, figure, mix, well, headline, hint, beginning };

    BenchCanvas(Ui& ui, QWidget* parent);
    ~BenchCanvas() override;

    /// Of the active column.
    void beginRename();
    /// Inverts the code of the active item for a moment: it was copied.
    void flashCode();
    /// Puts the colours of a text on the Bench; says so when there are none.
    void receiveText(const std::string& text);

    /// Is asked for a menu at a place of the screen, of the active item or, when the place is
    /// empty, of the Bench.
    std::function<void(QPoint, bool onItem)> contextMenu;
    /// Is told what to bring into view.
    std::function<void(const QRect&)> reveal;
    /// Opens the sheet of typed values, and the mix of the active well.
    std::function<void()> typeOrPaste, adjustMix;
    /// Performs what the buttons of a column stand for, on the active column.
    std::function<void(int button)> pressed;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void paintOverlay(QPainter& painter) override;
    void focusMoved(int item) override;
    void hoverMoved(int item, QPointF place) override;
    int neighbour(int from, Qt::Key key) const override;
    bool activates(const CanvasItem& item) const override { return item.kind != figure; }
    int overhang() const override { return 8; }

    void resizeEvent(QResizeEvent* event) override;
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

private:
    void subscribe();
    void contentChanged();
    void layOutAnew();
    void setWhole();
    void syncSelection();

    // The items
    const BenchColumn& columnAt(std::size_t at) const { return bench_.benchColumns()[at]; }
    QString nameOf(const Uuid& column) const;
    QString code(const WashColor& color, const std::string& name) const;
    CanvasItem columnItem(std::size_t at) const;
    CanvasItem figureItem(std::size_t at, double ratio) const;
    CanvasItem mixItem(std::size_t at) const;
    CanvasItem wellItem(std::size_t at) const;
    void addLinks(std::vector<CanvasItem>& items) const;
    std::vector<CanvasItem> emptyItems(QSizeF size) const;
    /// The item of what is active; -1 for none.
    int itemOf(const std::optional<BenchSelection>& active) const;
    std::optional<BenchSelection> selectionOf(int item) const;

    // Painting
    SwatchLook look(const CanvasItem& item) const;
    void paintColumn(QPainter& painter, const CanvasItem& item, ItemState state) const;
    void paintBadge(QPainter& painter, const CanvasItem& item, qreal name) const;
    void paintFigure(QPainter& painter, const CanvasItem& item) const;
    void paintMix(QPainter& painter, const CanvasItem& item, ItemState state) const;
    void paintWell(QPainter& painter, const CanvasItem& item, ItemState state) const;
    void paintWords(QPainter& painter, const CanvasItem& item) const;
    bool hasButtons(const CanvasItem& item) const;
    std::optional<int> buttonAt(int item, QPointF place) const;

    // Pointer and drags
    /// The item there that can be worked: what lies on a column's figures and lines is the column.
    int workedAt(QPointF place) const;
    void click(int item);
    enum class Words { none, name, code };
    /// Of a column.
    Words wordsAt(int item, QPointF place) const;
    void toggleMix(std::size_t at);
    void startDrag(int item);
    std::size_t insertionAt(QPointF place) const;
    QRectF insertionBar() const;
    void setInsertion(std::optional<std::size_t> at);
    bool isRefused(const Drag& drag) const;

    Ui& ui_;
    Bench& bench_;
    BenchContent shown_; ///< what the items were made from
    mutable BenchPlaces stand_;
    int hoveredButton_ = -1, pressedButton_ = -1;
    int pressedItem_ = -1;
    std::optional<BenchSelection> pressedOn_; ///< the last time, with any button
    bool wasActive_ = false;                  ///< when it was pressed
    Words pressedWords_ = Words::none;
    QPointF pressedAt_;
    std::optional<std::size_t> insertion_; ///< where a drop would go
    std::optional<Drag> offered_;          ///< the colour that is dragged over the canvas
    bool isOffered_ = false;               ///< a colour or text is dragged over it
    std::optional<BenchSelection> flashing_;
    std::unique_ptr<DelayedTask> flash_;
    QPointer<PlacedField> field_;
    Subscriptions subscriptions_;
};

} // namespace tintra
