#include "ui/program/DesktopRequests.h"

#include "palettes/PaletteFile.h"
#include "platform/Background.h"
#include "platform/MainLoop.h"
#include "platform/Pictures.h"
#include "platform/Services.h"
#include "platform/Toasts.h"
#include "state/Models.h"
#include "state/NoticeTexts.h"
#include "ui/program/Windows.h"
#include "ui/shared/Text.h"

#include <utility>

namespace tintra {
namespace {

bool canBeRead(const std::filesystem::path& file) {
    if (PaletteFile::kindOf(file)) return PaletteFile::readNamed(file).has_value();
    return std::holds_alternative<std::shared_ptr<const Picture>>(openPicture(file));
}

/// Qt takes the token from there when a window asks to come up, on Wayland.
void use(const Activation& activation) {
    if (!activation.token.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", activation.token.toUtf8());
}

} // namespace

ApplicationRequests DesktopRequests::forService() {
    return {
        .activate =
            [this](const Activation& activation) {
                use(activation);
                activate();
            },
        .open =
            [this](const auto& files, const Activation& activation) {
                use(activation);
                open(files);
            },
        .perform =
            [this](std::string_view action, const Activation& activation) {
                if (action != kNewPalette) return false;
                use(activation);
                openNew();
                return true;
            },
    };
}

void DesktopRequests::open(std::vector<std::filesystem::path> files) {
    if (files.size() > kMostFiles) {
        const auto text = worded("%1 of %L2 files were opened").arg(kMostFiles).arg(files.size());
        ui_.services.toasts.show(toUtf8(text), kForExplaining, {}, front().place());
        files.resize(kMostFiles);
    }
    ui_.services.background.run([this, alive = std::weak_ptr(alive_), &loop = ui_.services.mainLoop,
                                 files = std::move(files)] {
        std::vector<Checked> checked;
        for (const auto& file : files)
            checked.push_back({file, canBeRead(file)});
        loop.post([this, alive, checked = std::move(checked)] {
            if (alive.expired()) return;
            for (const auto& one : checked)
                openChecked(one);
        });
    });
}

void DesktopRequests::openChecked(const Checked& checked) {
    if (const auto* shown = showing(checked.file)) return ui_.windows.openPalette(shown->id());
    auto* target = &front();
    if (checked.isReadable) {
        if (!isFree(*target)) target = &ui_.models.workspaces().openExtra();
        given_.insert(target->id());
    }
    if (PaletteFile::kindOf(checked.file))
        target->open(checked.file);
    else
        target->loadImage(checked.file);
}

void DesktopRequests::openNew() {
    if (!isFree(front())) ui_.models.workspaces().openExtra();
}

AppState& DesktopRequests::front() {
    auto* front = ui_.models.workspaces().front();
    if (!front) front = &ui_.models.workspaces().openPrimary();
    ui_.windows.openPalette(front->id());
    return *front;
}

bool DesktopRequests::isFree(const AppState& state) const {
    return state.swatches().empty() && !state.attachment().value() &&
           state.mode.value() == HarmonyMode::paletteBuilder &&
           !state.isPictureWindowOpen.value() && !given_.contains(state.id());
}

AppState* DesktopRequests::showing(const std::filesystem::path& file) const {
    auto& workspaces = ui_.models.workspaces();
    for (const auto& id : workspaces.order().value()) {
        auto* state = workspaces.state(id);
        if (state->currentPaletteURL() == file) return state;
    }
    return nullptr;
}

} // namespace tintra
