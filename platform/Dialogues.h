#pragma once

#include "platform/Toasts.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tintra {

/// A question with the buttons that answer it, left to right; the first is the default, and one
/// called "Cancel" is what closing the dialogue means.
struct Question {
    std::string title;
    std::string text;
    std::vector<std::string> buttons;
    ToastPlace over; ///< the window that it belongs to
};

/// Asks for a name.
struct NameQuestion {
    std::string title;
    std::string note; ///< stands under the field; may be empty
    std::string proposal;
    std::string button; ///< what accepting is called
    /// Why a name cannot be taken, asked while typing; nothing for one that can.
    std::function<std::optional<std::string>(std::string_view name)> refusal;
    ToastPlace over;

    /// What is said of a name that something has already, and the buttons that then stand in place
    /// of `button`, left to right; the first is the default. "Cancel" follows them by itself.
    struct Clash {
        std::string text;
        std::vector<std::string> buttons;
    };
    /// Asked while typing, of names that are not refused; nothing for a name that is free.
    std::function<std::optional<Clash>(std::string_view name)> clash{};
};
struct NameAnswer {
    std::string name;
    std::optional<std::size_t> button{}; ///< of a clash; none without one
};

/// Asks where to save a palette and as what.
struct SaveQuestion {
    std::string name;                            ///< proposed, without extension
    std::string format;                          ///< raw text of the proposed export format
    std::optional<std::filesystem::path> folder; ///< proposed; none for the last one used
    ToastPlace over;
};
struct SaveAnswer {
    std::filesystem::path file;
    std::string format; ///< raw text of an export format
};

/// Asks for an existing file or folder.
struct OpenQuestion {
    enum class Of { palette, picture, folder };
    Of kind = Of::palette;
    std::string prompt;
    ToastPlace over;
};

/// The dialogues that models need. All return at once and answer later on the main loop, exactly
/// once, unless the window that a dialogue belongs to is gone by then. Main loop.
class Dialogues {
public:
    virtual ~Dialogues() = default;

    /// Answers the index of the button.
    virtual void ask(Question question, std::function<void(std::size_t button)> answered) = 0;

    // The others answer nothing when the user cancels.

    virtual void askName(NameQuestion question,
                         std::function<void(std::optional<NameAnswer>)> answered) = 0;
    virtual void askWhereToSave(SaveQuestion question,
                                std::function<void(std::optional<SaveAnswer>)> answered) = 0;
    virtual void
    askWhatToOpen(OpenQuestion question,
                  std::function<void(std::optional<std::filesystem::path>)> answered) = 0;
};

} // namespace tintra
