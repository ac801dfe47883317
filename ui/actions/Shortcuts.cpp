#include "ui/actions/Shortcuts.h"

#include "ui/frame/MainWindow.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QWidget>

namespace tintra {

void installShortcuts(QWidget& window, WindowKind kind, const ContextOf& context) {
    for (const auto& row : allActions()) {
        if (row.scope != KeyScope::window || !row.perform || !row.in.contains(kind)) continue;
        for (const auto& keys : keySequences(row)) {
            auto* shortcut = new QShortcut(keys, &window);
            const auto act = [id = row.value, context] { perform(id, context()); };
            QObject::connect(shortcut, &QShortcut::activated, &window, act);
        }
    }
}

bool performCanvasKey(const QKeyEvent& event, const ActionContext& context) {
    // The menu key comes as an event of its own as well.
    if (event.key() == Qt::Key_Menu) return false;
    // The number pad's keys are the same to the table.
    const auto held = event.modifiers() & ~Qt::KeypadModifier;
    const QKeySequence pressed(QKeyCombination(held, static_cast<Qt::Key>(event.key())));
    for (const auto& row : allActions())
        if (row.scope == KeyScope::canvas && row.in.contains(context.window->kind()) &&
            keySequences(row).contains(pressed))
            return perform(row.value, context);
    return false;
}

} // namespace tintra
