#pragma once

#include "platform/Dialogues.h"
#include "ui/shared/FileChooser.h"

#include <functional>

class QWidget;

namespace tintra {

class Theme;

/// The dialogues of the models as windows over the one that they belong to. None blocks: each
/// answers when it closes, and does not answer when its window closes first.
class WindowDialogues final : public Dialogues {
public:
    /// Before the first question.
    void setTheme(const Theme& theme) { theme_ = &theme; }

    /// Answers the window that a dialogue belongs to; none for one that stands alone. Set before
    /// the first question.
    std::function<QWidget*(const ToastPlace&)> windowOf;
    /// Shows the Save As dialogue of a palette window: it answers once. Set before the first
    /// question.
    std::function<void(const SaveQuestion&, std::function<void(std::optional<SaveAnswer>)>)>
        saveDialogue;

    void ask(Question question, std::function<void(std::size_t)> answered) override;
    void askName(NameQuestion question,
                 std::function<void(std::optional<NameAnswer>)> answered) override;
    void askWhereToSave(SaveQuestion question,
                        std::function<void(std::optional<SaveAnswer>)> answered) override;
    void askWhatToOpen(OpenQuestion question,
                       std::function<void(std::optional<std::filesystem::path>)> answered) override;

private:
    QWidget* over(const ToastPlace& place) const;

    const Theme* theme_ = nullptr;
    FileChooser chooser_;
};

} // namespace tintra
