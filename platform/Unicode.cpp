#include "platform/Unicode.h"

#include <unicode/casemap.h>
#include <unicode/coll.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>

namespace tintra {

namespace {

icu::StringPiece piece(std::string_view text) {
    return {text.data(), static_cast<std::int32_t>(text.size())};
}

icu::UnicodeString unicode(std::string_view text) {
    return icu::UnicodeString::fromUTF8(piece(text));
}

void append(std::string& out, UChar32 character) {
    char bytes[U8_MAX_LENGTH];
    std::int32_t length = 0;
    U8_APPEND_UNSAFE(bytes, length, character);
    out.append(static_cast<const char*>(bytes), static_cast<std::size_t>(length));
}

/// The character that begins at `at`, which moves past it; U+FFFD for ill-formed bytes.
UChar32 next(std::string_view text, std::size_t& at) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    UChar32 character = 0;
    U8_NEXT_OR_FFFD(bytes, at, text.size(), character);
    return character;
}

UChar32 previous(std::string_view text, std::size_t& end) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    UChar32 character = 0;
    // The macro counts in 32 bits; no character is longer than four bytes, so look at no more.
    const auto start = end > U8_MAX_LENGTH ? end - U8_MAX_LENGTH : 0;
    auto at = static_cast<std::int32_t>(end - start);
    U8_PREV_OR_FFFD(bytes + start, 0, at, character);
    end = start + static_cast<std::size_t>(at);
    return character;
}

bool isAscii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// How many ASCII characters follow, counted by the eight: most text is nothing else.
std::size_t asciiAt(std::string_view text, std::size_t from) {
    constexpr std::uint64_t kHighBits = 0x8080808080808080;
    auto at = from;
    for (std::uint64_t word = 0; text.size() - at >= sizeof word; at += sizeof word) {
        std::memcpy(&word, text.data() + at, sizeof word);
        if ((word & kHighBits) != 0) break;
    }
    return at - from;
}

const icu::Collator* numberAware() {
    // A collator may compare from many threads once it is set up.
    static const auto collator = [] {
        UErrorCode status = U_ZERO_ERROR;
        std::unique_ptr<icu::Collator> made(
            icu::Collator::createInstance(icu::Locale::getRoot(), status));
        if (made) made->setAttribute(UCOL_NUMERIC_COLLATION, UCOL_ON, status);
        return made;
    }();
    return collator.get();
}

} // namespace

bool isValidUtf8(std::string_view text) {
    const auto* bytes = reinterpret_cast<const std::uint8_t*>(text.data());
    for (std::size_t at = 0; at < text.size();) {
        at += asciiAt(text, at);
        if (at == text.size()) break;
        UChar32 character = 0;
        U8_NEXT(bytes, at, text.size(), character);
        if (character < 0) return false;
    }
    return true;
}

std::string utf8FromUtf16(std::u16string_view units) {
    std::string out;
    out.reserve(units.size());
    for (std::size_t at = 0; at < units.size();) {
        UChar32 character = 0;
        U16_NEXT_OR_FFFD(units.data(), at, units.size(), character);
        append(out, character);
    }
    return out;
}

std::u16string utf16FromUtf8(std::string_view text) {
    std::u16string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const auto character = next(text, at);
        if (U_IS_BMP(character)) {
            out.push_back(static_cast<char16_t>(character));
        } else {
            out.push_back(static_cast<char16_t>(U16_LEAD(character)));
            out.push_back(static_cast<char16_t>(U16_TRAIL(character)));
        }
    }
    return out;
}

std::string utf8FromLatin1(std::string_view bytes) {
    std::string out;
    out.reserve(bytes.size());
    for (const char byte : bytes)
        append(out, static_cast<unsigned char>(byte));
    return out;
}

std::string_view trimmed(std::string_view text) {
    std::size_t begin = 0;
    while (begin < text.size()) {
        auto after = begin;
        if (!u_isUWhiteSpace(next(text, after))) break;
        begin = after;
    }
    std::size_t end = text.size();
    while (end > begin) {
        auto before = end;
        if (!u_isUWhiteSpace(previous(text, before))) break;
        end = before;
    }
    return text.substr(begin, end - begin);
}

std::string asciiLowerCased(std::string_view text) {
    std::string out(text);
    for (char& c : out)
        if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    return out;
}

std::string lowerCased(std::string_view text) {
    if (isAscii(text)) return asciiLowerCased(text);
    std::string out;
    unicode(text).toLower(icu::Locale::getRoot()).toUTF8String(out);
    return out;
}

std::string upperCased(std::string_view text) {
    std::string out(text);
    if (isAscii(text)) {
        for (char& c : out)
            if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
        return out;
    }
    out.clear();
    unicode(text).toUpper(icu::Locale::getRoot()).toUTF8String(out);
    return out;
}

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    if (isAscii(a) && isAscii(b)) return asciiLowerCased(a) == asciiLowerCased(b);
    return unicode(a).caseCompare(unicode(b), U_FOLD_CASE_DEFAULT) == 0;
}

std::string controlsToSpaces(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();) {
        const auto begin = at;
        const auto character = next(text, at);
        if (u_charType(character) == U_CONTROL_CHAR)
            out.push_back(' ');
        else
            out.append(text.substr(begin, at - begin));
    }
    return out;
}

std::string withoutMarks(std::string_view text) {
    if (isAscii(text)) return std::string(text);
    UErrorCode status = U_ZERO_ERROR;
    const auto* nfkd = icu::Normalizer2::getNFKDInstance(status);
    if (nfkd == nullptr || U_FAILURE(status)) return std::string(text);
    const auto decomposed = nfkd->normalize(unicode(text), status);
    icu::UnicodeString kept;
    for (std::int32_t at = 0; at < decomposed.length(); at = decomposed.moveIndex32(at, 1)) {
        const auto character = decomposed.char32At(at);
        if ((U_GET_GC_MASK(character) & U_GC_M_MASK) == 0) kept.append(character);
    }
    std::string out;
    kept.toUTF8String(out);
    return out;
}

std::string otherThanWordsTo(char other, std::string_view text) {
    std::string out;
    out.reserve(text.size());
    bool kept = false;
    for (std::size_t at = 0; at < text.size();) {
        const auto begin = at;
        const auto category = U_MASK(u_charType(next(text, at)));
        const bool mark = (category & U_GC_M_MASK) != 0 && begin > 0;
        if (!mark) kept = (category & (U_GC_L_MASK | U_GC_N_MASK)) != 0;
        if (kept)
            out.append(text.substr(begin, at - begin));
        else if (!mark)
            out.push_back(other);
    }
    return out;
}

bool sortsBefore(std::string_view a, std::string_view b) {
    UErrorCode status = U_ZERO_ERROR;
    const auto* collator = numberAware();
    if (collator == nullptr) return a < b;
    return collator->compareUTF8(piece(a), piece(b), status) == UCOL_LESS;
}

std::string sortKey(std::string_view text) {
    const auto* collator = numberAware();
    if (collator == nullptr) return std::string(text);
    const auto units = unicode(text);
    std::string key(text.size() * 2 + 8, '\0');
    const auto fill = [&] {
        return static_cast<std::size_t>(
            collator->getSortKey(units, reinterpret_cast<std::uint8_t*>(key.data()),
                                 static_cast<std::int32_t>(key.size())));
    };
    auto size = fill();
    if (size > key.size()) {
        key.resize(size);
        size = fill();
    }
    key.resize(size);
    return key;
}

} // namespace tintra
