#include "colour/SrgbBytes.h"

#include "colour/WashColor.h"
#include "platform/SrgbCurve.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tintra {
namespace {

TEST(SrgbBytes, AnswerAsTheCurveToTheLastBit) {
    const auto& bytes = SrgbBytes::shared();
    const auto expectSame = [&bytes](double linear) {
        EXPECT_EQ(bytes.byte(linear), byteOf(srgbEncoded(linear))) << linear;
    };
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(bytes.linear(static_cast<std::uint8_t>(byte)), srgbDecoded(byte / 255.0));
        const double turn = srgbDecoded((byte + 0.5) / 255); // where the next byte begins
        for (int ulps = -9; ulps <= 9; ++ulps)
            expectSame(turn * (1 + ulps * 0x1p-52));
    }
    for (int i = -20000; i <= 220000; ++i)
        expectSame(i / 200000.0);
    EXPECT_EQ(bytes.byte(std::nan("")), 0);
}

} // namespace
} // namespace tintra
