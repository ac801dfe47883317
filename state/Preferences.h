#pragma once

#include "colour/ColorFormat.h"
#include "colour/ColorProfiles.h"
#include "colour/FormatOptions.h"
#include "palettes/PaletteExport.h"
#include "palettes/PaletteLocation.h"
#include "palettes/PaletteSearch.h"
#include "state/Choices.h"

#include <QProperty>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tintra {

struct Services;

/// The user's settings: one document under "TintraPreferences", written whole with every change.
/// Main loop.
class Preferences {
public:
    explicit Preferences(Services& services);
    ~Preferences();
    Preferences(const Preferences&) = delete;
    Preferences& operator=(const Preferences&) = delete;

    static constexpr std::size_t kRecents = 24;
    /// The most palettes whose display `restore` takes over.
    static constexpr std::size_t kPaletteViews = 1000;

    // The settings, in the order of the document. Each change is written at once.

    QProperty<ColorFormat> format{ColorFormat(ColorFormat::cssHex)};
    QProperty<std::vector<ColorFormat>> formatFavourites;
    QProperty<FormatOptions> formatOptions;
    /// Copied or picked, newest first, no two the same swatch; see `remember`.
    QProperty<std::vector<WashColor>> recents;
    QProperty<Appearance> appearance{Appearance::system};
    QProperty<TypeSize> typeSize{TypeSize::regular};
    QProperty<SwatchBackdrop> swatchBackdrop{SwatchBackdrop::checkerboard};
    QProperty<WashColor> backdropColour; ///< for the custom backdrop
    QProperty<PickerStyle> editorPicker{PickerStyle::plane};
    QProperty<EditorSpace> editorSpace{EditorSpace::oklch};
    QProperty<bool> alwaysOnTop{false};
    QProperty<bool> collapseWhenInactive{false};
    QProperty<bool> showsWatermark{false};
    QProperty<SettingsTab> settingsTab{SettingsTab::general};
    QProperty<std::string> cmykProfile;
    QProperty<std::string> rgbProfile;
    QProperty<LabIlluminant> labIlluminant{LabIlluminant::d50};
    QProperty<std::set<std::string>> enabledIntegrations; ///< raw texts of AppIntegration
    QProperty<bool> hotKeyEnabled{true};
    QProperty<HotKeyCombo> hotKeyCombo{HotKeyCombo::optionCommandP};
    QProperty<std::vector<PaletteLocation>> paletteLocations;
    QProperty<bool> includeSystemPalettes{false};
    QProperty<bool> rescanOnLaunch{true};
    /// By the palette's path, or the window's identifier while it is untitled. Of too many,
    /// `restore` keeps the first by key: paths stand before identifiers, which may name windows
    /// long closed.
    QProperty<std::map<std::string, PaletteDisplay>> paletteViews;
    QProperty<std::set<std::string>> libraryExpanded, libraryCollapsed;
    QProperty<bool> libraryTiles{false};
    QProperty<ColourMatch> libraryMatch{ColourMatch::close};
    QProperty<bool> librarySortByName{true}, librarySortAscending{true}, librarySortByDate{false};
    QProperty<PictureShare> pictureShare{PictureShare::half};
    QProperty<OpeningState> opensWith{OpeningState::resume};
    QProperty<ExportFormat> lastExport{ExportFormat::ase};
    QProperty<HangSide> hangSide{HangSide::right};
    QProperty<CompactOrientation> compactOrientation{CompactOrientation::horizontal};
    QProperty<std::optional<Bytes>> colorsFolderBookmark;

    // What a run knows besides; not kept.

    QProperty<bool> hotKeyUnavailable{false};
    QProperty<bool> libraryFindRequested{false};
    QProperty<bool> shortcutsTabRequested{false};
    QProperty<std::uint64_t> scanGeneration{0};
    /// Goes up when the profiles have followed the settings that choose them: codes and figures
    /// that go through a profile may read differently then.
    QProperty<std::uint64_t> profilesVersion{0};

    /// Windows that models and menus ask for; set by the front end, empty until then.
    struct WindowRequests {
        std::function<void()> openSettingsWindow, openLibraryWindow, openBenchWindow,
            openContrastWindow, openAboutWindow, openShortcutsWindow, openAcknowledgementsWindow,
            openMainWindow;
        std::function<void(Uuid palette)> openPictureWindow, closePictureWindow;
        /// Shows the palette window that Workspaces has made.
        std::function<void(Uuid palette)> openNewWindow;
    };
    WindowRequests windows;

    /// Puts a colour first among the recent ones.
    void remember(const WashColor& color);

    /// Reads the document, once, at start: missing keys and unknown values keep their defaults.
    void restore();
    /// Writes the document; nothing while `restoring`.
    void persist();
    /// Format, options, profiles, hot key, integrations, on top, collapsing and the watermark, each
    /// written at once; everything else stays.
    void resetToDefaults();
    bool restoring() const { return restoring_; }
    /// Keeps the profiles in step with the settings that choose them, from now on.
    void follow(ColorProfiles& profiles);

private:
    struct Subscriptions;

    Services& services_;
    bool restoring_ = false;
    std::unique_ptr<Subscriptions> subscriptions_;
};

} // namespace tintra
