#include "ui/shared/controls/SegmentedAccessibility.h"

#include "ui/shared/Controls.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <vector>

namespace tintra {
namespace {

/// One choice: a radio button that can be pressed.
class ChoiceInterface final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ChoiceInterface(Segmented* control, int choice) : control_(control), choice_(choice) {}

    bool isValid() const override { return !control_.isNull(); }
    QObject* object() const override { return nullptr; }
    QAccessibleInterface* parent() const override {
        return control_ ? QAccessible::queryAccessibleInterface(control_) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override {
        return control_ && kind == QAccessible::Name ? control_->textOf(choice_) : QString();
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        if (!control_) return {};
        const auto inside = control_->rectOf(choice_);
        return {control_->mapToGlobal(inside.topLeft()), inside.size()};
    }
    QAccessible::Role role() const override { return QAccessible::RadioButton; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.invalid = control_.isNull();
        if (!control_) return state;
        state.checkable = state.focusable = true;
        state.checked = control_->current() == choice_;
        state.focused = state.checked && control_->hasFocus();
        state.disabled = !control_->isEnabled();
        state.invisible = !control_->isVisible();
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ActionInterface)
            return static_cast<QAccessibleActionInterface*>(this);
        return nullptr;
    }
    QStringList actionNames() const override { return {pressAction()}; }
    void doAction(const QString& action) override {
        if (control_ && control_->isEnabled() && action == pressAction()) control_->choose(choice_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    QPointer<Segmented> control_;
    int choice_;
};

class SegmentedInterface final : public QAccessibleWidget {
public:
    explicit SegmentedInterface(Segmented* control)
        : QAccessibleWidget(control, QAccessible::Grouping) {
        for (int i = 0; i < control->count(); ++i)
            choices_.push_back(
                QAccessible::registerAccessibleInterface(new ChoiceInterface(control, i)));
    }
    ~SegmentedInterface() override {
        for (const auto id : choices_)
            QAccessible::deleteAccessibleInterface(id);
    }
    SegmentedInterface(const SegmentedInterface&) = delete;
    SegmentedInterface& operator=(const SegmentedInterface&) = delete;

    int childCount() const override { return static_cast<int>(choices_.size()); }
    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount()) return nullptr;
        return QAccessible::accessibleInterface(choices_[static_cast<std::size_t>(index)]);
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        for (int i = 0; i < childCount(); ++i)
            if (child(i)->rect().contains(x, y)) return child(i);
        return nullptr;
    }
    int indexOfChild(const QAccessibleInterface* of) const override {
        for (int i = 0; i < childCount(); ++i)
            if (child(i) == of) return i;
        return -1;
    }
    QAccessibleInterface* focusChild() const override {
        const auto* control = static_cast<Segmented*>(object());
        return control->hasFocus() ? child(control->current()) : nullptr;
    }

private:
    std::vector<QAccessible::Id> choices_;
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
    auto* control = dynamic_cast<Segmented*>(object);
    return control ? new SegmentedInterface(control) : nullptr;
}

} // namespace

void installSegmentedAccessibility() {
    static const bool installed = (QAccessible::installFactory(interfaceOf), true);
    Q_UNUSED(installed);
}

} // namespace tintra
