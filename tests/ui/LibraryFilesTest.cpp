// What is done with the Library's files and folders.

#include "tests/ui/LibraryWindowTest.h"

#include <QMimeData>
#include <QUrl>

namespace tintra::test {
namespace {

namespace fs = std::filesystem;

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

} // namespace
} // namespace tintra::test
