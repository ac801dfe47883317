#include "state/ContrastSending.h"

#include "state/ContrastBoard.h"
#include "state/NoticeTexts.h"

#include <utility>

namespace tintra {
namespace {

/// A colour that found a place on the contrast board.
struct Placed {
    Uuid id;
    std::optional<std::string> letGo; ///< name of the entry that made room
    ContrastBoard::Content before;
};

using Place = std::optional<Uuid> (ContrastBoard::*)(std::optional<std::string>, const WashColor&);

/// Puts a colour on the board by `place`, letting go of the oldest loose entry of a full one;
/// nothing when there is none.
std::optional<Placed> placed(ContrastBoard& board, Place place, std::optional<std::string> name,
                             const WashColor& colour) {
    Placed result{{}, {}, board.content().value()};
    if (board.isFull()) {
        const auto loose = board.letGoOfOldestLoose();
        if (!loose) return std::nullopt;
        result.letGo = board.name(*loose);
    }
    const auto id = (board.*place)(std::move(name), colour);
    if (!id) return std::nullopt;
    result.id = *id;
    return result;
}

std::optional<ToastAction> undoOf(ContrastBoard& board, ContrastBoard::Content before) {
    return ToastAction{"Undo",
                       [&board, before = std::move(before)] { board.exchangeContent(before); }};
}

/// An action for what let an entry go; what merely adds needs none.
std::optional<ToastAction> undoOf(ContrastBoard& board, Placed placed) {
    return placed.letGo ? undoOf(board, std::move(placed.before)) : std::nullopt;
}

} // namespace

void ContrastSending::say(std::string text, std::optional<ToastAction> action) const {
    toasts_.show(std::move(text), kBriefly, std::move(action), from_);
}

void ContrastSending::send(const WashColor& colour, std::optional<std::string> name) const {
    if (board_.held(colour)) {
        say(alreadyInContrastText(colour));
        return;
    }
    auto sent = placed(board_, &ContrastBoard::send, std::move(name), colour);
    if (!sent)
        say(contrastFullText(ContrastBoard::kCapacity));
    else
        say(sentToContrastText(colour, sent->letGo), undoOf(board_, *sent));
}

void ContrastSending::send(const WashColor& colour, std::optional<std::string> name,
                           Contrast::Role as) const {
    if (const auto* held = board_.held(colour)) {
        board_.setRole(as, Uuid(held->id));
        say(roleInContrastText(colour, as, {}));
        return;
    }
    auto sent = placed(board_, &ContrastBoard::hold, std::move(name), colour);
    if (!sent) {
        say(contrastFullText(ContrastBoard::kCapacity));
        return;
    }
    board_.setRole(as, sent->id);
    say(roleInContrastText(colour, as, sent->letGo), undoOf(board_, *sent));
}

void ContrastSending::sendAll(std::span<const PaletteFile::Swatch> swatches) const {
    ContrastBatch batch{swatches.size(), 0, 0, board_.entries().size()};
    for (const auto& swatch : swatches) {
        if (board_.held(swatch.color))
            ++batch.already;
        else if (board_.send(swatch.name, swatch.color))
            ++batch.sent;
    }
    if (auto text = contrastBatchText(batch, ContrastBoard::kCapacity)) say(*std::move(text));
}

void ContrastSending::toggle(const WashColor& colour, std::optional<std::string> name) const {
    if (const auto* held = board_.held(colour))
        remove(Uuid(held->id));
    else
        send(colour, std::move(name));
}

void ContrastSending::remove(const Uuid& id) const {
    const auto* entry = board_.entry(id);
    if (entry == nullptr) return;
    auto text = tookOffContrastText(entry->color);
    auto before = board_.content().value();
    board_.remove(id);
    say(std::move(text), undoOf(board_, std::move(before)));
}

void ContrastSending::replace(const Uuid& id, const WashColor& colour) const {
    const auto* entry = board_.entry(id);
    if (entry == nullptr) return;
    if (const auto* holder = board_.held(colour)) {
        if (holder->id != id) say(alreadyInContrastText(colour));
        return;
    }
    auto text = replacedInContrastText(entry->color, colour);
    auto before = board_.content().value();
    board_.replace(id, colour);
    say(std::move(text), undoOf(board_, std::move(before)));
}

void ContrastSending::sortByLightness(bool lightestFirst) const {
    const bool withinMatrix = board_.mode.value() == ContrastBoard::Mode::matrix;
    auto before = board_.sortByLightness(lightestFirst, withinMatrix);
    std::optional<ToastAction> undo;
    if (before)
        undo =
            ToastAction{"Undo", [&board = board_, order = *before] { board.restoreOrder(order); }};
    say(sortedText(lightestFirst, before.has_value()), std::move(undo));
}

} // namespace tintra
