#include "state/ContrastReadings.h"
#include "tests/ui/Desk.h"
#include "tests/ui/Parts.h"
#include "ui/contrast/ContrastWindow.h"
#include "ui/contrast/EntryList.h"
#include "ui/contrast/LadderCanvas.h"
#include "ui/contrast/LightnessRow.h"
#include "ui/contrast/MatrixCanvas.h"
#include "ui/contrast/PairHalves.h"
#include "ui/contrast/ReachCanvas.h"
#include "ui/contrast/SpecimenBar.h"
#include "ui/contrast/SpecimenCanvas.h"
#include "ui/contrast/VerdictCanvas.h"
#include "ui/editor/ChannelTrack.h"
#include "ui/shared/ColourMime.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <QTextEdit>
#include <array>

namespace tintra::test {
namespace {

using Mode = ContrastBoard::Mode;
using Measure = ContrastBoard::Measure;
using Role = ContrastBoard::Role;
using Target = ContrastBoard::Target;

struct Named {
    const char *name, *code;
};
constexpr std::array kHarbour{
    Named{"Ink Well", "#14213d"},     Named{"Harbour", "#1f4e79"},  Named{"Slack Tide", "#3e7cb1"},
    Named{"Morning Haze", "#a3c9e2"}, Named{"Salt", "#eef1ec"},     Named{"Buoy", "#f4a93b"},
    Named{"Signal", "#e4572e"},       Named{"Dry Dock", "#8f2d20"}, Named{"Rope", "#cbae82"},
    Named{"Kelp", "#36543a"},         Named{"Lichen", "#9db17c"},
};
enum Colour { ink, harbour, slack, haze, salt, buoy, signal, dock, rope, kelp, lichen };

class ContrastWindowTest : public testing::Test {
protected:
    ContrastWindowTest() {
        for (const auto& [name, code] : kHarbour)
            board.hold(name, *WashColor::fromHex(code));
        pair(slack, salt);
    }
    Uuid id(std::size_t at) const { return board.entries()[at].id; }
    std::string nameOf(const ContrastBoard::Entry* entry) const {
        return entry ? board.name(*entry) : "none";
    }
    std::string names() const { return nameOf(board.text()) + " on " + nameOf(board.ground()); }
    void pair(std::size_t text, std::size_t ground) {
        board.setRole(Role::text, id(text));
        board.setRole(Role::ground, id(ground));
    }
    void show(Mode mode, QSize size = {1080, 760}) {
        board.mode = mode;
        open(window, size);
        desk.settle();
    }
    void focus(Canvas& canvas, int item) {
        canvas.setFocus(Qt::TabFocusReason);
        canvas.setFocused(item);
    }
    static const CanvasItem& item(const Canvas& canvas, int kind, std::size_t index = 0) {
        return canvas.items().at(static_cast<std::size_t>(canvas.find(kind, index)));
    }
    template <class Part>
    Part& part(std::size_t at = 0) {
        return *partsOf<Part>(window).at(at);
    }
    std::unique_ptr<QMimeData> dragOf(const Drag& drag) { return mimeOf(drag, {}); }
    std::string order() const {
        std::string all;
        for (const auto& entry : board.entries())
            all += board.name(entry) + " ";
        return all;
    }

