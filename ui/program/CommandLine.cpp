#include "ui/program/CommandLine.h"

#include "ui/shared/Text.h"

#include <QUrl>
#include <string_view>
#include <system_error>

namespace tintra {
namespace {

constexpr const char* kHelp = R"(Usage: tintra-desktop [OPTION]... [FILE]...

Opens palettes (ASE, ACO, GPL, CLR, CSS, SCSS, Sass, Less) and pictures, each in a window. Where
Tintra runs already, the files open there. Without files it opens as it was when it was left.

  -n, --new-palette  open an empty palette besides
  -h, --help         say this and leave
  -v, --version      say the version and leave

The command “tintra” does the same work without windows.
)";

/// The file that an argument names, which may be a file's address (file:///home/...).
std::filesystem::path fileOf(const QString& argument) {
    const QUrl url(argument);
    const std::filesystem::path named = toUtf8(url.isLocalFile() ? url.toLocalFile() : argument);
    std::error_code failed; // the folder that the program was started in may be gone
    auto file = std::filesystem::absolute(named, failed);
    return failed ? named : file;
}

} // namespace

CommandLine CommandLine::of(const QStringList& arguments) {
    CommandLine line;
    bool onlyFiles = false;
    for (const auto& argument : arguments.mid(1)) {
        if (!onlyFiles && argument == QLatin1String("--"))
            onlyFiles = true;
        else if (!onlyFiles &&
                 (argument == QLatin1String("--new-palette") || argument == QLatin1String("-n")))
            line.newPalette = true;
        else if (!onlyFiles && argument.size() > 1 && argument.startsWith(u'-'))
            line.refusal = "there is no option “" + toUtf8(argument) + "”";
        else if (!argument.isEmpty())
            line.files.push_back(fileOf(argument));
    }
    return line;
}

std::optional<std::string> CommandLine::answer(int count, const char* const* arguments) {
    for (int i = 1; i < count; ++i) {
        const std::string_view argument = arguments[i];
        if (argument == "--") break;
        if (argument == "--help" || argument == "-h") return kHelp;
        if (argument == "--version" || argument == "-v")
            return "tintra-desktop " TINTRA_VERSION "\n";
    }
    return std::nullopt;
}

} // namespace tintra
