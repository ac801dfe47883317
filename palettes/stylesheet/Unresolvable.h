#pragma once

#include <string>
#include <string_view>

namespace tintra::stylesheet {

/// The value without the calls of functions whose result only a browser or a preprocessor knows,
/// such as `var(--x)` or `darken(#f00, 10%)`. A call goes when its arguments hold no parenthesis,
/// innermost first until none is left; so a call around a colour function stays.
std::string withoutUnresolvable(std::string_view value);

} // namespace tintra::stylesheet
