#include "tests/ui/ContrastWindowTest.h"
#include "ui/contrast/ContrastBody.h"
#include "ui/contrast/EntryList.h"
#include "ui/contrast/LightnessRow.h"
#include "ui/contrast/ReachCanvas.h"
#include "ui/contrast/SpecimenBar.h"
#include "ui/contrast/SpecimenCanvas.h"
#include "ui/contrast/VerdictCanvas.h"
#include "ui/editor/ChannelTrack.h"
#include "ui/shared/ColourMime.h"

#include <QLineEdit>
#include <QTextEdit>
#include <QUrl>
#include <cmath>
#include <string_view>

namespace tintra::test {
namespace {

using Mode = ContrastBoard::Mode;

TEST_F(ContrastWindowTest, ActsByKey) {
    const struct {
        const char* keys;
        Mode mode;
        const char *pair, *notice;
    } rows[] = {
        {"T", Mode::pair, "Harbour on Salt", ""},
        {"G", Mode::pair, "Slack Tide on Harbour", ""},
        {"X", Mode::pair, "Salt on Slack Tide", ""},
        {"D", Mode::pair, "Slack Tide on Salt", "Sorted dark to light"},
        {"Shift+D", Mode::pair, "Slack Tide on Salt", "Sorted light to dark"},
        {"B", Mode::pair, "Slack Tide on Salt", "Added #1F4E79 to the Bench"},
        {"Del", Mode::pair, "Slack Tide on Salt", "Took #1F4E79 off Contrast"},
        {"Ctrl+2", Mode::matrix, "Slack Tide on Salt", ""},
        {"Ctrl+3", Mode::ladder, "Slack Tide on Salt", ""},
    };
    const auto before = board.content().value();
    for (const auto& [keys, mode, pairNow, notice] : rows) {
        SCOPED_TRACE(keys);
        show(Mode::pair);
        focus(part<EntryList>(), part<EntryList>().find(EntryList::entry, harbour));
        desk.notices();
        press(keys);
        EXPECT_EQ(board.mode.value(), mode);
        EXPECT_EQ(names(), pairNow);
        const auto notices = desk.notices();
        EXPECT_EQ(notices.empty() ? "" : notices.back(), notice);
        board.exchangeContent(before);
    }
}

TEST_F(ContrastWindowTest, MovesAndRenamesAColour) {
    show(Mode::pair);
    auto& list = part<EntryList>();
    focus(list, list.find(EntryList::entry, harbour));
    press("Ctrl+Shift+Up");
    EXPECT_EQ(nameOf(&board.entries()[0]), "Harbour");
    EXPECT_EQ(window.entry(), id(0)); // the focus went with it
    press("Ctrl+Shift+Down");
    EXPECT_EQ(nameOf(&board.entries()[1]), "Harbour");
    window.beginRename();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Quay"));
    press("Return");
    EXPECT_EQ(nameOf(&board.entries()[1]), "Quay");
    window.beginRename();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Nothing"));
    press("Esc");
    EXPECT_EQ(nameOf(&board.entries()[1]), "Quay");
}

// The figures are those of the reference drawings, found by another program.
TEST_F(ContrastWindowTest, ReadsThePair) {
    show(Mode::pair);
    grab(window, "contrast-pair");
    EXPECT_EQ(window.figureText(), QStringLiteral("3.90:1"));
    EXPECT_EQ(children(part<VerdictCanvas>()),
              (std::vector<std::string>{
                  "Slack Tide on Salt; 3.90 to 1, reaches 3 to 1, AA for large text and interface "
                  "parts; ",
                  "APCA Lc 61; ; ", "AA · normal text, 4.5; fails; ",
                  "AAA · normal text, 7.0; fails; ", "AA · interface parts, 3.0; passes; ",
                  "Normal text under WCAG 2.2: fails AA at 4.5:1, fails AAA at 7:1; interface "
                  "parts: passes at 3:1; ; "}));
    EXPECT_EQ(children(part<ReachCanvas>()),
              (std::vector<std::string>{"Darken the text; #3371a6, 4.54 to 1; ΔL 3.6",
                                        "Use; #3371a6, 4.54 to 1; Darken the text",
                                        "Darken the ground; #070806, 4.51 to 1; ΔL 82.1",
                                        "Use; #070806, 4.51 to 1; Darken the ground"}));
    board.measure = ContrastBoard::Measure::apca;
    EXPECT_EQ(window.figureText(), QStringLiteral("Lc 61"));
    EXPECT_EQ(children(part<VerdictCanvas>()).at(1), "WCAG 3.90:1; ; ");
}

TEST_F(ContrastWindowTest, ReachIsUsedAndUndone) {
    show(Mode::pair);
    auto& reach = part<ReachCanvas>();
    click(reach, item(reach, ReachCanvas::use, 0).rect.center());
    EXPECT_EQ(board.text()->color.hex(), WashColor::fromHex("#3371a6")->hex());
    EXPECT_EQ(item(reach, ReachCanvas::message).name,
              QStringLiteral("This pair already reaches it."));
    const auto shown = desk.desktop.toasts.shown.back();
    EXPECT_EQ(shown.text, "Replaced #3E7CB1 with #3371A6");
    shown.action->perform();
    EXPECT_EQ(board.text()->color.hex(), WashColor::fromHex("#3e7cb1")->hex());
    // By keyboard, and refused where another entry is that colour.
    board.hold({}, *WashColor::fromHex("#3371a6"));
    focus(reach, reach.find(ReachCanvas::use, 0));
    press("Return");
    EXPECT_EQ(desk.notices().back(), "#3371A6 is already in Contrast");
    EXPECT_EQ(board.text()->color.hex(), WashColor::fromHex("#3e7cb1")->hex());
}

TEST_F(ContrastWindowTest, LightnessMovesOneColourOfThePair) {
    show(Mode::pair);
    auto& row = part<LightnessRow>();
    // As far as a ruler tells on the reference drawing.
    constexpr std::array kMarks{std::pair(3.0, 63.2), std::pair(4.5, 53.2), std::pair(7.0, 43.2)};
    ASSERT_EQ(row.marks().size(), kMarks.size());
    for (std::size_t i = 0; i < kMarks.size(); ++i) {
        EXPECT_EQ(row.marks()[i].ratio, kMarks[i].first);
        EXPECT_NEAR(row.marks()[i].lightness, kMarks[i].second, 0.5);
    }
    auto& track = part<ChannelTrack>();
    const auto chroma = [&] {
        const auto lab = board.text()->color.oklab();
        return std::hypot(lab.a, lab.b);
    };
    const auto before = chroma();
    const auto middle = QPoint(track.width() / 2, track.height() / 2);
    const QPoint white(track.width() - 14, track.height() / 2);
    QTest::mousePress(&track, Qt::LeftButton, {}, middle);
    QTest::mouseMove(&track, white);
    EXPECT_LT(chroma(), before / 2); // near white there is hardly any
    QTest::mouseMove(&track, middle);
    EXPECT_NEAR(chroma(), before, 0.01); // it comes back
    QTest::mouseMove(&track, white);
    QTest::mouseRelease(&track, Qt::LeftButton, {}, white);
    QTest::mouseClick(&track, Qt::LeftButton, {}, middle);
    EXPECT_NEAR(chroma(), before, 0.01); // and in another drag
    EXPECT_EQ(nameOf(board.text()), "Slack Tide");

    auto* field = row.findChild<QLineEdit*>();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("40"));
    press("Return");
    EXPECT_NEAR(board.text()->color.oklab().L, 0.40, 0.004);
}

TEST_F(ContrastWindowTest, TakesDrops) {
    show(Mode::pair);
    const Drag held{board.entries()[kelp].color, {}, DragOfContrastEntry{id(kelp)}};
    const Drag fresh{*WashColor::fromHex("#112233"), "Night", DragOfBand{}};
    const Drag twin{board.entries()[rope].color, {}, DragOfBand{}};
    enum Place { list, left, right };
    const struct {
        const Drag* drag;
        Place to;
        const char *pair, *notice;
        std::size_t count;
    } rows[] = {
        {&held, left, "Kelp on Salt", "", 11},
        {&held, right, "Slack Tide on Kelp", "", 11},
        {&fresh, list, "Slack Tide on Salt", "Sent #112233 to Contrast", 12},
        {&fresh, left, "Night on Salt", "#112233 is the text in Contrast", 12},
        {&fresh, right, "Slack Tide on Night", "#112233 is the ground in Contrast", 12},
        {&twin, list, "Slack Tide on Salt", "#CBAE82 is already in Contrast", 11},
        {&twin, left, "Rope on Salt", "#CBAE82 is the text in Contrast", 11},
    };
    const auto before = board.content().value();
    for (const auto& [drag, to, pairNow, notice, count] : rows) {
        SCOPED_TRACE(std::string(pairNow) + notice);
        desk.notices();
        auto& on = to == list ? static_cast<QWidget&>(part<EntryList>()) : part<SpecimenCanvas>();
        const auto x = to == right ? on.width() - 20 : 20;
        const bool refused = std::string_view(notice).ends_with("already in Contrast");
        EXPECT_EQ(drop(on, {qreal(x), 30}, *mimeOf(*drag, {})).taken, !refused);
        EXPECT_EQ(names(), pairNow);
        EXPECT_EQ(board.entries().size(), count);
        const auto notices = desk.notices();
        EXPECT_EQ(notices.empty() ? "" : notices.back(), notice);
        board.exchangeContent(before);
    }
    // Within the list an entry moves.
    auto& colours = part<EntryList>();
    board.draggingEntry = id(kelp);
    drop(colours, item(colours, EntryList::entry, 0).rect.topLeft(), *mimeOf(held, {}));
    board.draggingEntry = std::nullopt;
    EXPECT_EQ(nameOf(&board.entries()[0]), "Kelp");
}

TEST_F(ContrastWindowTest, TextBringsWhatFits) {
    show(Mode::pair);
    QMimeData text;
    std::string lines;
    for (int i = 0; i < 30; ++i)
        lines += WashColor(0, i / 255.0, 0, 1).hex() + "\n";
    const struct {
        std::string text;
        const char* notice;
        std::size_t count;
    } rows[] = {
        {"nothing", "Nothing there that reads as a colour", 11},
        {"#abcdef", "Sent #ABCDEF to Contrast", 12},
        {lines, "Sent 20 of 30 · Contrast is full at 32", 32},
        {"#fedcba\n#fedcbb", "Contrast is full at 32", 32},
    };
    for (const auto& [words, notice, count] : rows) {
        text.setText(fromUtf8(words));
        drop(part<EntryList>(), {20, 30}, text);
        desk.settle();
        EXPECT_EQ(desk.notices().back(), notice);
        EXPECT_EQ(board.entries().size(), count);
    }
}

TEST_F(ContrastWindowTest, TakesWhatIsDroppedAsAWhole) {
    QMimeData several, picture;
    several.setText(QStringLiteral("#010101\n#020202"));
    picture.setUrls({QUrl::fromLocalFile(QStringLiteral("/evening.png"))});
    // On a half all are sent, and the first has the role.
    show(Mode::pair);
    auto& specimen = part<SpecimenCanvas>();
    drop(specimen, {specimen.width() - 20.0, 30}, several);
    desk.settle();
    EXPECT_EQ(board.entries().size(), 13U);
    EXPECT_EQ(board.ground()->color.hex(), "#010101");
    EXPECT_EQ(board.text()->color.hex(), WashColor::fromHex("#3e7cb1")->hex());
    // Views without roles send.
    const Drag night{*WashColor::fromHex("#112233"), "Night", DragOfBand{}};
    for (const auto mode : {Mode::matrix, Mode::ladder}) {
        show(mode);
        board.remove(board.entries().back().id);
        desk.notices();
        auto& body = part<ContrastBody>();
        EXPECT_FALSE(drop(body, {20, 20}, picture).entered);
        EXPECT_TRUE(drop(body, {20, 20}, *mimeOf(night, {})).taken);
        EXPECT_FALSE(drop(body, {20, 20}, *mimeOf(night, {})).taken);
        EXPECT_EQ(desk.notices(), (std::vector<std::string>{"Sent #112233 to Contrast",
                                                            "#112233 is already in Contrast"}));
    }
}

TEST_F(ContrastWindowTest, SpecimenIsEditedInPlace) {
    show(Mode::pair);
    auto& specimen = part<SpecimenCanvas>();
    const auto type = [&](const char* words, const char* end) {
        press("F2");
        QTest::keyClicks(specimen.findChild<QTextEdit*>(), fromUtf8(words));
        EXPECT_EQ(board.specimen.value(), words); // seen at once
        press(end);
        desk.settle();
        EXPECT_FALSE(specimen.findChild<QTextEdit*>());
    };
    type("Tide tables", "Ctrl+Return");
    EXPECT_EQ(board.specimen.value(), "Tide tables");
    type("Other", "Esc");
    EXPECT_EQ(board.specimen.value(), "Tide tables");
    type(" ", "Ctrl+Return");
    EXPECT_EQ(board.specimen.value(), ContrastBoard::kDefaultSpecimen);
    EXPECT_EQ(QApplication::focusWidget(), &specimen);
}

TEST_F(ContrastWindowTest, SizeAndWeightDecideWhatIsAsked) {
    show(Mode::pair);
    auto* size = part<SpecimenBar>().findChild<QLineEdit*>();
    const struct {
        const char* typed;
        double size;
        int weight;
        const char* level;
    } rows[] = {
        {"24", 24, 400, "AA · large text, 3.0"},
        {"18,66 px", 18.66, 700, "AA · large text, 3.0"},
        {"huge", 18.66, 400, "AA · normal text, 4.5"},
        {"0", 1, 700, "AA · normal text, 4.5"},
        {"5000", 1000, 100, "AA · large text, 3.0"},
    };
    for (const auto& [typed, px, weight, level] : rows) {
        SCOPED_TRACE(typed);
        size->setFocus();
        size->selectAll();
        QTest::keyClicks(size, fromUtf8(typed));
        press("Return");
        board.weight = weight;
        EXPECT_EQ(board.size.value(), px);
        EXPECT_EQ(toUtf8(item(part<VerdictCanvas>(), VerdictCanvas::level).name), level);
    }
}

} // namespace
} // namespace tintra::test
