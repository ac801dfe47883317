#include "ui/contrast/EntryList.h"

#include "state/Models.h"
#include "ui/shared/Controls.h"
#include "ui/shared/PlacedField.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kMargin = 8, kRow = 40, kInset = 8, kChip = 24, kNameAt = 42;
constexpr int kRoleButton = 24, kRoleGap = 4, kBadge = 18, kBadgeInset = 8;
constexpr int kInsertion = 6, kDropRing = 3;

QString badgeText(ContrastBoard::Role role) {
    return worded(role == ContrastBoard::Role::text ? "TEXT" : "GROUND");
}

QFont badgeFont(const Theme& theme) {
    auto font = theme.font(TextStyle::caption);
    font.setPixelSize(theme.scaled(10));
    font.setWeight(QFont::Bold);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 0.5);
    return font;
}

} // namespace

EntryList::EntryList(Ui& ui, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), board_(ui.models.contrast()) {
    setAccessibleName(worded("Colours"));
    setAcceptDrops(true);
    auto& preferences = ui.models.preferences();
    const auto again = [this] { relayout(); };
    subscriptions_.add(board_.content(), [this] {
        if (field_) field_->end(false);
        setMinimumHeight(heightNeeded());
        relayout();
    });
    subscriptions_.add(board_.vision, again);
    subscriptions_.add(board_.draggingEntry, again);
    subscriptions_.add(preferences.format, again);
    subscriptions_.add(preferences.formatOptions, again);
    subscriptions_.add(preferences.swatchBackdrop, again);
    subscriptions_.add(preferences.rgbProfile, again);
    subscriptions_.add(ui.theme.version(), [this] {
        setMinimumHeight(heightNeeded());
        relayout();
    });
    setMinimumHeight(heightNeeded());
    changed = [this] { followEntry(); };
}

EntryList::~EntryList() = default;

std::optional<Uuid> EntryList::target() const {
    return entry_ && board_.entry(*entry_) ? entry_ : std::nullopt;
}

int EntryList::heightNeeded() const {
    const auto rows = static_cast<int>(board_.entries().size()) + 1;
    return 2 * kMargin + rows * theme().scaled(kRow);
}

bool EntryList::isCompact() const {
    return width() < theme().scaled(kWidth) / 2;
}

std::optional<EntryList::Role> EntryList::roleOf(const Entry& of) const {
    if (of.id == board_.textID()) return Role::text;
    if (of.id == board_.groundID()) return Role::ground;
    return std::nullopt;
}

std::vector<CanvasItem> EntryList::layoutItems(QSizeF size) const {
    const auto& entries = board_.entries();
    const auto& preferences = ui_.models.preferences();
    const auto row = theme().scaled(kRow);
    const auto wide = size.width() - 2 * kMargin;
    std::vector<CanvasItem> items;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const auto& one = entries[i];
        const auto name = board_.name(one);
        const auto role = roleOf(one);
        CanvasItem item;
        item.rect = {kMargin, kMargin + static_cast<qreal>(i) * row, wide, qreal(row)};
        item.kind = entry;
        item.index = i;
        item.role = QAccessible::ListItem;
        item.name = oneLine(name);
        item.value = fromUtf8(
            preferences.format.value().string(one.color, name, preferences.formatOptions.value()));
        item.description = worded("%1 of %2").arg(i + 1).arg(entries.size());
        if (role)
            item.description = worded(*role == Role::text ? "Text" : "Ground") +
                               QStringLiteral(", ") + item.description;
        item.selected = role.has_value();
        items.push_back(std::move(item));
    }
    CanvasItem add;
    add.rect = {kMargin, kMargin + static_cast<qreal>(entries.size()) * row, wide, qreal(row)};
    add.kind = addRow;
    add.role = QAccessible::Button;
    add.name = worded("Add a colour");
    items.push_back(std::move(add));
    return items;
}

