#include "ui/palette/PaletteCanvas.h"

#include "colour/ColorNames.h"
#include "platform/MainLoop.h"
#include "platform/Services.h"
#include "state/Models.h"
#include "ui/shared/Controls.h"
#include "ui/shared/PlacedField.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QCursor>
#include <QPainter>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kMargin = 12;
constexpr int kRow = 40; ///< least height of a row
constexpr int kBar = 4;  ///< thickness of the bar beneath a selected swatch
constexpr int kBarGap = 4;
constexpr int kInsertion = 6;
constexpr double kFlash = 0.12; ///< seconds

/// The buttons of a swatch under the pointer, in the order in which they stand.
constexpr std::array<std::string_view, 5> kButtons{"copy", "editor", "bench", "contrast", "remove"};

} // namespace

PaletteCanvas::PaletteCanvas(Ui& ui, AppState& state, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), state_(state) {
    setAccessibleName(worded("Palette"));
    setAcceptDrops(true);
    subscribe();
    setWhole();
    relayout();
    syncSelection();
}

void PaletteCanvas::subscribe() {
    auto& preferences = ui_.models.preferences();
    const auto layOut = [this] {
        setWhole();
        relayout();
        syncSelection();
    };
    const auto repaint = [this] { relayout(); };
    subscriptions_.add(state_.customPalette(), layOut);
    subscriptions_.add(ui_.theme.version(), layOut);
    subscriptions_.add(state_.selectedSwatch, [this] { syncSelection(); });
    subscriptions_.add(state_.vision, [this] { update(); });
    subscriptions_.add(state_.editorBuffer, [this] { showEdited(); });
    subscriptions_.add(state_.imageSource, layOut);
    subscriptions_.add(preferences.format, repaint);
    subscriptions_.add(preferences.formatOptions, repaint);
    subscriptions_.add(preferences.swatchBackdrop, repaint);
    subscriptions_.add(preferences.backdropColour, repaint);
    subscriptions_.add(preferences.profilesVersion, repaint);
    subscriptions_.add(preferences.showsWatermark, repaint);
    subscriptions_.add(state_.copyTick, [this] { flashCode(); });
    subscriptions_.add(state_.renamingSwatch, [this] {
        if (const auto at = state_.renamingSwatch.value()) beginRename(*at);
    });
    subscriptions_.add(state_.revealSwatch, [this] {
        const auto at = state_.revealSwatch.value();
        const auto item = at ? find(swatch, *at) : -1;
        if (item >= 0 && reveal)
            reveal(items()[static_cast<std::size_t>(item)].rect.toAlignedRect());
    });
}

PaletteCanvas::~PaletteCanvas() = default;

void PaletteCanvas::showEdited() {
    const auto show = [this](std::optional<std::size_t> at) {
        const auto item = at ? find(swatch, *at) : -1;
        if (item >= 0) setItem(item, itemOf(*at, items()[static_cast<std::size_t>(item)].rect));
    };
    const auto before = std::exchange(edited_, std::nullopt);
    const auto& buffer = state_.editorBuffer.value();
    const auto& all = state_.swatches();
    const auto now = std::ranges::find_if(
        all, [&](const auto& one) { return buffer && one.id == buffer->swatchID; });
    if (now != all.end()) edited_ = static_cast<std::size_t>(now - all.begin());
    if (before != edited_ && before < all.size()) show(before);
    show(edited_);
}

void PaletteCanvas::setDisplay(PaletteDisplay display) {
    if (display == display_) return;
    display_ = display;
    setWhole();
    relayout();
}

void PaletteCanvas::setRows(bool picturePane) {
    if (picturePane == rows_) return;
    rows_ = picturePane;
    setWhole();
    relayout();
}

void PaletteCanvas::setPeeking(bool peeks) {
    if (peeks == peeks_) return;
    peeks_ = peeks;
    update();
}

SwatchPlaces PaletteCanvas::places(QSizeF size) const {
    const auto count = state_.swatches().size();
    constexpr int kRowsBelow = 280;
    if (rows_ || window()->width() < kRowsBelow)
        return rowPlaces(count, size, theme().scaled(kRow));
    return display_ == PaletteDisplay::tiles ? tilePlaces(count, size) : columnPlaces(count, size);
}

void PaletteCanvas::findPins() {
    pinned_.assign(rows_ ? state_.swatches().size() : 0, std::nullopt);
    if (!rows_) return;
    for (const auto& mark : pinMarks(state_))
        if (mark.swatch) pinned_[*mark.swatch] = mark;
}

void PaletteCanvas::setWhole() {
    findPins();
    // The least height makes the scroll area scroll; a width of its own would not follow it.
    const QSizeF visible(width(), parentWidget() ? parentWidget()->height() : height());
    const auto whole = static_cast<int>(places(visible).height);
    const auto least = whole > static_cast<int>(visible.height()) ? whole : 0;
    if (least != minimumHeight()) setMinimumHeight(least);
}

