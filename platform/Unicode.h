#pragma once

#include <string>
#include <string_view>

namespace tintra {

/// Whether the text is well-formed UTF-8.
bool isValidUtf8(std::string_view text);

/// UTF-16 as UTF-8; an unpaired surrogate becomes U+FFFD.
std::string utf8FromUtf16(std::u16string_view units);

/// UTF-8 as UTF-16; ill-formed bytes become U+FFFD.
std::u16string utf16FromUtf8(std::string_view text);

/// ISO Latin-1 as UTF-8; every byte is a character, so nothing can fail.
std::string utf8FromLatin1(std::string_view bytes);

/// The text without white space and line breaks at both ends (Unicode property White_Space).
/// A view into `text`.
std::string_view trimmed(std::string_view text);

/// Lower case by Unicode's root rules, the same in every locale.
std::string lowerCased(std::string_view text);

/// Upper case by Unicode's root rules, the same in every locale.
std::string upperCased(std::string_view text);

/// Only A to Z become a to z; every other byte stays.
std::string asciiLowerCased(std::string_view text);

/// Equality without regard to case (Unicode simple case folding of both).
bool equalIgnoringCase(std::string_view a, std::string_view b);

/// Every control character (general category Cc) becomes a space.
std::string controlsToSpaces(std::string_view text);

/// Compatibility decomposition (NFKD) without its combining marks: "Ünïcode" gives "Unicode".
std::string withoutMarks(std::string_view text);

/// Every character that is neither a letter nor a number becomes `other`, one for one. Combining
/// marks belong to the character before them and share its fate.
std::string otherThanWordsTo(char other, std::string_view text);

/// Whether `a` sorts before `b` as a file browser sorts names: by the root collation, runs of
/// digits by their number.
bool sortsBefore(std::string_view a, std::string_view b);

/// Bytes that compare as `sortsBefore` sorts the texts: for lists that are sorted again and again.
std::string sortKey(std::string_view text);

} // namespace tintra
