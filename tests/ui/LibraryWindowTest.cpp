#include "tests/ui/LibraryDesk.h"
#include "ui/library/LibraryWords.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/Controls.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QMimeData>
#include <QUrl>

namespace tintra::test {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

/// Two folders: three palettes in Studio, one in Client.
class LibraryWindowTest : public testing::Test {
protected:
    LibraryWindowTest() {
        LibraryDesk::date(
            desk.gpl("Studio/Harbour.gpl", {{"194 69 45", "Brick"}, {"20 33 61", "Ink"}}), 3);
        LibraryDesk::date(
            desk.gpl("Studio/Evening.gpl",
                     {{"10 120 60", "Moss"}, {"196 71 47", "Rust"}, {"250 240 230", "Linen"}}),
            1);
        LibraryDesk::date(desk.gpl("Studio/Café.gpl", 12, "Roast"), 2);
        LibraryDesk::date(desk.gpl("Client/Museum.gpl", {{"140 50 30", "Old Brick"}}), 5);
        desk.watch("Studio");
        desk.watch("Client");
    }
    void show(QSize size = {960, 680}) {
        open(window, size);
        desk.settle();
        canvas().setFocus(Qt::TabFocusReason);
    }
    LibraryCanvas& canvas() { return *child<LibraryCanvas>(window); }
    QLineEdit& field() { return *child<QLineEdit>(window); }
    Lines rows() {
        desk.settle();
        return LibraryDesk::rows(window);
    }
    Lines find(const char* text) {
        field().setText(QString::fromUtf8(text));
        return rows();
    }
    std::string current() {
        const auto at = canvas().focused();
        return at < 0 ? "none" : toUtf8(canvas().items()[static_cast<std::size_t>(at)].name);
    }
    QRectF rectOf(const char* name) {
        for (const auto& item : canvas().items())
            if (item.name == QString::fromUtf8(name)) return item.rect;
        ADD_FAILURE() << name << " is not in view";
        return {};
    }
    /// Chooses of the menu that is open.
    void choose(const char* text) {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr) << text;
        for (auto* one : menu->actions())
            if (one->text() == QString::fromUtf8(text)) one->trigger();
        menu->close();
        desk.settle();
    }

    LibraryDesk desk;
    Preferences& preferences = desk.models.preferences();
    LibraryWindow window{desk.ui};
};

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

