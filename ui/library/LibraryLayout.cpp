#include "ui/library/LibraryLayout.h"

#include "ui/library/LibraryPanel.h"
#include "ui/shared/Theme.h"

#include <algorithm>

namespace tintra {
namespace {

constexpr int kHeader = 48, kFoldedHeader = 40, kHeaderHigh = 32, kHeaderMiddle = 28;
constexpr int kRow = 52, kColourRow = 60, kPanelGap = 12, kShortNote = 44, kLeastNote = 180;
constexpr int kTileSide = 20, kTileGap = 12, kTile = 200, kMosaic = 112, kCaption = 50;
constexpr int kWideFrom = 700;

LibraryLayout::Sides sidesOf(const Theme& theme, qreal width, bool isColour) {
    const bool isWide = width >= theme.scaled(kWideFrom);
    const int side = isWide ? 24 : 20;
    LibraryLayout::Sides sides;
    sides.isWide = isWide;
    sides.left = side;
    sides.right = width - side;
    sides.strip = side + theme.scaled(isWide ? 184 : 144);
    const auto value = theme.scaled(isWide && !isColour ? 108 : 100);
    const auto buttons = isWide && !isColour ? theme.scaled(100) : 0;
    sides.valueEnd = sides.right - buttons;
    sides.stripEnd = sides.valueEnd - value - (isWide && isColour ? theme.scaled(80) : 0);
    return sides;
}

} // namespace

LibraryLayout::LibraryLayout(const Theme& theme, const LibraryModel& model, bool tiles, QSizeF view)
    : theme_(&theme), view_(view), tiles_(tiles), isColour_(model.listing().color.has_value()),
      sides_(sidesOf(theme, view.width(), model.listing().color.has_value())) {
    if (!model.isReady()) return;
    const auto room = view.width() - 2 * kTileSide + kTileGap;
    columns_ = tiles ? std::max(1, static_cast<int>(room / (theme.scaled(kTile) + kTileGap))) : 1;
    const auto& listing = model.listing();
    lines_.reserve(listing.finds.size() / static_cast<std::size_t>(columns_) +
                   2 * listing.sections.size() + 1);
    if (listing.sections.empty()) {
        add({.kind = LibraryLine::Kind::note, .height = view.height()});
        return;
    }
    for (std::size_t i = 0; i < listing.sections.size(); ++i)
        addSection(model, i);
    // A note that stands alone fills the view.
    if (lines_.back().kind != LibraryLine::Kind::note) height_ += theme.scaled(kPanelGap);
}

void LibraryLayout::add(LibraryLine line) {
    line.top = height_;
    height_ += line.height;
    lines_.push_back(line);
}

void LibraryLayout::addSection(const LibraryModel& model, std::size_t section) {
    const auto& listing = model.listing();
    const auto& part = listing.sections[section];
    const bool isFolded = model.isFolded(listing.groupOf(part));
    firstLines_.push_back({.header = lines_.size(),
                           .palettes = lines_.size() + 1,
                           .find = part.first,
                           .count = isFolded ? 0 : part.count});
    add({.kind = LibraryLine::Kind::header,
         .section = section,
         .height = qreal(theme_->scaled(isFolded ? kFoldedHeader : kHeader))});
    if (isFolded) return;
    if (part.count > 0) {
        addPalettes(model, section);
        return;
    }
    const bool isAlone = listing.sections.size() == 1;
    const auto whole = std::max<qreal>(theme_->scaled(kLeastNote), view_.height() - height_);
    add({.kind = LibraryLine::Kind::note,
         .section = section,
         .height = isAlone ? whole : theme_->scaled(kShortNote)});
}

void LibraryLayout::addPalettes(const LibraryModel& model, std::size_t section) {
    const auto& listing = model.listing();
    const auto& part = listing.sections[section];
    const auto end = part.first + part.count;
    if (tiles_) {
        const auto columns = static_cast<std::size_t>(columns_);
        const auto high = theme_->scaled(kMosaic) + theme_->scaled(kCaption);
        for (auto at = part.first; at < end; at += columns) {
            const auto count = std::min(columns, end - at);
            const bool isLast = at + count == end;
            add({.kind = LibraryLine::Kind::tiles,
                 .section = section,
                 .first = at,
                 .count = count,
                 .height = qreal(high + (isLast ? 0 : kTileGap))});
        }
        return;
    }
    const qreal high = theme_->scaled(isColour_ ? kColourRow : kRow);
    for (auto at = part.first; at < end; ++at) {
        LibraryLine line{.kind = LibraryLine::Kind::palette,
                         .section = section,
                         .first = at,
                         .count = 1,
                         .height = high,
                         .isUnfolded = model.isUnfolded(listing.paletteAt(at))};
        if (line.isUnfolded) {
            const LibraryPanel panel(*theme_, listing.paletteAt(at), model.installsFor(),
                                     {sides_.left, 0}, sides_.right - sides_.left);
            line.height += panel.rect().height() + kPanelGap;
        }
        add(line);
    }
}

std::size_t LibraryLayout::lineAt(qreal y) const {
    const auto found = std::ranges::upper_bound(
        lines_, y, {}, [](const LibraryLine& line) { return line.top + line.height; });
    return static_cast<std::size_t>(found - lines_.begin());
}

std::optional<std::size_t> LibraryLayout::lineOf(std::size_t find) const {
    for (const auto& part : firstLines_) {
        if (find < part.find || find >= part.find + part.count) continue;
        return part.palettes + (find - part.find) / static_cast<std::size_t>(columns_);
    }
    return std::nullopt;
}

QRectF LibraryLayout::paletteRect(const LibraryLine& line, std::size_t find) const {
    if (line.kind == LibraryLine::Kind::palette)
        return {sides_.left - 8, line.top, sides_.right - sides_.left + 16,
                qreal(theme_->scaled(isColour_ ? kColourRow : kRow))};
    const auto wide = (view_.width() - 2 * kTileSide - kTileGap * (columns_ - 1)) / columns_;
    const auto place = static_cast<qreal>(find - line.first);
    return {kTileSide + place * (wide + kTileGap), line.top, wide,
            qreal(theme_->scaled(kMosaic) + theme_->scaled(kCaption))};
}

QRectF LibraryLayout::panelRect(const LibraryLine& line) const {
    const auto row = paletteRect(line, line.first);
    return {sides_.left, row.bottom(), sides_.right - sides_.left,
            line.height - row.height() - kPanelGap};
}

QRectF LibraryLayout::headerRect(const LibraryLine& line) const {
    const auto high = theme_->scaled(kHeaderHigh);
    const auto middle = line.top + theme_->scaled(kHeaderMiddle);
    return {sides_.left - 8, middle - high / 2.0, sides_.right - sides_.left + 16, qreal(high)};
}

} // namespace tintra
