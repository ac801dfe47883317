#include "ui/palette/PaletteCanvas.h"

#include "platform/MainLoop.h"
#include "platform/Services.h"
#include "state/Models.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QCursor>
#include <QPainter>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kRow = 44; ///< least height of a row
constexpr int kBar = 4;  ///< thickness of the bar beneath a selected swatch
constexpr int kBarGap = 4;
constexpr int kInsertion = 6;
constexpr double kFlash = 0.12; ///< seconds

/// The buttons of a swatch under the pointer, in the order in which they stand.
constexpr std::array<std::string_view, 5> kButtons{"copy", "editor", "bench", "contrast", "remove"};

} // namespace

struct PaletteCanvas::Subscriptions {
    std::vector<QPropertyNotifier> all;
    template <class Property>
    void add(const Property& property, std::function<void()> changed) {
        all.emplace_back(property, std::move(changed));
    }
};

PaletteCanvas::PaletteCanvas(Ui& ui, AppState& state, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), state_(state),
      subscriptions_(std::make_unique<Subscriptions>()) {
    setAccessibleName(worded("Palette"));
    setAcceptDrops(true);
    auto& preferences = ui.models.preferences();
    const auto layOut = [this] {
        setWhole();
        relayout();
        syncSelection();
    };
    const auto repaint = [this] { relayout(); };
    subscriptions_->add(state.customPalette(), layOut);
    subscriptions_->add(ui.theme.version(), layOut);
    subscriptions_->add(state.selectedSwatch, [this] { syncSelection(); });
    subscriptions_->add(state.vision, repaint);
    subscriptions_->add(state.editorBuffer, repaint);
    subscriptions_->add(state.imageSource, repaint);
    subscriptions_->add(preferences.format, repaint);
    subscriptions_->add(preferences.formatOptions, repaint);
    subscriptions_->add(preferences.swatchBackdrop, repaint);
    subscriptions_->add(preferences.backdropColour, repaint);
    subscriptions_->add(preferences.rgbProfile, repaint);
    subscriptions_->add(state.copyTick, [this] { flashCode(); });
    subscriptions_->add(state.renamingSwatch, [this] {
        if (const auto at = state_.renamingSwatch.value()) beginRename(*at);
    });
    subscriptions_->add(state.revealSwatch, [this] {
        const auto at = state_.revealSwatch.value();
        const auto item = at ? find(swatch, *at) : -1;
        if (item >= 0 && reveal)
            reveal(items()[static_cast<std::size_t>(item)].rect.toAlignedRect());
    });
    setWhole();
}

PaletteCanvas::~PaletteCanvas() = default;

void PaletteCanvas::setDisplay(PaletteDisplay display) {
    display_ = display;
    setWhole();
    relayout();
}

