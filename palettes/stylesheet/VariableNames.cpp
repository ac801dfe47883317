#include "palettes/stylesheet/VariableNames.h"

#include "palettes/Characters.h"

namespace tintra::stylesheet {

namespace {

std::size_t prefixLength(std::string_view name) {
    if (name.starts_with("--")) return 2;
    return name.starts_with('$') || name.starts_with('@') ? 1 : 0;
}

} // namespace

std::size_t afterVariableName(std::string_view text, std::size_t at) {
    const auto prefix = prefixLength(text.substr(at));
    if (prefix == 0) return at;
    const auto end = afterIdentifier(text, at + prefix);
    return end == at + prefix ? at : end;
}

bool isVariableName(std::string_view text) {
    return !text.empty() && afterVariableName(text, 0) == text.size();
}

bool declaresVariableAt(std::string_view text, std::size_t at) {
    const auto end = afterVariableName(text, at);
    return end != at && text.substr(afterWhiteSpace(text, end)).starts_with(':');
}

} // namespace tintra::stylesheet
