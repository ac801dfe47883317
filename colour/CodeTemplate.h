#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>

// The text of a code format with fields in braces, taken apart when the program is compiled, so
// that a misspelt field does not compile.

namespace tintra {

/// What stands for a field in the code.
enum class CodeField : std::uint8_t {
    channel, ///< {0} ... {3}: a channel as the options want it; {0:.1f}: with that many decimals
    alpha,   ///< {A}: alpha as a decimal; {A:.2f}: with that many decimals
    hex,     ///< {hex}: RRGGBB in lower case
    HEX,     ///< {HEX}: RRGGBB in upper case
    aa,      ///< {aa}: the alpha byte in lower case
    AA,      ///< {AA}: the alpha byte in upper case
    hash,    ///< {#}: "#" where the options want it before hex codes
    slug,    ///< {slug}: the name as a CSS custom property name
    resource ///< {resource}: the name as an Android resource name
};

/// A field and the literal text before it.
struct CodePiece {
    static constexpr std::int8_t kAsOptionsSay = -1;

    std::uint8_t literalBegin = 0, literalEnd = 0; ///< offsets into the template's text
    CodeField field = CodeField::hash;
    std::uint8_t channel = 0;
    std::int8_t decimals = kAsOptionsSay;
};

class CodeTemplate {
public:
    /// Only for texts that are known when the program is compiled.
    constexpr CodeTemplate(const char* text); // NOLINT(google-explicit-constructor): table rows

    constexpr bool empty() const { return text_.empty(); }

    /// Appends the code; `write(piece)` is to append what stands for a field.
    template <class Text, class Write>
    void render(Text& out, Write write) const {
        for (std::size_t i = 0; i < count_; ++i) {
            const auto& piece = pieces_[i];
            out.append(text_, piece.literalBegin,
                       static_cast<std::size_t>(piece.literalEnd - piece.literalBegin));
            write(piece);
        }
        out.append(text_, tail_);
    }

private:
    struct Name {
        std::string_view text;
        CodeField field;
    };
    static constexpr std::array kNames{
        Name{"hex", CodeField::hex},   Name{"HEX", CodeField::HEX},
        Name{"aa", CodeField::aa},     Name{"AA", CodeField::AA},
        Name{"#", CodeField::hash},    Name{"A", CodeField::alpha},
        Name{"slug", CodeField::slug}, Name{"resource", CodeField::resource},
    };

    static constexpr CodePiece pieceOf(std::string_view field);

    std::string_view text_;
    std::array<CodePiece, 6> pieces_{};
    std::uint8_t count_ = 0;
    std::uint8_t tail_ = 0; ///< where the text after the last field begins
};

constexpr CodePiece CodeTemplate::pieceOf(std::string_view field) {
    CodePiece piece;
    if (const auto colon = field.find(':'); colon != std::string_view::npos) {
        const auto format = field.substr(colon + 1);
        if (format.size() != 3 || format[0] != '.' || format[2] != 'f')
            throw std::invalid_argument("a field's format is .Nf");
        piece.decimals = static_cast<std::int8_t>(format[1] - '0');
        field = field.substr(0, colon);
    }
    if (field.size() == 1 && field[0] >= '0' && field[0] <= '3') {
        piece.field = CodeField::channel;
        piece.channel = static_cast<std::uint8_t>(field[0] - '0');
        return piece;
    }
    const auto* const name = std::find_if(kNames.begin(), kNames.end(),
                                          [field](const Name& n) { return n.text == field; });
    if (name == kNames.end()) throw std::invalid_argument("no such field");
    piece.field = name->field;
    return piece;
}

constexpr CodeTemplate::CodeTemplate(const char* text) : text_(text) {
    if (text_.size() > 255) throw std::length_error("offsets are bytes");
    for (auto open = text_.find('{'); open != std::string_view::npos;
         open = text_.find('{', tail_)) {
        const auto close = text_.find('}', open);
        auto piece = pieceOf(text_.substr(open + 1, close - open - 1));
        piece.literalBegin = tail_;
        piece.literalEnd = static_cast<std::uint8_t>(open);
        pieces_.at(count_++) = piece;
        tail_ = static_cast<std::uint8_t>(close + 1);
    }
}

} // namespace tintra
