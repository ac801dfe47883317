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

/// Every colour against the fixed one, the strongest first, between the rungs of the levels.
class LadderCanvas final : public Canvas {
public:
    enum Kind { rung, row };

    LadderCanvas(Ui& ui, QWidget* parent);

    std::size_t rowCount() const { return ladder_.rows.size(); }
    /// The colour of the row that has the focus.
    std::optional<Uuid> target() const;
    /// Its figure; empty for none.
    QString figureText() const;
    int heightNeeded() const;

    std::function<void(const QRect&)> reveal;
    /// Is asked for the menu of the row that has the focus.
    std::function<void(QMenu&)> fillMenu;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void focusMoved(int item) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    using Row = ContrastLadder::Row;

    void sync();
    void syncFace();
    const Row* focusedRow() const;
    QRectF barRect(const CanvasItem& item) const;
    void paintRung(QPainter& painter, const CanvasItem& item) const;
    void paintRow(QPainter& painter, const CanvasItem& item) const;
    void paintBar(QPainter& painter, const CanvasItem& item) const;
    void openPair(int item);

    Ui& ui_;
    ContrastBoard& board_;
    ContrastLadder ladder_;
    std::vector<QString> names_, others_; ///< of the rows: name, figure of the other measure
    QString words_;                       ///< the first sentence of the specimen
    QFont wordsFont_;
    mutable TextLines lines_;
    EntryPull pull_;
    Upkeep upkeep_{*this, [this] { sync(); }};
    Subscriptions subscriptions_;
};

} // namespace tintra
