#include "ui/library/LibraryCanvas.h"

#include "state/Models.h"
#include "ui/library/LibraryItems.h"
#include "ui/library/LibraryWords.h"
#include "ui/shared/StyleParts.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tintra {
namespace {

constexpr int kBar = 12, kStep = 52, kIcon = 16, kDropRing = 3;

} // namespace

LibraryCanvas::LibraryCanvas(Ui& ui, LibraryModel& model, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), model_(model), painter_(ui, model),
      bar_(new QScrollBar(Qt::Vertical, this)) {
    containerRole = QAccessible::Tree;
    setAccessibleName(worded("Library"));
    bar_->setFocusPolicy(Qt::NoFocus);
    bar_->setSingleStep(kStep);
    QObject::connect(bar_, &QScrollBar::valueChanged, this, [this] { relayout(); });
    subscribe();
    rebuild();
}

void LibraryCanvas::subscribe() {
    auto& preferences = ui_.models.preferences();
    const auto again = [this] { rebuild(); };
    subscriptions_.add(model_.version(), again);
    subscriptions_.add(preferences.libraryTiles, again);
    subscriptions_.add(ui_.theme.version(), again);
    const auto repaint = [this] { relayout(); };
    subscriptions_.add(preferences.format, repaint);
    subscriptions_.add(preferences.formatOptions, repaint);
    subscriptions_.add(preferences.swatchBackdrop, repaint);
    subscriptions_.add(preferences.backdropColour, repaint);
}

// Layout

void LibraryCanvas::rebuild() {
    layout_ = LibraryLayout(theme(), model_, ui_.models.preferences().libraryTiles, size());
    syncBar();
    followCurrent();
    relayout();
    setFocused(place_ ? find(place_->kind, place_->index) : -1);
}

void LibraryCanvas::syncBar() {
    const auto beyond = std::max(0, static_cast<int>(std::ceil(layout_.height())) - height());
    bar_->setRange(0, beyond);
    bar_->setPageStep(height());
    bar_->setVisible(beyond > 0);
    bar_->setGeometry(width() - kBar, 0, kBar, height());
}

/// The focus stays with what it was on, or goes to what stands in its place.
void LibraryCanvas::followCurrent() {
    const auto current = model_.current();
    if (!current) {
        const auto sections = model_.listing().sections.size();
        const auto& lines = layout_.lines();
        const bool isHeader = place_ && place_->kind == header && place_->index < sections;
        const bool isNote = place_ && place_->kind == noteAction && place_->index < lines.size() &&
                            lines[place_->index].kind == LibraryLine::Kind::note;
        if (!isHeader && !isNote) place_.reset();
        return;
    }
    const auto line = lineWith(*current);
    const bool isInside = place_ && (place_->kind == swatch || place_->kind == action) &&
                          findOf(place_->index) == *current && line &&
                          layout_.lines()[*line].isUnfolded;
    if (line && !isInside) place_ = Place{palette, *current};
    if (line) return;
    const auto& sections = model_.listing().sections;
    for (std::size_t i = 0; i < sections.size(); ++i)
        if (*current >= sections[i].first && *current < sections[i].first + sections[i].count)
            place_ = Place{header, i};
}

QRectF LibraryCanvas::inView(const QRectF& rect) const {
    return rect.translated(0, -bar_->value());
}

std::optional<std::size_t> LibraryCanvas::lineOf(const Place& place) const {
    switch (place.kind) {
    case header:
        return layout_.lineOfSection(place.index);
    case palette:
        return lineWith(place.index);
    case panel:
    case swatch:
    case action:
        return lineWith(findOf(place.index));
    case noteAction:
        return place.index;
    }
    return std::nullopt;
}

std::size_t LibraryCanvas::focusedLine() const {
    const auto none = layout_.lines().size();
    return place_ ? lineOf(*place_).value_or(none) : none;
}

std::vector<CanvasItem> LibraryCanvas::layoutItems(QSizeF size) const {
    std::vector<CanvasItem> items;
    const auto& lines = layout_.lines();
    const qreal top = bar_->value();
    const auto focused = focusedLine();
    const auto first = layout_.lineAt(top);
    if (focused < first) addLine(items, focused);
    auto at = first;
    for (; at < lines.size() && lines[at].top < top + size.height(); ++at)
        addLine(items, at);
    if (focused >= at && focused < lines.size()) addLine(items, focused);
    return items;
}

void LibraryCanvas::addLine(std::vector<CanvasItem>& items, std::size_t at) const {
    const auto& line = layout_.lines()[at];
    switch (line.kind) {
    case LibraryLine::Kind::header:
        items.push_back(headerItem(line));
        return;
    case LibraryLine::Kind::palette:
    case LibraryLine::Kind::tiles:
        for (auto i = line.first; i < line.first + line.count; ++i)
            items.push_back(paletteItem(line, i));
        if (line.isUnfolded) addPanel(items, line);
        return;
    case LibraryLine::Kind::note:
        break;
    }
    const auto note = noteOf(model_, line);
    const QRectF whole(0, line.top, width(), line.height);
    items.push_back({.rect = inView(whole),
                     .kind = panel,
                     .index = at,
                     .role = QAccessible::StaticText,
                     .name = note.title.isEmpty() ? note.text : note.title,
                     .description = note.title.isEmpty() ? QString() : note.text});
    if (!note.action.isEmpty())
        items.push_back({.rect = inView(painter_.noteButton(whole, note, layout_.sides().left)),
                         .kind = noteAction,
                         .index = at,
                         .role = QAccessible::Button,
                         .name = note.action});
}

