#include "state/QuickPick.h"

#include "platform/Services.h"
#include "state/CopiedColour.h"
#include "state/NoticeTexts.h"
#include "state/Preferences.h"

namespace tintra {

void quickPickWithoutWindow(const WashColor& colour, AppState::Modifiers modifiers,
                            Services& services, Preferences& preferences) {
    services.clipboard.set(
        copiedColour(colour, {}, preferences.format, preferences.formatOptions.value()));
    preferences.remember(colour);
    const bool wantedWindow = modifiers.command || modifiers.option || modifiers.shift;
    services.toasts.show(wantedWindow ? noWindowText(colour) : copiedText(colour), kBriefly, {},
                         {});
}

} // namespace tintra
