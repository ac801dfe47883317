#include "ui/editor/PickerControl.h"

#include "ui/shared/AccessibilityEvents.h"
#include "ui/shared/Theme.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>

namespace tintra {
namespace {

constexpr int kPage = 10;
constexpr int kNotch = 120; ///< what one step of a wheel counts

class PickerInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit PickerInterface(PickerControl* control)
        : QAccessibleWidget(control, QAccessible::Slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface && control()->scale())
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        // The bus carries values of numbers only: a plane's, and units, are told by the
        // description.
        const bool isValue = kind == QAccessible::Value || kind == QAccessible::Description;
        return isValue ? control()->spokenValue() : QAccessibleWidget::text(kind);
    }
    QVariant currentValue() const override { return scale().value; }
    void setCurrentValue(const QVariant& value) override { control()->choose(value.toDouble()); }
    QVariant minimumValue() const override { return scale().from; }
    QVariant maximumValue() const override { return scale().to; }
    QVariant minimumStepSize() const override { return scale().step; }

private:
    PickerControl* control() const { return static_cast<PickerControl*>(object()); }
    PickerControl::Scale scale() const {
        return control()->scale().value_or(PickerControl::Scale{});
    }
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
    auto* control = dynamic_cast<PickerControl*>(object);
    return control ? new PickerInterface(control) : nullptr;
}

} // namespace

PickerControl::PickerControl(Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
    static const bool installed = (QAccessible::installFactory(interfaceOf), true);
    Q_UNUSED(installed);
    setFocusPolicy(Qt::StrongFocus);
}

PickerControl::~PickerControl() = default;

bool PickerControl::showsFocus() const {
    return hasFocus() && (focusByKeyboard_ || theme_.isHighContrast());
}

void PickerControl::paintThumb(QPainter& painter, QPointF centre, const QColor& fill) const {
    const auto radius = theme_.scaled(20) / 2.0;
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    painter.drawEllipse(centre, radius + 1, radius + 1);
    painter.setBrush(Qt::white);
    painter.drawEllipse(centre, radius - 0.5, radius - 0.5);
    painter.setPen(QPen(QColor(0, 0, 0, 128), 1));
    painter.setBrush(fill);
    painter.drawEllipse(centre, radius - 3, radius - 3);
}

void PickerControl::announce() {
    if (!isAccessibilityHeard()) return;
    if (const auto one = scale()) {
        QAccessibleValueChangeEvent event(this, one->value);
        tellAccessibility(event);
    } else {
        QAccessibleEvent event(this, QAccessible::DescriptionChanged);
        tellAccessibility(event);
    }
}

void PickerControl::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !takes(event->position())) {
        event->ignore();
        return;
    }
    dragging_ = true;
    dragTo(event->position());
}

void PickerControl::mouseMoveEvent(QMouseEvent* event) {
    if (dragging_) dragTo(event->position());
}

void PickerControl::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !dragging_) return;
    dragging_ = false;
    if (settled) settled();
}

void PickerControl::wheelEvent(QWheelEvent* event) {
    if (!hasFocus() || !scale()) {
        // A wheel that scrolls past the control leaves it alone.
        event->ignore();
        return;
    }
    wheel_ += event->angleDelta().y();
    const auto steps = wheel_ / kNotch;
    wheel_ -= steps * kNotch;
    if (steps == 0) return;
    stepBy(0, steps);
    if (settled) settled();
}

bool PickerControl::walk(int key, int by) {
    switch (key) {
    case Qt::Key_Left:
        stepBy(-by, 0);
        return true;
    case Qt::Key_Right:
        stepBy(by, 0);
        return true;
    case Qt::Key_Down:
        stepBy(0, -by);
        return true;
    case Qt::Key_Up:
        stepBy(0, by);
        return true;
    case Qt::Key_PageDown:
        stepBy(0, -kPage);
        return true;
    case Qt::Key_PageUp:
        stepBy(0, kPage);
        return true;
    case Qt::Key_Home:
        goToEnd(false);
        return true;
    case Qt::Key_End:
        goToEnd(true);
        return true;
    default:
        return false;
    }
}

void PickerControl::keyPressEvent(QKeyEvent* event) {
    constexpr auto kOthers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const auto by = event->modifiers() & Qt::ShiftModifier ? kPage : 1;
    if ((event->modifiers() & kOthers) || !walk(event->key(), by)) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (!focusByKeyboard_) {
        focusByKeyboard_ = true;
        update();
    }
    if (settled) settled();
}

void PickerControl::focusInEvent(QFocusEvent* event) {
    const auto reason = event->reason();
    focusByKeyboard_ = reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
                       reason == Qt::ShortcutFocusReason || reason == Qt::OtherFocusReason;
    QWidget::focusInEvent(event);
    update();
}

void PickerControl::focusOutEvent(QFocusEvent* event) {
    QWidget::focusOutEvent(event);
    update();
}

void roundCorners(QImage& picture, qreal radius) {
    // Only the corners are touched: a plane has hundreds of thousands of pixels.
    const auto reach = static_cast<int>(std::ceil(radius));
    QImage disc(2 * reach, 2 * reach, QImage::Format_ARGB32_Premultiplied);
    disc.fill(Qt::transparent);
    {
        QPainter painter(&disc);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(Qt::black);
        painter.drawEllipse(QPointF(reach, reach), radius, radius);
    }
    picture.convertTo(QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&picture);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    for (const bool right : {false, true})
        for (const bool low : {false, true})
            painter.drawImage(
                QPoint(right ? picture.width() - reach : 0, low ? picture.height() - reach : 0),
                disc, QRect(right ? reach : 0, low ? reach : 0, reach, reach));
}

} // namespace tintra