CanvasItem LibraryCanvas::headerItem(const LibraryLine& line) const {
    const auto& listing = model_.listing();
    const auto& section = listing.sections[line.section];
    const auto& group = listing.groupOf(section);
    QStringList said;
    if (group.location && group.location->tag) said << oneLine(*group.location->tag);
    if (!group.isOnline) said << worded("OFFLINE");
    if (group.kind == PaletteEntry::Group::system) said << worded("SYSTEM");
    if (const auto path = pathOf(group); !path.isEmpty()) said << path;
    return {.rect = inView(layout_.headerRect(line)),
            .kind = header,
            .index = line.section,
            .role = QAccessible::TreeItem,
            .name = titleOf(group),
            .value = countText(listing, section),
            .description = said.join(QStringLiteral(", ")),
            .expanded = !model_.isFolded(group)};
}

CanvasItem LibraryCanvas::paletteItem(const LibraryLine& line, std::size_t find) const {
    const auto& listing = model_.listing();
    const auto& section = listing.sections[line.section];
    const auto& one = listing.paletteAt(find);
    QStringList said{countAndType(one), dateText(one)};
    if (one.state == PaletteEntry::State::unreadable) said = {unreadableText(one)};
    if (one.state == PaletteEntry::State::loading) said << worded("being read");
    if (const auto match = matchOf(model_, find); match.swatch)
        said << swatchName(*match.swatch) << swatchCode(ui_, *match.swatch) << match.distance;
    said.removeAll(QString());
    CanvasItem item{.rect = inView(layout_.paletteRect(line, find)),
                    .kind = palette,
                    .index = find,
                    .role = QAccessible::TreeItem,
                    .name = oneLine(one.name),
                    .value = said.join(QStringLiteral(", ")),
                    .description =
                        worded("%1 of %2").arg(find - section.first + 1).arg(section.count),
                    .selected = model_.current() == find};
    if (line.kind == LibraryLine::Kind::palette) item.expanded = line.isUnfolded;
    return item;
}

LibraryPanel LibraryCanvas::panelOf(std::size_t find) const {
    const auto line = lineWith(find);
    const auto place = inView(layout_.panelRect(layout_.lines()[*line]));
    return {theme(), model_.listing().paletteAt(find), model_.installsFor(), place.topLeft(),
            place.width()};
}

void LibraryCanvas::addPanel(std::vector<CanvasItem>& items, const LibraryLine& line) const {
    const auto find = line.first;
    const auto& one = model_.listing().paletteAt(find);
    const auto open = panelOf(find);
    items.push_back({.rect = open.rect(), .kind = panel, .index = packed(find, 0)});
    for (std::size_t i = 0; i < open.swatches().size(); ++i) {
        const auto& held = one.palette->swatches[i];
        const auto code = swatchCode(ui_, held);
        // The nearest name of each of hundreds would take too long to find.
        const bool isNamed = held.name || !LibraryPanel::isSmall(one.palette->swatches.size());
        items.push_back(
            {.rect = open.swatches()[i],
             .kind = swatch,
             .index = packed(find, i),
             .role = QAccessible::ListItem,
             .name = isNamed ? swatchName(held) : code,
             .value = code,
             .description = worded("%1 of %2").arg(i + 1).arg(one.palette->swatches.size())});
    }
    for (const auto& button : open.buttons())
        items.push_back({.rect = button.rect,
                         .kind = action,
                         .index = packed(find, static_cast<std::size_t>(button.action)),
                         .role = QAccessible::Button,
                         .name = button.title});
}

// Painting

std::vector<LibraryButton> LibraryCanvas::buttonsOf(const CanvasItem& item) const {
    const auto& listing = model_.listing();
    if (item.kind == header) {
        const auto& group = listing.groupOf(listing.sections[item.index]);
        const bool hasMenu = group.kind == PaletteEntry::Group::location;
        return hasMenu ? painter_.headerButtons(item.rect) : std::vector<LibraryButton>();
    }
    if (item.kind != palette) return {};
    if (ui_.models.preferences().libraryTiles) return painter_.tileButtons(item.rect);
    return painter_.rowButtons(item.rect, layout_.sides(), item.index);
}

int LibraryCanvas::buttonAt(int item, QPointF place) const {
    if (item < 0) return -1;
    const auto all = buttonsOf(items()[static_cast<std::size_t>(item)]);
    for (std::size_t i = 0; i < all.size(); ++i)
        if (all[i].rect.contains(place)) return static_cast<int>(i);
    return -1;
}

