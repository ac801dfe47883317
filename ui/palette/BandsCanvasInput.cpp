// How the pointer, the keyboard and menus act on the colours of a harmony.

#include "state/Models.h"
#include "ui/palette/BandsCanvas.h"
#include "ui/shared/ColourDrag.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPointer>
#include <algorithm>
#include <utility>

namespace tintra {
namespace {

enum Button { copyButton, addButton, benchButton, contrastButton };
constexpr std::size_t kButtonCount = 4;

} // namespace

// The buttons of a colour

std::size_t BandsCanvas::buttonsIn(const QRectF& in) const {
    if (stand_.shape != SwatchShape::bandCell) return 0;
    // The code keeps its line: only whole rows of buttons above it are shown.
    const auto foot = in.bottom() - 2 * theme().lineHeight(TextStyle::code);
    const auto rects = ui_.painter.buttonRects(in, stand_.shape, kButtonCount);
    return static_cast<std::size_t>(std::ranges::count_if(
        rects, [&](const QRectF& button) { return button.bottom() <= foot; }));
}

std::optional<int> BandsCanvas::buttonAt(int item, QPointF place) const {
    if (item < 0) return std::nullopt;
    const auto& one = items()[static_cast<std::size_t>(item)];
    if (one.kind != cell) return std::nullopt;
    const auto rects = ui_.painter.buttonRects(one.rect, stand_.shape, buttonsIn(one.rect));
    for (std::size_t i = 0; i < rects.size(); ++i)
        if (rects[i].contains(place)) return static_cast<int>(i);
    return std::nullopt;
}

QString BandsCanvas::tipOf(int item, int button) const {
    const auto& one = items()[static_cast<std::size_t>(item)];
    if (one.kind == more) return one.name;
    if (one.kind != cell) return {};
    switch (button) {
    case copyButton:
        return worded("Copy");
    case addButton:
        return worded("Add to Palette");
    case benchButton:
        return worded(state_.isBandBenched(colorAt(spotOf(one))) ? "Take off the Bench"
                                                                 : "Put on the Bench");
    case contrastButton:
        return worded("Send to Contrast");
    default:
        // A cell without room for words tells them here.
        return stand_.shape == SwatchShape::cell ? one.name + QLatin1Char('\n') + one.value
                                                 : one.name;
    }
}

void BandsCanvas::hoverMoved(int item, QPointF place) {
    setToolTip(item < 0 ? QString() : tipOf(item, buttonAt(item, place).value_or(-1)));
    const auto button = buttonAt(item, place).value_or(-1);
    if (button == hoveredButton_) return;
    hoveredButton_ = button;
    repaintItem(item);
}

void BandsCanvas::add(Spot spot) {
    state_.addToPalette(WashColor(colorAt(spot)), AppState::Duplicates::refuse);
}

void BandsCanvas::press(Spot spot, int button) {
    const auto colour = colorAt(spot);
    switch (button) {
    case copyButton:
        state_.copy(colour, {});
        break;
    case addButton:
        add(spot);
        break;
    case benchButton:
        state_.toggleBenchedBand(colour, {});
        break;
    case contrastButton:
        state_.sendToContrast(colour, {}, state_.place());
        break;
    default:
        break;
    }
}

void BandsCanvas::focusMoved(int item) {
    if (item >= 0 && reveal) reveal(items()[static_cast<std::size_t>(item)].rect.toAlignedRect());
}

// The pointer

void BandsCanvas::mousePressEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    if (item < 0 || items()[static_cast<std::size_t>(item)].kind == label) return;
    setFocused(item);
    if (event->button() != Qt::LeftButton) return;
    pressed_ = item;
    pressedAt_ = event->position();
    pressedButton_ = buttonAt(item, event->position()).value_or(-1);
    repaintItem(item);
}

