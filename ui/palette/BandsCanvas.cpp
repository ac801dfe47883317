#include "ui/palette/BandsCanvas.h"

#include "colour/ColorNames.h"
#include "platform/Services.h"
#include "state/Models.h"
#include "ui/palette/SwatchLayout.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>

namespace tintra {
namespace {

constexpr std::size_t kStride = 64; ///< more than the longest band holds
constexpr int kButton = 28;
constexpr double kFlash = 0.12; ///< seconds

constexpr std::array<std::string_view, 4> kButtons{"copy", "add", "bench", "contrast"};

QString degrees(double offset) {
    return QString::number(offset, 'g', 4).replace(QLatin1Char('-'), QChar(0x2212)) + QChar(0xB0);
}

int clampedSteps(const AppState& state) {
    return std::clamp(state.steps.value(), AppState::kFewestSteps, AppState::kMostSteps);
}

} // namespace

BandsCanvas::BandsCanvas(Ui& ui, AppState& state, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), state_(state) {
    containerRole = QAccessible::Table;
    setAccessibleName(worded("Harmony"));
    subscribe();
    setWhole();
}

BandsCanvas::~BandsCanvas() = default;

void BandsCanvas::subscribe() {
    auto& preferences = ui_.models.preferences();
    const auto again = [this] {
        setWhole();
        relayout();
    };
    subscriptions_.add(state_.seeds(), again);
    subscriptions_.add(state_.steps, again);
    subscriptions_.add(state_.shadesPerAnchor, again);
    subscriptions_.add(state_.blendSpace, again);
    subscriptions_.add(state_.mode, again);
    subscriptions_.add(ui_.theme.version(), again);
    const auto repaint = [this] { relayout(); };
    subscriptions_.add(state_.vision, repaint);
    subscriptions_.add(preferences.format, repaint);
    subscriptions_.add(preferences.formatOptions, repaint);
    subscriptions_.add(preferences.swatchBackdrop, repaint);
    subscriptions_.add(preferences.backdropColour, repaint);
    subscriptions_.add(preferences.profilesVersion, repaint);
    subscriptions_.add(state_.copyTick, [this] { flashCode(); });
}

// Layout

BandPlaces BandsCanvas::places(QSizeF size) const {
    std::vector<std::size_t> counts;
    for (const auto& band : state_.bands())
        counts.push_back(band.size());
    qreal widest = 0;
    for (std::size_t band = 0; band < counts.size(); ++band)
        widest = std::max(widest, figuresWidth(theme().font(TextStyle::control), labelOf(band)));
    return bandPlaces(counts, size,
                      {.label = static_cast<int>(std::ceil(widest)),
                       .labelLine = theme().lineHeight(TextStyle::control),
                       .more = theme().scaled(kButton)});
}

void BandsCanvas::setWhole() {
    // The least height makes the scroll area scroll; a width of its own would not follow it.
    const QSizeF visible(width(), parentWidget() ? parentWidget()->height() : height());
    const auto whole = static_cast<int>(places(visible).height);
    const auto least = whole > static_cast<int>(visible.height()) ? whole : 0;
    if (least != minimumHeight()) setMinimumHeight(least);
}

void BandsCanvas::resizeEvent(QResizeEvent* event) {
    setWhole();
    Canvas::resizeEvent(event);
}

BandsCanvas::Spot BandsCanvas::spotOf(const CanvasItem& item) {
    if (item.kind != cell) return {item.index, 0};
    return {item.index / kStride, item.index % kStride};
}

int BandsCanvas::itemOf(Spot spot) const {
    return find(cell, spot.band * kStride + spot.column);
}

QString BandsCanvas::labelOf(std::size_t band) const {
    const auto turned = offsets(state_.mode, clampedSteps(state_));
    if (!turned || state_.bands().size() < 2 || band >= turned->size()) return {};
    return degrees((*turned)[band]);
}

QString BandsCanvas::markOf(Spot spot) const {
    const auto& bands = state_.bands();
    const auto last = bands[spot.band].size() - 1;
    if (bands.size() > 1) return {};
    if (state_.mode.value() == HarmonyMode::ramp) {
        if (spot.column == 0) return worded("First");
        return spot.column == last ? worded("Last") : QString();
    }
    if (state_.mode.value() == HarmonyMode::monochromatic) {
        const auto base = std::ranges::find(bands[0], state_.first()) - bands[0].begin();
        return static_cast<std::size_t>(base) == spot.column ? worded("Base") : QString();
    }
    const auto turned = offsets(state_.mode, clampedSteps(state_));
    return turned && spot.column < turned->size() ? degrees((*turned)[spot.column]) : QString();
}

CanvasItem BandsCanvas::cellItem(Spot spot, const QRectF& rect) const {
    CanvasItem item;
    item.rect = rect;
    item.kind = cell;
    item.index = spot.band * kStride + spot.column;
    item.role = QAccessible::Cell;
    item.name = oneLine(ColorNames::shared().name(colorAt(spot)));
    item.value = code(spot);
    const auto place =
        worded("%1 of %2").arg(spot.column + 1).arg(state_.bands()[spot.band].size());
    const auto mark = state_.bands().size() > 1 ? labelOf(spot.band) : markOf(spot);
    item.description = mark.isEmpty() ? place : mark + QStringLiteral(", ") + place;
    return item;
}

std::vector<CanvasItem> BandsCanvas::layoutItems(QSizeF size) const {
    stand_ = places(size);
    std::vector<CanvasItem> items;
    for (std::size_t band = 0; band < stand_.bands.size(); ++band) {
        const auto& place = stand_.bands[band];
        if (!place.label.isEmpty()) {
            CanvasItem item;
            item.rect = place.label;
            item.kind = label;
            item.index = band;
            item.name = labelOf(band);
            items.push_back(std::move(item));
        }
        for (std::size_t column = 0; column < place.cells.size(); ++column)
            items.push_back(cellItem({band, column}, place.cells[column]));
        if (place.more.isEmpty()) continue;
        CanvasItem item;
        item.rect = place.more;
        item.kind = more;
        item.index = band;
        item.role = QAccessible::Button;
        item.name = worded("More for %1").arg(labelOf(band));
        items.push_back(std::move(item));
    }
    return items;
}

int BandsCanvas::neighbour(int from, Qt::Key key) const {
    if (from < 0) return itemOf({0, 0});
    const auto& here = items()[static_cast<std::size_t>(from)];
    const auto spot = spotOf(here);
    const auto& bands = state_.bands();
    if (spot.band >= bands.size()) return itemOf({0, 0});
    const auto last = bands[spot.band].size() - 1;
    const auto toMore = find(more, spot.band);
    switch (key) {
    case Qt::Key_Left:
        if (here.kind == more) return itemOf({spot.band, last});
        return spot.column > 0 ? itemOf({spot.band, spot.column - 1}) : from;
    case Qt::Key_Right:
        if (here.kind == more) return from;
        if (spot.column < last) return itemOf({spot.band, spot.column + 1});
        return toMore < 0 ? from : toMore;
    case Qt::Key_Home:
        return itemOf({spot.band, 0});
    case Qt::Key_End:
        return itemOf({spot.band, last});
    case Qt::Key_PageUp:
        return here.kind == more ? find(more, 0) : itemOf({0, spot.column});
    case Qt::Key_PageDown:
        return here.kind == more ? find(more, bands.size() - 1)
                                 : itemOf({bands.size() - 1, spot.column});
    default:
        // Up and down by where things stand: a band may take several lines.
        return Canvas::neighbour(from, key);
    }
}

// What stands where

std::optional<BandsCanvas::Spot> BandsCanvas::current() const {
    if (focused() < 0) return std::nullopt;
    const auto spot = spotOf(items()[static_cast<std::size_t>(focused())]);
    const auto& bands = state_.bands();
    if (spot.band >= bands.size() || spot.column >= bands[spot.band].size()) return std::nullopt;
    return spot;
}

std::optional<ActionTarget> BandsCanvas::target() const {
    const auto& bands = state_.bands();
    if (bands.empty() || bands.front().empty()) return std::nullopt;
    return ActionTarget{colorAt(current().value_or(Spot{})), std::nullopt, std::nullopt};
}

const WashColor& BandsCanvas::colorAt(Spot spot) const {
    return state_.bands()[spot.band][spot.column];
}

QString BandsCanvas::code(Spot spot) const {
    const auto& preferences = ui_.models.preferences();
    const auto& colour = colorAt(spot);
    return fromUtf8(preferences.format.value().string(colour, ColorNames::shared().name(colour),
                                                      preferences.formatOptions.value()));
}

// Painting

SwatchLook BandsCanvas::look(const CanvasItem& item, ItemState state) const {
    const auto spot = spotOf(item);
    SwatchLook look;
    look.color = colorAt(spot);
    look.vision = state_.vision;
    look.shape = stand_.shape;
    look.code = item.value;
    look.index = markOf(spot);
    look.codeFlashes = flashing_ == spot;
    look.focused = state.focused;
    look.selected = !state.focused && current() == spot;
    if (state.hovered || state.focused) {
        const auto count = buttonsIn(item.rect);
        // Buttons take the place of the mark.
        if (count > 0) look.index.clear();
        for (std::size_t i = 0; i < count; ++i) {
            const bool under = state.hovered && hoveredButton_ == static_cast<int>(i);
            const bool down = state.hovered && pressedButton_ == static_cast<int>(i);
            look.buttons.push_back({.icon = kButtons[i], .hovered = under, .pressed = down});
        }
    }
    return look;
}

void BandsCanvas::paintCell(QPainter& painter, const CanvasItem& item, ItemState state) {
    auto drawn = look(item, state);
    const auto& lines = stand_.bands[spotOf(item).band].lines;
    const auto line = std::ranges::find_if(
        lines, [&](const QRectF& of) { return of.contains(item.rect.center()); });
    const auto group = line == lines.end() ? item.rect : *line;
    drawn.radii = radiiWithin(item.rect, group, metrics::kGroupRadius);
    ui_.painter.paint(painter, item.rect, drawn);
    painter.setClipRect(item.rect);
    ui_.painter.hairline(painter, group, metrics::kGroupRadius);
}

void BandsCanvas::paintMore(QPainter& painter, const CanvasItem& item, ItemState state) const {
    constexpr int kIcon = 20;
    const bool down = state.hovered && pressed_ >= 0 && pressed_ == hovered();
    if (state.hovered) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme().color(down ? Token::press : Token::hover));
        painter.drawRoundedRect(item.rect, metrics::kControlRadius, metrics::kControlRadius);
    }
    painter.drawPixmap(
        item.rect.center() - QPointF(kIcon / 2.0, kIcon / 2.0),
        theme().icon("more", kIcon, theme().color(Token::ink2), devicePixelRatioF()));
    if (state.focused) paintFocusRing(painter, theme(), item.rect, metrics::kControlRadius);
}

void BandsCanvas::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    // What was laid out may be a moment older than the bands.
    const auto spot = spotOf(item);
    if (spot.band >= state_.bands().size() || spot.band >= stand_.bands.size()) return;
    switch (item.kind) {
    case label:
        painter.setFont(theme().font(TextStyle::control));
        painter.setPen(theme().color(Token::ink));
        drawFigures(painter, item.rect,
                    Qt::AlignVCenter | (item.rect.left() > 0 ? Qt::AlignHCenter : Qt::AlignRight),
                    item.name);
        break;
    case cell:
        if (spot.column < state_.bands()[spot.band].size()) paintCell(painter, item, state);
        break;
    default:
        paintMore(painter, item, state);
    }
}

void BandsCanvas::flashCode() {
    if (!isVisible()) return;
    flashing_ = current();
    relayout();
    flash_ = ui_.services.mainLoop.after(kFlash, [this] {
        flashing_.reset();
        relayout();
    });
}

} // namespace tintra
