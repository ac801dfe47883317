#pragma once

#include "ui/Ui.h"
#include "ui/settings/Binding.h"
#include "ui/settings/Form.h"

namespace tintra {

/// Colour management, the colour editor and the colour behind translucent swatches.
class ColourTab final : public Form {
public:
    explicit ColourTab(Ui& ui, QWidget* parent = nullptr);

private:
    void addProfiles();
    void addEditor();
    void fillCmyk(QMenu& menu);

    Ui& ui_;
    Bindings bindings_;
};

} // namespace tintra
