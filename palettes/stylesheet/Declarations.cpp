#include "palettes/stylesheet/Declarations.h"

#include "palettes/Characters.h"
#include "palettes/stylesheet/QuotedStrings.h"
#include "palettes/stylesheet/VariableNames.h"
#include "platform/Unicode.h"

#include <array>

namespace tintra::stylesheet {

namespace {

constexpr std::string_view kLineBreak = "\n\r\f";
constexpr std::string_view kBlank = " \t\n\r\f";

enum class Layout { braces, indented };

/// An at-rule; "@name:" declares a variable of Less instead.
bool isAtRule(std::string_view piece) {
    return piece.starts_with('@') && !piece.starts_with("@{") && !declaresVariableAt(piece, 0);
}

/// The characters at which the splitter has something to decide.
constexpr auto kDecisive = [] {
    std::array<bool, 256> decisive{};
    for (const char c : {'"', '\'', '\\', '(', ')', '{', '}', ';', '\n', '\r', '\f'})
        decisive[static_cast<unsigned char>(c)] = true;
    return decisive;
}();

/// The brackets open at a place of the text: parentheses and the braces of interpolations.
class Brackets {
public:
    bool empty() const { return open_.empty(); }
    void push(char bracket) {
        open_.push_back(bracket);
        ++count(bracket);
    }
    /// Closes the innermost bracket of the kind and what was left open inside it; answers whether
    /// there was one.
    bool pop(char bracket) {
        if (count(bracket) == 0) return false;
        for (char closed = 0; closed != bracket; open_.pop_back())
            --count(closed = open_.back());
        return true;
    }
    void clear() { *this = {}; }

private:
    std::size_t& count(char bracket) { return bracket == '(' ? parentheses_ : braces_; }

    std::vector<char> open_;
    std::size_t parentheses_ = 0, braces_ = 0;
};

class Splitter {
public:
    Splitter(std::string_view text, Layout layout) : text_(text), layout_(layout) {}

    std::vector<Declaration> run() {
        while (at_ < text_.size()) {
            const char c = text_[at_];
            if (kDecisive[static_cast<unsigned char>(c)])
                decide(c);
            else
                ++at_;
        }
        at_ = text_.size();
        end(Kind::declaration);
        return std::move(pieces_);
    }

    /// Whether a ";" or a block has ended a piece.
    bool sawBlocks() const { return sawBlocks_; }

private:
    enum class Kind { declaration, selector };

    void decide(char c) {
        switch (c) {
        case '"':
        case '\'':
            at_ = afterString(text_, at_);
            return;
        case '\\':
            at_ += 2;
            return;
        case '(':
            brackets_.push('(');
            break;
        case ')':
            brackets_.pop('(');
            break;
        case '{':
            openBrace();
            return;
        case '}':
            closeBrace();
            return;
        case ';':
            semicolon();
            return;
        default:
            lineBreak();
            return;
        }
        ++at_;
    }

    void openBrace() {
        const bool interpolates = at_ > 0 && (text_[at_ - 1] == '#' || text_[at_ - 1] == '@');
        if (interpolates || !brackets_.empty()) {
            brackets_.push('{');
            ++at_;
        } else {
            endBlockwise(Kind::selector);
        }
    }

    void closeBrace() {
        if (brackets_.pop('{')) {
            ++at_;
            return;
        }
        brackets_.clear();
        endBlockwise(Kind::declaration);
    }

    void semicolon() {
        if (brackets_.empty())
            endBlockwise(Kind::declaration);
        else
            ++at_;
    }

    void lineBreak() {
        if (layout_ == Layout::braces || !brackets_.empty())
            ++at_;
        else if (endsInComma())
            at_ = afterWhiteSpace(text_, at_);
        else
            end(opensBlock() ? Kind::selector : Kind::declaration);
    }

    bool endsInComma() const {
        const auto piece = text_.substr(begin_, at_ - begin_);
        const auto last = piece.find_last_not_of(kBlank);
        return last != std::string_view::npos && piece[last] == ',';
    }

    /// Whether the next line that is not empty is indented deeper than the piece before the cursor.
    bool opensBlock() const {
        const auto own = text_.substr(begin_, at_ - begin_).find_first_not_of(kBlank);
        if (own == std::string_view::npos || declaresVariableAt(text_, begin_ + own)) return false;
        const auto below = text_.find_first_not_of(kBlank, at_);
        if (below == std::string_view::npos) return false;
        return below - (text_.find_last_of(kLineBreak, below) + 1) > own;
    }

    void endBlockwise(Kind kind) {
        sawBlocks_ = true;
        end(kind);
    }

    /// Ends the piece before the cursor and steps over the character there.
    void end(Kind kind) {
        const auto piece = trimmed(text_.substr(begin_, at_ - begin_));
        if (!piece.empty()) pieces_.push_back({piece, kind == Kind::selector || isAtRule(piece)});
        begin_ = ++at_;
    }

    std::string_view text_;
    Layout layout_;
    std::size_t begin_ = 0, at_ = 0;
    Brackets brackets_;
    bool sawBlocks_ = false;
    std::vector<Declaration> pieces_;
};

} // namespace

std::vector<Declaration> declarations(std::string_view text) {
    Splitter blocks(text, Layout::braces);
    auto pieces = blocks.run();
    return blocks.sawBlocks() ? pieces : Splitter(text, Layout::indented).run();
}

} // namespace tintra::stylesheet
