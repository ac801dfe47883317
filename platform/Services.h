#pragma once

namespace tintra {

class Background;
class Chance;
class Clipboard;
class Clock;
class DefaultsStore;
class Dialogues;
class FileBrowser;
class FolderWatch;
class Log;
class MainLoop;
class Scripting;
class Toasts;
class Trash;

/// What the models need of the desktop, handed in where the program is put together. Outlives them.
struct Services {
    Clock& clock;
    Chance& chance;
    MainLoop& mainLoop;
    Background& background;
    DefaultsStore& defaults;
    Clipboard& clipboard;
    Trash& trash;
    FileBrowser& fileBrowser;
    FolderWatch& folderWatch;
    Scripting& scripting;
    Toasts& toasts;
    Dialogues& dialogues;
    Log& log;
};

} // namespace tintra
