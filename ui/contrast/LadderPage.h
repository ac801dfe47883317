#pragma once

#include "ui/Ui.h"
#include "ui/shared/Subscriptions.h"

#include <QWidget>

namespace tintra {

class CanvasScroll;
class FixedColour;
class LadderCanvas;
class Segmented;

/// The ladder with its fixed colour, and the choice of what that is.
class LadderPage final : public QWidget {
public:
    LadderPage(Ui& ui, QWidget* parent);

    LadderCanvas& ladder() const { return *ladder_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void sync();
    void layOut();

    Ui& ui_;
    FixedColour* fixed_;
    Segmented* fixes_;
    CanvasScroll* scroll_;
    LadderCanvas* ladder_;
    Subscriptions subscriptions_;
};

} // namespace tintra
