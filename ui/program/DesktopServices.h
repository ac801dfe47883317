#pragma once

#include "platform/Chance.h"
#include "platform/Clock.h"
#include "platform/DesktopTrash.h"
#include "platform/FileDefaults.h"
#include "platform/Log.h"
#include "platform/Scripting.h"
#include "platform/Services.h"
#include "platform/ThreadPool.h"
#include "platform/desktop/services/DBusFileBrowser.h"
#include "platform/desktop/services/QtClipboard.h"
#include "platform/desktop/services/QtFolderWatch.h"
#include "platform/desktop/services/QtMainLoop.h"

namespace tintra {

/// The services of a real desktop, in an order in which each can rely on those before it. What
/// shows windows (notices and dialogues) is handed in.
class DesktopServices {
public:
    DesktopServices(Toasts& toasts, Dialogues& dialogues);

    Services& services() { return services_; }
    MainLoop& mainLoop() { return mainLoop_; }

private:
    SystemClock clock_;
    SystemChance chance_;
    StandardErrorLog log_;
    QtMainLoop mainLoop_;
    FileDefaults defaults_;
    QtClipboard clipboard_;
    DesktopTrash trash_;
    DBusFileBrowser fileBrowser_;
    QtFolderWatch folderWatch_;
    NoScripting scripting_;
    ThreadPool background_;
    Services services_;
};

} // namespace tintra
