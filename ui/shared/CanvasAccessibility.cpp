#include "ui/shared/Canvas.h"

#include <QAccessibleWidget>
#include <memory>

namespace tintra {
namespace {

/// An item of a canvas as a screen reader meets it. It reads the canvas's list each time, so it
/// never tells of what is gone.
class ItemInterface final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    ItemInterface(Canvas* canvas, int item) : canvas_(canvas), index_(item) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }

    bool isValid() const override { return item() != nullptr; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override {
        return canvas_ ? canvas_->window()->windowHandle() : nullptr;
    }
    QAccessibleInterface* parent() const override {
        return canvas_ ? QAccessible::queryAccessibleInterface(canvas_) : nullptr;
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    QString text(QAccessible::Text kind) const override {
        const auto* it = item();
        if (!it) return {};
        switch (kind) {
        case QAccessible::Name:
            return it->name;
        case QAccessible::Value:
            return it->value;
        case QAccessible::Description:
            // The bus carries values of numbers only.
            return joined(it->value, it->description);
        default:
            return {};
        }
    }
    void setText(QAccessible::Text, const QString&) override {}
    QRect rect() const override {
        const auto* it = item();
        if (!it) return {};
        const auto inside = it->rect.toAlignedRect();
        return {canvas_->mapToGlobal(inside.topLeft()), inside.size()};
    }
    QAccessible::Role role() const override {
        const auto* it = item();
        if (!it) return QAccessible::NoRole;
        return it->role == QAccessible::NoRole ? QAccessible::StaticText : it->role;
    }
    QAccessible::State state() const override {
        QAccessible::State state;
        const auto* it = item();
        state.invalid = it == nullptr;
        if (!it) return state;
        state.focusable = it->role != QAccessible::NoRole;
        state.selectable = isSelectable(it->role);
        state.selected = it->selected;
        state.disabled = !canvas_->isEnabled();
        state.checkable = it->checked.has_value();
        state.checked = it->checked.value_or(false);
        state.expandable = it->expanded.has_value();
        state.expanded = it->expanded.value_or(false);
        state.collapsed = it->expanded && !*it->expanded;
        state.focused = canvas_->hasFocus() && canvas_->focused() == index_;
        state.invisible = !canvas_->isVisible();
        return state;
    }

    QStringList actionNames() const override {
        const auto* it = item();
        if (!it || it->role == QAccessible::NoRole) return {};
        QStringList names;
        if (canvas_->canPress(index_)) names << (it->checked ? toggleAction() : pressAction());
        return names << setFocusAction();
    }
    void doAction(const QString& name) override {
        if (!actionNames().contains(name)) return;
        if (name == setFocusAction())
            canvas_->takeFocus(index_);
        else
            canvas_->press(index_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    static QString joined(const QString& value, const QString& description) {
        if (value.isEmpty() || description.isEmpty()) return value + description;
        return value + QStringLiteral(", ") + description;
    }
    static bool isSelectable(QAccessible::Role role) {
        return role == QAccessible::ListItem || role == QAccessible::Cell ||
               role == QAccessible::TreeItem;
    }
    const CanvasItem* item() const {
        if (!canvas_ || index_ >= static_cast<int>(canvas_->items().size())) return nullptr;
        return &canvas_->items()[static_cast<std::size_t>(index_)];
    }

    QPointer<Canvas> canvas_;
    int index_;
};

class CanvasInterface final : public QAccessibleWidget {
public:
    explicit CanvasInterface(Canvas* canvas) : QAccessibleWidget(canvas, canvas->containerRole) {}
    ~CanvasInterface() override {
        for (const auto id : children_)
            if (id) QAccessible::deleteAccessibleInterface(id);
    }
    CanvasInterface(const CanvasInterface&) = delete;
    CanvasInterface& operator=(const CanvasInterface&) = delete;

    // The items, then the widgets that stand on the canvas, such as the field of a name.
    int childCount() const override { return itemCount() + QAccessibleWidget::childCount(); }
    QAccessibleInterface* child(int index) const override {
        if (index >= itemCount()) return QAccessibleWidget::child(index - itemCount());
        if (index < 0) return nullptr;
        const auto at = static_cast<std::size_t>(index);
        if (children_.size() <= at) children_.resize(at + 1, 0);
        if (children_[at] == 0)
            children_[at] =
                QAccessible::registerAccessibleInterface(new ItemInterface(canvas(), index));
        return QAccessible::accessibleInterface(children_[at]);
    }
    QAccessibleInterface* childAt(int x, int y) const override {
        if (auto* widget = QAccessibleWidget::childAt(x, y)) return widget;
        const auto item = canvas()->itemAt(canvas()->mapFromGlobal(QPoint(x, y)));
        return item < 0 ? nullptr : child(item);
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        for (std::size_t i = 0; i < children_.size(); ++i)
            if (children_[i] && QAccessible::accessibleInterface(children_[i]) == child)
                return static_cast<int>(i);
        const auto widget = QAccessibleWidget::indexOfChild(child);
        return widget < 0 ? -1 : itemCount() + widget;
    }
    QAccessibleInterface* focusChild() const override {
        return canvas()->hasFocus() ? child(canvas()->focused()) : QAccessibleWidget::focusChild();
    }

private:
    Canvas* canvas() const { return static_cast<Canvas*>(object()); }
    int itemCount() const { return static_cast<int>(canvas()->items().size()); }

    /// Registered interfaces of the items, made when first asked for; 0 for none.
    mutable std::vector<QAccessible::Id> children_;
};

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
    auto* canvas = dynamic_cast<Canvas*>(object);
    return canvas ? new CanvasInterface(canvas) : nullptr;
}

} // namespace

void installCanvasAccessibility() {
    QAccessible::installFactory(interfaceOf);
}

} // namespace tintra
