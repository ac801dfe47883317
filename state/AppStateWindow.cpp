#include "state/AppState.h"
#include "state/AppUndo.h"
#include "state/NoticeTexts.h"
#include "state/Preferences.h"
#include "state/UpdateGroup.h"

#include <utility>

namespace tintra {

void AppState::toggleCollapsed() {
    const UpdateGroup group;
    isCollapsed = !isCollapsed.value();
    collapsedAutomatically = false;
}

void AppState::toggleEditor() {
    if (editorBuffer.value()) {
        // Shutting the editor keeps what was edited; undo takes it back.
        const UpdateGroup group;
        applyEdit();
        editorBuffer = std::nullopt;
    } else if (!swatches().empty()) {
        editSwatch(selectedSwatch.value().value_or(0));
    }
}

void AppState::toggleExpanded() {
    isExpanded = !isExpanded.value();
}

void AppState::applicationBecameActive() {
    if (!collapsedAutomatically.value()) return;
    const UpdateGroup group;
    isCollapsed = false;
    collapsedAutomatically = false;
}

void AppState::applicationResignedActive() {
    if (!context_.preferences.collapseWhenInactive.value() || isCollapsed.value()) return;
    const UpdateGroup group;
    isCollapsed = true;
    collapsedAutomatically = true;
}

void AppState::flashUndoable(std::string text, ToastPlace where) {
    toast(std::move(text), kBriefly, where,
          ToastAction{"Undo", [&undo = context_.undo, where] { undo.undo(where); }});
}

} // namespace tintra
