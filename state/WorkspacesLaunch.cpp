#include "platform/Log.h"
#include "platform/MainLoop.h"
#include "platform/Services.h"
#include "state/Codec.h"
#include "state/Workspaces.h"

#include <algorithm>
#include <string>
#include <utility>

// The windows' records: written, and brought back at the next start.

namespace tintra {

namespace {

/// Whether two records differ in how their windows look at most.
bool holdSameWork(StoredWorkspace one, const StoredWorkspace& other) {
    one.isCollapsed = other.isCollapsed;
    one.frame = other.frame;
    one.modeSizes = other.modeSizes;
    one.compactOrientation = other.compactOrientation;
    one.selectedSwatch = other.selectedSwatch;
    return one == other;
}

} // namespace

// Writing

void Workspaces::write(const AppState& of) {
    if (!mayWrite(of)) return;
    const auto record = of.currentStored();
    if (of.isPrimary()) return records_.write(kPrimaryKey, encodedWorkspace(record));
    records_.setExtra(of.id(), record);
    writeExtras();
}

bool Workspaces::mayWrite(const AppState& of) {
    if (restoring_ || state(of.id()) != &of || throwaways_.contains(of.id())) return false;
    if (!untouched_) return true;
    if (holdSameWork(of.currentStored(), asOpened_.at(of.id()))) return false;
    untouched_ = false;
    asOpened_.clear();
    captureLaunchState();
    return true;
}

void Workspaces::writeExtras() {
    std::vector<Uuid> kept;
    for (const auto& id : order_.value()) {
        const auto& extra = *state(id);
        if (extra.isPrimary() || throwaways_.contains(id)) continue;
        if (!records_.hasExtra(id)) records_.setExtra(id, extra.currentStored());
        kept.push_back(id);
    }
    records_.writeExtras(kept);
}

void Workspaces::captureExtrasAtQuit() {
    for (const auto& [id, extra] : states_)
        if (!extra->isPrimary() && !throwaways_.contains(id))
            records_.setExtra(id, extra->currentStored());
    writeExtras();
}

void Workspaces::captureLaunchState() {
    if (isMuted() || leaving_) return;
    records_.write(kLaunchKey, encodedLaunchState({isLibraryWindowOpen, primary() != nullptr}));
}

void Workspaces::captureForQuit() {
    leaving_ = false;
    for (const auto& id : order_.value())
        state(id)->flushPersist();
    captureRecords();
    leaving_ = true;
}

// In this order a run that is cut short between two of them leaves a window twice rather than
// nowhere.
void Workspaces::captureRecords() {
    if (isMuted()) return;
    if (const auto* first = primary()) write(*first);
    captureLaunchState();
    captureExtrasAtQuit();
}

// Starting

LaunchState Workspaces::loadLaunchState() {
    const auto text = records_.read(kLaunchKey);
    if (!text) return {};
    const auto stored = decodedLaunchState(*text);
    if (!stored) damaged(kLaunchKey, "launch state");
    return stored.value_or(LaunchState{});
}

void Workspaces::startClean() {
    untouched_ = true;
}

void Workspaces::resume(const std::function<void(const Uuid&)>& openWindow) {
    restoring_ = true;
    const auto launch = loadLaunchState();
    isLibraryWindowOpen = launch.libraryOpen;
    if (launch.primaryWindowOpen)
        restorePrimary();
    else
        adoptFirstExtra();
    if (const auto* first = primary()) openWindow(first->id());
    restoreExtraWindows(openWindow);
    restoring_ = false;
    if (needsKeeping_) keepSoon();
}

void Workspaces::restorePrimary() {
    const auto text = records_.read(kPrimaryKey);
    const auto stored = text ? decodedWorkspace(*text) : std::nullopt;
    // Identifiers that a record does not give are made now, and links are to find them again.
    needsKeeping_ = stored && !(stored->id && stored->swatchIDs);
    open(Kind::primary, stored ? stored->id : std::nullopt).restore();
}

void Workspaces::readExtras() {
    if (std::exchange(extrasAreRead_, true)) return;
    const auto text = records_.read(kExtrasKey);
    if (!text) return;
    const auto stored = decodedWorkspaces(*text);
    const auto json = parsedJson(*text);
    const bool isWhole = stored && json && json->size() == stored->size();
    if (!isWhole) damaged(kExtrasKey, "workspace");
    if (!stored) return;
    needsKeeping_ = needsKeeping_ || !isWhole;
    pendingSnapshots_.assign(stored->begin(), stored->end());
}

AppState& Workspaces::restored(Kind kind, const StoredWorkspace& record) {
    auto& state = open(kind, record.id);
    state.apply(record);
    needsKeeping_ = needsKeeping_ || !record.swatchIDs || record.id != state.id();
    return state;
}

void Workspaces::restoreExtraWindows(const std::function<void(const Uuid&)>& openWindow) {
    readExtras();
    while (!pendingSnapshots_.empty()) {
        const auto record = std::move(pendingSnapshots_.front());
        pendingSnapshots_.pop_front();
        openWindow(restored(Kind::extra, record).id());
    }
}

void Workspaces::adoptFirstExtra() {
    readExtras();
    if (pendingSnapshots_.empty()) return;
    restored(Kind::primary, pendingSnapshots_.front());
    pendingSnapshots_.pop_front();
    needsKeeping_ = true;
}

void Workspaces::keepSoon() {
    services_.mainLoop.post([this, alive = std::weak_ptr(alive_)] {
        if (!alive.expired()) captureRecords();
    });
}

void Workspaces::damaged(std::string_view key, std::string_view what) {
    services_.log.line("Tintra: could not decode the saved " + std::string(what) + ": " +
                       std::string(key) + " is not what it should be");
    records_.setAside(key);
}

} // namespace tintra
