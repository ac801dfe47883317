#include "palettes/Stylesheet.h"
#include "platform/Unicode.h"

#include <unicode/uchar.h>

namespace tintra::Stylesheet {

namespace {

std::u16string_view withoutPrefix(std::u16string_view name) {
    for (const std::u16string_view prefix : {u"--", u"$", u"@"})
        if (name.starts_with(prefix)) return name.substr(prefix.size());
    return name;
}

bool isUpper(std::u16string_view text, std::size_t at) {
    return at < text.size() && u_isupper(text[at]);
}

bool isLower(std::u16string_view text, std::size_t at) {
    return at < text.size() && u_islower(text[at]);
}

/// Whether a word begins inside a run: at the hump of "primaryDark" and at the last capital of
/// "RGBValue".
bool isHump(std::u16string_view text, std::size_t at) {
    if (!isUpper(text, at)) return false;
    return isUpper(text, at - 1) ? isLower(text, at + 1)
                                 : isLower(text, at - 1) || u_isdigit(text[at - 1]);
}

} // namespace

std::string displayName(std::string_view variableName) {
    const auto units = utf16FromUtf8(variableName);
    const auto name = withoutPrefix(units);
    std::u16string words;
    bool begins = true;
    for (std::size_t at = 0; at < name.size(); ++at) {
        if (name[at] == u'-' || name[at] == u'_') {
            begins = true;
            continue;
        }
        begins = begins || isHump(name, at);
        if (begins && !words.empty()) words.push_back(u' ');
        // A surrogate has no case and stays as it is.
        words.push_back(begins ? static_cast<char16_t>(u_totitle(name[at])) : name[at]);
        begins = false;
    }
    return words.empty() ? std::string(variableName) : utf8FromUtf16(words);
}

} // namespace tintra::Stylesheet
