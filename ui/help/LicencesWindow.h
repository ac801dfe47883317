#pragma once

#include "ui/Ui.h"

#include <QDialog>

namespace tintra {

/// The licences of the program and of what it contains, to be read and copied.
class LicencesWindow final : public QDialog {
public:
    LicencesWindow(Ui& ui, QWidget* over);
};

} // namespace tintra
