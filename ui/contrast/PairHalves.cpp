#include "ui/contrast/PairHalves.h"

#include "state/Models.h"
#include "ui/shared/Controls.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

namespace tintra {
namespace {

constexpr int kGap = 12;

/// Within the half: around it there is no room.
void paintRing(QPainter& painter, const QRectF& half, const QColor& ink) {
    constexpr qreal kInset = 6;
    painter.setPen(QPen(ink, metrics::kFocusWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(half.adjusted(kInset, kInset, -kInset, -kInset),
                            metrics::kControlRadius, metrics::kControlRadius);
}

} // namespace

PairHalves::PairHalves(Ui& ui, QWidget* parent) : PairCanvas(ui, parent) {
    setAccessibleName(worded("Text and ground"));
    const auto again = [this] { relayout(); };
    subscriptions().add(board().content(), again);
    subscriptions().add(board().vision, again);
    subscriptions().add(ui.models.preferences().format, again);
    subscriptions().add(ui.theme.version(), again);
}

const ContrastBoard::Entry* PairHalves::holder(Role role) const {
    return role == Role::text ? board().text() : board().ground();
}

QRectF PairHalves::half(Role role) const {
    const auto wide = (width() - kGap) / 2;
    return {role == Role::text ? 0.0 : qreal(width() - wide), 0, qreal(wide), qreal(height())};
}

std::vector<CanvasItem> PairHalves::layoutItems(QSizeF) const {
    const auto& preferences = ui().models.preferences();
    std::vector<CanvasItem> items;
    for (const auto role : {Role::text, Role::ground}) {
        CanvasItem item;
        item.rect = half(role);
        item.kind = static_cast<int>(role);
        item.role = QAccessible::Button;
        item.name = worded(role == Role::text ? "Text" : "Ground");
        item.description = worded("Drop or paste a colour");
        if (const auto* held = holder(role)) {
            const auto name = board().name(*held);
            item.role = QAccessible::ListItem;
            item.description = oneLine(name);
            item.value = fromUtf8(preferences.format.value().string(
                held->color, name, preferences.formatOptions.value()));
        }
        items.push_back(std::move(item));
    }
    return items;
}

void PairHalves::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    if (const auto* held = holder(static_cast<Role>(item.kind))) {
        SwatchLook look;
        look.color = held->color;
        look.vision = board().vision;
        look.shape = SwatchShape::tile;
        look.name = item.description;
        look.code = item.value;
        look.index = item.name;
        look.radii.fill(metrics::kGroupRadius);
        ui().painter.paint(painter, item.rect, look);
        ui().painter.hairline(painter, item.rect, metrics::kGroupRadius);
        if (state.focused)
            paintRing(painter, item.rect, ui().painter.foreground(held->color, look.vision));
        return;
    }
    painter.setPen(QPen(theme().color(Token::edge), 1, Qt::DashLine));
    painter.setBrush(state.hovered ? QBrush(theme().color(Token::hover)) : QBrush(Qt::NoBrush));
    painter.drawRoundedRect(item.rect.adjusted(0.5, 0.5, -0.5, -0.5), metrics::kGroupRadius,
                            metrics::kGroupRadius);
    const auto title = theme().lineHeight(TextStyle::title);
    const auto line = theme().lineHeight(TextStyle::body);
    auto words = QRectF(item.rect.left(), item.rect.center().y() - (title + line) / 2.0,
                        item.rect.width(), title);
    painter.setFont(theme().font(TextStyle::title));
    painter.setPen(theme().color(Token::ink2));
    painter.drawText(words, Qt::AlignCenter, item.name);
    words.translate(0, title + 2);
    words.setHeight(line);
    painter.setFont(theme().font(TextStyle::body));
    painter.setPen(theme().color(Token::ink3));
    painter.drawText(words, Qt::AlignCenter, item.description);
    if (state.focused) paintRing(painter, item.rect, theme().color(Token::ink));
}

void PairHalves::ask(int item) {
    if (item < 0 || !choose) return;
    const auto& half = items()[static_cast<std::size_t>(item)];
    const auto role = static_cast<Role>(half.kind);
    if (!holder(role)) choose(role, mapToGlobal(half.rect.center().toPoint()));
}

void PairHalves::mousePressEvent(QMouseEvent* event) {
    if (const auto item = itemAt(event->position()); item >= 0) setFocused(item);
}

void PairHalves::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) ask(itemAt(event->position()));
}

void PairHalves::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter ||
                        event->key() == Qt::Key_Space;
    if (enters)
        ask(focused());
    else
        PairCanvas::keyPressEvent(event);
}

} // namespace tintra
