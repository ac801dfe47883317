#pragma once

#include "cli/Session.h"
#include "colour/WashColor.h"

#include <optional>
#include <string>
#include <vector>

namespace tintra::cli {

/// What the COLOUR arguments are, in the help.
inline constexpr const char* kColourHelp =
    "A colour: hex, rgb(), hsl(), oklch(), a CSS name, a line of code…; “-” reads a colour a line";

/// The colour of a text: as a pasted line, else as a CSS colour value.
std::optional<WashColor> colourOf(const std::string& text);

/// The colours of the arguments in order; “-” stands for the lines of standard input, blank ones
/// passed over. What is no colour is reported and left out.
std::vector<WashColor> colourArguments(Session& session, const std::vector<std::string>& texts);

/// Like `colourArguments` for one text that must be one colour.
std::optional<WashColor> colourArgument(Session& session, const std::string& text);

} // namespace tintra::cli