void LibraryCanvas::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    const auto& listing = model_.listing();
    const LibraryLook look{.isCurrent = item.selected,
                           .isFocused = state.focused,
                           .isHovered = state.hovered,
                           .hoveredButton = state.hovered ? hoveredButton_ : -1};
    switch (static_cast<Kind>(item.kind)) {
    case header:
        painter_.header(painter, item.rect, listing.sections[item.index], look);
        return;
    case palette:
        if (ui_.models.preferences().libraryTiles)
            painter_.tile(painter, item.rect, item.index, look);
        else
            painter_.row(painter, item.rect, layout_.sides(), item.index, look);
        return;
    case panel:
        if (item.role == QAccessible::NoRole)
            painter_.panel(painter, panelOf(findOf(item.index)));
        else
            painter_.note(painter, item.rect, noteOf(model_, layout_.lines()[item.index]),
                          layout_.sides().left);
        return;
    case swatch: {
        const auto find = findOf(item.index);
        const auto& swatches = listing.paletteAt(find).palette->swatches;
        painter_.swatch(painter, item.rect, swatches[partOf(item.index)],
                        LibraryPanel::isSmall(swatches.size()), look);
        return;
    }
    case action:
    case noteAction:
        break;
    }
    paintButton(painter, item, state);
}

void LibraryCanvas::paintButton(QPainter& painter, const CanvasItem& item, ItemState state) const {
    QStyleOptionButton button;
    // A button's ring of focus stands round it.
    button.rect = item.rect.toRect() + StyleParts::kRingRoom;
    button.text = item.name;
    button.state = QStyle::State_Enabled;
    if (state.hovered) button.state |= QStyle::State_MouseOver;
    if (state.focused) button.state |= QStyle::State_HasFocus;
    bool isFirst = item.kind == action && partOf(item.index) == LibraryPanel::open;
    if (item.kind == noteAction) {
        const auto note = noteOf(model_, layout_.lines()[item.index]);
        isFirst = note.isFirstStep();
        button.iconSize = QSize(kIcon, kIcon);
        if (!note.icon().empty())
            button.icon =
                theme().icon(note.icon(), kIcon, theme().color(isFirst ? Token::onsel : Token::ink),
                             devicePixelRatioF());
    }
    if (isFirst) button.features = QStyleOptionButton::DefaultButton;
    style()->drawControl(QStyle::CE_PushButton, &button, &painter, this);
}

void LibraryCanvas::showDrop(bool isOver) {
    if (std::exchange(isDropShown_, isOver) != isOver) update();
}

void LibraryCanvas::paintOverlay(QPainter& painter) {
    if (!isDropShown_) return;
    painter.setPen(QPen(theme().color(Token::ink), kDropRing));
    painter.setBrush(Qt::NoBrush);
    constexpr auto kInset = kDropRing / 2.0;
    painter.drawRect(QRectF(rect()).adjusted(kInset, kInset, -kInset, -kInset));
}

void LibraryCanvas::hoverMoved(int item, QPointF place) {
    const auto button = buttonAt(item, place);
    if (button == hoveredButton_) return;
    hoveredButton_ = button;
    repaintItem(item);
}

QString LibraryCanvas::tip(QPoint at) const {
    const auto item = itemAt(at);
    if (item < 0) return {};
    const auto& one = items()[static_cast<std::size_t>(item)];
    if (const auto button = buttonAt(item, at); button >= 0)
        return buttonsOf(one)[static_cast<std::size_t>(button)].title();
    const auto& listing = model_.listing();
    if (one.kind == swatch) {
        const auto& held =
            listing.paletteAt(findOf(one.index)).palette->swatches[partOf(one.index)];
        return swatchName(held) + u'\n' + swatchCode(ui_, held);
    }
    return {};
}

bool LibraryCanvas::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return Canvas::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), tip(help->pos()), this);
    return true;
}

void LibraryCanvas::resizeEvent(QResizeEvent* event) {
    layout_ = LibraryLayout(theme(), model_, ui_.models.preferences().libraryTiles, size());
    syncBar();
    Canvas::resizeEvent(event);
}

// What has the focus

const PaletteFile::Swatch* LibraryCanvas::currentSwatch() const {
    if (!place_ || place_->kind != swatch) return nullptr;
    const auto& held = model_.listing().paletteAt(findOf(place_->index)).palette;
    return held ? &held->swatches[partOf(place_->index)] : nullptr;
}

const LibraryGroup* LibraryCanvas::currentGroup() const {
    if (!place_ || place_->kind != header) return nullptr;
    const auto& listing = model_.listing();
    return &listing.groupOf(listing.sections[place_->index]);
}

void LibraryCanvas::focusMoved(int item) {
    if (item >= 0) {
        const auto& one = items()[static_cast<std::size_t>(item)];
        place_ = Place{static_cast<Kind>(one.kind), one.index};
        if (one.kind == palette)
            model_.setCurrent(one.index);
        else if (one.kind == swatch || one.kind == action)
            model_.setCurrent(findOf(one.index));
        else
            model_.setCurrent(std::nullopt);
        const auto row = model_.current() ? find(palette, *model_.current()) : -1;
        markSelected(row);
    }
    if (currentChanged) currentChanged();
}

} // namespace tintra