void PaletteCanvas::setRows(bool picturePane) {
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

void PaletteCanvas::setWhole() {
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

QString PaletteCanvas::code(std::size_t at) const {
    const auto& preferences = ui_.models.preferences();
    return fromUtf8(preferences.format.value().string(colorAt(at), state_.swatchName(at),
                                                      preferences.formatOptions.value()));
}

std::vector<CanvasItem> PaletteCanvas::layoutItems(QSizeF size) const {
    const auto stand = places(size);
    const auto count = state_.swatches().size();
    std::vector<CanvasItem> items;
    items.reserve(stand.rects.size());
    for (std::size_t i = 0; i < stand.rects.size(); ++i) {
        CanvasItem item;
        item.rect = stand.rects[i];
        item.kind = swatch;
        item.index = i;
        if (i == count) {
            item.kind = addCell;
            item.index = 0;
            item.role = QAccessible::Button;
            item.name = worded("Add a swatch");
        } else {
            item.role = QAccessible::ListItem;
            item.name = oneLine(state_.swatchName(i));
            item.value = code(i);
            item.description = worded("%1 of %2").arg(i + 1).arg(count);
            item.selected = state_.selectedSwatch.value() == i;
        }
        items.push_back(std::move(item));
    }
    return items;
}

SwatchLook PaletteCanvas::look(std::size_t at) const {
    const auto& held = state_.swatches()[at];
    SwatchLook look;
    look.color = colorAt(at);
    look.vision = state_.vision;
    look.name = oneLine(state_.swatchName(at));
    look.code = code(at);
    look.selected = state_.selectedSwatch.value() == at;
    look.codeFlashes = flashing_ == at;
    look.hidesName = field_ && renamed_ == at;
    look.leftBehind = state_.draggingSwatch.value() == at;
    look.index = QString::number(at + 1);
    if (!rows_) return look;
    look.index.clear();
    const auto pins = state_.pinSwatchIDs();
    const auto pin = std::find(pins.begin(), pins.end(), held.id);
    if (pin == pins.end()) return look;
    const auto number = static_cast<std::size_t>(pin - pins.begin());
    look.index = QString::number(number + 1);
    look.pinned = true;
    const auto& found = state_.imageSource.value().found;
    look.ownPin = number < found.size() && found[number].isOwn;
    return look;
}

void PaletteCanvas::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    if (peeks_) return;
    if (item.kind == addCell) {
        const auto ink = theme().color(state.hovered || state.focused ? Token::ink : Token::ink3);
        painter.setPen(QPen(ink, 1, Qt::DashLine));
        painter.drawRoundedRect(item.rect.adjusted(0.5, 0.5, -0.5, -0.5), metrics::kGroupRadius,
                                metrics::kGroupRadius);
        const auto middle = item.rect.center();
        painter.drawPixmap(middle - QPointF(10, 24),
                           theme().icon("add", 20, ink, devicePixelRatioF()));
        painter.setFont(theme().font(TextStyle::body));
        painter.setPen(ink);
        painter.drawText(item.rect.adjusted(0, 24, 0, 24), Qt::AlignCenter, item.name);
        return;
    }
    const auto stand = places(QSizeF(size()));
    auto drawn = look(item.index);
    drawn.shape = stand.shape;
    drawn.focused = state.focused;
    const auto group =
        std::find_if(stand.groups.begin(), stand.groups.end(),
                     [&](const QRectF& of) { return of.contains(item.rect.center()); });
    drawn.radii = radiiWithin(item.rect, group == stand.groups.end() ? item.rect : *group,
                              metrics::kGroupRadius);
    if (state.hovered || state.focused) {
        const int shownButtons = stand.shape == SwatchShape::onSide ? 0 : 5;
        for (int i = 0; i < shownButtons; ++i)
            drawn.buttons.push_back({.icon = kButtons[static_cast<std::size_t>(i)],
                                     .hovered = state.hovered && hoveredButton_ == i,
                                     .pressed = state.hovered && pressedButton_ == i});
        // In a row the buttons take the place of the code.
        if (stand.shape == SwatchShape::row) drawn.code.clear();
    }
    ui_.painter.paint(painter, item.rect, drawn);
    if (group != stand.groups.end()) {
        painter.setClipRect(item.rect);
        ui_.painter.hairline(painter, *group, metrics::kGroupRadius);
        painter.setClipping(false);
    } else {
        ui_.painter.hairline(painter, item.rect, metrics::kGroupRadius);
    }
    if (drawn.selected && stand.shape != SwatchShape::row) {
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
    painter.setBrush(Qt::NoBrush);
    if (insertion_) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme().color(Token::ink));
        painter.drawRoundedRect(insertionBar(), 2, 2);
    } else if (wholeTarget_) {
        painter.setPen(QPen(theme().color(Token::ink), 3));
        painter.drawRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
    }
}

void PaletteCanvas::syncSelection() {
    const auto selected = state_.selectedSwatch.value();
    relayout();
    if (!selected) return;
    const auto item = find(swatch, *selected);
    if (item >= 0) setFocused(item);
}

void PaletteCanvas::focusMoved(int item) {
    if (item < 0) return;
    const auto& one = items()[static_cast<std::size_t>(item)];
    if (one.kind == swatch) state_.selectedSwatch = one.index;
    if (reveal) reveal(one.rect.toAlignedRect());
}

int PaletteCanvas::neighbour(int from, Qt::Key key) const {
    const auto stand = places(QSizeF(size())).shape;
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
    flashing_ = state_.selectedSwatch.value();
    relayout();
    flash_ = ui_.services.mainLoop.after(kFlash, [this] {
        flashing_.reset();
        relayout();
    });
}

} // namespace tintra
