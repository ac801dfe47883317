#include "state/Codec.h"
#include "state/StoredContrast.h"
#include "tests/state/ContrastBoardFixture.h"

#include <cmath>

namespace tintra {
namespace {

using testing::ElementsAre;

class ContrastBoardRecordTest : public ContrastBoardTest {
protected:
    /// A board of the next run.
    std::unique_ptr<ContrastBoard> restored(std::string from) {
        record() = std::move(from);
        auto next = std::make_unique<ContrastBoard>(desktop.services, palettes);
        next->restoreIfNeeded();
        return next;
    }
    std::string& record() { return desktop.defaults.records["TintraContrast"]; }
};

// As written before there were modes and names.
constexpr std::string_view kOldRecord =
    R"({"colours":[{"r":0,"g":0,"b":0,"a":1},{"r":1,"g":1,"b":1,"a":1}],"text":1,"ground":0,)"
    R"("size":24,"weight":700,"specimen":"Words","target":"aaa","wasOpen":true})";

TEST_F(ContrastBoardRecordTest, EverythingIsBackAfterAQuit) {
    const WashColor wide{1.2345678901234567, -0.1, 1.0 / 3, 0.4999};
    board.hold("Wide", wide);
    board.send({}, {std::nan(""), 0, 0}); // what no record can hold is made finite
    board.send("Snow", {1, 1, 1});
    board.mode = ContrastBoard::Mode::ladder;
    board.family = "Source Serif";
    board.matrixRowsAreText = false;
    board.isWindowOpen = true;
    board.captureForQuit();
    const auto before = record();
    const auto next = restored(before);
    EXPECT_EQ(next->entries().at(0).color, wide);
    EXPECT_EQ(next->text()->color, (WashColor{0, 0, 0}));
    EXPECT_EQ(next->ground()->givenName, "Snow");
    EXPECT_TRUE(next->wasOpenAtLastQuit());
    next->isWindowOpen = true;
    next->captureForQuit();
    EXPECT_EQ(record(), before) << "every other field is as it was";
}

TEST_F(ContrastBoardRecordTest, AnOldRecordStandsWithInitialValues) {
    const auto next = restored(std::string(kOldRecord));
    EXPECT_EQ(next->entries().size(), 2U);
    EXPECT_EQ(next->text()->color, (WashColor{1, 1, 1}));
    EXPECT_EQ(next->title(next->target), "AAA · large text, 4.5");
    EXPECT_TRUE(next->ladderFixesGround && next->matrixRowsAreText);
}

TEST_F(ContrastBoardRecordTest, ADamagedRecordIsSetAsideAndLeavesAnEmptyBoard) {
    auto wrongColour = *parsedJson(kOldRecord), withoutSize = wrongColour;
    wrongColour["colours"][0] = "black";
    withoutSize.erase("size");
    const std::string whole(kOldRecord);
    for (const auto& damaged : {std::string(), std::string("[]"), whole.substr(0, 90), whole + "}",
                                jsonText(wrongColour), jsonText(withoutSize)}) {
        desktop.defaults.asideKeys.clear();
        desktop.log.lines.clear();
        EXPECT_TRUE(restored(damaged)->entries().empty()) << damaged;
        EXPECT_THAT(desktop.defaults.asideKeys, ElementsAre("TintraContrast")) << damaged;
        EXPECT_THAT(desktop.log.lines, ElementsAre(testing::StartsWith(
                                           "Tintra: could not decode the saved contrast board: ")));
    }
}

TEST_F(ContrastBoardRecordTest, ARecordIsBroughtIntoBounds) {
    StoredContrast stored;
    for (int i = 0; i < 80; ++i) // each colour twice, 40 in all
        stored.colours.push_back({i / 2 / 255.0, 0, 0});
    stored.names = {"", "", "two", "three"};
    stored.text = 3;    // stands for the one before it
    stored.ground = 79; // finds no room
    stored.size = 1e300;
    stored.target = "better";
    const auto next = restored(encodedContrast(stored));
    EXPECT_EQ(next->entries().size(), 32U);
    EXPECT_EQ(next->text()->givenName, "two");
    EXPECT_EQ(next->ground(), nullptr);
    EXPECT_EQ(next->size, ContrastBoard::kLargestSize);
    EXPECT_EQ(next->target, ContrastBoard::Target::aa);
    for (const int outside : {-1, 80}) {
        stored.text = outside;
        EXPECT_EQ(restored(encodedContrast(stored))->text(), nullptr) << outside;
    }
}

} // namespace
} // namespace tintra