    Desk desk;
    ContrastBoard& board = desk.models.contrast();
    ContrastWindow window{desk.ui};
};

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
    board.measure = Measure::apca;
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
    // Where the ratio of the drawing crosses: 7 darkest, then 4.5, then 3.
    ASSERT_EQ(row.marks().size(), 3U);
    for (const auto& [lightness, ratio] : row.marks()) {
        const auto at = lightness / 100;
        const auto below = Contrast::reach(*WashColor::fromHex("#000000"),
                                           [&](const auto& c) { return c.oklab().L >= at; });
        EXPECT_TRUE(below);
        EXPECT_GT(lightness, 40);
        EXPECT_LT(lightness, 64);
        EXPECT_GE(ratio, 3);
    }
    auto& track = part<ChannelTrack>();
    const auto chroma = [&] {
        const auto lab = board.text()->color.oklab();
        return std::hypot(lab.a, lab.b);
    };
    const auto before = chroma();
    const auto middle = QPoint(track.width() / 2, track.height() / 2);
    QTest::mousePress(&track, Qt::LeftButton, {}, middle);
    QTest::mouseMove(&track, QPoint(track.width() - 14, track.height() / 2));
    EXPECT_LT(chroma(), before / 2); // near white there is hardly any
    QTest::mouseMove(&track, middle);
    EXPECT_NEAR(chroma(), before, 0.01); // one drag: it comes back
    QTest::mouseRelease(&track, Qt::LeftButton, {}, middle);
    EXPECT_EQ(nameOf(board.text()), "Slack Tide");

    auto* field = row.findChild<QLineEdit*>();
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("40"));
    press("Return");
    EXPECT_NEAR(board.text()->color.oklab().L, 0.40, 0.004);
}

TEST_F(ContrastWindowTest, MatrixShowsTheFirstTen) {
    show(Mode::matrix);
    grab(window, "contrast-matrix");
    auto& matrix = part<MatrixCanvas>();
    EXPECT_EQ(matrix.passing().passing, 20U);
    EXPECT_EQ(matrix.passing().of, 90U);
    const auto cellOf = [&](std::size_t row, std::size_t column) -> const CanvasItem& {
        return item(matrix, MatrixCanvas::cell, row * 10 + column);
    };
    EXPECT_EQ(cellOf(ink, salt).name, QStringLiteral("Ink Well on Salt"));
    EXPECT_EQ(cellOf(ink, salt).value,
              QStringLiteral("14.0 to 1, reaches 7 to 1, AAA for body text"));
    EXPECT_EQ(cellOf(salt, signal).value,
              QStringLiteral("3.23 to 1, reaches 3 to 1, AA for large text and interface parts"));
    board.matrixRowsAreText = false;
    EXPECT_EQ(cellOf(ink, salt).name, QStringLiteral("Salt on Ink Well"));

    focus(matrix, matrix.find(MatrixCanvas::cell, 0));
    for (const auto* key : {"Down", "Down", "Right", "Right", "Right", "Right"})
        press(key);
    press("Ctrl+C");
    EXPECT_EQ(desk.desktop.clipboard.held.text, "3.90:1");
    press("Return");
    EXPECT_EQ(board.mode.value(), Mode::pair);
    EXPECT_EQ(names(), "Salt on Slack Tide");

    // The heads are colours that roles are given to.
    show(Mode::matrix);
    focus(matrix, matrix.find(MatrixCanvas::rowHead, kelp));
    press("T");
    EXPECT_EQ(names(), "Kelp on Slack Tide");
    press("D");
    EXPECT_EQ(nameOf(&board.entries()[10]), "Lichen"); // beyond the matrix it stays
}

TEST_F(ContrastWindowTest, MatrixIsCopiedAsATable) {
    board.rename(id(ink), "Ink & <Well>");
    show(Mode::matrix);
    ASSERT_TRUE(perform(ActionId::copyMatrix, window.context()));
    const auto& held = desk.desktop.clipboard.held;
    const auto lines = QString::fromStdString(held.text).split(u'\n');
    ASSERT_EQ(lines.size(), 12); // heads, ten rows, the end
    EXPECT_EQ(lines[1].split(u'\t').mid(0, 6).join(u'|'),
              QStringLiteral("Ink & <Well>||1.84|3.59 3:1|9.13 AAA|14.0 AAA"));
    EXPECT_NE(held.html.find("<tr><th>Ink &amp; &lt;Well&gt;</th><td></td><td>1.84</td>"),
              std::string::npos);
}