TEST_F(LibraryWindowTest, DuplicatesTrashesRevealsAndInstalls) {
    show();
    click(canvas(), rectOf("Harbour").center());
    desk.desktop.dialogues.names = {"Evening", "Harbour 2"};
    press("Ctrl+D");
    EXPECT_EQ(desk.desktop.dialogues.refusal, "“Evening” is already there. Choose another name.");
    press("Ctrl+D");
    desk.settle();
    EXPECT_TRUE(fs::exists(desk.folder / "Studio/Harbour 2.gpl"));
    EXPECT_EQ(current(), "Harbour") << "the focus stays where it was";
    press("Ctrl+R");
    EXPECT_EQ(desk.desktop.fileBrowser.revealed,
              std::vector<fs::path>{desk.folder / "Studio/Harbour.gpl"});
    desk.notices();
    press("Ctrl+Backspace");
    desk.settle();
    EXPECT_FALSE(fs::exists(desk.folder / "Studio/Harbour.gpl"));
    EXPECT_EQ(current(), "Harbour 2") << "the next one takes its place";
    ASSERT_EQ(desk.desktop.toasts.shown.size(), 1U);
    EXPECT_EQ(desk.desktop.toasts.shown[0].window, window.place());
    desk.desktop.toasts.shown[0].action->perform();
    EXPECT_EQ(rows()[3], " Harbour");
    EXPECT_EQ(current(), "Harbour 2");

    desk.notices();
    desk.desktop.dialogues.names = {"Port"};
    perform(ActionId::installListed, window.context());
    desk.settle();
    EXPECT_TRUE(fs::exists(desk.folder / "colors/Port.clr"));
    EXPECT_EQ(desk.notices(), Lines{"Saved Port to the system colour picker"});
    const auto all = rows();
    EXPECT_EQ(Lines(all.end() - 2, all.end()), (Lines{"Colour Picker: 1 palette", " Port"}));
    fs::create_directories(desk.folder / "gimp");
    desk.desktop.dialogues.names = {"Port"};
    window.files().installFor((desk.folder / "Studio/Harbour.gpl").string(),
                              {"GIMP 2.10", desk.folder / "gimp"});
    desk.settle();
    EXPECT_TRUE(fs::exists(desk.folder / "gimp/Port.gpl"));
    fs::remove(desk.folder / "Studio/Café.gpl");
    desk.models.rescanPalettes();
    desk.settle();
    desk.notices();
    window.files().open((desk.folder / "Studio/Café.gpl").string());
    EXPECT_EQ(desk.notices(), Lines{"Café.gpl could not be read"});
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

TEST_F(LibraryWindowTest, AGroupsMenuEditsItsFolder) {
    show();
    const auto more = [&] {
        const auto rect = rectOf(toUtf8(canvas().items().front().name).c_str());
        click(canvas(), {rect.right() - 16, rect.center().y()});
    };
    auto& locations = preferences.paletteLocations;
    desk.desktop.dialogues.names = {"Works", "2026"};
    more();
    choose("Rename…");
    more();
    choose("Tag…");
    EXPECT_EQ(rows()[0], "Works: 3 palettes");
    EXPECT_EQ(locations.value()[0].tag, "2026");
    desk.folder.write("Studio/site.css", ":root { --sky: #88aaff; --sun: #ffcc00; }");
    more();
    choose("Include Stylesheets");
    EXPECT_EQ(rows()[4], " site");
    more();
    choose("Stop Watching");
    EXPECT_EQ(rows(), (Lines{"Client: 1 palette", " Museum"}));
    desk.desktop.dialogues.paths = {desk.folder / "Studio"};
    perform(ActionId::addLocation, window.context());
    EXPECT_EQ(rows()[1], " Museum");
    EXPECT_EQ(rows().size(), 6U);
}

TEST_F(LibraryWindowTest, WatchesFoldersThatAreDroppedOnIt) {
    show();
    desk.gpl("Inks/Sepia.gpl", 2, "Sepia");
    desk.gpl("Papers/Laid.gpl", 2, "Laid");
    const struct {
        Lines dropped, notices;
        std::size_t groups;
    } cases[] = {
        {{"Inks/", "Papers", "Studio/Harbour.gpl"}, {}, 4},
        {{"Inks"}, {"That folder is already being watched"}, 4},
        {{"Studio/Harbour.gpl"}, {"Choose a folder of palette files. Tintra only reads it."}, 4},
        {{"Nowhere"}, {"Nowhere could not be read"}, 4},
    };
    for (const auto& [files, notices, groups] : cases) {
        SCOPED_TRACE(files.front());
        QList<QUrl> urls;
        for (const auto& file : files)
            urls << QUrl::fromLocalFile(QString::fromStdString((desk.folder / file).string()));
        QMimeData data;
        data.setUrls(urls);
        EXPECT_TRUE(drop(window, {200, 200}, data).taken);
        desk.settle();
        EXPECT_EQ(desk.notices(), notices);
        EXPECT_EQ(window.model().listing().sections.size(), groups);
    }
    EXPECT_EQ(rows().back(), " Laid");
    QMimeData colour;
    colour.setColorData(QColor(Qt::red));
    EXPECT_FALSE(drop(window, {200, 200}, colour).entered);
}

TEST_F(LibraryWindowTest, FollowsWatchedFoldersAndKeepsItsPlace) {
    show();
    click(canvas(), rectOf("Evening").center());
    desk.gpl("Studio/Apricot.gpl", 2, "Apricot");
    desk.desktop.folderWatch.change(desk.folder / "Studio");
    desk.desktop.loop.pass(1);
    EXPECT_EQ(rows()[1], " Apricot");
    EXPECT_EQ(current(), "Evening");
    desk.folder.write("Studio/Evening.gpl", "nonsense");
    press("F5");
    desk.settle();
    const auto* item = accessible(window, "Evening");
    ASSERT_NE(item, nullptr);
    EXPECT_EQ(item->text(QAccessible::Value), QStringLiteral("Evening.gpl could not be read"));
    EXPECT_FALSE(perform(ActionId::openListed, window.context()));
    grab(window, "library-unreadable");
}

TEST_F(LibraryWindowTest, TellsWhatIsReadAndWhatIsNotThere) {
    show();
    desk.desktop.background.holds = true;
    desk.gpl("Studio/New.gpl", 3, "New");
    desk.models.rescanPalettes();
    desk.desktop.background.doNext(); // the listing of the first folder
    desk.desktop.loop.pass(0.2);
    desk.desktop.background.holds = false;
    fs::rename(desk.folder / "Client", desk.folder / "Elsewhere");
    press("F5");
    const auto all = rows();
    EXPECT_EQ(Lines(all.end() - 2, all.end()), (Lines{" New", "Client: "}));
    const auto* header = accessible(window, "Client");
    EXPECT_TRUE(header->text(QAccessible::Description).startsWith(QStringLiteral("OFFLINE")));
    grab(window, "library-offline");
    desk.desktop.dialogues.paths = {desk.folder / "Elsewhere"};
    click(canvas(), rectOf("Choose Again…").center());
    EXPECT_EQ(rows().back(), " Museum");

    preferences.paletteLocations = std::vector<PaletteLocation>{};
    EXPECT_EQ(rows(), Lines{});
    EXPECT_NE(accessible(window, "No folders yet."), nullptr);
    grab(window, "library-empty");
    fs::create_directories(desk.folder / "Bare");
    desk.desktop.dialogues.paths = {desk.folder / "Bare"};
    click(canvas(), rectOf("Add a Folder…").center());
    EXPECT_EQ(rows(), Lines{"Bare: "});
    EXPECT_NE(accessible(window, "No palettes found"), nullptr);
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
