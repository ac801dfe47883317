#include "ui/palette/PaletteWindow.h"

#include "state/AppUndo.h"
#include "state/Bench.h"
#include "tests/ui/Desk.h"
#include "ui/actions/ActionTable.h"
#include "ui/palette/PaletteCanvas.h"
#include "ui/picture/PicturePane.h"
#include "ui/shared/ColourMime.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QMenu>
#include <QUrl>

namespace tintra::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

PaletteCanvas& canvasOf(PaletteWindow& window) {
    return *child<PaletteCanvas>(window);
}

std::vector<double> reds(const AppState& of) {
    std::vector<double> all;
    for (const auto& swatch : of.swatches())
        all.push_back(std::round(swatch.color.r * 255));
    return all;
}

std::unique_ptr<QMimeData> swatchOf(const AppState& from, std::size_t at) {
    const auto& held = from.swatches()[at];
    return mimeOf({held.color, held.name, DragOfSwatch{{std::nullopt, from.id(), held.id, at}}},
                  QStringLiteral("code"));
}

QPointF middleOf(const PaletteCanvas& canvas, std::size_t at) {
    return canvas.items()[at].rect.center();
}

TEST(PaletteWindow, LaysOutAnyCountAtAnySize) {
    for (const std::size_t count : {1U, 12U, 40U, 256U}) {
        Desk desk;
        PaletteWindow window(desk.ui, desk.stateWith(count));
        open(window);
        auto& canvas = canvasOf(window);
        for (const auto size :
             {QSize(240, 180), QSize(360, 420), QSize(960, 600), QSize(3840, 2160)}) {
            for (const auto display : {PaletteDisplay::columns, PaletteDisplay::tiles}) {
                window.setDisplay(display);
                window.resize(size);
                const auto shape = std::to_string(count) + "-" + std::to_string(size.width()) +
                                   (display == PaletteDisplay::tiles ? "-tiles" : "");
                grab(window, "layout-" + shape);
                ASSERT_GE(canvas.items().size(), count) << shape;
                for (std::size_t i = 0; i < count; ++i) {
                    const auto& rect = canvas.items()[i].rect;
                    EXPECT_TRUE(QRectF(canvas.rect()).contains(rect)) << shape;
                    EXPECT_GE(rect.width(), 24) << shape;
                    EXPECT_GE(rect.height(), 24) << shape;
                    EXPECT_EQ(rect, QRectF(rect.toRect())) << "whole pixels, " << shape;
                    if (i == 0) continue;
                    EXPECT_FALSE(rect.intersects(canvas.items()[i - 1].rect)) << shape;
                }
            }
        }
    }
}

TEST(PaletteWindow, NarrowsStepByStep) {
    Desk desk;
    PaletteWindow window(desk.ui, desk.stateWith(3));
    open(window);
    struct Step {
        int width;
        std::vector<const char*> shown, away;
    };
    const Step steps[] = {
        {960,
         {"Open Picture…", "Type or Paste Values…", "Save As…", "Colour Editor", "3 swatches",
          "Vision: Typical Vision"},
         {}},
        {410, {"Type or Paste Values…", "Save As…", "Colour Editor"}, {"Open Picture…"}},
        {370, {"Save As…", "Colour Editor", "Shown as"}, {"Type or Paste Values…"}},
        {330, {"Colour Editor", "Shown as", "More"}, {"Save As…", "Vision: Typical Vision"}},
        {290, {"Colour Editor", "Add a Blank Swatch", "More"}, {"Shown as"}},
        {260, {"Add a Blank Swatch", "More"}, {"Mode: Palette", "Code format: CSS HEX"}},
    };
    desk.state().selectedSwatch = 0;
    for (const auto& step : steps) {
        window.resize(step.width, 400);
        QCoreApplication::processEvents();
        const auto shows = [&](const char* name) { return visible(window, name) != nullptr; };
        for (const auto* name : step.shown)
            EXPECT_TRUE(shows(name)) << name << " at " << step.width;
        for (const auto* name : step.away)
            EXPECT_FALSE(shows(name)) << name << " at " << step.width;
    }
}

