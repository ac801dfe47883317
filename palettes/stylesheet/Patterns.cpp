#include "palettes/stylesheet/Patterns.h"

#include <mutex>
#include <string>
#include <unordered_map>

namespace tintra::stylesheet {

namespace {

// The library counts time in steps of some 10,000 moves, summed up over a text. The searches here
// are linear: the worst text takes less than a step for 1,000 units, and none needs 10 kB of stack.
constexpr std::int32_t kLeastSteps = 1'000;
constexpr std::int32_t kUnitsOfAStep = 500;
constexpr std::int32_t kStackBytes = 1'000'000;

/// The compiled expression, which any number of threads may match at once; null when it does not
/// compile. It is kept for the life of the process.
const icu::RegexPattern* compiled(std::string_view pattern, LetterCase letterCase) {
    static std::mutex regexLock;
    static std::unordered_map<std::string_view, std::unique_ptr<icu::RegexPattern>> regexes;
    const std::scoped_lock guard(regexLock);
    const auto [entry, isNew] = regexes.try_emplace(pattern);
    if (isNew) {
        UErrorCode status = U_ZERO_ERROR;
        const std::uint32_t flags = letterCase == LetterCase::ignored ? UREGEX_CASE_INSENSITIVE : 0;
        entry->second.reset(icu::RegexPattern::compile(
            icu::UnicodeString::fromUTF8({pattern.data(), static_cast<int>(pattern.size())}), flags,
            status));
        if (U_FAILURE(status)) entry->second.reset();
    }
    return entry->second.get();
}

std::unique_ptr<icu::RegexMatcher> matcherFor(std::string_view pattern, LetterCase letterCase) {
    const auto* expression = compiled(pattern, letterCase);
    if (expression == nullptr) return nullptr;
    UErrorCode status = U_ZERO_ERROR;
    std::unique_ptr<icu::RegexMatcher> matcher(expression->matcher(status));
    if (!matcher) return nullptr;
    matcher->setStackLimit(kStackBytes, status);
    return U_SUCCESS(status) ? std::move(matcher) : nullptr;
}

} // namespace

void Finder::search(const icu::UnicodeString& text) {
    if (!matcher_) matcher_ = matcherFor(pattern_, letterCase_);
    if (!matcher_) return;
    UErrorCode status = U_ZERO_ERROR;
    matcher_->setTimeLimit(kLeastSteps + text.length() / kUnitsOfAStep, status);
    matcher_->reset(text);
}

bool Finder::next() {
    UErrorCode status = U_ZERO_ERROR;
    return matcher_ && matcher_->find(status) && U_SUCCESS(status);
}

std::int32_t Finder::begin(int group) const {
    UErrorCode status = U_ZERO_ERROR;
    return matcher_->start(group, status);
}

std::int32_t Finder::end(int group) const {
    UErrorCode status = U_ZERO_ERROR;
    return matcher_->end(group, status);
}

} // namespace tintra::stylesheet
