#pragma once

namespace tintra {

class DesktopSettings;
class Models;
class NoticeHistory;
class SwatchPainter;
class Theme;
class Windows;
struct Services;

/// What every window works with. Outlives the windows.
struct Ui {
    Models& models;
    Services& services;
    Theme& theme;
    SwatchPainter& painter;
    Windows& windows;
    NoticeHistory& notices;
};

} // namespace tintra
