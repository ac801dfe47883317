#pragma once

#include <string_view>
#include <vector>

namespace tintra::stylesheet {

/// A piece of a stylesheet, trimmed and never empty: a declaration such as "$red: #f00", or what
/// declares nothing itself: a selector, an at-rule, a line that opens a block.
struct Declaration {
    std::string_view text; ///< a view into the stylesheet
    bool isSelector = false;
};

/// The pieces of a stylesheet without comments, in order. Pieces end at ";" and at the braces of
/// blocks; what stands before "{" is a selector. Nothing ends inside a quoted string, parentheses
/// or an interpolation (`#{…}`, `@{…}`); an unclosed parenthesis ends with its block. A text that
/// has neither ";" nor a block is indented Sass, where a piece ends with its line. Linear.
std::vector<Declaration> declarations(std::string_view text);

} // namespace tintra::stylesheet
