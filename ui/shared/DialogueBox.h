#pragma once

#include "platform/Dialogues.h"

#include <QDialog>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QHBoxLayout;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace tintra {

class Prose;
class Theme;
class WarningLine;

/// A question over a window: its title, its text, and its buttons at the right in the order given,
/// the first the default. Esc and closing mean the button called "Cancel", else the last one. It
/// deletes itself when it closes; when its window goes first it answers nothing. Main loop.
class DialogueBox : public QDialog {
public:
    DialogueBox(const Theme& theme, const Question& question, QWidget* over);

    /// Is told the button, once, when the box closes.
    std::function<void(std::size_t)> answered;

    /// Shows it over the middle of its window.
    void open() override;

protected:
    DialogueBox(const Theme& theme, const std::string& title, QWidget* over);

    /// Adds what comes next, from above.
    void add(QWidget* part);
    /// The last row of the box; again to put others in their place.
    void setButtons(const std::vector<std::string>& titles);
    const std::vector<QPushButton*>& buttons() const { return buttons_; }

    /// The width of what stands in it, px at regular text size.
    static constexpr int kInner = 372;

private:
    QVBoxLayout* column_;
    QHBoxLayout* row_ = nullptr;
    std::vector<QPushButton*> buttons_;
    std::size_t cancel_ = 0;
};

/// Asks for a name in a field between title and note. What stands against the name is said under
/// the field while it is typed, and the button is off; a name that clashes brings its own buttons.
class NameBox final : public DialogueBox {
public:
    NameBox(const Theme& theme, NameQuestion question, QWidget* over);

    /// Is told the name, or nothing for Cancel, once, when the box closes.
    std::function<void(std::optional<NameAnswer>)> named;

private:
    void judge();
    void offer(const std::vector<std::string>& titles);
    void tell(std::size_t button);
    std::string name() const;

    const NameQuestion question_;
    QLineEdit* field_;
    WarningLine* against_;
    Prose* note_;
    std::optional<NameQuestion::Clash> clash_;
    std::vector<std::string> offered_;
};

} // namespace tintra
