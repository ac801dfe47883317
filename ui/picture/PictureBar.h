#pragma once

#include "platform/MainLoop.h"
#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/shared/Controls.h"

#include <QPropertyNotifier>
#include <QPushButton>
#include <QWidget>
#include <memory>
#include <vector>

namespace tintra {

/// Below a picture: its name, how many colours are found in it and which, and their way into the
/// palette. Shown while there is a picture. Where there is no room for all of it, words go first.
class PictureBar final : public QWidget {
public:
    PictureBar(Ui& ui, AppState& state, QWidget* parent);
    ~PictureBar() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

private:
    void assemble();
    void follow();
    void followExtracting();
    void choose(int emphasis);
    void arrange();

    Ui& ui_;
    AppState& state_;
    Stepper count_;
    Segmented emphases_;
    PopUpButton emphasis_; ///< in place of the former where that has no room
    QPushButton add_;
    ToolButton plus_; ///< in place of that button
    ToolButton close_;
    QRect nameRoom_, captionRoom_; ///< of the words that are painted; empty where there is no room
    std::unique_ptr<DelayedTask> wait_; ///< until it is said that colours are being found
    bool saysFinding_ = false;
    std::vector<QPropertyNotifier> subscriptions_;
};

} // namespace tintra
