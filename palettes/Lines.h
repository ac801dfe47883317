#pragma once

#include <string_view>

namespace tintra {

/// Takes the first line off the text and answers it without its line break: LF, VT, FF, CR, CR LF
/// (an empty line follows its CR), U+0085, U+2028 or U+2029.
std::string_view takeLine(std::string_view& text);

} // namespace tintra
