#pragma once

#include "colour/Vision.h"
#include "ui/Ui.h"
#include "ui/shared/Subscriptions.h"

#include <QProperty>
#include <functional>

class QWidget;

namespace tintra {

class PopUpButton;

/// What every main window's foot lets choose: the kind of vision that the window is seen with, and
/// the format of codes. The foot owns the buttons and places them.
class FootChoices {
public:
    /// `vision` null for a window without.
    FootChoices(Ui& ui, QProperty<Vision>* vision, QWidget* foot);

    PopUpButton* vision() const { return visionButton_; } ///< null for a window without
    PopUpButton& format() const { return *formatButton_; }
    /// Is told when a choice has changed, and with it its width.
    std::function<void()> changed;

private:
    void sync();

    Ui& ui_;
    QProperty<Vision>* vision_;
    PopUpButton* visionButton_;
    PopUpButton* formatButton_;
    Subscriptions subscriptions_;
};

} // namespace tintra
