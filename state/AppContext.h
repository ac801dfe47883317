#pragma once

namespace tintra {

class AppUndo;
class Bench;
class ContrastBoard;
class PaletteStore;
class PaletteWindows;
class Preferences;
struct Services;

/// The shared models that a palette window works with. Outlive it.
struct AppContext {
    Services& services;
    Preferences& preferences;
    AppUndo& undo;
    Bench& bench;
    ContrastBoard& contrast;
    PaletteStore& store;
    PaletteWindows& windows;
};

} // namespace tintra
