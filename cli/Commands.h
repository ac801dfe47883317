#pragma once

#include "cli/Declaration.h"

#include <span>
#include <string_view>
#include <vector>

namespace tintra::cli {

/// A line to try, and what it does.
struct Example {
    std::string_view line, meaning;
};

/// A subcommand: the one place that its parser, help, man page and completions come from.
struct Command {
    std::string_view name;
    std::string_view summary;     ///< one line, no full stop
    std::string_view description; ///< a paragraph for the man page and the help
    std::vector<Example> examples;
    /// Declares the parameters and answers what to do with them.
    Action (*declare)(Declaration&);
};

/// Every command, in the order of the help.
std::span<const Command> commands();

/// Declares what every command accepts.
void declareGlobals(Declaration& declaration, GlobalOptions& options);

/// Wrong use that only the command can see, such as too many colours; ends the run with status 2.
struct UsageError {
    std::string what;
};

// A file each in cli/commands/.
Action declareShow(Declaration& declaration);
Action declareName(Declaration& declaration);
Action declareCode(Declaration& declaration);
Action declareContrast(Declaration& declaration);
Action declareHarmony(Declaration& declaration);
Action declareMix(Declaration& declaration);
Action declareVision(Declaration& declaration);
Action declareRead(Declaration& declaration);
Action declareConvert(Declaration& declaration);
Action declareExtract(Declaration& declaration);
Action declareLibrary(Declaration& declaration);
Action declareFormats(Declaration& declaration);
Action declareProfiles(Declaration& declaration);

} // namespace tintra::cli
