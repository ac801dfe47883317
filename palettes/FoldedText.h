#pragma once

#include <string>
#include <string_view>

namespace tintra {

/// A text as searches compare it: without letter case, accents, control characters and white space
/// at its ends; runs of white space count as one blank.
class FoldedText {
public:
    FoldedText() = default;
    explicit FoldedText(std::string_view text);

    const std::string& text() const { return text_; }
    bool isEmpty() const { return text_.empty(); }
    /// Whether the words stand somewhere in it.
    bool holds(const FoldedText& words) const {
        return text_.find(words.text_) != std::string::npos;
    }

    bool operator==(const FoldedText&) const = default;

private:
    std::string text_;
};

} // namespace tintra
