#pragma once

#include "state/ContrastBoard.h"
#include "ui/Ui.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/Subscriptions.h"
#include "ui/shared/Theme.h"

#include <optional>

namespace tintra {

/// A view of the pair on which colours are dropped: on the left half they become the text, on the
/// right half the ground.
class PairCanvas : public Canvas {
public:
    PairCanvas(Ui& ui, QWidget* parent);

protected:
    using Role = ContrastBoard::Role;

    Ui& ui() const { return ui_; }
    ContrastBoard& board() const { return board_; }
    Subscriptions& subscriptions() { return subscriptions_; }
    /// The half that stands for a role.
    virtual QRectF half(Role role) const;
    /// Of the ring about the half that would take a drop.
    virtual QColor ringInk() const { return theme().color(Token::ink); }

    void paintOverlay(QPainter& painter) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    Role roleAt(QPointF place) const;
    void setOver(std::optional<Role> role);

    Ui& ui_;
    ContrastBoard& board_;
    std::optional<Role> over_; ///< what a drop would become
    Subscriptions subscriptions_;
};

} // namespace tintra
