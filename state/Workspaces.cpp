#include "state/Workspaces.h"

#include "platform/Chance.h"
#include "platform/MainLoop.h"
#include "platform/Services.h"
#include "state/AppUndo.h"
#include "state/Bench.h"
#include "state/Preferences.h"

#include <algorithm>
#include <utility>

namespace tintra {

Workspaces::Workspaces(Services& services, Preferences& preferences, AppUndo& undo,
                       PaletteStore& store)
    : services_(services), preferences_(preferences), undo_(undo), store_(store),
      records_(services.defaults),
      libraryWatch_(isLibraryWindowOpen.addNotifier([this] { captureLaunchState(); })) {}

Workspaces::~Workspaces() = default;

void Workspaces::attach(Bench& bench, ContrastBoard& contrast) {
    bench_ = &bench;
    contrast_ = &contrast;
}

AppState* Workspaces::state(const Uuid& window) const {
    const auto found = states_.find(window);
    return found == states_.end() ? nullptr : found->second.get();
}

AppState* Workspaces::primary() const {
    for (const auto& [id, state] : states_)
        if (state->isPrimary()) return state.get();
    return nullptr;
}

AppState* Workspaces::front() const {
    return lastUsed_.empty() ? nullptr : state(lastUsed_.back());
}

void Workspaces::becameKey(const Uuid& window) {
    const auto found = std::ranges::find(lastUsed_, window);
    if (found != lastUsed_.end()) std::rotate(found, found + 1, lastUsed_.end());
}

// Opening

AppState& Workspaces::open(Kind kind, std::optional<Uuid> wished) {
    const bool taken = !wished || *wished == Uuid{} || states_.contains(*wished);
    const Uuid id = taken ? services_.chance.uuid() : *wished;
    auto made = std::make_unique<AppState>(
        id, kind == Kind::primary,
        AppContext{services_, preferences_, undo_, *bench_, *contrast_, store_, *this});
    AppState& state = *made;
    states_.emplace(id, std::move(made));
    if (kind == Kind::throwaway) throwaways_.insert(id);
    if (untouched_) asOpened_.emplace(id, state.currentStored());
    // Of the windows that a start brings back, the first stays in front.
    lastUsed_.insert(restoring_ ? lastUsed_.begin() : lastUsed_.end(), id);
    auto order = order_.value();
    order.push_back(id);
    order_ = std::move(order);
    return state;
}

void Workspaces::show(const AppState& state) const {
    if (const auto& openWindow = preferences_.windows.openNewWindow) openWindow(state.id());
}

AppState& Workspaces::openPrimary() {
    if (auto* state = primary()) return *state;
    auto& state = open(Kind::primary);
    keepSoon();
    return state;
}

AppState& Workspaces::openExtra() {
    auto& state = open(Kind::extra);
    show(state);
    return state;
}

AppState& Workspaces::openThrowaway() {
    auto& state = open(Kind::throwaway);
    show(state);
    return state;
}

void Workspaces::openInNewWindow(LoadedPalette palette) {
    auto& state = open(Kind::extra);
    state.loadPalette(std::move(palette));
    show(state);
}

// Closing

void Workspaces::close(const Uuid& window, std::function<void(bool)> closed) {
    auto* closing = state(window);
    if (closing == nullptr) return closed(true);
    closing->confirmDiscardingChanges("closing the window",
                                      [this, window, closed = std::move(closed)](bool goes) {
                                          if (goes) remove(window);
                                          closed(goes);
                                      });
}

void Workspaces::remove(const Uuid& window) {
    const auto found = states_.find(window);
    if (found == states_.end()) return;
    auto state = std::move(found->second);
    states_.erase(found);
    std::erase(lastUsed_, window);
    auto order = order_.value();
    std::erase(order, window);
    order_ = std::move(order);

    undo_.discardEntries(window);
    forget(window, state->isPrimary());
    bench_->reconcileBenchProvenance();
    destroyLater(std::move(state));
    if (quitting_ && quitting_->asked == window) answeredBeforeQuitting(window, true);
}

void Workspaces::forget(const Uuid& window, bool wasPrimary) {
    asOpened_.erase(window);
    records_.dropExtra(window);
    if (throwaways_.erase(window) > 0 || isMuted() || leaving_) return;
    if (wasPrimary) {
        records_.remove(kPrimaryKey);
        captureLaunchState();
    } else {
        writeExtras();
    }
}

// The model may be in the middle of the very call that closes it.
void Workspaces::destroyLater(std::unique_ptr<AppState> state) {
    closing_.push_back(std::move(state));
    // The window goes on the main loop too, and what waits there for it still reads the model: the
    // model goes a turn later.
    services_.mainLoop.post([this, alive = std::weak_ptr(alive_)] {
        if (alive.expired()) return;
        services_.mainLoop.post([this, alive] {
            if (!alive.expired()) closing_.clear();
        });
    });
}

// Quitting

void Workspaces::confirmQuitting(std::function<void(bool)> answered) {
    if (quitting_) return answered(false);
    const auto& order = order_.value();
    quitting_ = Quitting{{order.begin(), order.end()}, {}, std::move(answered)};
    askNextBeforeQuitting();
}

void Workspaces::askNextBeforeQuitting() {
    auto& rest = quitting_->rest;
    while (!rest.empty() && state(rest.front()) == nullptr)
        rest.pop_front();
    if (rest.empty()) return endQuitting(true);
    const Uuid asked = quitting_->asked = rest.front();
    rest.pop_front();
    state(asked)->confirmDiscardingChanges(
        "quitting", [this, asked](bool goes) { answeredBeforeQuitting(asked, goes); });
}

void Workspaces::answeredBeforeQuitting(const Uuid& asked, bool goes) {
    // A window that was closed while it was asked has answered already.
    if (!quitting_ || quitting_->asked != asked) return;
    if (goes)
        askNextBeforeQuitting();
    else
        endQuitting(false);
}

void Workspaces::endQuitting(bool quits) {
    const auto answered = std::move(quitting_->answered);
    quitting_.reset();
    answered(quits);
}

} // namespace tintra
