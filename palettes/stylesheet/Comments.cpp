#include "palettes/stylesheet/Comments.h"

#include "palettes/Characters.h"

namespace tintra::stylesheet {

namespace {

// Both steps mean what the patterns /\*[\s\S]*?\*/ and (?m)(^|[\s;{}])//[^\n]* mean. They are
// scans because the first pattern takes quadratic time on comments that are never closed, and the
// second is tried at every character.

std::string withoutBlockComments(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0;;) {
        const auto open = text.find("/*", at);
        const auto close = open == std::string_view::npos ? open : text.find("*/", open + 2);
        if (close == std::string_view::npos) return out.append(text.substr(at));
        out.append(text.substr(at, open - at)).push_back(' ');
        at = close + 2;
    }
}

bool mayBegin(std::string_view text, std::size_t at) {
    return at == 0 || std::string_view(";{}").find(text[at - 1]) != std::string_view::npos ||
           whiteSpaceBefore(text, at);
}

std::string withoutLineComments(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    std::size_t kept = 0;
    for (auto at = text.find("//"); at != std::string_view::npos;) {
        if (!mayBegin(text, at)) {
            at = text.find("//", at + 1);
            continue;
        }
        out.append(text.substr(kept, at - kept));
        kept = std::min(text.find('\n', at), text.size());
        at = text.find("//", kept);
    }
    return out.append(text.substr(kept));
}

} // namespace

std::string withoutComments(std::string_view text) {
    return withoutLineComments(withoutBlockComments(text));
}

} // namespace tintra::stylesheet
