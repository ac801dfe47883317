#pragma once

#include "colour/ContrastTarget.h"
#include "state/ContrastBoard.h"
#include "ui/Ui.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/Subscriptions.h"

#include <optional>

namespace tintra {

/// How the pair can be taken to the target by moving one of its colours: a row each, with a button
/// that does it, or the sentence that says why not.
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

    void sync();
    const Contrast::ReachProposal* of(Role role) const;
    QString codeOf(Role role) const;
    void addRow(std::vector<CanvasItem>& items, Role role, const QRectF& in) const;
    void paintSample(QPainter& painter, Role role, const QRectF& in) const;
    void paintProposal(QPainter& painter, const CanvasItem& item) const;
    void paintUse(QPainter& painter, const CanvasItem& item, ItemState state) const;
    void take(std::size_t index);

    Ui& ui_;
    ContrastBoard& board_;
    std::optional<Contrast::ReachReport> report_; ///< none while the pair is not complete
    int pressed_ = -1;
    Subscriptions subscriptions_;
};

} // namespace tintra