TEST(PaletteWindow, TellsOfItsSwatches) {
    Desk desk;
    auto& state = desk.stateWith(3);
    state.renameSwatch(1, "Sea\nGreen");
    PaletteWindow window(desk.ui, state);
    open(window);
    state.selectedSwatch = 1;
    auto& canvas = canvasOf(window);
    EXPECT_THAT(children(canvas),
                ElementsAre("Black; #000000; 1 of 3", "Sea Green; #439701; 2 of 3",
                            "Red Tone Ink; #862e02; 3 of 3"));
    auto* list = QAccessible::queryAccessibleInterface(&canvas);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->child(1)->role(), QAccessible::ListItem);
    EXPECT_TRUE(list->child(1)->state().selected);
    EXPECT_FALSE(list->child(0)->state().selected);
    EXPECT_EQ(window.windowTitle(), QStringLiteral("Untitled Palette[*] — Tintra"));
    EXPECT_TRUE(window.isWindowModified());
    state.mode = HarmonyMode::triadic;
    EXPECT_TRUE(accessible(window, "3 colours")) << "the three hues, in one band";
}

TEST(PaletteWindow, ClosesOnlyWhenItMay) {
    Desk desk;
    PaletteWindow window(desk.ui, desk.stateWith(1));
    open(window);
    EXPECT_FALSE(window.close());
    EXPECT_TRUE(window.isVisible());
    EXPECT_THAT(desk.windows.taken(), ElementsAre("close palette"));
    window.closeNow();
    EXPECT_FALSE(window.isVisible());
    EXPECT_THAT(desk.windows.taken(), IsEmpty());
}

TEST(PaletteWindow, RemembersWhereItStoodAndGrowsForTheEditor) {
    Desk desk;
    auto& state = desk.stateWith(2);
    state.pendingFrame = StoredFrame{20, 30, 700, 500};
    PaletteWindow window(desk.ui, state);
    open(window);
    EXPECT_EQ(window.geometry(), QRect(20, 30, 700, 500));
    window.resize(710, 450);
    EXPECT_EQ(state.modeSizes.value().at(HarmonyMode::paletteBuilder), (StoredSize{710, 450}));
    const auto before = window.width();
    state.editSwatch(0);
    const auto wide = window.width();
    EXPECT_TRUE(wide == before || wide == before + 312) << wide;
    EXPECT_EQ(state.frame.value()->width, 710) << "the editor's share is not the window's";
    state.toggleEditor();
    EXPECT_EQ(window.width(), before);
}

TEST(PaletteCanvas, IsWorkedWithTheMouse) {
    Desk desk;
    auto& state = desk.stateWith(3);
    PaletteWindow window(desk.ui, state);
    open(window, {960, 600});
    auto& canvas = canvasOf(window);
    click(canvas, middleOf(canvas, 2));
    EXPECT_EQ(state.selectedSwatch.value(), 2U);
    const auto rect = canvas.items()[2].rect;
    click(canvas, rect.bottomLeft() + QPointF(20, -20));
    EXPECT_EQ(desk.desktop.clipboard.held.text, "#862e02") << "a click on the code copies";
    click(canvas, rect.bottomLeft() + QPointF(20, -38));
    EXPECT_TRUE(accessible(window, "Name of the swatch")) << "on the name of the selected one";
    press("Esc");
    const auto buttons = desk.painter.buttonRects(rect, SwatchShape::column, 5);
    click(canvas, buttons[2].center());
    EXPECT_TRUE(state.isPaletteSwatchBenched(2));
    click(canvas, buttons[4].center());
    EXPECT_THAT(state.swatches(), SizeIs(2));
    QTest::mouseDClick(&canvas, Qt::LeftButton, {}, middleOf(canvas, 0).toPoint());
    EXPECT_EQ(state.editorBuffer.value()->swatchID, state.swatches()[0].id);
}

