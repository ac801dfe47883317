#pragma once

#include "cli/Commands.h"

#include <string>

namespace tintra::cli {

/// The help of the command and its subcommands.
class HelpFormatter : public CLI::Formatter {
public:
    HelpFormatter();

    /// A command's own help opens with its paragraph; in the list of commands stands its summary.
    std::string make_description(const CLI::App* app) const override;
};

/// The examples of a command as they close its help.
std::string examplesText(const Command& command);

} // namespace tintra::cli
