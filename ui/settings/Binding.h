#pragma once

#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"

#include <QAbstractButton>
#include <QMenu>
#include <QProperty>
#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

// Keeps controls and settings the same, both ways. A control that is set by a binding does not
// report, and a property that is set to what it holds does not either, so nothing goes in circles.

namespace tintra {

/// A setting as a whole.
template <class T>
struct Whole {
    QProperty<T>& property;
    T value() const { return property.value(); }
    void set(T to) const { property = std::move(to); }
};

/// A field of a setting.
template <class S, class T>
struct Part {
    QProperty<S>& property;
    T S::*field;
    T value() const { return property.value().*field; }
    void set(T to) const {
        auto whole = property.value();
        whole.*field = std::move(to);
        property = std::move(whole);
    }
};

/// Whether a setting that is a set holds a text.
struct Membership {
    QProperty<std::set<std::string>>& property;
    std::string member;
    bool value() const { return property.value().contains(member); }
    void set(bool holds) const {
        auto all = property.value();
        if (holds)
            all.insert(member);
        else
            all.erase(member);
        property = std::move(all);
    }
};

/// A choice that a control offers.
template <class T>
struct Option {
    T value;
    QString text;
};

template <class T>
std::vector<Segmented::Choice> choicesOf(const std::vector<Option<T>>& options) {
    std::vector<Segmented::Choice> choices;
    for (const auto& option : options)
        choices.push_back({option.text, {}});
    return choices;
}

/// The place of a value among options; the first for one that is not offered.
template <class T>
std::size_t placeOf(const T& value, const std::vector<Option<T>>& options) {
    const auto found = std::ranges::find(options, value, &Option<T>::value);
    return found == options.end() ? 0 : static_cast<std::size_t>(found - options.begin());
}

/// The bindings of a view, which hold while it lives. The controls must outlive them or never
/// report afterwards.
class Bindings {
public:
    /// Does it now and whenever the property changes.
    template <class T, class Task>
    void follow(const QProperty<T>& property, Task task) {
        task();
        notifiers_.emplace_back(property, std::move(task));
    }

    template <class Source, class T>
    void bind(Source source, Segmented& control, std::vector<Option<T>> options) {
        control.chosen = [source, options](int choice) {
            source.set(options[static_cast<std::size_t>(choice)].value);
        };
        follow(source.property, [source, options, &control] {
            control.setCurrent(static_cast<int>(placeOf(source.value(), options)));
        });
    }

    template <class Source, class T>
    void bind(Source source, PopUpButton& control, std::vector<Option<T>> options) {
        control.fill = [source, options](QMenu& menu) {
            for (const auto& option : options)
                addChoice(menu, option.text, option.value == source.value(),
                          [source, value = option.value] { source.set(value); });
        };
        follow(source.property, [source, options, &control] {
            show(control, options[placeOf(source.value(), options)].text);
        });
    }

    template <class Source>
    void bind(Source source, QAbstractButton& control) {
        QObject::connect(&control, &QAbstractButton::clicked, &control,
                         [source](bool checked) { source.set(checked); });
        follow(source.property, [source, &control] { control.setChecked(source.value()); });
    }

    template <class Source>
    void bind(Source source, Stepper& control) {
        control.changed = [source](int value) { source.set(value); };
        follow(source.property, [source, &control] { control.setValue(source.value()); });
    }

    /// One of the choices of a pop-up's menu.
    template <class Task>
    static void addChoice(QMenu& menu, const QString& text, bool isCurrent, Task task) {
        auto* action = menu.addAction(text, std::move(task));
        action->setCheckable(true);
        action->setChecked(isCurrent);
        if (isCurrent) menu.setActiveAction(action);
    }
    /// The choice that a pop-up stands at.
    static void show(PopUpButton& control, const QString& choice) {
        control.setText(choice);
        control.setAccessibleDescription(choice);
    }

private:
    std::vector<QPropertyNotifier> notifiers_;
};

} // namespace tintra
