#include "platform/Unicode.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

TEST(Unicode, TrimsEveryKindOfWhiteSpaceAndNothingElse) {
    EXPECT_EQ(trimmed(" \t\r\n\xC2\xA0 a b \xE3\x80\x80\xE2\x80\xA9"), "a b");
    EXPECT_EQ(trimmed(std::string_view("\0a\0", 3)), std::string_view("\0a\0", 3)); // a control
    EXPECT_EQ(trimmed("\xE2\x80\x8B"), "\xE2\x80\x8B"); // zero-width space is no white space
    EXPECT_EQ(trimmed(" \n "), "");
    EXPECT_EQ(trimmed(" \xFF "), "\xFF"); // ill-formed bytes stay
}

TEST(Unicode, RepairsUtf16AndJudgesUtf8) {
    EXPECT_EQ(utf8FromUtf16(u"a\xD83D\xDE00"), "a\xF0\x9F\x98\x80");
    EXPECT_EQ(utf8FromUtf16(std::u16string(1, 0xD800)), "\xEF\xBF\xBD");
    EXPECT_EQ(utf16FromUtf8("a\xF0\x9F\x98\x80"), u"a\xD83D\xDE00");
    EXPECT_TRUE(isValidUtf8("Grün 🎨"));
    for (const auto* bad : {"\xFF", "\xC3", "\xED\xA0\x80" /* a surrogate */, "\xC0\x80"})
        EXPECT_FALSE(isValidUtf8(bad));
    EXPECT_EQ(utf8FromLatin1("Gr\xFC\x6E"), "Grün");
}

TEST(Unicode, FoldsCaseAndMarksTheSameInEveryLocale) {
    EXPECT_EQ(lowerCased("TITLE ÄÖ"), "title äö");
    EXPECT_EQ(upperCased("straße"), "STRASSE");
    EXPECT_TRUE(equalIgnoringCase("UNTITLED", "untitled"));
    EXPECT_FALSE(equalIgnoringCase("untitled", "untitled "));
    EXPECT_EQ(withoutMarks("Crème brûlée ﬁ"), "Creme brulee fi");
    EXPECT_EQ(controlsToSpaces("a\tb\x7F"
                               "c\xC2\x85"
                               "d"),
              "a b c d"); // U+0085 is a control character too
}

TEST(Unicode, SortsNumbersByTheirValue) {
    EXPECT_TRUE(sortsBefore("Palette 2", "Palette 10"));
    EXPECT_FALSE(sortsBefore("Palette 10", "Palette 2"));
    EXPECT_TRUE(sortsBefore("apple", "Banana"));
    EXPECT_FALSE(sortsBefore("a", "a"));
}

} // namespace
} // namespace tintra
