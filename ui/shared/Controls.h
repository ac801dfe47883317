#pragma once

#include <QAbstractButton>
#include <QString>
#include <QWidget>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

class QMenu;

// The small controls of tool bars and panels, painted from the theme. The standard ones (buttons,
// fields, checks, menus, scroll bars) are drawn by TintraStyle.

namespace tintra {

class Theme;

/// An icon without a border; dark while it is on. Its accessible name is the command's title and
/// its tooltip adds the key.
class ToolButton final : public QAbstractButton {
public:
    /// `side` px at regular text size: 32 in tool bars, 28 elsewhere.
    ToolButton(Theme& theme, std::string_view icon, int side = 32, QWidget* parent = nullptr);
    void setIconName(std::string_view icon);
    void setTitle(const QString& title, const QString& key);
    /// A count at the corner; 0 shows none.
    void setBadge(int count);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;

private:
    Theme& theme_;
    std::string icon_;
    int side_, badge_ = 0;
};

/// One of a few choices, side by side. One stop of the Tab key; arrows choose. Each choice is an
/// accessible radio button.
class Segmented final : public QWidget {
public:
    struct Choice {
        QString text;
        std::string icon; ///< in place of the text, which is its name then; empty for none
    };
    Segmented(Theme& theme, std::vector<Choice> choices, QWidget* parent = nullptr);
    ~Segmented() override;

    int count() const { return static_cast<int>(choices_.size()); }
    const QString& textOf(int choice) const {
        return choices_[static_cast<std::size_t>(choice)].text;
    }
    QRect rectOf(int choice) const;
    int current() const { return current_; }
    /// Does not call `chosen`.
    void setCurrent(int choice);
    /// As the user does; nothing for one that there is not, or that is chosen.
    void choose(int choice);
    /// Is told when the user chooses.
    std::function<void(int)> chosen;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    int widthOf(int choice) const;

    Theme& theme_;
    std::vector<Choice> choices_;
    int current_ = 0, hovered_ = -1;
};

/// A button that shows the current choice and opens a menu of all, made anew each time.
class PopUpButton final : public QAbstractButton {
public:
    enum class Border { no, yes };
    PopUpButton(Theme& theme, Border border, QWidget* parent = nullptr);
    /// Before the text; empty for none. `setInverted` shows that the choice is not the usual one.
    void setIconName(std::string_view icon);
    void setInverted(bool inverted);
    /// Fills the menu each time it opens.
    std::function<void(QMenu&)> fill;
    /// Opens something else in the menu's place.
    std::function<void()> open;
    void openMenu();
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;

private:
    Theme& theme_;
    Border border_;
    std::string icon_;
    bool inverted_ = false;
};

/// A whole number with − and + beside it; the arrow keys and the wheel change it too. An accessible
/// spin box.
class Stepper final : public QWidget {
public:
    Stepper(Theme& theme, const QString& name, QWidget* parent = nullptr);
    ~Stepper() override;

    void setRange(int from, int to);
    int value() const { return value_; }
    /// Clamped; does not call `changed`.
    void setValue(int value);
    std::function<void(int)> changed;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
    int minimum() const { return from_; }
    int maximum() const { return to_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void step(int by);

    Theme& theme_;
    int from_ = 0, to_ = 99, value_ = 0;
};

/// On or off, as a switch.
class Switch final : public QAbstractButton {
public:
    explicit Switch(Theme& theme, QWidget* parent = nullptr);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Theme& theme_;
};

/// Draws the ring of keyboard focus round a control.
void paintFocusRing(QPainter& painter, const Theme& theme, const QRectF& around, int radius);

} // namespace tintra
