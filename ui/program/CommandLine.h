#pragma once

#include <QString>
#include <QStringList>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace tintra {

/// What the program was called with.
struct CommandLine {
    std::vector<std::filesystem::path> files; ///< absolute
    bool newPalette = false;
    std::optional<std::string> refusal; ///< a sentence, for options that there are not

    /// `arguments`: without those that the toolkit takes; the program's name first.
    static CommandLine of(const QStringList& arguments);
    /// What is printed instead of a window when help or the version is asked for.
    static std::optional<std::string> answer(int count, const char* const* arguments);
};

} // namespace tintra
