#include "ui/shared/WindowDialogues.h"

#include "ui/shared/DialogueBox.h"

#include <utility>

namespace tintra {

QWidget* WindowDialogues::over(const ToastPlace& place) const {
    return windowOf ? windowOf(place) : nullptr;
}

void WindowDialogues::ask(Question question, std::function<void(std::size_t)> answered) {
    auto* box = new DialogueBox(*theme_, question, over(question.over));
    box->answered = std::move(answered);
    box->open();
}

void WindowDialogues::askName(NameQuestion question,
                              std::function<void(std::optional<NameAnswer>)> answered) {
    auto* window = over(question.over);
    auto* box = new NameBox(*theme_, std::move(question), window);
    box->named = std::move(answered);
    box->open();
}

void WindowDialogues::askWhereToSave(SaveQuestion question,
                                     std::function<void(std::optional<SaveAnswer>)> answered) {
    if (saveDialogue)
        saveDialogue(question, std::move(answered));
    else
        answered(std::nullopt);
}

void WindowDialogues::askWhatToOpen(
    OpenQuestion question, std::function<void(std::optional<std::filesystem::path>)> answered) {
    chooser_.ask(question, over(question.over), std::move(answered));
}

} // namespace tintra
