#pragma once

#include "ui/contrast/PairCanvas.h"

#include <functional>

namespace tintra {

/// The two places of a pair that is not complete: dashed where a colour is missing, filled where
/// there is one. A missing one is chosen by dropping a colour, or asked for by clicking.
class PairHalves final : public PairCanvas {
public:
    PairHalves(Ui& ui, QWidget* parent);

    /// Is asked for a colour for a role, with the place of the screen to ask at.
    std::function<void(ContrastBoard::Role, QPoint)> choose;

protected:
    QRectF half(Role role) const override;
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    const ContrastBoard::Entry* holder(Role role) const;
    void ask(int item);
};

} // namespace tintra