QRectF EntryList::chipRect(const CanvasItem& row) const {
    const qreal side = theme().scaled(kChip);
    const auto left = isCompact() ? row.rect.center().x() - side / 2 : row.rect.left() + kInset;
    return {left, row.rect.center().y() - side / 2, side, side};
}

QRectF EntryList::nameRect(const CanvasItem& row) const {
    const auto line = theme().lineHeight(TextStyle::control);
    const auto both = line + theme().lineHeight(TextStyle::codeOnSide);
    return {row.rect.left() + theme().scaled(kNameAt), row.rect.center().y() - both / 2.0,
            row.rect.width() - theme().scaled(kNameAt) - kInset, qreal(line)};
}

QRectF EntryList::roleRect(const CanvasItem& row, Role role) const {
    const qreal side = theme().scaled(kRoleButton);
    const auto fromRight = role == Role::ground ? side : 2 * side + kRoleGap;
    return {row.rect.right() - kInset - fromRight, row.rect.center().y() - side / 2, side, side};
}

std::optional<EntryList::Role> EntryList::roleAt(int item, QPointF place) const {
    if (item < 0 || isCompact()) return std::nullopt;
    const auto& row = items()[static_cast<std::size_t>(item)];
    if (row.kind != entry || row.selected) return std::nullopt;
    for (const auto role : {Role::text, Role::ground})
        if (roleRect(row, role).contains(place)) return role;
    return std::nullopt;
}

// Painting

void EntryList::paintGround(QPainter& painter, const QRect& dirty) {
    painter.fillRect(dirty, theme().color(Token::panel));
}

void EntryList::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    const auto round = qreal(metrics::kControlRadius);
    if (item.kind == addRow) {
        paintAddRow(painter, item, state.hovered);
    } else {
        const auto& one = board_.entries()[item.index];
        if (board_.draggingEntry.value() == one.id) {
            painter.setPen(QPen(theme().color(Token::edge), 1.5, Qt::DashLine));
            painter.drawRoundedRect(item.rect.adjusted(2, 2, -2, -2), round, round);
            return;
        }
        if (item.selected || state.hovered) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(theme().color(Token::hover));
            painter.drawRoundedRect(item.rect, round, round);
        }
        ui_.painter.chip(painter, chipRect(item), one.color, board_.vision);
        paintWords(painter, item, state.hovered);
    }
    if (state.focused) paintFocusRing(painter, theme(), item.rect.adjusted(1, 1, -1, -1), 6);
}

void EntryList::paintWords(QPainter& painter, const CanvasItem& item, bool hovered) const {
    const auto role = roleOf(board_.entries()[item.index]);
    auto words = nameRect(item);
    if (role) {
        paintBadge(painter, item, *role);
        words.setRight(words.right() -
                       QFontMetricsF(badgeFont(theme())).horizontalAdvance(badgeText(*role)) -
                       3 * kBadgeInset);
    } else if (hovered && !isCompact()) {
        paintRoleButtons(painter, item);
        words.setRight(roleRect(item, Role::text).left() - kInset);
    }
    if (isCompact()) return;
    const auto write = [&](const QRectF& in, TextStyle style, Token ink, const QString& text) {
        const auto font = theme().font(style);
        painter.setFont(font);
        painter.setPen(theme().color(ink));
        painter.drawText(in, Qt::AlignLeft | Qt::AlignVCenter,
                         QFontMetricsF(font).elidedText(text, Qt::ElideRight, in.width()));
    };
    write(words, TextStyle::control, Token::ink, item.name);
    words.moveTop(words.bottom());
    words.setHeight(theme().lineHeight(TextStyle::codeOnSide));
    write(words, TextStyle::codeOnSide, Token::ink3, item.value);
}

