#include "platform/colourlist/PropertyListChecks.h"

#include <algorithm>
#include <array>

namespace tintra::colourlist {

namespace {

constexpr std::size_t kLongestWithReferences = 4096;

/// What is no element, by its first and last characters.
struct Passage {
    std::string_view begin, end;
};
constexpr std::array kPassages{
    Passage{"<!--", "-->"},
    Passage{"<![CDATA[", "]]>"},
    Passage{"<?", "?>"},
    Passage{"<!", ">"},
};

/// Goes from one mark to the next. Wherever the parser could see the marks otherwise than they are
/// seen here, the document is refused.
class Nesting {
public:
    explicit Nesting(std::string_view text) : rest_(text) {}

    bool staysModest() {
        while (true) {
            const auto mark = rest_.find('<');
            if (!takeText(rest_.substr(0, mark))) return false;
            if (mark == std::string_view::npos) return true;
            rest_.remove_prefix(mark);
            if (!takeMark()) return false;
        }
    }

private:
    bool takeText(std::string_view text) {
        textLength_ += text.size();
        hasReferences_ = hasReferences_ || text.find('&') != std::string_view::npos;
        return !hasReferences_ || textLength_ <= kLongestWithReferences;
    }

    bool takeMark() {
        const auto* const passage = std::ranges::find_if(
            kPassages, [this](const Passage& p) { return rest_.starts_with(p.begin); });
        return passage == kPassages.end() ? takeElement() : takePassage(*passage);
    }

    bool takePassage(const Passage& passage) {
        const auto end = rest_.find(passage.end, passage.begin.size());
        if (end == std::string_view::npos) return false;
        const auto content = rest_.substr(0, end);
        // A document type with entities of its own stands in brackets.
        if (passage.begin == "<!" && content.find('[') != std::string_view::npos) return false;
        textLength_ += content.size();
        rest_.remove_prefix(end + passage.end.size());
        return true;
    }

    bool takeElement() {
        const auto end = rest_.find('>');
        if (end == std::string_view::npos) return false;
        const auto element = rest_.substr(1, end - 1);
        rest_.remove_prefix(end + 1);
        if (element.find('<') != std::string_view::npos) return false;
        // Only the outermost element has an attribute; elsewhere one could hide the mark's end.
        const bool hasAttribute = element.find_first_of("\"'") != std::string_view::npos;
        if (hasAttribute && (depth_ > 0 || element.ends_with('/'))) return false;
        textLength_ = 0;
        hasReferences_ = false;
        if (element.starts_with('/'))
            --depth_;
        else if (!element.ends_with('/'))
            ++depth_;
        return depth_ >= 0 && depth_ <= kDeepestPlist;
    }

    std::string_view rest_;
    int depth_ = 0;
    std::size_t textLength_ = 0;
    bool hasReferences_ = false;
};

} // namespace

bool xmlNestsModestly(std::string_view text) {
    return Nesting(text).staysModest();
}

} // namespace tintra::colourlist
