#pragma once

#include <unicode/regex.h>
#include <unicode/unistr.h>

#include <cstdint>
#include <memory>
#include <string_view>

namespace tintra::stylesheet {

enum class LetterCase { matters, ignored };

/// Finds the matches of a regular expression in one text after the other. The expression is
/// compiled once in the life of the process, whoever uses it; a finder belongs to one thread and
/// costs nothing before its first search. Every search is bounded in time and stack; one that
/// reaches the bound, or an expression that does not compile, finds nothing.
class Finder {
public:
    Finder(std::string_view pattern, LetterCase letterCase)
        : pattern_(pattern), letterCase_(letterCase) {}

    /// Begins at the start of a text, which must outlive the search.
    void search(const icu::UnicodeString& text);
    /// The next match, if there is one.
    bool next();
    /// Where a group of the match begins and ends, in UTF-16 units.
    std::int32_t begin(int group) const;
    std::int32_t end(int group) const;

private:
    std::string_view pattern_;
    LetterCase letterCase_;
    std::unique_ptr<icu::RegexMatcher> matcher_;
};

} // namespace tintra::stylesheet
