#pragma once

#include "ui/shared/Theme.h"

#include <QLabel>
#include <QPushButton>
#include <QWidget>
#include <string_view>
#include <vector>

class QGridLayout;
class QVBoxLayout;

// How the tabs of the settings are laid out, and the words and buttons that follow the theme.

namespace tintra {

/// Words in a face and an ink of the theme. Wraps where it is told to.
class Words final : public QLabel {
public:
    Words(Theme& theme, TextStyle style, Token ink, const QString& text, QWidget* parent = nullptr);

private:
    void dress();

    Theme& theme_;
    TextStyle style_;
    Token ink_;
    QPropertyNotifier themeChanged_;
};

/// A push button with an icon.
class IconButton final : public QPushButton {
public:
    IconButton(Theme& theme, std::string_view icon, int size, const QString& text,
               QWidget* parent = nullptr);

private:
    QPropertyNotifier themeChanged_;
};

/// Rows of a label at the left and controls below each other at the right.
class Form : public QWidget {
public:
    explicit Form(Theme& theme, QWidget* parent = nullptr);

    /// The label names the control, for screen readers too.
    void add(const QString& label, QWidget* control);
    /// The label stands beside the first one and names those without words of their own.
    void add(const QString& label, const std::vector<QWidget*>& controls);
    /// Below the last control.
    void append(QWidget* control);
    /// Small words below the last control.
    Words* addCaption(const QString& text);
    /// Takes what is left of the height, then a control at the lower right.
    void finish(QWidget* control = nullptr);

protected:
    Theme& theme() const { return theme_; }

private:
    void addCell(const QString& label, QWidget* named);

    Theme& theme_;
    QGridLayout* grid_;
    QVBoxLayout* last_ = nullptr;
    QPropertyNotifier themeChanged_;
};

} // namespace tintra
