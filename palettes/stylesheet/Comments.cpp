#include "palettes/stylesheet/Comments.h"

#include "palettes/Characters.h"

#include <algorithm>
#include <iterator>

namespace tintra::stylesheet {

namespace {

// Both steps mean what the patterns /\*[\s\S]*?\*/ and (?m)(^|[\s;{}])//[^\n]* mean. They are
// scans because the first pattern takes quadratic time on comments that are never closed, and the
// second is tried at every character.

bool mayBegin(std::string_view text, std::size_t at) {
    return at == 0 || std::string_view(";{}").find(text[at - 1]) != std::string_view::npos ||
           whiteSpaceBefore(text, at);
}

} // namespace

Uncommented::Uncommented(std::string_view source)
    : text_(withoutLineComments(withoutBlockComments(source, block_), line_)) {}

std::size_t Uncommented::origin(std::size_t at) const {
    return shifted(block_, shifted(line_, at));
}

std::size_t Uncommented::shifted(const Shifts& shifts, std::size_t at) {
    const auto next = std::ranges::upper_bound(shifts, at, {}, &Shift::at);
    return next == shifts.begin() ? at : at + std::prev(next)->by;
}

std::string Uncommented::withoutBlockComments(std::string_view text, Shifts& shifts) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0;;) {
        const auto open = text.find("/*", at);
        const auto close = open == std::string_view::npos ? open : text.find("*/", open + 2);
        if (close == std::string_view::npos) return out.append(text.substr(at));
        out.append(text.substr(at, open - at)).push_back(' ');
        at = close + 2;
        shifts.push_back({out.size(), at - out.size()});
    }
}

std::string Uncommented::withoutLineComments(std::string_view text, Shifts& shifts) {
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
        shifts.push_back({out.size(), kept - out.size()});
        at = text.find("//", kept);
    }
    return out.append(text.substr(kept));
}

} // namespace tintra::stylesheet
