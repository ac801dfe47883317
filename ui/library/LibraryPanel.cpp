#include "ui/library/LibraryPanel.h"

#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetricsF>
#include <algorithm>
#include <array>

namespace tintra {
namespace {

constexpr int kPad = 12, kGap = 8, kSmallGap = 4, kSmallCell = 36, kSmallHigh = 32;
constexpr int kCell = 96, kMostColumns = 8, kSwatch = 48, kButton = 28, kButtonPad = 13;
/// Between the parts of a swatch, and between swatches and buttons.
constexpr int kNameGap = 4, kCodeGap = 3, kButtonsGap = 11;
/// More swatches than this are small.
constexpr std::size_t kMostWithWords = 40;

struct ActionTitle {
    LibraryPanel::Action action;
    const char* title;
};
constexpr std::array kActions{
    ActionTitle{LibraryPanel::open, "Open"},
    ActionTitle{LibraryPanel::openInNewWindow, "Open in New Window"},
    ActionTitle{LibraryPanel::install, "Install in Colour Picker…"},
    ActionTitle{LibraryPanel::installFor, "Install for…"},
    ActionTitle{LibraryPanel::duplicate, "Duplicate…"},
    ActionTitle{LibraryPanel::reveal, "Reveal in File Manager"},
    ActionTitle{LibraryPanel::trash, "Move to Trash"},
};

bool isOffered(LibraryPanel::Action action, const LibraryPalette& palette, bool installsFor) {
    const bool isReadable = palette.state != PaletteEntry::State::unreadable;
    switch (action) {
    case LibraryPanel::open:
    case LibraryPanel::openInNewWindow:
    case LibraryPanel::install:
        return isReadable;
    case LibraryPanel::installFor:
        return isReadable && installsFor;
    case LibraryPanel::duplicate:
        return true;
    case LibraryPanel::reveal:
        return palette.canReveal;
    case LibraryPanel::trash:
        return palette.canTrash;
    }
    return false;
}

} // namespace

LibraryPanel::LibraryPanel(const Theme& theme, const LibraryPalette& palette, bool installsFor,
                           QPointF topLeft, qreal width)
    : rect_(topLeft, QSizeF(width, 0)) {
    const auto count = palette.palette ? palette.palette->swatches.size() : 0;
    const auto y = addSwatches(theme, count);
    rect_.setBottom(addButtons(theme, palette, installsFor, y) + kPad);
}

bool LibraryPanel::isSmall(std::size_t count) {
    return count > kMostWithWords;
}

qreal LibraryPanel::swatchHeight(const Theme& theme) {
    return theme.scaled(kSwatch);
}

qreal LibraryPanel::addSwatches(const Theme& theme, std::size_t count) {
    auto y = rect_.top() + kPad;
    if (count == 0) return y;
    const bool isSmall = LibraryPanel::isSmall(count);
    hidden_ = count - std::min(count, kMost);
    const auto room = rect_.width() - 2 * kPad;
    const int gap = isSmall ? kSmallGap : kGap;
    const auto least = theme.scaled(isSmall ? kSmallCell : kCell);
    auto columns = std::max(1, static_cast<int>((room + gap) / (least + gap)));
    if (!isSmall) columns = std::min(columns, kMostColumns);
    const auto wide = (room - gap * (columns - 1)) / columns;
    const auto words = kNameGap + theme.lineHeight(TextStyle::small) + kCodeGap +
                       theme.lineHeight(TextStyle::code);
    const auto high = isSmall ? theme.scaled(kSmallHigh) : theme.scaled(kSwatch) + words;
    const auto shown = static_cast<int>(count - hidden_);
    for (int i = 0; i < shown; ++i)
        swatches_.emplace_back(rect_.left() + kPad + (i % columns) * (wide + gap),
                               y + (i / columns) * (high + gap), wide, high);
    y = swatches_.back().bottom() + kButtonsGap;
    if (hidden_ == 0) return y;
    rest_ = QRectF(rect_.left() + kPad, y, room, theme.lineHeight(TextStyle::small));
    return rest_.bottom() + kButtonsGap;
}

qreal LibraryPanel::addButtons(const Theme& theme, const LibraryPalette& palette, bool installsFor,
                               qreal y) {
    const QFontMetricsF metrics(theme.font(TextStyle::control));
    const auto left = rect_.left() + kPad, right = rect_.right() - kPad;
    const qreal high = theme.scaled(kButton);
    qreal whole = -kGap;
    std::size_t own = 0; // what is done with the palette comes before what is done with its file
    for (const auto& [action, text] : kActions) {
        if (!isOffered(action, palette, installsFor)) continue;
        const auto title = worded(text);
        const auto wide = metrics.horizontalAdvance(title) + 2 * kButtonPad;
        buttons_.push_back({action, QRectF(left, y, wide, high), title});
        whole += wide + kGap;
        if (action < duplicate) own = buttons_.size();
    }
    auto x = left;
    const auto nextLine = [&] {
        x = left;
        y += high + kGap;
    };
    auto lineOfFile = own; // the first button of the last line
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        auto& rect = buttons_[i].rect;
        const bool isApart = i == own && whole > right - left;
        if (x > left && (isApart || x + rect.width() > right)) {
            nextLine();
            if (i > own) lineOfFile = i;
        }
        rect.moveTopLeft({x, y});
        x = rect.right() + kGap;
    }
    // What is done with the file stands at the right.
    for (auto i = lineOfFile; i < buttons_.size(); ++i)
        buttons_[i].rect.translate(right - (x - kGap), 0);
    return y + high;
}

} // namespace tintra
