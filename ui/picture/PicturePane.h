#pragma once

#include "state/AppState.h"
#include "ui/Ui.h"

#include <QPropertyNotifier>
#include <QWidget>
#include <vector>

class QLabel;
class QPushButton;

namespace tintra {

class PictureCanvas;
struct Dropped;

/// The picture of a palette window with its pins, or the place for one. A picture that is dropped
/// here takes the place of the one before. Main loop.
class PicturePane final : public QWidget {
public:
    PicturePane(Ui& ui, AppState& state, QWidget* parent);
    ~PicturePane() override;

    PictureCanvas& canvas() const { return *canvas_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    class Ring;

    void assemble();
    void follow();
    void setTarget(bool isTarget);

    Ui& ui_;
    AppState& state_;
    PictureCanvas* canvas_;
    QWidget* place_; ///< for a picture, while there is none
    QLabel* icon_;
    QLabel* words_;
    QPushButton* choose_;
    Ring* ring_; ///< of a drop
    std::vector<QPropertyNotifier> subscriptions_;
};

} // namespace tintra
