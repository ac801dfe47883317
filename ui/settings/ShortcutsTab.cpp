#include "ui/settings/ShortcutsTab.h"

#include "ui/program/Windows.h"
#include "ui/shared/Text.h"

namespace tintra {

ShortcutsTab::ShortcutsTab(Ui& ui, QWidget* parent) : Form(ui.theme, parent) {
    auto* open = new QPushButton(worded("Keyboard Shortcuts…"), this);
    QObject::connect(open, &QPushButton::clicked, this, [&ui] { ui.windows.openShortcuts(); });
    add(worded("In the windows"), open);
    addCaption(worded("Every key of every window, with a search"));
    finish();
}

} // namespace tintra
