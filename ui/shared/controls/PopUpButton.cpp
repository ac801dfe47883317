#include "ui/shared/Controls.h"
#include "ui/shared/Theme.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

namespace tintra {
namespace {

constexpr int kHeight = 28, kSide = 10, kGap = 8, kChevron = 16, kIcon = 16, kLeast = 48;
// The drawing of the chevron leaves room at its sides.
constexpr int kChevronGap = 4, kChevronEnd = 6;

} // namespace

PopUpButton::PopUpButton(Theme& theme, Border border, QWidget* parent)
    : QAbstractButton(parent), theme_(theme), border_(border) {
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this, [this] { openMenu(); });
}

void PopUpButton::setIconName(std::string_view icon) {
    icon_ = icon;
    update();
}

void PopUpButton::setInverted(bool inverted) {
    inverted_ = inverted;
    update();
}

void PopUpButton::openMenu() {
    if (open) {
        open();
        return;
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (fill) fill(*menu);
    menu->setMinimumWidth(width());
    menu->popup(mapToGlobal(QPoint(0, height() + 2)));
}

QSize PopUpButton::sizeHint() const {
    const auto text = QFontMetrics(theme_.font(TextStyle::control)).horizontalAdvance(this->text());
    const auto icon = icon_.empty() ? 0 : kIcon + kGap;
    return {kSide + icon + text + kChevronGap + kChevron + kChevronEnd, theme_.scaled(kHeight)};
}

QSize PopUpButton::minimumSizeHint() const {
    return {std::min(sizeHint().width(), kLeast), sizeHint().height()};
}

bool PopUpButton::event(QEvent* event) {
    if (event->type() == QEvent::StyleChange) updateGeometry();
    return QAbstractButton::event(event);
}

void PopUpButton::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Down || event->key() == Qt::Key_Up) {
        openMenu();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void PopUpButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto whole = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    // What has an icon says a state of the window and stands back behind what is chosen often.
    auto ink = theme_.color(!isEnabled() ? Token::off : icon_.empty() ? Token::ink : Token::ink2);
    if (inverted_) ink = theme_.color(Token::onsel);
    painter.setPen(border_ == Border::yes ? QPen(theme_.color(Token::edge), 1) : QPen(Qt::NoPen));
    painter.setBrush(Qt::NoBrush);
    if (inverted_)
        painter.setBrush(theme_.color(Token::sel));
    else if (isDown())
        painter.setBrush(theme_.color(Token::press));
    else if (underMouse() && isEnabled())
        painter.setBrush(theme_.color(Token::hover));
    painter.drawRoundedRect(whole, metrics::kControlRadius, metrics::kControlRadius);
    auto left = whole.left() + kSide;
    const auto ratio = devicePixelRatioF();
    const auto middle = whole.center().y();
    if (!icon_.empty()) {
        painter.drawPixmap(QPointF(left, middle - kIcon / 2.0),
                           theme_.icon(icon_, kIcon, ink, ratio));
        left += kIcon + kGap;
    }
    const QPointF chevron(rect().right() + 1 - kChevronEnd - kChevron, middle - kChevron / 2.0);
    painter.drawPixmap(chevron, theme_.icon("chevron-down", kChevron, ink, ratio));
    const auto font = theme_.font(TextStyle::control, ink);
    painter.setFont(font);
    painter.setPen(ink);
    const QRectF place(left, whole.top(), chevron.x() - left, whole.height());
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetricsF(font).elidedText(text(), Qt::ElideRight, place.width()));
    if (hasFocus())
        paintFocusRing(painter, theme_, whole.adjusted(1, 1, -1, -1), metrics::kControlRadius);
}

} // namespace tintra
