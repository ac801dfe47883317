#include "ui/shared/PanelAccessibility.h"

#include <QAccessibleWidget>
#include <QWidget>

namespace tintra {
namespace {

/// A widget without a role of its own. Screen readers know a window and the parts that they name
/// on the way to a control; whatever else holds widgets is nothing to them.
class PanelInterface final : public QAccessibleWidget {
public:
    explicit PanelInterface(QWidget* panel) : QAccessibleWidget(panel) {}

    QAccessible::Role role() const override {
        if (widget()->isWindow()) return QAccessible::Window;
        return widget()->accessibleName().isEmpty() ? QAccessible::Client : QAccessible::Grouping;
    }
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
    const bool isPlain = object->metaObject() == &QWidget::staticMetaObject;
    return isPlain ? new PanelInterface(static_cast<QWidget*>(object)) : nullptr;
}

} // namespace

void installPanelAccessibility() {
    QAccessible::installFactory(interfaceOf);
}

} // namespace tintra
