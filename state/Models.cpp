#include "state/Models.h"

#include "colour/Backdrop.h"
#include "platform/DefaultsStore.h"
#include "state/KeepingNotice.h"
#include "state/LateCapture.h"

#include <optional>
#include <utility>
#include <vector>

namespace tintra {

/// In the order in which they need each other.
struct Models::Parts {
    Parts(Services given, PaletteSurroundings surroundings)
        : services(given), preferences(services), undo(services), store(std::move(surroundings)),
          workspaces(services, preferences, undo, store), bench(services, workspaces, undo),
          contrast(services, workspaces), vision(workspaces, bench, contrast),
          recentPalettes(services, workspaces), keepingNotice(services, workspaces) {
        workspaces.attach(bench, contrast);
        undo.attach(workspaces, bench);
    }

    void wireBackdrop();
    void wireLibrary();
    void listPalettes();
    Opening resume(const std::function<void(const Uuid&)>& openWindow);
    void openFirst(const std::function<void(const Uuid&)>& openWindow);
    void watchSharedModels();
    void capture();

    Services services;
    Preferences preferences;
    AppUndo undo;
    PaletteStore store;
    Workspaces workspaces;
    Bench bench;
    ContrastBoard contrast;
    VisionSimulation vision;
    RecentPalettes recentPalettes;
    KeepingNotice keepingNotice;

    std::function<ThemeSurfaces()> themeSurfaces;
    bool palettesAreListed = false;
    QProperty<std::uint64_t> libraryVersion{0};
    std::vector<QPropertyNotifier> wires;
    std::optional<LateCapture> benchCapture, contrastCapture;
};

Models::Models(Services services, PaletteSurroundings surroundings)
    : parts_(std::make_unique<Parts>(services, std::move(surroundings))) {}

Models::~Models() {
    setBackdropSource({});
    parts_->store.whenChanged({});
}

Preferences& Models::preferences() {
    return parts_->preferences;
}
PaletteStore& Models::store() {
    return parts_->store;
}
AppUndo& Models::undo() {
    return parts_->undo;
}
Bench& Models::bench() {
    return parts_->bench;
}
ContrastBoard& Models::contrast() {
    return parts_->contrast;
}
Workspaces& Models::workspaces() {
    return parts_->workspaces;
}
VisionSimulation& Models::vision() {
    return parts_->vision;
}
RecentPalettes& Models::recentPalettes() {
    return parts_->recentPalettes;
}
const QProperty<std::uint64_t>& Models::libraryVersion() const {
    return parts_->libraryVersion;
}

void Models::setThemeSurfaces(std::function<ThemeSurfaces()> surfaces) {
    parts_->themeSurfaces = std::move(surfaces);
}

// Starting

Models::Opening Models::start(const std::function<void(const Uuid&)>& openWindow) {
    auto& parts = *parts_;
    parts.preferences.restore();
    parts.preferences.follow(ColorProfiles::shared());
    parts.wireBackdrop();
    Opening opening;
    if (parts.preferences.opensWith.value() == OpeningState::resume)
        opening = parts.resume(openWindow);
    else
        parts.workspaces.startClean();
    if (parts.workspaces.order().value().empty() && opening == Opening{})
        parts.openFirst(openWindow);
    parts.recentPalettes.start();
    parts.wireLibrary();
    parts.watchSharedModels();
    return opening;
}

Models::Opening Models::Parts::resume(const std::function<void(const Uuid&)>& openWindow) {
    workspaces.resume(openWindow);
    bench.restoreIfNeeded();
    contrast.restoreIfNeeded();
    bench.reconcileBenchProvenance();
    return {workspaces.isLibraryWindowOpen, bench.wasOpenAtLastQuit(),
            contrast.wasOpenAtLastQuit()};
}

void Models::Parts::openFirst(const std::function<void(const Uuid&)>& openWindow) {
    openWindow(workspaces.openPrimary().id());
}

void Models::Parts::wireBackdrop() {
    setBackdropSource([this] {
        return flatBackdrop(preferences.swatchBackdrop, preferences.backdropColour,
                            themeSurfaces ? themeSurfaces() : ThemeSurfaces{});
    });
}

void Models::Parts::wireLibrary() {
    store.whenChanged([this] {
        preferences.scanGeneration = store.scanGeneration();
        libraryVersion = libraryVersion + 1;
    });
    wires.push_back(preferences.paletteLocations.addNotifier([this] { listPalettes(); }));
    wires.push_back(preferences.includeSystemPalettes.addNotifier([this] { listPalettes(); }));
    // Without a scan at start the first one waits for the first look at the Library.
    wires.push_back(workspaces.isLibraryWindowOpen.addNotifier([this] {
        if (!palettesAreListed) listPalettes();
    }));
    if (preferences.rescanOnLaunch || workspaces.isLibraryWindowOpen) listPalettes();
}

void Models::Parts::listPalettes() {
    palettesAreListed = true;
    store.setLocations(preferences.paletteLocations, preferences.includeSystemPalettes);
    preferences.scanGeneration = store.scanGeneration();
}

void Models::rescanPalettes() {
    auto& parts = *parts_;
    if (!parts.palettesAreListed) return parts.listPalettes();
    parts.store.rescan();
    parts.preferences.scanGeneration = parts.store.scanGeneration();
}

void Models::listPalettes() {
    if (!parts_->palettesAreListed) parts_->listPalettes();
}

// Keeping

void Models::Parts::watchSharedModels() {
    const auto begins = [](bool restored) {
        return restored ? LateCapture::Begins::restored : LateCapture::Begins::empty;
    };
    auto& forBench = benchCapture.emplace(services.mainLoop, begins(bench.hasRestored()),
                                          [this] { bench.captureForQuit(); });
    forBench.watchWork(bench.content());
    forBench.watchLooks(bench.benchActive);
    forBench.watchLooks(bench.frame);
    forBench.watchLooks(bench.isWindowOpen);

    auto& forContrast = contrastCapture.emplace(services.mainLoop, begins(contrast.hasRestored()),
                                                [this] { contrast.captureForQuit(); });
    forContrast.watchWork(contrast.content());
    forContrast.watchLooks(contrast.mode);
    forContrast.watchLooks(contrast.target);
    forContrast.watchLooks(contrast.size);
    forContrast.watchLooks(contrast.weight);
    forContrast.watchLooks(contrast.family);
    forContrast.watchLooks(contrast.specimen);
    forContrast.watchLooks(contrast.ladderFixesGround);
    forContrast.watchLooks(contrast.matrixRowsAreText);
    forContrast.watchLooks(contrast.isWindowOpen);
}

void Models::Parts::capture() {
    workspaces.captureForQuit();
    for (auto* shared : {&benchCapture, &contrastCapture}) {
        (*shared)->capture();
        (*shared)->end();
    }
    services.defaults.flush();
}

void Models::keep() {
    parts_->capture();
}

void Models::quit(std::function<void(bool)> answered) {
    parts_->workspaces.confirmQuitting([this, answered = std::move(answered)](bool quits) {
        if (quits) parts_->capture();
        answered(quits);
    });
}

} // namespace tintra