void BandsCanvas::mouseMoveEvent(QMouseEvent* event) {
    Canvas::mouseMoveEvent(event);
    const auto far = (event->position() - pressedAt_).manhattanLength();
    const bool drags = pressed_ >= 0 && pressed_ < static_cast<int>(items().size()) &&
                       pressedButton_ < 0 && (event->buttons() & Qt::LeftButton) &&
                       far >= QApplication::startDragDistance();
    if (!drags) return;
    const auto& one = items()[static_cast<std::size_t>(std::exchange(pressed_, -1))];
    if (one.kind == cell) startDrag(spotOf(one));
}

void BandsCanvas::mouseReleaseEvent(QMouseEvent* event) {
    const auto item = itemAt(event->position());
    const auto button = std::exchange(pressedButton_, -1);
    const auto pressed = std::exchange(pressed_, -1);
    repaintItem(pressed);
    if (item < 0 || item != pressed || event->button() != Qt::LeftButton) return;
    const auto one = items()[static_cast<std::size_t>(item)];
    if (one.kind == more) {
        openMenu(item, mapToGlobal(one.rect.bottomLeft().toPoint()));
    } else if (button >= 0) {
        if (buttonAt(item, event->position()) == button) press(spotOf(one), button);
    } else if (ui_.painter.codeRect(one.rect, look(one, {})).contains(event->position())) {
        press(spotOf(one), copyButton);
    }
}

void BandsCanvas::startDrag(Spot spot) {
    dragColour(*this, ui_.painter, {colorAt(spot), std::nullopt, DragOfBand{}},
               look(items()[static_cast<std::size_t>(itemOf(spot))], {}), kDragCard);
}

// The keyboard

void BandsCanvas::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                        event->key() == Qt::Key_Space;
    const bool plain = !(event->modifiers() & ~Qt::KeypadModifier);
    if (!enters || !plain || focused() < 0 || event->isAutoRepeat()) {
        Canvas::keyPressEvent(event);
        return;
    }
    const auto& one = items()[static_cast<std::size_t>(focused())];
    if (one.kind == more)
        openMenu(focused(), mapToGlobal(one.rect.bottomLeft().toPoint()));
    else
        add(spotOf(one));
}

// Menus

void BandsCanvas::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const auto byFocus = focused() < 0 ? itemOf({0, 0}) : focused();
    const auto item = byKey ? byFocus : itemAt(event->pos());
    if (item < 0) return;
    const auto& one = items()[static_cast<std::size_t>(item)];
    openMenu(item, byKey ? mapToGlobal(one.rect.center().toPoint()) : event->globalPos());
}

void BandsCanvas::openMenu(int item, QPoint at) {
    const auto one = items()[static_cast<std::size_t>(item)];
    const auto spot = spotOf(one);
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (one.kind == cell) {
        setFocused(item);
        menu->addAction(worded("Add to Palette"), this, [this, colour = colorAt(spot)] {
            state_.addToPalette(colour, AppState::Duplicates::refuse);
        });
        if (fillMenu) fillMenu(*menu);
        menu->addSeparator();
    }
    fillBandMenu(*menu, spot.band);
    menu->popup(at);
}

void BandsCanvas::fillBandMenu(QMenu& menu, std::size_t band) {
    const auto colours = state_.bands()[band];
    menu.addAction(worded("Add Band"), this, [this, colours] { state_.addAllToPalette(colours); });
    menu.addAction(
        worded(isBandBenched(band) ? "Take Band off the Bench" : "Put Band on the Bench"), this,
        [this, band] { benchBand(band); });
    menu.addAction(worded("Copy All"), this, [this, colours] { state_.copyAll(colours, {}); });
}

bool BandsCanvas::isBandBenched(std::size_t band) const {
    return std::ranges::all_of(state_.bands()[band], [this](const WashColor& colour) {
        return state_.isBandBenched(colour);
    });
}

void BandsCanvas::benchBand(std::size_t band) {
    if (band >= state_.bands().size()) return;
    const auto colours = state_.bands()[band];
    const bool takesOff = isBandBenched(band);
    for (const auto& colour : colours)
        if (state_.isBandBenched(colour) == takesOff) state_.toggleBenchedBand(colour, {});
}

} // namespace tintra