TEST(PaletteCanvas, TakesWhatTheDragMatrixSays) {
    Desk desk;
    auto& state = desk.stateWith(4);
    auto& other = desk.another();
    other.addToPalette({1, 1, 1, 1}, AppState::Duplicates::refuse);
    other.addToPalette(Desk::colour(2), AppState::Duplicates::refuse);
    other.addToPalette({0.2, 1, 1, 1}, AppState::Duplicates::refuse);
    PaletteWindow window(desk.ui, state);
    open(window, {960, 600});
    auto& canvas = canvasOf(window);
    desk.notices();
    const auto end = [&] { return canvas.items().back().rect.center() + QPointF(60, 0); };

    EXPECT_TRUE(drop(canvas, end(), *swatchOf(state, 0)).taken) << "its own moves";
    EXPECT_THAT(reds(state), ElementsAre(67, 134, 201, 0));
    EXPECT_TRUE(drop(canvas, middleOf(canvas, 0) - QPointF(40, 0), *swatchOf(other, 0)).taken);
    EXPECT_THAT(reds(state), ElementsAre(255, 67, 134, 201, 0)) << "another's is added";
    EXPECT_THAT(other.swatches(), SizeIs(3));
    EXPECT_TRUE(drop(canvas, end(), *swatchOf(other, 2), Qt::ControlModifier).taken);
    EXPECT_THAT(other.swatches(), SizeIs(2)) << "with Ctrl it moves";
    EXPECT_FALSE(drop(canvas, end(), *swatchOf(other, 1)).taken);
    EXPECT_THAT(desk.notices(), testing::Contains("#862E02 is already in this palette"));
    const decltype(Drag::source) others[] = {
        DragOfBand{}, DragOfSeed{},          DragOfBenchColumn{state.id()},
        DragOfWell{}, DragOfLibrarySwatch{}, DragOfContrastEntry{state.id()},
    };
    for (std::size_t i = 0; i < std::size(others); ++i) {
        SCOPED_TRACE(others[i].index());
        const auto data = mimeOf({Desk::colour(100 + i), "Mine", others[i]}, {});
        EXPECT_FALSE(drop(canvas, end(), *data, Qt::ControlModifier).taken);
        EXPECT_THAT(desk.notices(),
                    ElementsAre("Only a palette's swatch moves · let go of ⌘ to add"));
        EXPECT_TRUE(drop(canvas, end(), *data).taken);
        EXPECT_EQ(state.swatches().back().color, Desk::colour(100 + i));
        EXPECT_EQ(state.swatches().back().name, "Mine");
    }
    QMimeData foreign;
    foreign.setColorData(QColor(Qt::magenta));
    EXPECT_TRUE(drop(canvas, end(), foreign).taken);
    EXPECT_THAT(state.swatches(), SizeIs(13));
}

TEST(PaletteWindow, TakesFilesAndTextAnywhere) {
    Desk desk;
    auto& state = desk.stateWith(1);
    PaletteWindow window(desk.ui, state);
    open(window, {960, 600});
    QMimeData text, file, nonsense;
    text.setText(QStringLiteral("#101010\n#202020"));
    EXPECT_TRUE(drop(window, {5, 5}, text).taken);
    EXPECT_THAT(state.swatches(), SizeIs(3));
    const auto path = desk.folder.write("two.gpl", "GIMP Palette\n1 2 3 One\n4 5 6 Two\n");
    file.setUrls({QUrl::fromLocalFile(fromUtf8(path.string()))});
    drop(window, {5, 5}, file, Qt::ShiftModifier);
    desk.settle();
    EXPECT_THAT(state.swatches(), SizeIs(5)) << "Shift adds";
    desk.desktop.dialogues.buttons = {"Discard"};
    drop(window, {5, 5}, file);
    desk.settle();
    EXPECT_THAT(state.swatches(), SizeIs(2));
    EXPECT_EQ(window.windowTitle(), QStringLiteral("two[*] — Tintra"));
    nonsense.setData(QStringLiteral("application/x-nonsense"), "?");
    EXPECT_FALSE(drop(window, {5, 5}, nonsense).entered);
}

