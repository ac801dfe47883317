#include "ui/palette/FileDrops.h"

#include "palettes/PaletteFile.h"
#include "platform/Background.h"
#include "platform/MainLoop.h"
#include "platform/Services.h"
#include "platform/Toasts.h"
#include "state/Models.h"
#include "state/NoticeTexts.h"
#include "state/SaveTexts.h"
#include "ui/paste/PasteReading.h"
#include "ui/shared/Text.h"

#include <QDropEvent>
#include <algorithm>

namespace tintra {
namespace {

void addAll(Ui& ui, AppState& to, const std::filesystem::path& file,
            const std::vector<PaletteFile::Swatch>& found) {
    if (found.empty()) {
        ui.services.toasts.show(file.filename().string() + " could not be read", kForExplaining, {},
                                to.place());
        return;
    }
    std::vector<WashColor> colours;
    std::vector<std::optional<std::string>> names;
    for (const auto& swatch : found) {
        colours.push_back(swatch.color);
        names.push_back(swatch.name);
    }
    to.addAllToPalette(colours, names);
}

/// Reads the file in the background; nothing comes of it when the window is closed meanwhile.
void addFile(Ui& ui, const Uuid& window, const std::filesystem::path& file) {
    ui.services.background.run([&ui, window, file] {
        auto found = PaletteFile::readNamed(file).value_or(std::vector<PaletteFile::Swatch>());
        ui.services.mainLoop.post([&ui, window, file, swatches = std::move(found)] {
            if (auto* to = ui.models.workspaces().state(window)) addAll(ui, *to, file, swatches);
        });
    });
}

/// In bytes: what is read within a millisecond or two, and what is read at all.
constexpr std::size_t kAtOnce = 8'000, kMostText = std::size_t{4} << 20U;

void addRead(AppState& to, const PasteReading& read, Toasts& toasts) {
    if (read.swatches.empty())
        toasts.show("Nothing there that reads as a colour", kForExplaining, {}, to.place());
    else
        to.receiveSwatches(read.swatches);
}

} // namespace

bool asksToMove(const QDropEvent& event) {
    return event.modifiers().testFlag(Qt::ControlModifier);
}

bool asksToAdd(const QDropEvent& event) {
    return event.modifiers().testFlag(Qt::ShiftModifier);
}

bool refusesColour(const AppState& state, const QDropEvent& event) {
    const auto& data = *event.mimeData();
    // Nothing else is taken out of a drag before it is dropped.
    if (!data.hasFormat(QString::fromLatin1(kColourMimeType)) && !data.hasColor()) return false;
    const auto colour = dropped(data).colour;
    return colour && state.refusal(*colour, asksToMove(event));
}

bool receiveColour(Ui& ui, AppState& state, const Drag& drag, std::size_t at, bool moving) {
    if (!state.receive(drag, at, moving)) return false;
    const auto* swatch = std::get_if<DragOfSwatch>(&drag.source);
    if (!moving || !swatch || swatch->origin.windowID == state.id()) return true;
    if (auto* source = ui.models.workspaces().state(swatch->origin.windowID))
        source->release(swatch->origin.swatchID);
    return true;
}

void receiveText(Ui& ui, AppState& state, std::string_view text) {
    text = text.substr(0, kMostText);
    if (text.size() <= kAtOnce) return addRead(state, readPasted(text), ui.services.toasts);
    ui.services.background.run([&ui, window = state.id(), text = std::string(text)] {
        ui.services.mainLoop.post([&ui, window, read = readPasted(text)] {
            if (auto* to = ui.models.workspaces().state(window))
                addRead(*to, read, ui.services.toasts);
        });
    });
}

void receiveFiles(Ui& ui, AppState& state, const Dropped& data, bool adds) {
    if (!data.files.empty()) {
        const auto palette = std::ranges::find_if(
            data.files, [](const auto& file) { return PaletteFile::kindOf(file).has_value(); });
        // What is neither is said by the picture's own sentence.
        if (palette == data.files.end())
            state.loadImage(data.files.front());
        else if (adds)
            addFile(ui, state.id(), *palette);
        else
            state.open(*palette);
        return;
    }
    if (data.picture) {
        const auto* begin = reinterpret_cast<const Bytes::value_type*>(data.picture->constData());
        state.loadImage(Bytes(begin, begin + data.picture->size()), toUtf8(worded("Picture")));
        return;
    }
    if (data.text) receiveText(ui, state, toUtf8(*data.text));
}

} // namespace tintra
