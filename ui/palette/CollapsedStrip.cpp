#include "ui/palette/CollapsedStrip.h"

#include "state/Models.h"
#include "ui/actions/ActionTable.h"
#include "ui/palette/StripCells.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWindow>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kHeight = 44, kWidth = 52; ///< lying, standing
constexpr int kInset = 4, kGrip = 24, kArrow = 24, kButton = 32;
constexpr int kNarrowest = 24, kUsualCell = 38;
constexpr int kShortest = 160, kLongest = 560;

} // namespace

CollapsedStrip::CollapsedStrip(Ui& ui, AppState& state, QWidget* parent)
    : QWidget(parent), ui_(ui), state_(state), cells_(new StripCells(ui, state, this)),
      back_(new ToolButton(ui.theme, "chevron-left", kArrow, this)),
      forward_(new ToolButton(ui.theme, "chevron-right", kArrow, this)),
      expand_(new ToolButton(ui.theme, "expand", kButton, this)) {
    setAccessibleName(worded("Collapsed palette"));
    back_->setTitle(worded("Previous colours"), {});
    forward_->setTitle(worded("Further colours"), {});
    connect(back_, &QAbstractButton::clicked, this, [this] { cells_->turn(-1); });
    connect(forward_, &QAbstractButton::clicked, this, [this] { cells_->turn(1); });
    expand_->setTitle(worded("Expand"), keyText(actionRow(ActionId::collapse)));
    connect(expand_, &QAbstractButton::clicked, this, [this] { state_.toggleCollapsed(); });
    cells_->paged = [this] { syncArrows(); };
    const auto again = [this] {
        updateGeometry();
        layOut();
    };
    subscriptions_.add(state.compactOrientation, again);
    subscriptions_.add(ui.models.preferences().compactOrientation, again);
    subscriptions_.add(ui.theme.version(), again);
    subscriptions_.add(state.customPalette(), again);
    subscriptions_.add(state.mode, again);
    layOut();
}

CollapsedStrip::~CollapsedStrip() = default;

Qt::Orientation CollapsedStrip::orientation() const {
    const auto chosen = state_.compactOrientation.value().value_or(
        ui_.models.preferences().compactOrientation.value());
    return chosen == CompactOrientation::vertical ? Qt::Vertical : Qt::Horizontal;
}

QSize CollapsedStrip::sizeHint() const {
    const auto count = static_cast<int>(std::max<std::size_t>(cells_->items().size(), 4));
    const auto length =
        std::clamp(kGrip + count * kUsualCell + kButton + 3 * kInset, kShortest, kLongest);
    return orientation() == Qt::Horizontal ? QSize(length, kHeight) : QSize(kWidth, length);
}

QSize CollapsedStrip::minimumSizeHint() const {
    return orientation() == Qt::Horizontal ? QSize(kShortest, kHeight) : QSize(kWidth, kShortest);
}

QRect CollapsedStrip::along(int from, int length) const {
    return orientation() == Qt::Horizontal ? QRect(from, kInset, length, height() - 2 * kInset)
                                           : QRect(kInset, from, width() - 2 * kInset, length);
}

QRect CollapsedStrip::gripRect() const {
    return along(0, kGrip);
}

void CollapsedStrip::layOut() {
    const bool level = orientation() == Qt::Horizontal;
    const auto length = level ? width() : height();
    const auto button = expand_->sizeHint().width();
    const auto end = length - button - 2 * kInset;
    const auto room = std::max(1, end - kGrip);
    const auto count = static_cast<int>(cells_->items().size());
    const bool pages = count * kNarrowest > room;
    back_->setIconName(level ? "chevron-left" : "chevron-up");
    forward_->setIconName(level ? "chevron-right" : "chevron-down");
    back_->setVisible(pages);
    forward_->setVisible(pages);
    const auto arrow = pages ? back_->sizeHint().width() : 0;
    const auto centred = [&](int from, QSize size) {
        const auto in = along(from, level ? size.width() : size.height());
        return QRect(in.center() - QPoint(size.width() - 1, size.height() - 1) / 2, size);
    };
    back_->setGeometry(centred(kGrip, back_->sizeHint()));
    forward_->setGeometry(centred(end - arrow, forward_->sizeHint()));
    expand_->setGeometry(centred(end + kInset, expand_->sizeHint()));
    cells_->setOrientation(orientation());
    cells_->setGeometry(along(kGrip + arrow, std::max(1, room - 2 * arrow)));
    syncArrows();
    update();
}

void CollapsedStrip::syncArrows() {
    back_->setEnabled(cells_->page() > 0);
    forward_->setEnabled(cells_->page() + 1 < cells_->pages());
}

void CollapsedStrip::resizeEvent(QResizeEvent*) {
    layOut();
}

void CollapsedStrip::paintEvent(QPaintEvent*) {
    constexpr int kIcon = 16;
    const auto& theme = ui_.theme;
    QPainter painter(this);
    painter.fillRect(rect(), theme.color(Token::panel));
    painter.setPen(theme.color(Token::edge));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setRenderHint(QPainter::Antialiasing);
    const auto grip = theme.icon("grip", kIcon, theme.color(Token::ink2), devicePixelRatioF());
    painter.translate(QRectF(gripRect()).center());
    if (orientation() == Qt::Vertical) painter.rotate(90);
    painter.drawPixmap(QPointF(-kIcon / 2.0, -kIcon / 2.0), grip);
}

void CollapsedStrip::mousePressEvent(QMouseEvent* event) {
    auto* handle = window()->windowHandle();
    if (event->button() == Qt::LeftButton && handle) handle->startSystemMove();
}

void CollapsedStrip::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) state_.toggleCollapsed();
}

} // namespace tintra