TEST(PaletteWindow, SaysNoToWhatADragCannotLeave) {
    Desk desk;
    auto& state = desk.stateWith(2);
    PaletteWindow window(desk.ui, state);
    open(window, {960, 600});
    state.isPictureWindowOpen = true;
    QCoreApplication::processEvents();
    auto* pane = child<PicturePane>(window);
    const auto band = mimeOf({{0, 1, 1, 1}, {}, DragOfBand{}}, {});
    const auto known = mimeOf({Desk::colour(1), {}, DragOfBand{}}, {});
    QMimeData text;
    text.setText(QStringLiteral("#123456"));
    for (const auto* refused : {band.get(), &text}) {
        const auto onPicture = drop(*pane, {30, 30}, *refused);
        EXPECT_TRUE(onPicture.entered) << "so that the window behind is not asked";
        EXPECT_FALSE(onPicture.taken);
    }
    EXPECT_THAT(state.swatches(), SizeIs(2));
    desk.notices();
    const QPoint onTools(5, 5);
    QDragEnterEvent enter(onTools, Qt::CopyAction, known.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window, &enter);
    QDragMoveEvent over(onTools, Qt::CopyAction, known.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(&window, &over);
    EXPECT_TRUE(over.isAccepted());
    EXPECT_EQ(over.dropAction(), Qt::IgnoreAction) << "the cursor says no";
    EXPECT_FALSE(state.fileIsOver.value());
    drop(window, onTools, *known);
    EXPECT_THAT(desk.notices(), ElementsAre("#439701 is already in this palette"));
    EXPECT_TRUE(drop(window, onTools, *band).taken);
    EXPECT_THAT(state.swatches(), SizeIs(3));
}

TEST(PaletteCanvas, ScrollsOnWhileADragRestsAtAnEdge) {
    Desk desk;
    PaletteWindow window(desk.ui, desk.stateWith(200));
    open(window, {960, 500});
    auto& canvas = canvasOf(window);
    const auto top = [&] { return canvas.visibleRegion().boundingRect().top(); };
    ASSERT_EQ(top(), 0);
    const auto data = mimeOf({{1, 0, 1, 0.5}, {}, DragOfBand{}}, {});
    const auto edge = canvas.visibleRegion().boundingRect().bottom() - 4;
    QDragEnterEvent enter({300, edge}, Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(&canvas, &enter);
    QDragMoveEvent move({300, edge}, Qt::CopyAction, data.get(), Qt::LeftButton, {});
    QCoreApplication::sendEvent(&canvas, &move);
    const auto first = top();
    desk.desktop.loop.pass(0.5);
    const auto later = top();
    EXPECT_GT(later, first) << "without a further move";
    QDragLeaveEvent leave;
    QCoreApplication::sendEvent(&canvas, &leave);
    desk.desktop.loop.pass(0.5);
    EXPECT_EQ(top(), later);
}

TEST(PaletteWindow, RemembersWhichFilesWereOpened) {
    Desk desk;
    auto& state = desk.stateWith(0);
    PaletteWindow window(desk.ui, state);
    const auto context = window.context();
    EXPECT_FALSE(isEnabled(actionRow(ActionId::openRecent), context));
    for (const auto* name : {"one.gpl", "two.gpl", "one.gpl"}) {
        state.open(desk.folder.write(name, "GIMP Palette\n1 2 3 One\n"));
        desk.settle();
    }
    const auto recent = [](const RecentPalettes& of) {
        std::vector<std::string> names;
        for (const auto& file : of.files().value())
            names.push_back(file.filename().string());
        return names;
    };
    EXPECT_THAT(recent(desk.models.recentPalettes()), ElementsAre("one.gpl", "two.gpl"));
    RecentPalettes later(desk.desktop.services, desk.models.workspaces());
    later.start();
    EXPECT_THAT(recent(later), ElementsAre("one.gpl", "two.gpl")) << "in the next run";
    QMenu menu;
    actionRow(ActionId::openRecent).fill(menu, context);
    menu.actions()[1]->trigger();
    desk.settle();
    EXPECT_EQ(state.title(), "two");
    menu.actions().last()->trigger();
    EXPECT_FALSE(isEnabled(actionRow(ActionId::openRecent), context));
}

} // namespace
} // namespace tintra::test
