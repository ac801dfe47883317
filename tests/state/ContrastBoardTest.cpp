#include "tests/state/ContrastBoardFixture.h"

namespace tintra {
namespace {

using testing::ElementsAre;
using Role = Contrast::Role;

TEST_F(ContrastBoardTest, TakesThirtyTwoColoursAndEachOnce) {
    for (int i = 0; i < 31; ++i)
        board.send({}, {i / 255.0, 0, 0});
    EXPECT_FALSE(board.send("below 8 bits", {0.0001, 0, 0}));
    EXPECT_TRUE(board.send("of another alpha", {0, 0, 0, 0.5}));
    EXPECT_EQ(board.heldHexes().size(), 31U);
    EXPECT_FALSE(board.hold({}, {0, 0, 1}));
    board.remove(Uuid(board.entries()[7].id));
    EXPECT_TRUE(board.hold({}, {0, 0, 1}));
}

TEST_F(ContrastBoardTest, RolesGoToWhoComesFirstAndGoWithTheirEntry) {
    board.hold({}, {0, 0, 1});
    int changes = 0;
    const auto watch =
        QBindable<ContrastBoard::Content>(&board.content()).addNotifier([&] { ++changes; });
    const auto one = send("000000"), other = send("FFFFFF"), third = send("FF0000");
    EXPECT_EQ(changes, 3) << "colour and role are one change";
    EXPECT_EQ(board.groundID(), other);
    board.exchangeRoles();
    board.remove(other);
    EXPECT_EQ(board.textID(), std::nullopt);
    board.setRole(Role::text, third);
    board.setRole(Role::text, one);
    EXPECT_EQ(board.textID(), one) << "the ground has become the text";
    EXPECT_EQ(board.groundID(), third) << "and the text before it the ground";
}

TEST_F(ContrastBoardTest, LetsGoOfTheLongestHeldLooseEntryWhereverItStands) {
    send("000000"), send("FFFFFF");
    const auto oldest = send("EEEEEE"), next = send("111111");
    EXPECT_TRUE(board.sortByLightness(false, false));
    board.move(oldest, 99);
    EXPECT_THAT(names(), ElementsAre("000000", "111111", "FFFFFF", "EEEEEE"));
    const auto before = board.content().value();
    EXPECT_EQ(board.letGoOfOldestLoose()->id, oldest);
    board.exchangeContent(before);
    EXPECT_EQ(board.letGoOfOldestLoose()->id, oldest) << "its age came back with it";
    EXPECT_EQ(board.letGoOfOldestLoose()->id, next);
    EXPECT_FALSE(board.letGoOfOldestLoose());
}

TEST_F(ContrastBoardTest, EntriesChangeAndKeepWhoTheyAre) {
    const auto a = send("0A0A0A"), b = send("0B0B0B"), c = send("0C0C0C");
    board.replace(a, {0, 0, 1});
    board.replace(a, *WashColor::fromHex("0B0B0B"));
    EXPECT_EQ(board.text()->color, (WashColor{0, 0, 1})) << "another entry holds the second";
    board.rename(b, " \t");
    board.move(c, 0);
    board.exchange(a, b);
    EXPECT_THAT(names(), ElementsAre("0C0C0C", "-", "0A0A0A"));
}

TEST_F(ContrastBoardTest, SortsStablyAndPutsAnOrderBack) {
    for (const char* hex : {"00FF00", "0000FF", "FFFFFF80", "FFFFFF", "000000"})
        send(hex);
    EXPECT_FALSE(board.isDarkToLight());
    const auto before = board.sortByLightness(false, true);
    ASSERT_TRUE(before);
    EXPECT_THAT(names(), ElementsAre("000000", "0000FF", "00FF00", "FFFFFF80", "FFFFFF"));
    EXPECT_TRUE(board.isDarkToLight()) << "alpha plays no part: the whites are equal";
    EXPECT_FALSE(board.sortByLightness(false, false));
    board.remove(before->front());
    send("808080");
    board.restoreOrder(*before);
    EXPECT_THAT(names(), ElementsAre("0000FF", "FFFFFF80", "FFFFFF", "000000", "808080"));
    EXPECT_TRUE(board.sortByLightness(true, false));
    EXPECT_THAT(names(), ElementsAre("FFFFFF80", "FFFFFF", "808080", "0000FF", "000000"));
}

TEST_F(ContrastBoardTest, TheMatrixIsTheFirstTenAndSortsAlone) {
    for (int i = 0; i < 12; ++i)
        board.send(std::to_string(i), {i / 255.0, 0, 0});
    EXPECT_EQ(board.matrixEntries().size(), 10U);
    EXPECT_TRUE(board.sortByLightness(true, true));
    EXPECT_THAT(names(), ElementsAre("9", "8", "7", "6", "5", "4", "3", "2", "1", "0", "10", "11"));
    EXPECT_FALSE(board.sortByLightness(true, true));
}

TEST_F(ContrastBoardTest, WordsFollowTheSpecimen) {
    EXPECT_EQ(board.mark(4.5), Contrast::Grade::body);
    board.size = 24;
    EXPECT_EQ(board.mark(4.5), Contrast::Grade::enhanced);
    EXPECT_EQ(board.title(ContrastBoard::Target::aa), "AA · large text, 3.0");
    EXPECT_EQ(board.verdict(4.5), "Large text under WCAG 2.2: passes AA at 3:1, passes AAA at "
                                  "4.5:1; interface parts: passes at 3:1");
    EXPECT_EQ(board.typeDescription(), "the system face, in 24.0 px, weight 400");
}

TEST_F(ContrastBoardTest, ClearingAsksAboutWhatNoPaletteHolds) {
    for (const char* hex : {"000000", "FFFFFF", "FF0000", "00FF00"})
        send(hex);
    palettes.identities = {identityNumber({1, 0, 0})};
    const auto before = board.content().value();
    board.clearAsking();
    const auto& question = desktop.dialogues.questions.at(0);
    EXPECT_EQ(question.title, "Clear Contrast?");
    EXPECT_EQ(question.text, "Not in any open palette: 3 colours.");
    EXPECT_THAT(question.buttons, ElementsAre("Clear", "Cancel"));
    EXPECT_EQ(board.content().value(), before) << "cancelled";
    desktop.dialogues.buttons = {"Clear"};
    board.clearAsking();
    EXPECT_TRUE(board.entries().empty());
    const auto shown = desktop.toasts.shown.at(0);
    EXPECT_EQ(shown.text, "Took 4 colours off Contrast");
    send("FF0000"), send("0000FF");
    shown.action.value().perform();
    EXPECT_THAT(names(), ElementsAre("000000", "FFFFFF", "FF0000", "00FF00", "0000FF"));
    EXPECT_EQ(board.textID(), before.textID);
}

} // namespace
} // namespace tintra
