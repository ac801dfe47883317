#include "state/Bench.h"

#include "state/AppUndo.h"
#include "state/ContrastBoard.h"
#include "tests/ui/Desk.h"
#include "ui/bench/BenchCanvas.h"
#include "ui/bench/BenchLayout.h"
#include "ui/bench/BenchWindow.h"
#include "ui/bench/RampStrip.h"
#include "ui/bench/WellEditor.h"
#include "ui/shared/ColourMime.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QImage>
#include <QLineEdit>
#include <QMenu>
#include <QPaintEvent>
#include <QUrl>
#include <functional>

namespace tintra::test {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using Of = BenchSelection::Of;

/// The first two swatches of a palette and two copies on the Bench; the second one is active.
struct OnBench {
    explicit OnBench(QSize size = {1040, 640}) {
        desk.models.preferences().formatFavourites = {ColorFormat::cssRGB};
        state.toggleBenchedSwatch(0);
        state.toggleBenchedSwatch(1);
        bench.addStagedToBench(bench.stagedColumn({1, 0.5, 0, 1}, std::string("Rust")));
        bench.addStagedToBench(bench.stagedColumn({1, 1, 1, 1}, std::nullopt));
        desk.models.undo().discardEntries({});
        open(window, size);
        activate(1);
        desk.notices();
    }
    const Uuid& id(std::size_t column) const { return bench.benchColumns()[column].id; }
    void activate(std::size_t column) {
        bench.benchActive = BenchSelection{Of::column, id(column)};
    }
    void mix(std::size_t one, std::size_t other) {
        bench.toggleWell(Uuid(id(one)), Uuid(id(other)));
    }
    /// Of the active column; 99 for none.
    std::size_t active() const {
        const auto now = bench.benchActive.value();
        return now ? bench.content().value().indexOfColumn(now->id).value_or(99) : 99;
    }
    bool isWellActive() const {
        return bench.benchActive.value() && bench.benchActive.value()->kind == Of::well;
    }
    QPointF middle(int kind, std::size_t index) const {
        return canvas.items().at(static_cast<std::size_t>(canvas.find(kind, index))).rect.center();
    }
    std::string copied() const { return desk.desktop.clipboard.held.text; }