void EntryList::paintBadge(QPainter& painter, const CanvasItem& item, Role role) const {
    const auto font = badgeFont(theme());
    const auto text = isCompact() ? badgeText(role).left(1) : badgeText(role);
    const auto wide = QFontMetricsF(font).horizontalAdvance(text) + 2 * kBadgeInset;
    const qreal high = theme().scaled(kBadge);
    QRectF badge(item.rect.right() - kInset - wide, item.rect.center().y() - high / 2, wide, high);
    if (isCompact()) badge = {item.rect.right() - high, item.rect.top() + 2, high, high};
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme().color(Token::sel));
    painter.drawRoundedRect(badge, metrics::kChipRadius, metrics::kChipRadius);
    painter.setFont(font);
    painter.setPen(theme().color(Token::onsel));
    painter.drawText(badge, Qt::AlignCenter, text);
}

void EntryList::paintRoleButtons(QPainter& painter, const CanvasItem& item) const {
    painter.setFont(theme().font(TextStyle::control));
    for (const auto role : {Role::text, Role::ground}) {
        const auto in = roleRect(item, role);
        const bool over = hoveredRole_ == role;
        painter.setPen(QPen(theme().color(Token::edge), 1));
        painter.setBrush(theme().color(over ? Token::sel : Token::raised));
        painter.drawRoundedRect(in.adjusted(0.5, 0.5, -0.5, -0.5), metrics::kChipRadius,
                                metrics::kChipRadius);
        painter.setPen(theme().color(over ? Token::onsel : Token::ink));
        painter.drawText(in, Qt::AlignCenter, badgeText(role).left(1));
    }
}

void EntryList::paintAddRow(QPainter& painter, const CanvasItem& item, bool hovered) const {
    if (hovered) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme().color(Token::hover));
        painter.drawRoundedRect(item.rect, metrics::kControlRadius, metrics::kControlRadius);
    }
    const auto chip = chipRect(item);
    const auto ink = theme().color(Token::ink2);
    painter.drawPixmap(chip.center() - QPointF(8, 8),
                       theme().icon("plus", 16, ink, devicePixelRatioF()));
    if (isCompact()) return;
    painter.setFont(theme().font(TextStyle::body));
    painter.setPen(ink);
    painter.drawText(item.rect.adjusted(theme().scaled(kNameAt), 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter, item.name);
}

void EntryList::paintOverlay(QPainter& painter) {
    painter.setPen(Qt::NoPen);
    if (insertion_) {
        painter.fillRect(insertionBar(), theme().color(Token::ink));
    } else if (isOver_) {
        const auto half = kDropRing / 2.0;
        painter.setPen(QPen(theme().color(Token::ink), kDropRing));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(QRectF(rect()).adjusted(half, half, -half, -half));
    }
}

std::size_t EntryList::insertionAt(QPointF place) const {
    const auto row = theme().scaled(kRow);
    const auto at = static_cast<int>(place.y() - kMargin + row / 2.0) / row;
    return static_cast<std::size_t>(std::clamp(at, 0, static_cast<int>(board_.entries().size())));
}

QRectF EntryList::insertionBar() const {
    const auto y = kMargin + static_cast<qreal>(*insertion_) * theme().scaled(kRow);
    return {qreal(kMargin), y - kInsertion / 2.0, width() - 2.0 * kMargin, qreal(kInsertion)};
}

// Renaming

void EntryList::beginRename(const Uuid& id) {
    const auto found = std::ranges::find(board_.entries(), id, &Entry::id);
    if (found == board_.entries().end() || isCompact()) return;
    const auto index = static_cast<std::size_t>(found - board_.entries().begin());
    const auto item = find(entry, index);
    if (item < 0) return;
    const auto& row = items()[static_cast<std::size_t>(item)];
    if (reveal) reveal(row.rect.toAlignedRect());
    const auto words = nameRect(row);
    const auto high = theme().scaled(28);
    const QRectF in(words.left() - 8, row.rect.center().y() - high / 2.0, words.width() + 12, high);
    field_ = new PlacedField(found->givenName ? fromUtf8(*found->givenName) : QString(),
                             in.toRect(), this);
    field_->setAccessibleName(worded("Name of the colour"));
    field_->setPlaceholderText(row.name);
    field_->setFont(theme().font(TextStyle::control));
    field_->kept = [this, id](const QString& name) { board_.rename(id, toUtf8(name)); };
}

} // namespace tintra
