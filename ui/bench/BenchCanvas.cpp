#include "ui/bench/BenchCanvas.h"

#include "colour/ColorNames.h"
#include "colour/Contrast.h"
#include "platform/MainLoop.h"
#include "platform/Services.h"
#include "state/Models.h"
#include "ui/actions/ActionTable.h"
#include "ui/shared/PlacedField.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tintra {
namespace {

using Of = BenchSelection::Of;

constexpr double kFlash = 0.12; ///< seconds
constexpr qreal kLink = 8;      ///< height of the item of a line
// While it is empty.
constexpr int kEmptyWidth = 304, kHeadline = 28, kHintLines = 2, kHintInset = 14, kActionGap = 16,
              kAction = 36;

ColumnPair pairOf(const BenchContent& content, const BenchWell& well) {
    const auto a = content.indexOfColumn(well.parentA).value_or(0);
    const auto b = content.indexOfColumn(well.parentB).value_or(0);
    return std::minmax(a, b);
}

std::vector<ColumnPair> pairsOf(const BenchContent& content) {
    std::vector<ColumnPair> pairs;
    for (const auto& well : content.wells)
        pairs.push_back(pairOf(content, well));
    return pairs;
}

/// Everything stands where it stood and is called as it was; wells may mix otherwise.
bool standsAs(const BenchContent& now, const BenchContent& before) {
    return now.columns == before.columns &&
           std::ranges::equal(now.wells, before.wells, [](const auto& one, const auto& other) {
               return one.id == other.id && one.parentA == other.parentA &&
                      one.parentB == other.parentB;
           });
}

/// "38 : 62".
QString shares(double ratio, const char* form) {
    const auto second = static_cast<int>(std::lround(ratio * 100));
    return worded(form).arg(100 - second).arg(second);
}

CanvasItem plainItem(int kind, std::size_t index, const QRectF& rect) {
    CanvasItem item;
    item.kind = kind;
    item.index = index;
    item.rect = rect;
    return item;
}

/// A column that follows a swatch is called as the swatch is, so that is renamed.
void renameOnBench(Models& models, const Uuid& id, const std::string& name) {
    auto& bench = models.bench();
    const auto* column = bench.column(id);
    if (!column) return;
    const auto where = bench.resolve(*column);
    const auto* attached = column->isLinked() ? std::get_if<Bench::Attached>(&where) : nullptr;
    auto* state = attached ? models.workspaces().state(attached->swatch.origin.windowID) : nullptr;
    if (state)
        state->renameSwatch(attached->swatch.origin.index, name);
    else
        bench.renameBenchColumn(id, name.empty() ? std::nullopt : std::optional(name));
}

} // namespace

BenchCanvas::BenchCanvas(Ui& ui, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), bench_(ui.models.bench()) {
    setAccessibleName(worded("Bench"));
    setAcceptDrops(true);
    subscribe();
    layOutAnew();
}

BenchCanvas::~BenchCanvas() = default;

void BenchCanvas::subscribe() {
    auto& preferences = ui_.models.preferences();
    const auto again = [this] { layOutAnew(); };
    subscriptions_.add(bench_.content(), [this] { contentChanged(); });
    subscriptions_.add(bench_.benchActive, [this] { syncSelection(); });
    subscriptions_.add(bench_.vision, [this] { update(); });
    subscriptions_.add(preferences.format, again);
    subscriptions_.add(preferences.formatOptions, again);
    subscriptions_.add(preferences.profilesVersion, again);
    subscriptions_.add(theme().version(), again);
}

void BenchCanvas::contentChanged() {
    const auto& now = bench_.content().value();
    if (!standsAs(now, shown_)) {
        layOutAnew();
        return;
    }
    for (std::size_t i = 0; i < now.wells.size(); ++i)
        if (now.wells[i] != shown_.wells[i]) setItem(find(well, i), wellItem(i));
    shown_ = now;
}

void BenchCanvas::layOutAnew() {
    shown_ = bench_.content().value();
    setWhole();
    relayout();
    syncSelection();
}

void BenchCanvas::setWhole() {
    const QSizeF visible(parentWidget() ? parentWidget()->width() : width(), height());
    const auto whole = benchPlaces(bench_.benchColumns().size(), {}, visible, 0).width;
    // The least width makes the scroll area scroll; a height of its own would not follow it.
    const auto least = whole > visible.width() ? static_cast<int>(whole) : 0;
    if (least != minimumWidth()) setMinimumWidth(least);
}

void BenchCanvas::resizeEvent(QResizeEvent* event) {
    setWhole();
    Canvas::resizeEvent(event);
}

// The items

QString BenchCanvas::nameOf(const Uuid& id) const {
    const auto* of = bench_.column(id);
    return of ? oneLine(bench_.name(*of)) : QString();
}

