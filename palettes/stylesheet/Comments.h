#pragma once

#include <string>
#include <string_view>

namespace tintra::stylesheet {

/// The text with every closed block comment replaced by a blank, then every line comment dropped.
/// "//" begins a line comment at the beginning of the text and after white space, ";", "{" or "}",
/// so that web addresses survive. Linear in the text.
std::string withoutComments(std::string_view text);

} // namespace tintra::stylesheet