    Desk desk;
    AppState& state = desk.stateWith(3);
    Bench& bench = desk.models.bench();
    BenchWindow window{desk.ui};
    BenchCanvas& canvas = *child<BenchCanvas>(window);
};

TEST(BenchLayout, KeepsColumnsWholeAndMixesOnTheirBoundaries) {
    for (const std::size_t count : {1U, 2U, 5U, 13U, 20U, 60U})
        for (const QSizeF size : {QSizeF(560, 136), QSizeF(1040, 403), QSizeF(3840, 2000)}) {
            SCOPED_TRACE(std::to_string(count) + " in " + std::to_string(size.width()));
            std::vector<ColumnPair> pairs;
            if (count > 2) pairs = {{0, 1}, {0, 2}};
            const auto places = benchPlaces(count, pairs, size, 60);
            ASSERT_THAT(places.columns, SizeIs(count));
            EXPECT_EQ(places.shape == SwatchShape::onSide,
                      places.group.width() / double(count) < 76);
            for (std::size_t i = 0; i < count; ++i) {
                EXPECT_GE(places.columns[i].width(), 39);
                EXPECT_EQ(places.columns[i], QRectF(places.columns[i].toRect())) << "whole pixels";
                if (i == 0) continue;
                EXPECT_EQ(places.columns[i].left(), places.columns[i - 1].right());
                const auto& figure = places.figures[i - 1];
                EXPECT_TRUE(figure.isEmpty() || i == 1 ||
                            !figure.intersects(places.figures[i - 2]));
            }
            EXPECT_EQ(places.columns.back().right(), places.group.right());
            if (pairs.empty()) continue;
            EXPECT_TRUE(places.mixes[0].isEmpty()) << "the well stands there";
            EXPECT_NEAR(places.wells[0].center().x(), places.columns[0].right(), 1);
            EXPECT_NEAR(places.wells[1].center().x(),
                        (places.columns[0].center().x() + places.columns[2].center().x()) / 2, 1);
            EXPECT_TRUE(places.group.contains(places.wells[0])) << "also in a low window";
            EXPECT_NE(places.wells[0].center(), places.wells[1].center());
        }
}

struct BenchKey {
    const char* keys;
    std::function<bool(OnBench&)> did;
    std::function<void(OnBench&)> before = [](OnBench&) {};
};
void PrintTo(const BenchKey& one, std::ostream* out) {
    *out << one.keys;
}
void mixFirst(OnBench& on) {
    on.mix(0, 1);
}

const BenchKey kBenchKeys[] = {
    {"Left", [](OnBench& on) { return on.active() == 0; }},
    {"Right", [](OnBench& on) { return on.active() == 2; }},
    {"Home", [](OnBench& on) { return on.active() == 0; }},
    {"End", [](OnBench& on) { return on.active() == 3; }},
    {"Left", [](OnBench& on) { return on.active() == 0; }, mixFirst},
    {"M",
     [](OnBench& on) { return on.isWellActive() && on.bench.benchWells()[0].parentB == on.id(2); }},
    {"M", [](OnBench& on) { return on.bench.benchWells().empty(); },
     [](OnBench& on) {
         on.mix(1, 2);
         on.activate(1);
     }},
    {"Ctrl+Shift+Left",
     [](OnBench& on) {
         return on.bench.benchColumns()[0].color == Desk::colour(1) && on.active() == 0;
     }},
    {"Ctrl+Shift+Right",
     [](OnBench& on) { return on.bench.benchColumns()[2].color == Desk::colour(1); }},
    {"Ctrl+Shift+Right",
     [](OnBench& on) {
         return on.bench.benchColumns()[1].color == Desk::colour(1) &&
                on.desk.notices() ==
                    std::vector<std::string>{"Reordering is paused while a well is on the Bench"};
     },
     [](OnBench& on) {
         on.mix(2, 3);
         on.activate(1);
     }},
    {"Return",
     [](OnBench& on) {
         return child<WellEditor>(on.window)->isAncestorOf(QApplication::focusWidget());
     },
     mixFirst},
    {"Return, Esc", [](OnBench& on) { return on.canvas.hasFocus() && on.isWellActive(); },
     mixFirst},
    {"Ctrl+Return",
     [](OnBench& on) {
         return on.active() == 4 && on.bench.benchWells().empty() &&
                on.bench.benchColumns()[4].source.kind == BenchColumn::Kind::derived;
     },
     mixFirst},
    {"B", [](OnBench& on) { return on.bench.benchColumns().size() == 3 && on.active() == 1; }},
    {"Del", [](OnBench& on) { return on.bench.benchColumns().size() == 3; }},
    {"Backspace",
     [](OnBench& on) {
         return on.bench.benchWells().empty() && on.bench.benchColumns().size() == 4;
     },
     mixFirst},
    {"K", [](OnBench& on) { return on.desk.models.contrast().held(Desk::colour(1)) != nullptr; }},
    {"Shift+K", [](OnBench& on) { return on.desk.models.contrast().text() != nullptr; }},
    {"Ctrl+K", [](OnBench& on) { return on.desk.models.contrast().ground() != nullptr; }},
    {"Ctrl+C", [](OnBench& on) { return on.copied() == "#439701"; }},
    {"1", [](OnBench& on) { return on.copied() == "rgb(67, 151, 1)"; }},
    {"V", [](OnBench& on) { return on.bench.vision.value() == Vision::protanopia; }},
    {"Shift+V", [](OnBench& on) { return on.bench.vision.value() == Vision::typical; },
     [](OnBench& on) { on.bench.vision = Vision::tritanopia; }},
    {"Ctrl+V", [](OnBench& on) { return on.bench.benchColumns().size() == 6 && on.active() == 5; },
     [](OnBench& on) { on.desk.desktop.clipboard.held.text = "#123456\n#654321\n#ffffff"; }},
    {"Ctrl+V",
     [](OnBench& on) {
         return on.desk.notices() ==
                std::vector<std::string>{"Nothing there that reads as a colour"};
     },
     [](OnBench& on) { on.desk.desktop.clipboard.held.text = "no colour"; }},
    {"Ctrl+Z", [](OnBench& on) { return on.bench.benchColumns().size() == 4; },
     [](OnBench& on) { on.bench.removeBenchColumn(Uuid(on.id(0))); }},
    {"Ctrl+Shift+Del", [](OnBench& on) { return on.desk.desktop.dialogues.questions.size() == 1; }},
    {"Ctrl+Shift+V", [](OnBench& on) { return visible(on.window, "Put on the Bench") != nullptr; }},
    {"Ctrl+T",
     [](OnBench& on) { return on.desk.windows.taken() == std::vector<std::string>{"contrast"}; }},
    {"F2",
     [](OnBench&) { return qobject_cast<QLineEdit*>(QApplication::focusWidget()) != nullptr; }},
    {"Ctrl+W",
     [](OnBench& on) { return !on.window.isVisible() && !on.bench.isWindowOpen.value(); }},
};

class BenchKeys : public testing::TestWithParam<BenchKey> {};

TEST_P(BenchKeys, DoWhatTheySay) {
    OnBench on;
    GetParam().before(on);
    for (const auto& key :
         QString::fromLatin1(GetParam().keys).split(QStringLiteral(", "), Qt::SkipEmptyParts))
        press(qPrintable(key));
    EXPECT_TRUE(GetParam().did(on));
}

INSTANTIATE_TEST_SUITE_P(Window, BenchKeys, testing::ValuesIn(kBenchKeys));

TEST(BenchWindowTest, TakesWhatTheDragMatrixSays) {
    using Kind = BenchColumn::Kind;
    struct Row {
        const char* what;
        Drag drag;
        std::optional<Kind> kind; ///< none for a refusal
        const char* notice;
    };
    OnBench on;
    const auto& third = on.state.swatches()[2];
    const PaletteOrigin origin{std::nullopt, on.state.id(), third.id, 2};
    auto& other = on.desk.another();
    other.addToPalette({0, 0.5, 0.5, 1}, AppState::Duplicates::refuse);
    const auto& theirs = other.swatches()[0];
    on.desk.notices();
    const Row rows[] = {
        {"a swatch is linked",
         {third.color, {}, DragOfSwatch{origin}},
         Kind::paletteSwatch,
         "Added "},
        {"of another palette",
         {theirs.color, {}, DragOfSwatch{{std::nullopt, other.id(), theirs.id, 0}}},
         Kind::paletteSwatch,
         "Added "},
        {"again",
         {theirs.color, {}, DragOfContrastEntry{theirs.id}},
         std::nullopt,
         "#008080 is already on the Bench, from another window"},
        {"a seed is copied", {{1, 1, 0, 1}, {}, DragOfSeed{}}, Kind::staged, "Added "},
        {"a band is copied", {{0, 1, 0, 1}, {}, DragOfBand{}}, Kind::staged, "a copy"},
        {"a well is mixed here", {{0, 0, 1, 1}, {}, DragOfWell{}}, Kind::derived, "Added "},
        {"of Contrast", {{0, 1, 1, 1}, {}, DragOfContrastEntry{}}, Kind::staged, "Added "},
        {"of the Library", {{1, 0, 1, 1}, {}, DragOfLibrarySwatch{}}, Kind::staged, "Added "},
        {"translucent",
         {{0.5, 0, 1, 0.5}, {}, DragOfForeignColour{}},
         Kind::staged,
         "Sent to Bench as opaque"},
        {"there already",
         {{1, 1, 1, 1}, {}, DragOfBand{}},
         std::nullopt,
         "#FFFFFF is already on the Bench, staged"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        const auto before = on.bench.benchColumns().size();
        const auto data = mimeOf(row.drag, QStringLiteral("code"));
        const auto dropped =
            drop(on.canvas, on.middle(BenchCanvas::column, 1) - QPointF(20, 0), *data);
        EXPECT_EQ(dropped.taken, row.kind.has_value());
        EXPECT_THAT(on.desk.notices(), ElementsAre(HasSubstr(row.notice)));
        ASSERT_THAT(on.bench.benchColumns(), SizeIs(before + (row.kind ? 1 : 0)));
        if (row.kind) {
            EXPECT_EQ(on.bench.benchColumns()[1].source.kind, *row.kind) << "before the column";
            EXPECT_EQ(on.active(), 1U);
        }
    }
    QMimeData text, file, picture;
    picture.setImageData(QImage(2, 2, QImage::Format_RGB32));
    EXPECT_FALSE(drop(on.canvas, {5, 5}, picture).entered);
    text.setText(QStringLiteral("#101010\n#202020"));
    EXPECT_TRUE(drop(on.canvas, {5, 5}, text).taken);
    EXPECT_THAT(on.desk.notices(), ElementsAre("Added 2 to the Bench"));
    file.setUrls({QUrl::fromLocalFile(QStringLiteral("/a.gpl"))});
    EXPECT_FALSE(drop(on.canvas, {5, 5}, file).entered);
}

TEST(BenchWindowTest, MovesItsColumnsUnlessAWellIsThere) {
    OnBench on;
    const auto data = mimeOf({Desk::colour(1), {}, DragOfBenchColumn{on.id(1)}}, {});
    const auto end = [&] { return on.middle(BenchCanvas::column, 3) + QPointF(40, 0); };
    EXPECT_TRUE(drop(on.canvas, end(), *data).taken);
    EXPECT_EQ(on.bench.benchColumns()[3].color, Desk::colour(1));
    on.mix(0, 1);
    EXPECT_FALSE(drop(on.canvas, on.middle(BenchCanvas::column, 0), *data).taken);
    EXPECT_EQ(on.bench.benchColumns()[3].color, Desk::colour(1));
    EXPECT_THAT(on.desk.notices(),
                ElementsAre("Reordering is paused while a well is on the Bench"));
    EXPECT_TRUE(accessible(on.window, "Facts")
                    ->text(QAccessible::Description)
                    .contains(u"Reordering is paused"));
}

TEST(BenchWindowTest, IsWorkedWithTheMouse) {
    OnBench on;
    click(on.canvas, on.middle(BenchCanvas::mix, 0));
    ASSERT_THAT(on.bench.benchWells(), SizeIs(1));
    EXPECT_TRUE(on.isWellActive());
    auto* editor = child<WellEditor>(on.window);
    EXPECT_TRUE(editor->isVisible());
    grab(on.window, "bench-well");
    auto& ramp = *child<RampStrip>(on.window);
    click(ramp, ramp.items()[3].rect.center());
    EXPECT_NEAR(on.bench.benchWells()[0].ratio, 0.3, 1e-9);
    auto* ratio = accessible(*editor, "Ratio");
    ASSERT_TRUE(ratio && ratio->valueInterface());
    ratio->valueInterface()->setCurrentValue(62);
    EXPECT_NEAR(on.bench.benchWells()[0].ratio, 0.62, 1e-9);
    auto& keep = *qobject_cast<QWidget*>(accessible(*editor, "Keep the Mix as a Colour")->object());
    click(keep, QRectF(keep.rect()).center());
    EXPECT_EQ(on.active(), 4U);
    EXPECT_FALSE(editor->isVisible());
    const auto column = on.canvas.items()[2].rect;
    click(on.canvas, column.bottomLeft() + QPointF(20, -20));
    EXPECT_EQ(on.copied(), "#ff8000") << "a click on the code copies";
    click(on.canvas, column.bottomLeft() + QPointF(20, -38));
    auto* field = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    ASSERT_TRUE(field) << "on the name of the active one";
    field->setText(QStringLiteral("Amber"));
    press("Return");
    EXPECT_EQ(on.bench.name(on.bench.benchColumns()[2]), "Amber");
    EXPECT_TRUE(on.canvas.hasFocus());
}

TEST(BenchWindowTest, AWellIsWorkedThoughItMovesWhenItIsPressed) {
    OnBench on;
    on.mix(0, 1);
    const auto apart = [&] {
        on.activate(3);
        QCoreApplication::processEvents();
        return on.middle(BenchCanvas::well, 0).toPoint();
    };
    const auto at = apart();
    QTest::mousePress(&on.canvas, Qt::RightButton, {}, at);
    QCoreApplication::processEvents();
    ASSERT_NE(on.middle(BenchCanvas::well, 0).toPoint(), at) << "its editor is there now";
    QContextMenuEvent asks(QContextMenuEvent::Mouse, at, on.canvas.mapToGlobal(at));
    QCoreApplication::sendEvent(&on.canvas, &asks);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->actions().front()->text(), QStringLiteral("Keep the Mix as a Colour"));
    menu->close();
    const auto again = apart();
    QTest::mouseClick(&on.canvas, Qt::LeftButton, {}, again);
    QTest::mouseDClick(&on.canvas, Qt::LeftButton, {}, again);
    EXPECT_TRUE(child<WellEditor>(on.window)->isAncestorOf(on.window.focusWidget()));
    QCoreApplication::processEvents();
    click(on.canvas, on.canvas.items()[2].rect.bottomLeft() + QPointF(20, -20));
    EXPECT_EQ(on.copied(), "#ff8000") << "the code of a column, while the editor goes";
}

TEST(BenchWindowTest, FollowsTheSwatchesOfAPalette) {
    OnBench on;
    on.mix(0, 1);
    const auto before = children(on.canvas);
    on.state.replaceInPalette(1, {1, 0, 0, 1});
    on.state.renameSwatch(1, "Sea");
    const auto after = children(on.canvas);
    EXPECT_THAT(after, Contains("Sea, PALETTE; #ff0000; 2 of 4"));
    EXPECT_THAT(after, Contains(HasSubstr("Mix of Black and Sea; 50 to 50, #")));
    EXPECT_NE(before.back(), after.back());
    on.activate(1);
    press("F2");
    qobject_cast<QLineEdit*>(QApplication::focusWidget())->setText(QStringLiteral("Sky"));
    press("Return");
    EXPECT_EQ(on.state.swatches()[1].name, "Sky") << "a linked column is called as its swatch is";
}

TEST(BenchWindowTest, TellsOfWhatIsOnIt) {
    OnBench on;
    on.mix(1, 3);
    EXPECT_THAT(
        children(on.canvas),
        ElementsAre("Black, PALETTE; #000000; 1 of 4", HasSubstr(", PALETTE; #439701; 2 of 4"),
                    "Rust, STAGED; #ff8000; 3 of 4", "White, STAGED; #ffffff; 4 of 4", "; ; ",
                    HasSubstr("Black and "), HasSubstr(" and Rust; "),
                    HasSubstr("Rust and White; 2."), HasSubstr("Mix Black with "),
                    HasSubstr(" with Rust"), "Mix Rust with White; ; ", HasSubstr("Mix of ")));
    auto* list = QAccessible::queryAccessibleInterface(&on.canvas);
    EXPECT_EQ(list->role(), QAccessible::List);
    EXPECT_EQ(list->child(5)->role(), QAccessible::StaticText);
    EXPECT_TRUE(list->child(list->childCount() - 1)->state().selected);
    EXPECT_TRUE(
        accessible(on.window, "Tools")->text(QAccessible::Description).contains(u"4 colours"));
}

/// What a widget repaints.
class Repainted final : public QObject {
public:
    explicit Repainted(QWidget& of) { of.installEventFilter(this); }
    QRegion region;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) region += static_cast<QPaintEvent*>(event)->region();
        return false;
    }
};

