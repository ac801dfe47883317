#include "palettes/FoldedText.h"

#include "platform/Unicode.h"

namespace tintra {

namespace {

bool isBlank(char c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}

} // namespace

FoldedText::FoldedText(std::string_view text)
    : text_(lowerCased(withoutMarks(controlsToSpaces(text)))) {
    std::size_t size = 0;
    bool blank = false;
    for (const char c : text_) {
        if (isBlank(c)) {
            blank = size > 0;
            continue;
        }
        if (blank) text_[size++] = ' ';
        blank = false;
        text_[size++] = c;
    }
    text_.resize(size);
}

} // namespace tintra
