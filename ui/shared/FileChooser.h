#pragma once

#include "platform/Dialogues.h"

#include <QString>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>

class QWidget;

namespace tintra {

/// The desktop's own dialogue for files and folders where it has one, else the toolkit's. Each kind
/// begins where it was left in this run. Main loop.
class FileChooser {
public:
    using Answered = std::function<void(std::optional<std::filesystem::path>)>;

    /// Returns at once; answers once, nothing for Cancel, and does not answer when `over` goes
    /// first.
    void ask(const OpenQuestion& question, QWidget* over, Answered answered);
    /// Where files of a kind usually lie: the desktop's folder for them, else the home folder.
    static QString usualFolder(OpenQuestion::Of kind);
    /// A folder to save in, beginning with `from`.
    static void askFolder(const std::filesystem::path& from, const QString& prompt, QWidget* over,
                          Answered answered);

private:
    std::map<OpenQuestion::Of, QString> folders_;
};

} // namespace tintra
