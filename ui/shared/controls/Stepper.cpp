#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/Theme.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kHeight = 28, kSide = 28, kFigure = 24, kIcon = 16, kPage = 10;

/// The stepper to screen readers: a spin box with its value.
class StepperInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit StepperInterface(Stepper* stepper)
        : QAccessibleWidget(stepper, QAccessible::SpinBox) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QVariant currentValue() const override { return stepper()->value(); }
    void setCurrentValue(const QVariant& value) override {
        stepper()->setValue(value.toInt());
        if (stepper()->changed) stepper()->changed(stepper()->value());
    }
    QVariant maximumValue() const override { return stepper()->maximum(); }
    QVariant minimumValue() const override { return stepper()->minimum(); }
    QVariant minimumStepSize() const override { return 1; }

private:
    Stepper* stepper() const { return static_cast<Stepper*>(object()); }
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
    auto* stepper = dynamic_cast<Stepper*>(object);
    return stepper ? new StepperInterface(stepper) : nullptr;
}

} // namespace

Stepper::Stepper(Theme& theme, const QString& name, QWidget* parent)
    : QWidget(parent), theme_(theme) {
    static const bool installed = (QAccessible::installFactory(interfaceOf), true);
    Q_UNUSED(installed);
    setAccessibleName(name);
    setToolTip(name);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

Stepper::~Stepper() = default;

void Stepper::setRange(int from, int to) {
    from_ = from;
    to_ = std::max(from, to);
    setValue(value_);
}

void Stepper::setValue(int value) {
    value_ = std::clamp(value, from_, to_);
    update();
}

void Stepper::step(int by) {
    const auto before = value_;
    setValue(value_ + by);
    if (value_ == before) return;
    QAccessibleValueChangeEvent event(this, value_);
    QAccessible::updateAccessibility(&event);
    if (changed) changed(value_);
}

QSize Stepper::sizeHint() const {
    return {2 * theme_.scaled(kSide) + theme_.scaled(kFigure), theme_.scaled(kHeight)};
}

void Stepper::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto whole = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(QPen(theme_.color(Token::edge), 1));
    painter.drawRoundedRect(whole, metrics::kControlRadius, metrics::kControlRadius);
    const auto side = theme_.scaled(kSide);
    const auto draw = [&](const char* icon, int x, bool enabled) {
        const auto ink = theme_.color(enabled && isEnabled() ? Token::ink : Token::off);
        painter.drawPixmap(QPointF(x + (side - kIcon) / 2.0, (height() - kIcon) / 2.0),
                           theme_.icon(icon, kIcon, ink, devicePixelRatioF()));
    };
    draw("minus", 0, value_ > from_);
    draw("plus", width() - side, value_ < to_);
    painter.setFont(theme_.font(TextStyle::control));
    painter.setPen(theme_.color(isEnabled() ? Token::ink : Token::off));
    drawFigures(painter, rect().adjusted(side, 0, -side, 0), Qt::AlignCenter,
                QString::number(value_));
    if (hasFocus())
        paintFocusRing(painter, theme_, whole.adjusted(1, 1, -1, -1), metrics::kControlRadius);
}

void Stepper::mousePressEvent(QMouseEvent* event) {
    const auto side = theme_.scaled(kSide);
    if (event->pos().x() < side) step(-1);
    if (event->pos().x() >= width() - side) step(1);
}

void Stepper::wheelEvent(QWheelEvent* event) {
    if (!hasFocus()) {
        // A wheel that scrolls past the control leaves it alone.
        event->ignore();
        return;
    }
    step(event->angleDelta().y() > 0 ? 1 : -1);
}

void Stepper::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Right:
    case Qt::Key_Plus:
        step(1);
        break;
    case Qt::Key_Down:
    case Qt::Key_Left:
    case Qt::Key_Minus:
        step(-1);
        break;
    case Qt::Key_PageUp:
        step(kPage);
        break;
    case Qt::Key_PageDown:
        step(-kPage);
        break;
    case Qt::Key_Home:
        step(from_ - value_);
        break;
    case Qt::Key_End:
        step(to_ - value_);
        break;
    default:
        QWidget::keyPressEvent(event);
    }
}

} // namespace tintra
