#pragma once

#include "cli/Console.h"

#include <string>
#include <vector>

namespace tintra::cli {

/// Runs the command with its arguments (without the program's name) and answers the exit status:
/// 0 done, 1 an input gave nothing or something failed, 2 wrong usage.
int run(const std::vector<std::string>& arguments, Console& console);

} // namespace tintra::cli
