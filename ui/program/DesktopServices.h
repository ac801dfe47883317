#pragma once

#include "platform/Background.h"
#include "platform/Chance.h"
#include "platform/Clock.h"
#include "platform/DesktopTrash.h"
#include "platform/FileDefaults.h"
#include "platform/Log.h"
#include "platform/Scripting.h"
#include "platform/Services.h"
#include "platform/desktop/services/DBusFileBrowser.h"
#include "platform/desktop/services/QtClipboard.h"
#include "platform/desktop/services/QtFolderWatch.h"
#include "platform/desktop/services/QtMainLoop.h"
#include "ui/shared/DesktopSettings.h"

#include <memory>

namespace tintra {

/// What decides how a run of the program goes beside its user: of this desktop, or fixed where
/// every run is to be the same.
struct Surroundings {
    std::unique_ptr<Chance> chance;
    std::unique_ptr<Background> background;
    std::unique_ptr<DesktopSettings> settings;

    static Surroundings ofThisDesktop();
};

/// The services of a real desktop, in an order in which each can rely on those before it. What
/// shows windows (notices and dialogues) is handed in.
class DesktopServices {
public:
    DesktopServices(Surroundings surroundings, Toasts& toasts, Dialogues& dialogues);

    Services& services() { return services_; }
    MainLoop& mainLoop() { return mainLoop_; }

private:
    SystemClock clock_;
    std::unique_ptr<Chance> chance_;
    StandardErrorLog log_;
    QtMainLoop mainLoop_;
    FileDefaults defaults_;
    QtClipboard clipboard_;
    DesktopTrash trash_;
    DBusFileBrowser fileBrowser_;
    QtFolderWatch folderWatch_;
    NoScripting scripting_;
    std::unique_ptr<Background> background_;
    Services services_;
};

} // namespace tintra
