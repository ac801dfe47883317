#include "platform/Number.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tintra {
namespace {

TEST(Number, WritesAsPrintfDoes) {
    EXPECT_EQ(fixed(127.5, 0), "128"); // half to even
    EXPECT_EQ(fixed(126.5, 0), "126");
    EXPECT_EQ(fixed(0.5019607843137255, 3), "0.502");
    EXPECT_EQ(fixed(-0.1, 2), "-0.10");
    EXPECT_EQ(shortest(0.1), "0.1");
    EXPECT_EQ(shortest(1e300), "1e+300");
}

TEST(Number, ReadsOnlyWholeDecimalNumbers) {
    EXPECT_EQ(number("-.5"), -0.5);
    EXPECT_EQ(number("+1."), 1.0);
    EXPECT_EQ(number("2e-3"), 0.002);
    for (const std::string_view bad : {"", "+", ".", "+-5", "--5", "1,5", "1 ", "0x10", "inf",
                                       "nan", "-inf", "1e999", "5deg", "1.2.3"})
        EXPECT_EQ(number(bad), std::nullopt) << bad;
}

} // namespace
} // namespace tintra
