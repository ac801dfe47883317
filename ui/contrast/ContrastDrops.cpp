#include "ui/contrast/ContrastDrops.h"

#include "palettes/PaletteFile.h"
#include "platform/Background.h"
#include "platform/MainLoop.h"
#include "platform/Services.h"
#include "state/ContrastSending.h"
#include "state/Models.h"
#include "state/NoticeTexts.h"
#include "ui/paste/PasteReading.h"
#include "ui/shared/Text.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tintra {
namespace {

using Swatches = std::vector<PaletteFile::Swatch>;
using Role = std::optional<Contrast::Role>;

constexpr ToastPlace kPlace{ToastWindow::contrast, {}};

ContrastSending sending(Ui& ui) {
    return {ui.models.contrast(), ui.services.toasts, kPlace};
}

void sendOne(Ui& ui, const WashColor& colour, const std::optional<std::string>& name, Role as) {
    if (as)
        sending(ui).send(colour, name, *as);
    else
        sending(ui).send(colour, name);
}

/// Reads in the background; `unread` is said when nothing comes of it.
template <class Read>
void sendWhatReads(Ui& ui, Role as, std::string unread, Read read) {
    ui.services.background.run([&ui, as, unread = std::move(unread), read = std::move(read)] {
        ui.services.mainLoop.post([&ui, as, unread, swatches = read()] {
            if (swatches.empty())
                ui.services.toasts.show(unread, kForExplaining, {}, kPlace);
            else
                takeInContrast(ui, swatches, as);
        });
    });
}

void receiveFile(Ui& ui, const std::filesystem::path& file, Role as) {
    sendWhatReads(ui, as, file.filename().string() + " could not be read",
                  [file] { return PaletteFile::readNamed(file).value_or(Swatches()); });
}

} // namespace

bool isForContrast(const QMimeData& data) {
    if (data.hasFormat(QString::fromLatin1(kColourMimeType)) || data.hasColor()) return true;
    if (!data.hasUrls()) return data.hasText() && !data.hasImage();
    return std::ranges::any_of(dropped(data).files, [](const auto& file) {
        return PaletteFile::kindOf(file).has_value();
    });
}

bool isRefusedByContrast(const Ui& ui, const Drag& drag) {
    return !std::holds_alternative<DragOfContrastEntry>(drag.source) &&
           ui.models.contrast().held(drag.color);
}

void takeInContrast(Ui& ui, std::span<const PaletteFile::Swatch> swatches,
                    std::optional<Contrast::Role> as) {
    if (swatches.size() == 1) return sendOne(ui, swatches.front().color, swatches.front().name, as);
    sending(ui).sendAll(swatches);
    auto& board = ui.models.contrast();
    if (const auto* first = as ? board.held(swatches.front().color) : nullptr)
        board.setRole(*as, Uuid(first->id));
}

void receiveTextInContrast(Ui& ui, std::string text, std::optional<Contrast::Role> as) {
    sendWhatReads(ui, as, "Nothing there that reads as a colour",
                  [text = std::move(text)] { return readPasted(text).swatches; });
}

void receiveInContrast(Ui& ui, const Dropped& data, std::optional<Contrast::Role> as) {
    if (data.colour) {
        const auto* entry = std::get_if<DragOfContrastEntry>(&data.colour->source);
        if (entry && as)
            ui.models.contrast().setRole(*as, entry->entry);
        else if (!entry)
            sendOne(ui, data.colour->color, data.colour->name, as);
        return;
    }
    if (!data.files.empty()) {
        const auto palette = std::ranges::find_if(
            data.files, [](const auto& file) { return PaletteFile::kindOf(file).has_value(); });
        receiveFile(ui, palette == data.files.end() ? data.files.front() : *palette, as);
        return;
    }
    if (data.text) receiveTextInContrast(ui, toUtf8(*data.text), as);
}

} // namespace tintra
