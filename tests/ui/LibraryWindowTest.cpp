#include "tests/ui/LibraryWindowTest.h"

#include "ui/library/LibraryWords.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/Controls.h"

namespace tintra::test {
namespace {

TEST_F(LibraryWindowTest, WalksAndFoldsATreeWithTheArrows) {
    show();
    const Lines whole{"Studio: 3 palettes", " Café",  " Evening", " Harbour",
                      "Client: 1 palette",  " Museum"};
    EXPECT_EQ(rows(), whole);
    struct {
        const char *keys, *current;
        Lines rows;
    } const steps[] = {
        {"Home", "Studio", whole},
        {"Down", "Café", whole},
        {"Down", "Evening", whole},
        {"Right",
         "Evening",
         {"Studio: 3 palettes", " Café", " +Evening", " Harbour", "Client: 1 palette", " Museum"}},
        {"Right", "Moss", {}},
        {"Right", "Rust", {}},
        {"Down", "Open in New Window", {}},
        {"Down", "Harbour", {}},
        {"Up", "Evening", {}},
        {"Left", "Evening", whole},
        {"Left", "Studio", whole},
        {"Left", "Studio", {"-Studio: 3 palettes", "Client: 1 palette", " Museum"}},
        {"End", "Museum", {}},
        {"Home", "Studio", {}},
        {"Right", "Studio", whole},
        {"Right", "Café", whole},
        {"PgDown", "Museum", whole},
    };
    for (const auto& [keys, name, lines] : steps) {
        SCOPED_TRACE(std::string(keys) + " to " + name);
        press(keys);
        const auto shown = rows();
        EXPECT_EQ(current(), name);
        if (!lines.empty()) {
            EXPECT_EQ(shown, lines);
        }
    }
}

TEST_F(LibraryWindowTest, FindsByNameSwatchAndColour) {
    show();
    using enum ColourMatch;
    struct {
        const char* text;
        ColourMatch match;
        Lines rows;
        const char *code, *distance; ///< of the first palette's highlighted swatch
    } const cases[] = {
        {"cafe", close, {"Studio: 1 of 3", " Café"}, nullptr, nullptr},
        {"brick",
         close,
         {"Studio: 1 of 3", " Harbour", "Client: 1 of 1", " Museum"},
         "#c2452d",
         ""},
        {"#c2452d", exact, {"Studio: 2 of 3", " Evening", " Harbour"}, "#c4472f", "ΔE 0.7"},
        {"194, 69, 45", close, {"Studio: 2 of 3", " Evening", " Harbour"}, "#c4472f", "ΔE 0.7"},
        {"#c2452d",
         hue,
         {"Studio: 3 of 3", " Café", " Evening", " Harbour", "Client: 1 of 1", " Museum"},
         nullptr,
         nullptr},
        {"",
         hue,
         {"Studio: 3 palettes", " Café", " Evening", " Harbour", "Client: 1 palette", " Museum"},
         nullptr,
         nullptr},
    };
    for (const auto& [text, match, lines, code, distance] : cases) {
        SCOPED_TRACE(text);
        preferences.libraryMatch = match;
        EXPECT_EQ(find(text), lines);
        if (!code) continue;
        const auto why = matchOf(window.model(), 0);
        ASSERT_NE(why.swatch, nullptr);
        EXPECT_EQ(toUtf8(swatchCode(desk.ui, *why.swatch)), code);
        EXPECT_EQ(toUtf8(why.distance), distance);
    }
    grab(window, "library-search");
}

TEST_F(LibraryWindowTest, OffersTheNextWiderMatchWhenNothingIsFound) {
    show();
    preferences.libraryMatch = ColourMatch::exact;
    find("#c6452d");
    ASSERT_EQ(rows(), Lines{});
    EXPECT_NE(accessible(window, "Nothing holds #c6452d"), nullptr);
    grab(window, "library-nothing");
    ASSERT_NE(accessible(window, "Look by Close"), nullptr);
    click(canvas(), rectOf("Look by Close").center());
    EXPECT_EQ(preferences.libraryMatch.value(), ColourMatch::close);
    EXPECT_EQ(rows(), (Lines{"Studio: 2 of 3", " Evening", " Harbour"}));
    find("no such words");
    EXPECT_NE(accessible(window, "Nothing is called “no such words”"), nullptr);
}

TEST_F(LibraryWindowTest, FoldsOfASearchAreNotKept) {
    show();
    preferences.libraryCollapsed = {window.model().listing().content->groups[0].key};
    const Lines folded{"-Studio: 3 palettes", "Client: 1 palette", " Museum"};
    EXPECT_EQ(rows(), folded);
    EXPECT_EQ(find("harbour"), (Lines{"Studio: 1 of 3", " Harbour"}));
    canvas().setFocus();
    press("Left");
    press("Left");
    EXPECT_EQ(rows(), Lines{"-Studio: 1 of 3"});
    EXPECT_EQ(find(""), folded);
    EXPECT_EQ(find("harbour"), (Lines{"Studio: 1 of 3", " Harbour"}));
}

TEST_F(LibraryWindowTest, SortsWithinGroups) {
    show();
    const struct {
        bool byName, byDate, ascending;
        Lines rows;
    } cases[] = {{true, false, true, {" Café", " Evening", " Harbour"}},
                 {true, false, false, {" Harbour", " Evening", " Café"}},
                 {false, false, true, {" Harbour", " Evening", " Café"}},
                 {false, false, false, {" Café", " Evening", " Harbour"}},
                 {true, true, true, {" Harbour", " Café", " Evening"}},
                 {true, true, false, {" Evening", " Café", " Harbour"}}};
    for (const auto& [byName, byDate, ascending, names] : cases) {
        preferences.librarySortByName = byName;
        preferences.librarySortByDate = byDate;
        preferences.librarySortAscending = ascending;
        const auto all = rows();
        EXPECT_EQ(Lines(all.begin() + 1, all.begin() + 4), names);
    }
}

TEST_F(LibraryWindowTest, EnterOpensThePaletteHereAndAltEnterInANewWindow) {
    show();
    find("moss");
    field().setFocus();
    press("Return");
    desk.settle();
    EXPECT_EQ(desk.state().currentPaletteURL(), desk.folder / "Studio/Evening.gpl");
    EXPECT_EQ(desk.windows.taken(), Lines{"open palette"});
    press("Alt+Return");
    desk.settle();
    const auto& order = desk.models.workspaces().order().value();
    ASSERT_EQ(order.size(), 2U);
    EXPECT_EQ(desk.models.workspaces().state(order[1])->swatches().size(), 3U);
    // Double click, on another palette while this one has unsaved changes.
    desk.state().addToPalette({0, 0, 1, 1}, AppState::Duplicates::refuse);
    find("");
    desk.models.workspaces().becameKey(desk.state().id());
    desk.desktop.dialogues.buttons = {"Cancel"};
    QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, rectOf("Harbour").center().toPoint());
    desk.settle();
    ASSERT_FALSE(desk.desktop.dialogues.questions.empty());
    EXPECT_EQ(desk.state().currentPaletteURL(), desk.folder / "Studio/Evening.gpl");
}

TEST_F(LibraryWindowTest, SwatchesGoToPaletteBenchContrastAndClipboard) {
    show();
    click(canvas(), rectOf("Harbour").center());
    press("Right");
    press("Right");
    ASSERT_EQ(current(), "Brick");
    press("Ctrl+C");
    EXPECT_EQ(desk.desktop.clipboard.held.text, "#c2452d");
    for (const auto* key : {"A", "B", "K"})
        press(key);
    ASSERT_EQ(desk.state().swatches().size(), 1U);
    EXPECT_EQ(desk.state().swatchName(0), "Brick");
    EXPECT_EQ(desk.models.bench().content().value().columns.size(), 1U);
    EXPECT_NE(desk.models.contrast().held(desk.state().swatches()[0].color), nullptr);
}

TEST_F(LibraryWindowTest, IsATreeToScreenReaders) {
    show();
    auto* tree = QAccessible::queryAccessibleInterface(&canvas());
    EXPECT_EQ(tree->role(), QAccessible::Tree);
    const auto* group = accessible(window, "Studio");
    EXPECT_EQ(group->role(), QAccessible::TreeItem);
    EXPECT_TRUE(group->state().expanded);
    const auto* palette = accessible(window, "Harbour");
    EXPECT_EQ(palette->role(), QAccessible::TreeItem);
    EXPECT_TRUE(palette->state().expandable && palette->state().collapsed);
    EXPECT_TRUE(palette->text(QAccessible::Value).startsWith(QStringLiteral("2 · .gpl, ")));
    EXPECT_TRUE(palette->text(QAccessible::Description).endsWith(QStringLiteral(", 3 of 3")));
    find("#c2452d");
    EXPECT_TRUE(accessible(window, "Harbour")
                    ->text(QAccessible::Value)
                    .endsWith(QStringLiteral("Brick, #c2452d, ΔE 0.0")));
}

TEST_F(LibraryWindowTest, AnswersEverySizeAndBothDisplays) {
    desk.gpl("Studio/Many.gpl", 300, "Tone");
    desk.gpl("Studio/" + std::string(200, 'n') + ".gpl", 2, "ש");
    desk.models.rescanPalettes();
    show();
    for (const auto& palette : window.model().listing().content->palettes)
        window.model().unfold(palette, true);
    for (const auto* text : {"", "#c2452d", "tone"})
        for (const bool tiles : {false, true})
            for (const QSize size : {QSize(520, 360), QSize(960, 680), QSize(2600, 1600)}) {
                find(text);
                preferences.libraryTiles = tiles;
                open(window, size);
                grab(window, std::string("library-") + (tiles ? "tiles-" : "rows-") +
                                 std::to_string(size.width()) + (*text == '#' ? "-colour" : text));
                for (const auto& item : canvas().items()) {
                    EXPECT_GE(item.rect.left(), 0) << toUtf8(item.name);
                    EXPECT_LE(item.rect.right(), size.width()) << toUtf8(item.name);
                }
                press("End");
                press("Home");
            }
    EXPECT_EQ(current(), "Studio");
}

TEST_F(LibraryWindowTest, HoldsNoMoreItemsThanAreInView) {
    for (int i = 0; i < 2000; ++i)
        desk.gpl("Client/Palette " + std::to_string(i) + ".gpl", 2, "Tone");
    desk.models.rescanPalettes();
    show();
    EXPECT_LT(canvas().items().size(), 30U);
    press("End");
    EXPECT_EQ(current(), "Palette 1999");
    EXPECT_TRUE(canvas().rect().contains(rectOf("Palette 1999").toRect()));
    QWheelEvent up({100, 100}, canvas().mapToGlobal(QPointF(100, 100)), {0, 0}, {0, 120'000},
                   Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(&canvas(), &up);
    EXPECT_EQ(current(), "Palette 1999") << "the focus stays out of view";
    press("Up");
    EXPECT_EQ(current(), "Palette 1998");
    EXPECT_TRUE(canvas().rect().contains(rectOf("Palette 1998").toRect()));
}

TEST_F(LibraryWindowTest, FindInLibraryGoesToTheField) {
    show();
    preferences.libraryFindRequested = true;
    EXPECT_TRUE(field().hasFocus());
    EXPECT_FALSE(preferences.libraryFindRequested.value());
    QTest::keyClicks(&field(), QStringLiteral("museum"));
    desk.settle();
    press("Down");
    EXPECT_EQ(current(), "Museum");
    EXPECT_TRUE(canvas().hasFocus());
    press("Ctrl+2");
    EXPECT_TRUE(preferences.libraryTiles.value());
}

TEST_F(LibraryWindowTest, ADraggedPaletteOpensWhereItFalls) {
    show();
    const auto data = mimeOfListed(desk.ui, window.model().listing().paletteAt(1));
    ASSERT_NE(data, nullptr);
    PaletteWindow onto(desk.ui, desk.state());
    open(onto);
    EXPECT_TRUE(drop(onto, onto.rect().center(), *data).taken);
    desk.settle();
    EXPECT_EQ(desk.state().currentPaletteURL(), desk.folder / "Studio/Evening.gpl");
}

} // namespace
} // namespace tintra::test
