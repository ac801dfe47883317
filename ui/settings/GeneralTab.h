#pragma once

#include "ui/Ui.h"
#include "ui/settings/Binding.h"
#include "ui/settings/Form.h"

namespace tintra {

/// Appearance, opening, palette windows, sending to other programs, and the way back to the
/// defaults.
class GeneralTab final : public Form {
public:
    explicit GeneralTab(Ui& ui, QWidget* parent = nullptr);

private:
    void addAppearance();
    void addPaletteWindows();
    void addIntegrations();
    void askToReset();

    Ui& ui_;
    Bindings bindings_;
};

} // namespace tintra
