#pragma once

#include "colour/Vision.h"
#include "colour/WashColor.h"
#include "ui/Ui.h"
#include "ui/shared/Canvas.h"

#include <functional>
#include <vector>

namespace tintra {

/// The colours that were copied or picked last, as chips to choose from.
class RecentColours final : public Canvas {
public:
    /// As they are when it is made.
    RecentColours(Ui& ui, Vision vision, QWidget* parent);

    std::function<void(const WashColor&)> chosen;
    QSize sizeHint() const override;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void hoverMoved(int item, QPointF place) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void activate(int item) override { choose(item); }

private:
    void choose(int item);

    Ui& ui_;
    const Vision vision_;
    const std::vector<WashColor> colours_;
};

} // namespace tintra