QString BenchCanvas::code(const WashColor& color, const std::string& name) const {
    const auto& preferences = ui_.models.preferences();
    return fromUtf8(
        preferences.format.value().string(color, name, preferences.formatOptions.value()));
}

CanvasItem BenchCanvas::columnItem(std::size_t at) const {
    const auto& of = columnAt(at);
    const auto name = bench_.name(of);
    auto item = plainItem(column, at, stand_.columns[at]);
    item.role = QAccessible::ListItem;
    item.name = oneLine(name) + QStringLiteral(", ") + oneLine(bench_.badgeText(of), 60);
    item.value = code(bench_.currentColor(of), name);
    item.description = worded("%1 of %2").arg(at + 1).arg(bench_.benchColumns().size());
    item.selected = bench_.benchActive.value() == BenchSelection{Of::column, of.id};
    return item;
}

CanvasItem BenchCanvas::figureItem(std::size_t at, double ratio) const {
    auto item = plainItem(figure, at, stand_.figures[at]);
    item.role = QAccessible::StaticText;
    item.name = worded("%1 and %2").arg(nameOf(columnAt(at).id), nameOf(columnAt(at + 1).id));
    item.value = fromUtf8(Contrast::ratioText(ratio));
    item.description = shown(Contrast::spoken(Contrast::wcagGrade(ratio, Contrast::LargeText::no)));
    return item;
}

CanvasItem BenchCanvas::mixItem(std::size_t at) const {
    auto item = plainItem(mix, at, stand_.mixes[at]);
    item.role = QAccessible::Button;
    item.name = worded("Mix %1 with %2").arg(nameOf(columnAt(at).id), nameOf(columnAt(at + 1).id));
    return item;
}

CanvasItem BenchCanvas::wellItem(std::size_t at) const {
    const auto& of = bench_.benchWells()[at];
    const auto color = bench_.wellColor(of).value_or(WashColor());
    auto item = plainItem(well, at, stand_.wells[at]);
    item.role = QAccessible::ListItem;
    item.name = worded("Mix of %1 and %2").arg(nameOf(of.parentA), nameOf(of.parentB));
    item.value = shares(of.ratio, "%1 to %2") + QStringLiteral(", ") +
                 code(color, ColorNames::shared().name(color));
    item.selected = bench_.benchActive.value() == BenchSelection{Of::well, of.id};
    return item;
}

void BenchCanvas::addLinks(std::vector<CanvasItem>& items) const {
    const auto pairs = pairsOf(bench_.content().value());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        if (pairs[i].second == pairs[i].first + 1) continue;
        const auto disc = stand_.wells[i];
        const auto from = stand_.columns[pairs[i].first].center().x();
        const auto to = stand_.columns[pairs[i].second].center().x();
        items.push_back(plainItem(
            link, i,
            QRectF(from - kLink, disc.center().y() - kLink / 2, to - from + 2 * kLink, kLink)));
    }
}

std::vector<CanvasItem> BenchCanvas::emptyItems(QSizeF size) const {
    const auto width = std::min<qreal>(theme().scaled(kEmptyWidth), size.width());
    const auto left = std::round((size.width() - width) / 2);
    const auto words = qreal(kHintLines * theme().lineHeight(TextStyle::body));
    const qreal head = theme().scaled(kHeadline), action = theme().scaled(kAction);
    auto y = std::max(0.0, std::round((size.height() - head - words - kActionGap - action) / 2));
    std::vector<CanvasItem> items;
    const auto add = [&](Kind kind, qreal height, const char* text) {
        items.push_back(plainItem(kind, 0, QRectF(left, y, width, height)));
        items.back().name = worded(text);
        y += height;
    };
    add(headline, head, "Lay colours side by side");
    add(hint, words,
        "Drop swatches here, or send one from a palette. Two neighbours mix as pigments.");
    items.back().rect.adjust(kHintInset, 0, -kHintInset, 0);
    y += kActionGap;
    add(beginning, action, "Type or paste values");
    items.back().role = QAccessible::Button;
    items.back().description = keyText(actionRow(ActionId::typeOrPaste));
    return items;
}