void PaletteCanvas::resizeEvent(QResizeEvent* event) {
    setWhole();
    Canvas::resizeEvent(event);
}

WashColor PaletteCanvas::colorAt(std::size_t at) const {
    const auto& held = state_.swatches()[at];
    const auto& buffer = state_.editorBuffer.value();
    return buffer && buffer->swatchID == held.id ? buffer->color : held.color;
}

QString PaletteCanvas::code(std::size_t at, const std::string& name) const {
    const auto& preferences = ui_.models.preferences();
    return fromUtf8(
        preferences.format.value().string(colorAt(at), name, preferences.formatOptions.value()));
}

CanvasItem PaletteCanvas::itemOf(std::size_t at, const QRectF& rect) const {
    // What is being edited is called after what it has become.
    const auto& given = state_.swatches()[at].name;
    const auto name = given ? *given : ColorNames::shared().name(colorAt(at));
    CanvasItem item;
    item.rect = rect;
    item.kind = swatch;
    item.index = at;
    item.role = QAccessible::ListItem;
    item.name = oneLine(name);
    item.value = code(at, name);
    item.description = worded("%1 of %2").arg(at + 1).arg(state_.swatches().size());
    item.selected = state_.selectedSwatch.value() == at;
    return item;
}

std::vector<CanvasItem> PaletteCanvas::layoutItems(QSizeF size) const {
    stand_ = places(size);
    const auto count = state_.swatches().size();
    std::vector<CanvasItem> items;
    items.reserve(stand_.rects.size());
    for (std::size_t i = 0; i < std::min(count, stand_.rects.size()); ++i)
        items.push_back(itemOf(i, stand_.rects[i]));
    if (stand_.rects.size() > count) {
        CanvasItem add;
        add.rect = stand_.rects.back();
        add.kind = addCell;
        add.role = QAccessible::Button;
        add.name = worded("Add a swatch");
        items.push_back(std::move(add));
    }
    return items;
}

SwatchLook PaletteCanvas::look(std::size_t at) const {
    const auto& item = items()[at];
    SwatchLook look;
    look.color = colorAt(at);
    look.vision = state_.vision;
    look.shape = stand_.shape;
    look.name = item.name;
    look.code = item.value;
    look.selected = item.selected;
    look.codeFlashes = flashing_ == at;
    look.hidesName = field_ && !field_->isHidden() && renamed_ == at;
    look.leftBehind = state_.draggingSwatch.value() == at;
    // There is room for the digits only; what is copied has the mark.
    if (look.shape == SwatchShape::onSide && look.code.startsWith(u'#')) look.code.remove(0, 1);
    if (rows_)
        markPin(look, at);
    else if (look.shape != SwatchShape::row)
        look.index = QString::number(at + 1);
    return look;
}

void PaletteCanvas::markPin(SwatchLook& look, std::size_t at) const {
    if (at >= pinned_.size() || !pinned_[at]) return;
    look.index = QString::number(pinned_[at]->number);
    look.pinned = true;
    look.ownPin = pinned_[at]->isOwn;
}

void PaletteCanvas::paintGround(QPainter& painter, const QRect& dirty) {
    Canvas::paintGround(painter, dirty);
    if (!ui_.models.preferences().showsWatermark) return;
    painter.setFont(theme().font(TextStyle::caption));
    painter.setPen(theme().color(Token::ink3));
    painter.drawText(QRectF(rect()).adjusted(0, height() - kMargin, -kMargin, 0),
                     Qt::AlignRight | Qt::AlignVCenter | Qt::TextDontClip,
                     QStringLiteral("Tintra"));
}

