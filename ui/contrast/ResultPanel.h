#pragma once

#include "ui/Ui.h"
#include "ui/shared/Subscriptions.h"

#include <QWidget>

namespace tintra {

class LightnessRow;
class ReachCanvas;
class VerdictCanvas;

/// What is measured of the pair, at the left, and how it can be moved, at the right.
class ResultPanel final : public QWidget {
public:
    ResultPanel(Ui& ui, QWidget* parent);

    VerdictCanvas& verdict() const { return *verdict_; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();

    Ui& ui_;
    VerdictCanvas* verdict_;
    LightnessRow *text_, *ground_;
    ReachCanvas* reach_;
    Subscriptions subscriptions_;
};

} // namespace tintra
