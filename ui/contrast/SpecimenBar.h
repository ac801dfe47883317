#pragma once

#include "ui/Ui.h"
#include "ui/shared/Subscriptions.h"
#include "ui/shared/TextLines.h"

#include <QWidget>

class QLineEdit;
class QPushButton;

namespace tintra {

class PopUpButton;

/// Face, size and weight of the specimen, what a browser would make of them, and the swap.
class SpecimenBar final : public QWidget {
public:
    static constexpr int kHeight = 44; ///< px at regular text size

    SpecimenBar(Ui& ui, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void sync();
    void layOut();
    void openFaces();
    void takeSize(double size);
    void readSize();

    Ui& ui_;
    PopUpButton *face_, *weight_;
    QLineEdit* size_;
    QPushButton* swap_;
    QString note_;
    QRect notePlace_;
    TextLines lines_;
    Subscriptions subscriptions_;
};

} // namespace tintra