std::vector<CanvasItem> BenchCanvas::layoutItems(QSizeF size) const {
    const auto& content = bench_.content().value();
    constexpr int kAround = 16; ///< the words at the foot of a column
    const auto words = theme().lineHeight(TextStyle::name) + theme().lineHeight(TextStyle::code);
    stand_ = benchPlaces(content.columns.size(), pairsOf(content), size, words + kAround);
    if (content.columns.empty()) return emptyItems(size);
    std::vector<CanvasItem> items;
    for (std::size_t i = 0; i < content.columns.size(); ++i)
        items.push_back(columnItem(i));
    addLinks(items);
    const auto ratios = bench_.neighbourRatios();
    for (std::size_t i = 0; i < ratios.size(); ++i)
        if (!stand_.figures[i].isEmpty()) items.push_back(figureItem(i, ratios[i]));
    for (std::size_t i = 0; i < stand_.mixes.size(); ++i)
        if (!stand_.mixes[i].isEmpty()) items.push_back(mixItem(i));
    for (std::size_t i = 0; i < content.wells.size(); ++i)
        items.push_back(wellItem(i));
    return items;
}

// What is active

int BenchCanvas::itemOf(const std::optional<BenchSelection>& active) const {
    if (!active) return -1;
    const auto& content = bench_.content().value();
    const bool isColumn = active->kind == Of::column;
    const auto at = isColumn ? content.indexOfColumn(active->id) : content.indexOfWell(active->id);
    return at ? find(isColumn ? column : well, *at) : -1;
}

std::optional<BenchSelection> BenchCanvas::selectionOf(int item) const {
    if (item < 0) return std::nullopt;
    const auto& one = items()[static_cast<std::size_t>(item)];
    if (one.kind == column && one.index < bench_.benchColumns().size())
        return BenchSelection{Of::column, columnAt(one.index).id};
    if (one.kind == well && one.index < bench_.benchWells().size())
        return BenchSelection{Of::well, bench_.benchWells()[one.index].id};
    return std::nullopt;
}

void BenchCanvas::syncSelection() {
    const auto item = itemOf(bench_.benchActive.value());
    markSelected(item);
    if (item >= 0) setFocused(item);
}

void BenchCanvas::focusMoved(int item) {
    if (const auto active = selectionOf(item); active && active != bench_.benchActive.value())
        bench_.benchActive = active;
    if (item >= 0 && reveal) reveal(items()[static_cast<std::size_t>(item)].rect.toAlignedRect());
}

int BenchCanvas::neighbour(int from, Qt::Key key) const {
    const auto order = bench_.activeOrder();
    if (order.empty()) return Canvas::neighbour(from, key);
    const auto now = std::ranges::find(order, selectionOf(from),
                                       [](const auto& one) { return std::optional(one); });
    const auto last = std::ssize(order) - 1;
    const auto at = now == order.end() ? std::ptrdiff_t{-1} : now - order.begin();
    switch (key) {
    case Qt::Key_Left:
        return itemOf(order[static_cast<std::size_t>(std::max<std::ptrdiff_t>(at - 1, 0))]);
    case Qt::Key_Right:
        return itemOf(order[static_cast<std::size_t>(std::min(at + 1, last))]);
    case Qt::Key_Home:
        return itemOf(order.front());
    case Qt::Key_End:
        return itemOf(order.back());
    default:
        return -1;
    }
}

// Names and codes

void BenchCanvas::beginRename() {
    const auto active = bench_.benchActive.value();
    const auto item = active && active->kind == Of::column ? itemOf(active) : -1;
    if (item < 0) return;
    if (field_) field_->end(true);
    constexpr qreal kLeastWidth = 116;
    const auto& one = items()[static_cast<std::size_t>(item)];
    const auto& of = columnAt(one.index);
    const auto words = ui_.painter.nameRect(one.rect, look(one));
    const auto wide = std::min<qreal>(std::max(one.rect.width() - 8, kLeastWidth), width());
    const auto left = std::clamp(one.rect.center().x() - wide / 2, 0.0, width() - wide);
    const qreal high = theme().scaled(28);
    const auto middle =
        stand_.shape == SwatchShape::onSide ? one.rect.bottom() - 60 : words.center().y();
    field_ = new PlacedField(of.keptName ? fromUtf8(*of.keptName) : QString(),
                             QRectF(left, middle - high / 2, wide, high).toRect(), this);
    field_->setFont(theme().font(TextStyle::name));
    field_->setPlaceholderText(oneLine(bench_.name(of)));
    field_->setAccessibleName(worded("Name of the colour"));
    field_->kept = [this, id = of.id](const QString& name) {
        renameOnBench(ui_.models, id, toUtf8(name));
    };
    field_->ended = [this] { update(); };
    repaintItem(item);
}

void BenchCanvas::flashCode() {
    const auto repaint = [this](const std::optional<BenchSelection>& of) {
        repaintItem(itemOf(of));
    };
    repaint(flashing_);
    flashing_ = bench_.benchActive.value();
    repaint(flashing_);
    flash_ = ui_.services.mainLoop.after(
        kFlash, [this, repaint] { repaint(std::exchange(flashing_, std::nullopt)); });
}

} // namespace tintra
