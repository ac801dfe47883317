#include "ui/palette/StripCells.h"

#include "colour/ColorNames.h"
#include "platform/Services.h"
#include "state/Models.h"
#include "ui/palette/SwatchLayout.h"
#include "ui/shared/ColourDrag.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

namespace tintra {
namespace {

constexpr int kNarrowest = 24;
constexpr int kRing = 3;
constexpr double kCopiedShown = 0.6; ///< seconds: there is no notice in a strip

} // namespace

StripCells::StripCells(Ui& ui, AppState& state, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), state_(state) {
    setAccessibleName(worded("Palette"));
    auto& preferences = ui.models.preferences();
    const auto relaid = [this] { again(); };
    subscriptions_.add(state.customPalette(), relaid);
    subscriptions_.add(state.mode, relaid);
    subscriptions_.add(state.seeds(), relaid);
    subscriptions_.add(state.steps, relaid);
    subscriptions_.add(state.shadesPerAnchor, relaid);
    subscriptions_.add(state.blendSpace, relaid);
    subscriptions_.add(ui.theme.version(), relaid);
    subscriptions_.add(state.vision, relaid);
    subscriptions_.add(preferences.format, relaid);
    subscriptions_.add(preferences.formatOptions, relaid);
    subscriptions_.add(preferences.swatchBackdrop, relaid);
    subscriptions_.add(preferences.backdropColour, relaid);
    subscriptions_.add(preferences.profilesVersion, relaid);
    subscriptions_.add(state.selectedSwatch, [this] { syncSelection(); });
    again();
    syncSelection();
}

StripCells::~StripCells() = default;

void StripCells::setOrientation(Qt::Orientation orientation) {
    orientation_ = orientation;
    again();
}

void StripCells::again() {
    showPage(page_);
}

void StripCells::resizeEvent(QResizeEvent*) {
    // The pages are others, but the colour that has the focus stays in view.
    const auto at = focused();
    showPage(at >= 0 && perPage() > 0 ? static_cast<std::size_t>(at) / perPage() : page_);
}

// What is shown

bool StripCells::showsSwatches() const {
    return state_.mode.value() == HarmonyMode::paletteBuilder;
}

std::vector<WashColor> StripCells::colours() const {
    if (showsSwatches()) return state_.colors();
    std::vector<WashColor> all;
    for (const auto& band : state_.bands())
        all.insert(all.end(), band.begin(), band.end());
    return all;
}

std::optional<std::string> StripCells::givenName(std::size_t at) const {
    return showsSwatches() ? state_.swatches()[at].name : std::nullopt;
}

std::string StripCells::nameOf(std::size_t at, const WashColor& colour) const {
    const auto given = givenName(at);
    return given ? *given : ColorNames::shared().name(colour);
}

std::size_t StripCells::perPage() const {
    const auto length = orientation_ == Qt::Horizontal ? width() : height();
    return static_cast<std::size_t>(std::max(1, length / kNarrowest));
}

std::size_t StripCells::pages() const {
    const auto count = colours().size();
    return std::max<std::size_t>(1, (count + perPage() - 1) / perPage());
}

void StripCells::showPage(std::size_t page) {
    page_ = std::min(page, pages() - 1);
    relayout();
    if (paged) paged();
}

void StripCells::turn(int by) {
    if (by < 0 && page_ == 0) return;
    showPage(by < 0 ? page_ - 1 : page_ + 1);
}

std::vector<CanvasItem> StripCells::layoutItems(QSizeF size) const {
    const auto all = colours();
    const auto& preferences = ui_.models.preferences();
    const bool level = orientation_ == Qt::Horizontal;
    const auto length = static_cast<int>(level ? size.width() : size.height());
    const auto first = page_ * perPage();
    const auto shown = std::min(perPage(), all.size() - std::min(first, all.size()));
    const auto edge = [&](std::size_t i) {
        return static_cast<int>(
            std::lround(static_cast<double>(i) * length / static_cast<double>(shown)));
    };
    std::vector<CanvasItem> items;
    items.reserve(all.size());
    for (std::size_t i = 0; i < all.size(); ++i) {
        CanvasItem item;
        item.index = i;
        // What stands on other pages is walked to as well, which turns the page.
        if (i >= first && i < first + shown) {
            const auto from = edge(i - first), to = edge(i - first + 1);
            item.rect = level ? QRectF(from, 0, to - from, size.height())
                              : QRectF(0, from, size.width(), to - from);
        }
        const auto name = nameOf(i, all[i]);
        item.role = QAccessible::ListItem;
        item.name = oneLine(name);
        item.value = fromUtf8(
            preferences.format.value().string(all[i], name, preferences.formatOptions.value()));
        item.description = worded("%1 of %2").arg(i + 1).arg(all.size());
        item.selected = showsSwatches() && state_.selectedSwatch.value() == i;
        items.push_back(std::move(item));
    }
    return items;
}

// Painting

void StripCells::paintGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, theme().color(Token::panel));
    if (!items().empty()) return;
    painter.setRenderHint(QPainter::Antialiasing);
    const auto place = QRectF(rect()).adjusted(0.75, 0.75, -0.75, -0.75);
    painter.setPen(QPen(theme().color(Token::edge), 1.5, Qt::DashLine));
    painter.drawRoundedRect(place, metrics::kControlRadius, metrics::kControlRadius);
    painter.setPen(theme().color(Token::ink3));
    const auto font = theme().font(TextStyle::caption);
    painter.setFont(font);
    const auto text = worded("Drop colours here");
    if (QFontMetricsF(font).horizontalAdvance(text) < place.width() - 8)
        painter.drawText(place, Qt::AlignCenter, text);
}