TEST_F(ContrastWindowTest, LadderStandsBetweenItsRungs) {
    pair(slack, ink);
    show(Mode::ladder);
    grab(window, "contrast-ladder");
    auto& ladder = part<LadderCanvas>();
    std::string walk;
    for (const auto& one : ladder.items())
        walk += one.kind == LadderCanvas::rung ? "| " : toUtf8(one.name) + " ";
    EXPECT_EQ(walk, "| Salt Morning Haze Buoy Rope | Lichen | Signal Slack Tide "
                    "| Dry Dock Kelp Harbour ");
    board.ladderFixesGround = false;
    EXPECT_EQ(ladder.rowCount(), 10U);
    focus(ladder, ladder.find(LadderCanvas::row, 0));
    const auto first = item(ladder, LadderCanvas::row).name;
    press("Return");
    EXPECT_EQ(board.mode.value(), Mode::pair);
    EXPECT_EQ(names(), "Slack Tide on " + toUtf8(first));
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
        EXPECT_TRUE(drop(on, {qreal(x), 30}, *mimeOf(*drag, {})).taken);
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
        {"#fedcba #fedcbb", "Contrast is full at 32", 32},
    };
    for (const auto& [words, notice, count] : rows) {
        text.setText(fromUtf8(words));
        drop(part<EntryList>(), {20, 30}, text);
        desk.settle();
        EXPECT_EQ(desk.notices().back(), notice);
        EXPECT_EQ(board.entries().size(), count);
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

TEST_F(ContrastWindowTest, MissingColoursAreAskedFor) {
    board.remove(id(salt));
    show(Mode::pair);
    auto& halves = part<PairHalves>();
    EXPECT_TRUE(halves.isVisible());
    EXPECT_FALSE(part<SpecimenCanvas>().isVisible());
    focus(halves, 1);
    press("Return");
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    menu->actions().front()->trigger();
    menu->close();
    EXPECT_EQ(names(), "Slack Tide on Ink Well");
    EXPECT_TRUE(part<SpecimenCanvas>().isVisible());

    board.clear();
    for (const auto mode : {Mode::pair, Mode::matrix, Mode::ladder}) {
        board.mode = mode;
        EXPECT_TRUE(halves.isVisible());
        EXPECT_FALSE(part<EntryList>().isVisible());
    }
    drop(halves, {halves.width() - 10.0, 20}, *mimeOf({{0, 0, 0, 1}, {}, DragOfBand{}}, {}));
    EXPECT_TRUE(board.ground());
}

TEST_F(ContrastWindowTest, EverySizeShowsEverything) {
    struct Case {
        Appearance appearance;
        bool high;
        const char* suffix;
    };
    for (const auto& [appearance, high, suffix] :
         {Case{Appearance::light, false, ""}, Case{Appearance::dark, false, "-dark"},
          Case{Appearance::dark, true, "-hcd"}}) {
        desk.models.preferences().appearance = appearance;
        desk.settings.prefersHighContrast = high;
        desk.applyStyle();
        for (const auto mode : {Mode::pair, Mode::matrix, Mode::ladder})
            for (const QSize size : {QSize(1080, 760), QSize(720, 520), QSize(1900, 1100)}) {
                show(mode, size);
                grab(window, "contrast-" + std::string(rawValue(mode)) + suffix + "-" +
                                 std::to_string(size.width()));
                for (const auto* canvas : partsOf<Canvas>(window)) {
                    if (!canvas->isVisible()) continue;
                    for (const auto& one : canvas->items()) {
                        SCOPED_TRACE(toUtf8(one.name));
                        EXPECT_TRUE(
                            QRectF(canvas->rect()).adjusted(-1, -1, 1, 1).contains(one.rect));
                        const bool isTarget = one.role == QAccessible::Button ||
                                              one.role == QAccessible::Cell ||
                                              one.role == QAccessible::ListItem;
                        if (isTarget) EXPECT_GE(std::min(one.rect.width(), one.rect.height()), 24);
                    }
                }
            }
    }
}

} // namespace
} // namespace tintra::test
