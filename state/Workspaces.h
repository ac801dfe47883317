#pragma once

#include "state/AppState.h"
#include "state/OpenPalettes.h"
#include "state/PaletteWindows.h"
#include "state/StoredLaunchState.h"
#include "state/StoredWorkspace.h"
#include "state/UndoTargets.h"
#include "state/WorkspaceRecords.h"

#include <QProperty>
#include <cstddef>
#include <deque>
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

/// The open palette windows: their models by identifier, in opening order, and the records that
/// bring them back. Main loop.
class Workspaces final : public OpenPalettes, public PaletteWindows, public UndoWindows {
public:
    static constexpr std::string_view kPrimaryKey = WorkspaceRecords::kPrimaryKey;
    static constexpr std::string_view kExtrasKey = WorkspaceRecords::kExtrasKey;
    static constexpr std::string_view kLaunchKey = WorkspaceRecords::kLaunchKey;

    Workspaces(Services& services, Preferences& preferences, AppUndo& undo, PaletteStore& store);
    /// Hands in the models that know the windows in turn, once, before the first window.
    void attach(Bench& bench, ContrastBoard& contrast);
    ~Workspaces() override;

    /// Identifiers in opening order.
    const QProperty<std::vector<Uuid>>& order() const { return order_; }
    /// None for a window that is not open.
    AppState* state(const Uuid& window) const;
    /// The first window's model; none while that window is closed.
    AppState* primary() const;
    /// The palette window used last, for quick picks; none when no palette window is open.
    AppState* front() const;
    /// A palette window has become the key window.
    void becameKey(const Uuid& window);

    /// The model of the primary window: the open one, or a new one with an empty palette.
    AppState& openPrimary();
    /// Makes the model of a further window and asks for the window.
    AppState& openExtra();
    /// The same for a window whose content is not to be kept.
    AppState& openThrowaway();
    /// Asks about unsaved changes, then closes; `closed` is told whether it did. The model lives
    /// until the loop has turned.
    void close(const Uuid& window, std::function<void(bool closed)> closed);
    /// Asks every window in turn; the first Cancel ends it. While a quit is being asked about, a
    /// second one is refused.
    void confirmQuitting(std::function<void(bool quits)> answered);

    /// The Library window is open; kept in the launch state.
    QProperty<bool> isLibraryWindowOpen{false};

    // Records (WorkspacesLaunch.cpp)

    /// Brings the windows of the last run back. `openWindow` is told of each, the primary one
    /// first; nothing is written meanwhile. There may be none.
    void resume(const std::function<void(const Uuid&)>& openWindow);
    /// Brings nothing back. The records stay as they are until something is made.
    void startClean();

    /// Writes the record of every window, the list of the further ones and the launch state. From
    /// now on windows may close without changing what was written.
    void captureForQuit();
    void captureLaunchState();
    LaunchState loadLaunchState();
    void captureExtrasAtQuit();
    /// Makes a window per stored record of a further window; each takes its record.
    void restoreExtraWindows(const std::function<void(const Uuid&)>& openWindow);
    /// Makes the first stored further window's record the primary one, when the primary window was
    /// closed at quit.
    void adoptFirstExtra();

    // What the shared models ask (OpenPalettes; WorkspacesLinks.cpp)
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
    enum class Kind { primary, extra, throwaway };
    /// A quit that is being asked about.
    struct Quitting {
        std::deque<Uuid> rest; ///< windows still to be asked
        Uuid asked;
        std::function<void(bool)> answered;
    };

    /// A wish for an identifier is met unless an open window has it.
    AppState& open(Kind kind, std::optional<Uuid> wished = {});
    void show(const AppState& state) const;
    void remove(const Uuid& window);
    void forget(const Uuid& window, bool wasPrimary);
    void destroyLater(std::unique_ptr<AppState> state);
    void askNextBeforeQuitting();
    void answeredBeforeQuitting(const Uuid& asked, bool goes);
    void endQuitting(bool quits);

    void restorePrimary();
    void readExtras();
    AppState& restored(Kind kind, const StoredWorkspace& record);
    /// Writes every record when the loop turns: a start itself writes nothing.
    void keepSoon();
    void captureRecords();
    void writeExtras();
    bool mayWrite(const AppState& of);
    bool isMuted() const { return restoring_ || untouched_; }
    void damaged(std::string_view key, std::string_view what);

    Services& services_;
    Preferences& preferences_;
    AppUndo& undo_;
    PaletteStore& store_;
    Bench* bench_ = nullptr;
    ContrastBoard* contrast_ = nullptr;
    WorkspaceRecords records_;
    std::unordered_map<Uuid, std::unique_ptr<AppState>> states_;
    QProperty<std::vector<Uuid>> order_;
    std::vector<Uuid> lastUsed_; ///< most recent last
    std::set<Uuid> throwaways_;
    std::map<std::filesystem::path, std::uint64_t> saveVersions_;
    std::deque<StoredWorkspace> pendingSnapshots_; ///< records whose windows are still to be made
    std::optional<Quitting> quitting_;
    bool restoring_ = false;
    bool extrasAreRead_ = false;
    bool leaving_ = false;      ///< the records of this run are complete
    bool needsKeeping_ = false; ///< restoring left windows that differ from their records
    /// Nothing was made since a clean start; with each window as it was when it opened.
    bool untouched_ = false;
    std::map<Uuid, StoredWorkspace> asOpened_;
    std::vector<std::unique_ptr<AppState>> closing_; ///< until the loop has turned
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    QPropertyNotifier libraryWatch_;
};

} // namespace tintra