void PaletteCanvas::paintAddCell(QPainter& painter, const CanvasItem& item, ItemState state) const {
    const auto ink = theme().color(state.hovered || state.focused ? Token::ink : Token::ink3);
    painter.setPen(QPen(theme().color(Token::edge), 1, Qt::DashLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(item.rect.adjusted(0.5, 0.5, -0.5, -0.5), metrics::kGroupRadius,
                            metrics::kGroupRadius);
    const auto middle = item.rect.center();
    painter.drawPixmap(middle - QPointF(10, 22), theme().icon("add", 20, ink, devicePixelRatioF()));
    painter.setFont(theme().font(TextStyle::body));
    painter.setPen(ink);
    painter.drawText(item.rect.adjusted(0, 24, 0, 0), Qt::AlignCenter, item.name);
    if (state.focused)
        paintFocusRing(painter, theme(), item.rect.adjusted(-2, -2, 2, 2), metrics::kGroupRadius);
}

std::vector<SwatchButton> PaletteCanvas::buttons(const CanvasItem& item, ItemState state) const {
    std::vector<SwatchButton> shown;
    if (!(state.hovered || state.focused) || !hasButtons(item)) return shown;
    for (int i = 0; i < static_cast<int>(kButtons.size()); ++i)
        shown.push_back({.icon = kButtons[static_cast<std::size_t>(i)],
                         .hovered = state.hovered && hoveredButton_ == i,
                         .pressed = state.hovered && pressedButton_ == i});
    return shown;
}

bool PaletteCanvas::hasButtons(const CanvasItem& item) const {
    const auto rects = ui_.painter.buttonRects(item.rect, stand_.shape, kButtons.size());
    const auto words = look(item.index);
    // Buttons never hide the code; where there is no room the menu has the same.
    const auto code = ui_.painter.codeRect(item.rect, words);
    if (stand_.shape != SwatchShape::row) return rects.back().bottom() < code.top();
    constexpr int kLeastName = 72;
    return rects.front().left() - item.rect.left() >= kLeastName + (words.pinned ? 36 : 0);
}

void PaletteCanvas::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    if (peeks_) return;
    if (item.kind == addCell) {
        paintAddCell(painter, item, state);
        return;
    }
    auto drawn = look(item.index);
    drawn.focused = state.focused;
    const auto group = std::ranges::find_if(
        stand_.groups, [&](const QRectF& of) { return of.contains(item.rect.center()); });
    const bool isAlone = group == stand_.groups.end();
    drawn.radii = radiiWithin(item.rect, isAlone ? item.rect : *group, metrics::kGroupRadius);
    drawn.buttons = buttons(item, state);
    if (!drawn.buttons.empty()) {
        // In a row the buttons take the place of the code, on a side that of a long name, on a tile
        // that of the number.
        if (stand_.shape == SwatchShape::row) drawn.code.clear();
        if (stand_.shape == SwatchShape::onSide) drawn.hidesName = true;
        if (stand_.shape == SwatchShape::tile) {
            // There they begin at the top, and with large type reach down to the name.
            drawn.index.clear();
            const auto places =
                ui_.painter.buttonRects(item.rect, stand_.shape, drawn.buttons.size());
            if (places.back().bottom() > ui_.painter.nameRect(item.rect, drawn).top())
                drawn.hidesName = true;
        }
    }
    ui_.painter.paint(painter, item.rect, drawn);
    if (drawn.leftBehind) return;
    if (isAlone) ui_.painter.hairline(painter, item.rect, metrics::kGroupRadius);
    if (drawn.selected && stand_.shape != SwatchShape::row) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme().color(Token::ink));
        painter.drawRoundedRect(
            QRectF(item.rect.left(), item.rect.bottom() + kBarGap, item.rect.width(), kBar),
            kBar / 2.0, kBar / 2.0);
    }
}

void PaletteCanvas::paintOverlay(QPainter& painter) {
    const auto selected = state_.selectedSwatch.value();
    if (peeks_ && selected && *selected < state_.swatches().size()) {
        ui_.painter.fill(painter, rect(), colorAt(*selected), state_.vision);
        return;
    }
    for (const auto& group : stand_.groups)
        ui_.painter.hairline(painter, group, metrics::kGroupRadius);
    painter.setBrush(Qt::NoBrush);
    if (insertion_) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme().color(Token::ink));
        painter.drawRoundedRect(insertionBar(), 2, 2);
    }
}

void PaletteCanvas::syncSelection() {
    const auto selected = state_.selectedSwatch.value();
    const auto item = selected ? find(swatch, *selected) : -1;
    markSelected(item);
    if (item >= 0) setFocused(item);
}

void PaletteCanvas::focusMoved(int item) {
    if (item < 0) return;
    const auto& one = items()[static_cast<std::size_t>(item)];
    if (one.kind == swatch) state_.selectedSwatch = one.index;
    if (reveal) reveal(one.rect.toAlignedRect());
}

int PaletteCanvas::neighbour(int from, Qt::Key key) const {
    const auto stand = stand_.shape;
    const auto last = static_cast<int>(items().size()) - 1;
    // Along the palette rather than along the rows: left of the first in a row is the last above.
    const bool isRow = stand == SwatchShape::row;
    if (from >= 0 && (key == Qt::Key_Left || (isRow && key == Qt::Key_Up)))
        return std::max(0, from - 1);
    if (from >= 0 && (key == Qt::Key_Right || (isRow && key == Qt::Key_Down)))
        return std::min(last, from + 1);
    return Canvas::neighbour(from, key);
}

void PaletteCanvas::flashCode() {
    const auto repaint = [this](std::optional<std::size_t> at) {
        if (at) repaintItem(find(swatch, *at));
    };
    repaint(flashing_);
    flashing_ = state_.selectedSwatch.value();
    repaint(flashing_);
    flash_ = ui_.services.mainLoop.after(
        kFlash, [this, repaint] { repaint(std::exchange(flashing_, std::nullopt)); });
}

} // namespace tintra