TEST(BenchWindowTest, RepaintsOnlyTheWellWhoseAmountsChange) {
    OnBench on;
    on.mix(0, 1);
    QCoreApplication::processEvents();
    Repainted seen(on.canvas);
    on.bench.updateWell(Uuid(on.bench.benchWells()[0].id), Bench::WellField::ratio, 0.7);
    QCoreApplication::processEvents();
    const auto disc = on.canvas.items().back().rect.toAlignedRect().adjusted(-8, -8, 8, 8);
    ASSERT_FALSE(seen.region.isEmpty());
    EXPECT_TRUE(disc.contains(seen.region.boundingRect()));
}

TEST(BenchWindowTest, AsksBeforeItIsCleared) {
    OnBench on;
    on.mix(0, 1);
    on.desk.desktop.dialogues.buttons = {"Cancel", "Clear"};
    press("Ctrl+Shift+Del");
    on.desk.settle();
    EXPECT_THAT(on.bench.benchColumns(), SizeIs(4));
    press("Ctrl+Shift+Del");
    on.desk.settle();
    EXPECT_THAT(on.bench.benchColumns(), IsEmpty());
    grab(on.window, "bench-empty");
    EXPECT_TRUE(accessible(on.canvas, "Lay colours side by side"));
    press("Ctrl+Z");
    EXPECT_THAT(on.bench.benchWells(), SizeIs(1));
    EXPECT_THAT(on.desk.notices(), Contains("Undid clearing the Bench"));
    const auto& questions = on.desk.desktop.dialogues.questions;
    ASSERT_THAT(questions, SizeIs(2));
    EXPECT_EQ(questions[0].title, "Clear the Bench?");
}

TEST(BenchWindowTest, StandsManyColours) {
    OnBench on({560, 400});
    for (std::size_t i = 10; i < 60; ++i)
        on.bench.addStagedToBench(on.bench.stagedColumn(Desk::colour(i), std::nullopt));
    QCoreApplication::processEvents();
    EXPECT_GT(on.canvas.width(), on.window.width()) << "it scrolls";
    press("End");
    EXPECT_EQ(on.active(), on.bench.benchColumns().size() - 1);
    const auto shown = on.canvas.visibleRegion().boundingRect();
    EXPECT_TRUE(shown.contains(on.middle(BenchCanvas::column, on.active()).toPoint()));
    grab(on.window, "bench-many");
}

} // namespace
} // namespace tintra::test
