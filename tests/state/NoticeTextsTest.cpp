#include "state/NoticeTexts.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

TEST(NoticeTexts, ACodeTellsItsAlphaUnlessItIsOpaque) {
    EXPECT_EQ(noticeCode({0, 0.5, 1, 1}), "#0080FF");
    EXPECT_EQ(noticeCode({0, 0.5, 1, 0.999}), "#0080FF");
    EXPECT_EQ(noticeCode({0, 0.5, 1, 0.9985}), "#0080FFFF");
    EXPECT_EQ(noticeCode({0, 0.5, 1, 0}), "#0080FF00");
}

TEST(NoticeTexts, ABatchReportsItsCountsAndFullWins) {
    EXPECT_EQ(batchText(3, 3, 0, 3), "Added 3 to the palette");
    EXPECT_EQ(batchText(5, 3, 2, 9), "Added 3 to the palette · 2 already there");
    EXPECT_EQ(batchText(4, 0, 4, 9), "All 4 already in this palette");
    EXPECT_EQ(batchText(5, 2, 1, 256), "The palette is full at 256");
    EXPECT_EQ(batchText(5, 0, 0, 256), "The palette is full at 256");
}

} // namespace
} // namespace tintra
