#include "tests/ui/ContrastWindowTest.h"
#include "ui/contrast/EntryList.h"
#include "ui/contrast/LadderCanvas.h"
#include "ui/contrast/MatrixCanvas.h"
#include "ui/contrast/PairHalves.h"
#include "ui/contrast/SpecimenCanvas.h"
#include "ui/shared/ColourMime.h"

#include <QMenu>

namespace tintra::test {
namespace {

using Mode = ContrastBoard::Mode;

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
    EXPECT_EQ(window.figureText(), QString()); // and no figure is left
    focus(halves, 1);
    press("Return");
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("#123456"));
    press("Ctrl+Return");
    desk.settle();
    ASSERT_TRUE(board.ground());
    EXPECT_FALSE(board.text());
    board.clear();
    drop(halves, {halves.width() - 10.0, 20}, *mimeOf({{0, 0, 0, 1}, {}, DragOfBand{}}, {}));
    EXPECT_TRUE(board.ground());
}

TEST_F(ContrastWindowTest, EverySizeShowsEverything) {
    struct Case {
        Appearance appearance;
        bool high;
        TypeSize type;
        const char* suffix;
    };
    for (const auto& [appearance, high, type, suffix] :
         {Case{Appearance::light, false, TypeSize::regular, ""},
          Case{Appearance::dark, false, TypeSize::largest, "-dark-large"},
          Case{Appearance::dark, true, TypeSize::regular, "-hcd"}}) {
        desk.models.preferences().appearance = appearance;
        desk.models.preferences().typeSize = type;
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
                        EXPECT_GE(std::min(one.rect.width(), one.rect.height()), isTarget ? 24 : 0);
                    }
                }
            }
    }
}

} // namespace
} // namespace tintra::test
