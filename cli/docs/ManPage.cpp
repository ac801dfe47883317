#include "cli/Version.h"
#include "cli/docs/Pages.h"

#include <fmt/format.h>

namespace tintra::cli {

namespace {

/// Text as the typesetter takes it: hyphens and backslashes stay what they are, and no line begins
/// with a request.
std::string escaped(std::string_view text) {
    std::string out;
    for (const char c : text) {
        if (c == '\\')
            out += "\\e";
        else if (c == '-')
            out += "\\-";
        else
            out += c;
    }
    if (out.starts_with('.') || out.starts_with('\'')) out.insert(0, "\\&");
    return out;
}

std::string parameterEntry(const Parameter& parameter) {
    std::string names;
    for (const auto& name : namesOf(parameter))
        names += fmt::format("{}\\fB{}\\fR", names.empty() ? "" : ", ", escaped(name));
    if (!parameter.positional && !parameter.placeholder.empty())
        names += fmt::format(" \\fI{}\\fR", parameter.placeholder);
    return fmt::format(".TP\n{}\n{}.\n", names, escaped(parameter.help));
}

std::string parameterEntries(const std::vector<Parameter>& parameters) {
    std::string text;
    for (const auto& parameter : parameters)
        text += parameterEntry(parameter);
    return text;
}

std::string commandSection(const CommandPage& page) {
    auto text = fmt::format(".SS {}\n.B {}\n.PP\n{}\n", page.command.name, escaped(synopsis(page)),
                            escaped(page.command.description));
    text += parameterEntries(page.own);
    for (const auto& [line, meaning] : page.command.examples)
        text += fmt::format(".PP\nExample, {}:\n.PP\n.nf\n.RS\n{}\n.RE\n.fi\n", escaped(meaning),
                            escaped(line));
    return text;
}

constexpr std::string_view kEnd = R"(.SH EXIT STATUS
.TP
.B 0
Done.
.TP
.B 1
An input gave nothing or something failed; standard error says what, a line each. The other inputs
were still worked on.
.TP
.B 2
Wrong usage.
.SH ENVIRONMENT
.TP
.B NO_COLOR
When set, no swatch blocks are printed unless
.B \-\-colour always
is given.
.TP
.B XDG_DATA_HOME, XDG_DATA_DIRS
Folders that hold
.IR color/icc ,
where CMYK profiles are looked for.
)";

} // namespace

std::string manPage(const Pages& pages) {
    auto text = fmt::format(".TH TINTRA 1 \"\" \"Tintra {}\" \"User Commands\"\n"
                            ".SH NAME\ntintra \\- colours, palettes and contrast on the command "
                            "line\n.SH SYNOPSIS\n",
                            kVersion);
    for (const auto& page : pages.commands)
        text += fmt::format(".B {}\n.br\n", escaped(synopsis(page)));
    text += ".SH DESCRIPTION\nEach command does one thing to colours or palettes. Results go to "
            "standard output, messages to standard error. A file is written whole or not at all, "
            "and an existing one only with \\fB\\-\\-force\\fR.\n.SH OPTIONS\nEvery command "
            "accepts these.\n";
    text += parameterEntries(pages.globals);
    text += ".SH COMMANDS\n";
    for (const auto& page : pages.commands)
        text += commandSection(page);
    return text + std::string(kEnd);
}

} // namespace tintra::cli
