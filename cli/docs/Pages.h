#pragma once

#include "cli/Commands.h"

#include <string>
#include <vector>

// The man page and the completions, written from the table of commands.

namespace tintra::cli {

/// A command with everything that is declared for it.
struct CommandPage {
    const Command& command;
    std::vector<Parameter> own;
};

/// The commands in order, and what all of them accept.
struct Pages {
    std::vector<CommandPage> commands;
    std::vector<Parameter> globals;
};

Pages pages();

/// "--output" and "-o" of "-o,--output".
std::vector<std::string> namesOf(const Parameter& parameter);

/// "tintra code [OPTION]… COLOUR…".
std::string synopsis(const CommandPage& page);

std::string manPage(const Pages& pages);
std::string bashCompletion(const Pages& pages);
std::string zshCompletion(const Pages& pages);
std::string fishCompletion(const Pages& pages);

} // namespace tintra::cli
