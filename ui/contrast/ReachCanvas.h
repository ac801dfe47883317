#pragma once

#include "colour/ContrastTarget.h"
#include "state/ContrastBoard.h"
#include "ui/Ui.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/Subscriptions.h"
#include "ui/shared/Upkeep.h"

#include <optional>

namespace tintra {

/// How the pair can be taken to the target by moving one of its colours: for each of them a row
/// with a button that does it, or the sentence that says why not.
class ReachCanvas final : public Canvas {
public:
    enum Kind { proposal, use, message };

    ReachCanvas(Ui& ui, QWidget* parent);

    int heightNeeded() const;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    using Role = ContrastBoard::Role;

    /// How wide the parts of a row are, px, over both rows: nothing for what is in neither.
    struct Columns {
        qreal title = 0, code = 0, distance = 0, ratio = 0;
    };

    void sync();
    Columns columns() const;
    const Contrast::ReachProposal* of(Role role) const;
    QString codeOf(Role role) const;
    CanvasItem rowItem(Role role, const QRectF& in) const;
    CanvasItem useItem(const CanvasItem& row) const;
    void paintSample(QPainter& painter, Role role, const QRectF& in) const;
    void paintProposal(QPainter& painter, const CanvasItem& item) const;
    /// Between the sample and the ratio: all on one line, or the title above the rest.
    void paintInLine(QPainter& painter, Role role, const QRectF& in) const;
    void paintStacked(QPainter& painter, Role role, const QRectF& in) const;
    void paintUse(QPainter& painter, const CanvasItem& item, ItemState state) const;
    void take(std::size_t index);

    Ui& ui_;
    ContrastBoard& board_;
    std::optional<Contrast::ReachReport> report_; ///< none while the pair is not complete
    Columns columns_;
    int pressed_ = -1;
    Upkeep upkeep_{*this, [this] { sync(); }};
    Subscriptions subscriptions_;
};

} // namespace tintra
