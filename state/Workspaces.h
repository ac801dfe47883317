#pragma once

#include "state/AppState.h"
#include "state/OpenPalettes.h"
#include "state/PaletteWindows.h"
#include "state/StoredWorkspace.h"
#include "state/UndoTargets.h"

#include <QProperty>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace tintra {

/// What a start needs to know beside the windows' records; under "TintraLaunchState".
struct LaunchState {
    bool libraryOpen = false;
    bool primaryWindowOpen = true;
    bool operator==(const LaunchState&) const = default;
};
std::string encodedLaunchState(const LaunchState& state);
std::optional<LaunchState> decodedLaunchState(std::string_view text);

/// The open palette windows: their models by identifier, in opening order, and the records that
/// bring them back. Main loop.
class Workspaces final : public OpenPalettes, public PaletteWindows, public UndoWindows {
public:
    static constexpr std::string_view kPrimaryKey = "TintraWorkspace";
    static constexpr std::string_view kExtrasKey = "TintraExtraWorkspaces";
    static constexpr std::string_view kLaunchKey = "TintraLaunchState";

    Workspaces(Services& services, Preferences& preferences, AppUndo& undo, PaletteStore& store);
    /// Hands in the models that know the windows in turn, once, before the first window.
    void attach(Bench& bench, ContrastBoard& contrast);
    ~Workspaces() override;

    /// Identifiers in opening order.
    const QProperty<std::vector<Uuid>>& order() const { return order_; }
    AppState* state(const Uuid& window) const;
    /// The first window's model; none while that window is closed.
    AppState* primary() const;
    /// The palette window used last, for quick picks; none when no palette window is open.
    AppState* front() const;
    /// A palette window has become the key window.
    void becameKey(const Uuid& window);

    /// Makes the model of the primary window, without restoring it.
    AppState& openPrimary();
    /// Makes the model of a further window and asks for the window.
    AppState& openExtra();
    /// The same for a window whose content is not to be kept.
    AppState& openThrowaway();
    /// Asks about unsaved changes, then closes; `closed` is told whether it did.
    void close(const Uuid& window, std::function<void(bool closed)> closed);
    /// Asks every window in turn; the first Cancel ends it. When all agree, the records of the
    /// windows, the Bench, the contrast board and the launch state are written and flushed.
    void quit(std::function<void(bool quits)> answered);

    /// The Library window is open; kept in the launch state.
    QProperty<bool> isLibraryWindowOpen{false};

    void captureLaunchState();
    LaunchState loadLaunchState();
    void captureExtrasAtQuit();
    /// Makes a window per stored record of a further window; each takes its record.
    void restoreExtraWindows(const std::function<void(const Uuid&)>& openWindow);
    /// Makes the first stored further window's record the primary one, when the primary window was
    /// closed at quit.
    void adoptFirstExtra();

    // What the shared models ask (OpenPalettes)
    std::optional<Sighting> swatch(const Uuid& window, const Uuid& swatch) const override;
    Absence absence(const Uuid& window) const override;
    std::optional<Sighting> swatch(const std::string& paletteName, std::size_t index,
                                   const WashColor& color) const override;
    bool holds(const WashColor& color) const override;

    // What palette windows ask (PaletteWindows)
    std::vector<std::string> untitledNames(const Uuid& except) const override;
    FileVersion version(const std::filesystem::path& file) const override;
    FileVersion saved(const std::filesystem::path& file) override;
    void offerSaved(const AppState& by) override;
    void openInNewWindow(LoadedPalette palette) override;
    void paletteChanged(const AppState& of) override;
    void write(const AppState& of) override;

    // What undo asks (UndoWindows)
    PaletteUndoTarget* undoTarget(const Uuid& window) override;

private:
    AppState& open(bool primary);

    Services& services_;
    Preferences& preferences_;
    AppUndo& undo_;
    PaletteStore& store_;
    Bench* bench_ = nullptr;
    ContrastBoard* contrast_ = nullptr;
    std::unordered_map<Uuid, std::unique_ptr<AppState>> states_;
    QProperty<std::vector<Uuid>> order_;
    std::vector<Uuid> lastUsed_; ///< most recent last
    std::set<Uuid> throwaways_;
    std::map<std::filesystem::path, std::uint64_t> saveVersions_;
    std::vector<StoredWorkspace> pendingSnapshots_;
};

} // namespace tintra
