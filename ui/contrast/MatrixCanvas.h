#pragma once

#include "state/ContrastReadings.h"
#include "ui/Ui.h"
#include "ui/contrast/EntryDrag.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/Subscriptions.h"
#include "ui/shared/TextLines.h"
#include "ui/shared/Upkeep.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

class QMenu;

namespace tintra {

/// Every pair of the first ten colours. A pair that reaches the target is a cell of its own ground;
/// one that does not is a bare figure, so colour in the grid means that it passes.
class MatrixCanvas final : public Canvas {
public:
    /// A cell's index is its row by the count of colours, and its column.
    enum Kind { columnHead, rowHead, cell };

    MatrixCanvas(Ui& ui, QWidget* parent);

    struct Passing {
        std::size_t passing, of;
    };
    Passing passing() const;
    /// The colour of the head that has the focus.
    std::optional<Uuid> target() const;
    /// Of the cell that has the focus; empty for none.
    QString figureText() const;
    int heightNeeded() const;

    /// Is told what to bring into view.
    std::function<void(const QRect&)> reveal;
    /// Is asked for the menu of the head that has the focus.
    std::function<void(QMenu&)> fillMenu;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    int neighbour(int from, Qt::Key key) const override;
    void focusMoved(int item) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    using Entry = ContrastBoard::Entry;
    struct Grid {
        qreal left, top; ///< of the first cell
        QSizeF step;
    };
    struct Pair {
        const Entry *text, *ground; ///< the same one on the diagonal
    };

    void sync();
    std::size_t count() const { return names_.size(); }
    Grid grid(qreal width) const;
    Pair pairOf(std::size_t index) const;
    CanvasItem cellItem(std::size_t index, const QRectF& in) const;
    void paintHead(QPainter& painter, const CanvasItem& item) const;
    void paintCell(QPainter& painter, const CanvasItem& item) const;
    void paintFigure(QPainter& painter, const QRectF& in, const ContrastReading& reading,
                     const QColor& ink, const QColor& sample) const;
    void openPair(int item);

    Ui& ui_;
    ContrastBoard& board_;
    std::vector<QString> names_;            ///< of the colours
    std::vector<ContrastReading> readings_; ///< of the cells
    mutable TextLines lines_;
    EntryPull pull_;
    Upkeep upkeep_{*this, [this] { sync(); }};
    Subscriptions subscriptions_;
};

} // namespace tintra