void StripCells::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    const auto all = colours();
    if (item.index >= all.size()) return;
    const auto& colour = all[item.index];
    const QRectF group = rect();
    SwatchLook look;
    look.color = colour;
    look.vision = state_.vision;
    look.shape = SwatchShape::cell;
    look.focused = state.focused;
    look.radii = radiiWithin(item.rect, group, metrics::kControlRadius);
    ui_.painter.paint(painter, item.rect, look);
    const auto ink = ui_.painter.foreground(colour, state_.vision);
    if (item.selected && !state.focused) {
        painter.setPen(QPen(ink, kRing));
        painter.drawRect(item.rect.adjusted(kRing / 2.0, kRing / 2.0, -kRing / 2.0, -kRing / 2.0));
    }
    if (copied_ == item.index)
        painter.drawPixmap(item.rect.center() - QPointF(8, 8),
                           theme().icon("check", 16, ink, devicePixelRatioF()));
    painter.setClipRect(item.rect);
    ui_.painter.hairline(painter, group, metrics::kControlRadius);
}

// The pointer and the keyboard

void StripCells::syncSelection() {
    relayout();
    const auto selected = state_.selectedSwatch.value();
    if (!showsSwatches() || !selected) return;
    setFocused(find(0, *selected));
}

void StripCells::focusMoved(int item) {
    if (item < 0) return;
    const auto at = static_cast<std::size_t>(item);
    if (at / perPage() != page_) showPage(at / perPage());
    if (showsSwatches()) state_.selectedSwatch = at;
}

void StripCells::hoverMoved(int item, QPointF) {
    if (item < 0) {
        setToolTip({});
        return;
    }
    const auto& one = items()[static_cast<std::size_t>(item)];
    setToolTip(QStringLiteral("<b>%1</b>&nbsp; <span style=\"font-family:'%3'\">%2</span>")
                   .arg(one.name.toHtmlEscaped(), one.value.toHtmlEscaped(),
                        theme().font(TextStyle::code).families().constFirst()));
}

int StripCells::neighbour(int from, Qt::Key key) const {
    const auto last = static_cast<int>(items().size()) - 1;
    const auto step = static_cast<int>(perPage());
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Up:
        return std::max(std::min(0, last), from - 1);
    case Qt::Key_Right:
    case Qt::Key_Down:
        return std::min(last, from + 1);
    case Qt::Key_PageUp:
        return std::max(std::min(0, last), from - step);
    case Qt::Key_PageDown:
        return std::min(last, from + step);
    case Qt::Key_End:
        return last;
    default:
        return std::min(0, last);
    }
}

void StripCells::copy(std::size_t at) {
    const auto all = colours();
    if (at >= all.size()) return;
    state_.copy(all[at], givenName(at));
    copied_ = at;
    update();
    copiedShown_ = ui_.services.mainLoop.after(kCopiedShown, [this] {
        copied_.reset();
        update();
    });
}

void StripCells::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton ? itemAt(event->position()) : -1;
    pressedAt_ = event->position();
    if (pressed_ >= 0) setFocused(pressed_);
}

void StripCells::mouseMoveEvent(QMouseEvent* event) {
    Canvas::mouseMoveEvent(event);
    const auto far = (event->position() - pressedAt_).manhattanLength();
    if (pressed_ >= 0 && (event->buttons() & Qt::LeftButton) &&
        far >= QApplication::startDragDistance())
        startDrag(static_cast<std::size_t>(std::exchange(pressed_, -1)));
}

void StripCells::mouseReleaseEvent(QMouseEvent* event) {
    const auto pressed = std::exchange(pressed_, -1);
    if (pressed >= 0 && pressed == itemAt(event->position()))
        copy(static_cast<std::size_t>(pressed));
}

std::optional<WashColor> StripCells::current() const {
    const auto all = colours();
    const auto at = static_cast<std::size_t>(focused());
    return focused() < 0 || at >= all.size() ? std::nullopt : std::optional(all[at]);
}

void StripCells::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const auto item = byKey ? focused() : itemAt(event->pos());
    if (item >= 0) setFocused(item);
    if (!contextMenu) return;
    const bool atItem = byKey && item >= 0;
    contextMenu(atItem
                    ? mapToGlobal(items()[static_cast<std::size_t>(item)].rect.center().toPoint())
                    : event->globalPos());
}

void StripCells::startDrag(std::size_t at) {
    const auto all = colours();
    if (at >= all.size()) return;
    const auto& item = items()[at];
    Drag dragged{all[at], givenName(at), DragOfBand{}};
    if (showsSwatches())
        dragged.source =
            DragOfSwatch{{state_.currentPaletteName(), state_.id(), state_.swatches()[at].id, at}};
    SwatchLook look;
    look.color = all[at];
    look.vision = state_.vision;
    look.name = item.name;
    look.code = item.value;
    dragColour(*this, ui_.painter, dragged, look, kSmallDragCard);
}

void StripCells::wheelEvent(QWheelEvent* event) {
    const auto by = event->angleDelta().y() + event->angleDelta().x();
    if (by != 0) turn(by > 0 ? -1 : 1);
}

void StripCells::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                        event->key() == Qt::Key_Space;
    if (enters && !event->isAutoRepeat() && focused() >= 0)
        copy(static_cast<std::size_t>(focused()));
    else
        Canvas::keyPressEvent(event);
}

} // namespace tintra
