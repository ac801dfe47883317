#pragma once

#include "ui/Ui.h"
#include "ui/shared/Subscriptions.h"

#include <QWidget>

namespace tintra {

class CanvasScroll;
class MatrixCanvas;
class Segmented;

/// The matrix with what it comes to, and the choice of what its rows are.
class MatrixPage final : public QWidget {
public:
    MatrixPage(Ui& ui, QWidget* parent);

    MatrixCanvas& matrix() const { return *matrix_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void sync();
    void layOut();

    Ui& ui_;
    Segmented* rows_;
    CanvasScroll* scroll_;
    MatrixCanvas* matrix_;
    Subscriptions subscriptions_;
};

} // namespace tintra
