#include "state/ContrastReadings.h"

#include "tests/state/ContrastBoardFixture.h"

namespace tintra {
namespace {

using Contrast::Target;
using testing::ElementsAre;

TEST_F(ContrastBoardTest, ReadingsReachTheTargetByRatioOrByItsLc) {
    // On white: #767676 is the lightest grey of 4.5:1; #888888 is Lc 63.06 as published for APCA.
    const auto read = [&](const char* text, ContrastBoard::Measure measure, Target target) {
        board.measure = measure;
        board.target = target;
        const auto reading =
            contrastReading(*WashColor::fromHex(text), {1, 1, 1}, contrastTerms(board));
        return reading.figure + " " + std::string(gradeMark(reading.grade, measure)) +
               (reading.reachesTarget ? " reaches" : "");
    };
    constexpr auto wcag = ContrastBoard::Measure::wcag, apca = ContrastBoard::Measure::apca;
    EXPECT_EQ(read("777777", wcag, Target::aa), "4.47 3:1");
    EXPECT_EQ(read("777777", wcag, Target::parts), "4.47 3:1 reaches");
    EXPECT_EQ(read("888888", apca, Target::aa), "63 60 reaches");
    EXPECT_EQ(read("888888", apca, Target::aaa), "63 60");
    EXPECT_EQ(read("FFFFFF", apca, Target::parts), "0 ");
    board.size = 24;
    EXPECT_EQ(read("767676", wcag, Target::aaa), "4.54 AAA reaches");
}

TEST_F(ContrastBoardTest, TheLadderRunsFromTheStrongestDown) {
    send("949494"), send("FFFFFF"), send("767676"), send("000000"), send("FEFEFE");
    const auto ladder = contrastLadder(board);
    std::vector<std::string> lines;
    for (const auto& row : ladder.rows)
        lines.push_back(row.entry.givenName.value() + " " + row.reading.figure);
    for (const auto& rung : ladder.rungs)
        lines.push_back(std::string(rung.title) + " after " + std::to_string(rung.above));
    EXPECT_THAT(lines, ElementsAre("000000 21.0", "767676 4.54", "949494 3.03", "FEFEFE 1.00",
                                   "7:1 after 1", "4.5:1 after 2", "3:1 after 3"));
}

TEST_F(ContrastBoardTest, TheMatrixCopiesAsATable) {
    send("000000");
    board.send("glass", {1, 1, 1, 0});
    // See-through text is its ground; as a ground it is plain white.
    board.matrixRowsAreText = false;
    EXPECT_EQ(contrastMatrixTable(board), "\t000000\tglass\n"
                                          "000000\t\t1.00\n"
                                          "glass\t21.0 AAA\t\n");
}

} // namespace
} // namespace tintra
