#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tintra::stylesheet {

/// A text without its comments, and where its parts come from: every closed block comment replaced
/// by a blank, then every line comment dropped. "//" begins a line comment at the beginning of the
/// text and after white space, ";", "{" or "}", so that web addresses survive. Linear in the text.
class Uncommented {
public:
    explicit Uncommented(std::string_view source);

    const std::string& text() const { return text_; }
    /// Where in the source a character of the text stands.
    std::size_t origin(std::size_t at) const;

private:
    /// From this place of the text on, the source is that far ahead.
    struct Shift {
        std::size_t at, by;
    };
    using Shifts = std::vector<Shift>;
    static std::size_t shifted(const Shifts& shifts, std::size_t at);
    static std::string withoutBlockComments(std::string_view text, Shifts& shifts);
    static std::string withoutLineComments(std::string_view text, Shifts& shifts);

    Shifts block_, line_;
    std::string text_;
};

} // namespace tintra::stylesheet
