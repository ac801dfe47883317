#pragma once

#include "ui/Ui.h"
#include "ui/settings/Form.h"

namespace tintra {

/// Where the keys of the program are found.
class ShortcutsTab final : public Form {
public:
    explicit ShortcutsTab(Ui& ui, QWidget* parent = nullptr);
};

} // namespace tintra
