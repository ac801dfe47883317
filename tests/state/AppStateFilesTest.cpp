#include "tests/state/FilesDesk.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

using namespace std::string_view_literals;
namespace fs = std::filesystem;

TEST(AppStateFiles, TellsEmptyPalettesFromUnreadableFiles) {
    struct Row {
        std::string_view name, content;
        std::string notice; ///< none for a palette
    };
    const std::vector<Row> rows{
        {"good.gpl", "GIMP Palette\n1 2 3 Ink\n", {}},
        {"header.gpl", "GIMP Palette\n#\n", "header.gpl is empty"},
        {"nothing.clr", "", "nothing.clr is empty"},
        {"plain.css", "p { margin: 0 }", "plain.css is empty"},
        {"none.ase", "ASEF\0\1\0\0\0\0\0\0"sv, "none.ase is empty"},
        {"cut.ase", "ASEF\0\1\0\0\0\0\0\7"sv, "cut.ase could not be read"},
        {"other.gpl", "JASC-PAL\n", "other.gpl could not be read"},
        {"text.txt", "GIMP Palette\n1 2 3\n", "text.txt could not be read"},
    };
    FilesDesk desk;
    for (const auto& row : rows) {
        desk.opened(desk.window(), desk.folder.write(row.name, row.content));
        EXPECT_EQ(desk.notices(), row.notice.empty() ? Texts{} : Texts{row.notice}) << row.name;
    }
    desk.opened(desk.window(), desk.folder / "gone.gpl");
    EXPECT_EQ(desk.notices(), Texts{"gone.gpl could not be read"});
    EXPECT_EQ(desk.window().title(), "good");
    EXPECT_EQ(desk.window().swatchName(0), "Ink");
    desk.window().mode = HarmonyMode::triadic;
    desk.opened(desk.window(), desk.gpl("Reds.gpl", 3));
    EXPECT_EQ(desk.notices(), Texts{"Reds opened in a new window, so this harmony stays"});
    EXPECT_EQ(desk.window().title(), "good");
    EXPECT_EQ(desk.models.workspaces().front()->title(), "Reds");
}

TEST(AppStateFiles, AsksBeforeAnotherPaletteReplacesChanges) {
    FilesDesk desk;
    auto& state = desk.opened(desk.window(), desk.gpl("Reds.gpl", 3));
    FilesDesk::add(state, 1);
    const auto other = desk.gpl("Other.gpl", 300);
    desk.answer("Cancel");
    desk.opened(state, other);
    EXPECT_EQ(desk.question().text, "The palette has 4 swatches that are not saved to Reds.gpl. "
                                    "They will be lost by opening another palette.");
    EXPECT_EQ(desk.question().buttons, (Texts{"Save", "Discard", "Cancel"}));
    EXPECT_EQ(state.title(), "Reds");
    desk.answer("Discard");
    desk.opened(state, other);
    EXPECT_EQ(desk.notices(), Texts{"The palette is full at 256"});
    EXPECT_EQ(state.title(), "Other");
    EXPECT_FALSE(state.currentPaletteURL()) << "what is shown must not replace all 300";
    desk.models.undo().undo(state.place());
    EXPECT_EQ(state.currentPaletteURL(), desk.folder / "Reds.gpl");
    EXPECT_TRUE(state.paletteIsDirty().value());
}

TEST(AppStateFiles, DropsWhatArrivesTooLate) {
    FilesDesk desk;
    auto& state = desk.window();
    auto& closing = desk.another();
    desk.desktop.background.holds = true;
    state.open(desk.gpl("First.gpl", 1));
    state.open(desk.gpl("Second.gpl", 2));
    closing.open(desk.folder / "gone.gpl");
    closing.loadImage(desk.folder / "gone.png");
    desk.models.workspaces().close(closing.id(), [](bool) {});
    desk.settle();
    desk.desktop.background.finish();
    desk.settle();
    EXPECT_EQ(state.title(), "Second");
    EXPECT_FALSE(desk.models.undo().canUndo()) << "the first was never shown";
    EXPECT_EQ(desk.notices(), Texts{});
}

TEST(AppStateFiles, TakesWhatAnotherWindowSaved) {
    FilesDesk desk;
    const auto file = desk.gpl("Reds.gpl", 3);
    auto& saver = desk.opened(desk.window(), file);
    auto& clean = desk.opened(desk.another(), file);
    auto& edited = desk.opened(desk.another(), file);
    FilesDesk::add(edited, 1);
    const auto before = clean.swatches();
    desk.notices();
    saver.moveSwatch(0, 2);
    saver.renameSwatch(2, "Last");
    saver.replaceInPalette(0, {0, 1, 0, 1});
    saver.savePalette();
    desk.settle();
    EXPECT_EQ(desk.notices(), (Texts{"Saved Reds.gpl", "Updated from another window’s save"}));
    EXPECT_EQ(clean.names(), saver.names());
    EXPECT_FALSE(clean.paletteIsDirty().value());
    EXPECT_EQ(clean.swatches()[2].id, before[0].id) << "known again by its colour";
    EXPECT_EQ(clean.swatches()[0].id, before[1].id) << "known again by its name";

    edited.savePalette();
    EXPECT_EQ(desk.question().title,
              "“Reds” was saved from another window after this one loaded it.");
    EXPECT_EQ(desk.question().text,
              "Save As… keeps both palettes. Replace overwrites what that window saved.");
    EXPECT_EQ(desk.question().buttons, (Texts{"Save As…", "Replace", "Cancel"}));
    EXPECT_EQ(edited.swatches().size(), 4U);
}

TEST(AppStateFiles, CopiesRenamesAndTrashesItsFile) {
    FilesDesk desk;
    auto& state = desk.opened(desk.window(), desk.gpl("Reds.gpl", 3));
    state.duplicatePalette("Copy");
    state.duplicatePalette("Copy");
    desk.settle();
    EXPECT_EQ(desk.notices(),
              (Texts{"Duplicated Reds as Copy", "“Copy” is already there. Choose another name."}));
    EXPECT_EQ(desk.folder.content("Copy.gpl"), desk.folder.content("Reds.gpl"));
    desk.desktop.dialogues.names = {"Copy"};
    state.renamePalette();
    EXPECT_EQ(desk.desktop.dialogues.refusal, "“Copy” is already there. Choose another name.");
    desk.desktop.background.holds = true;
    state.renamePalette("Rouge");
    FilesDesk::add(state, 1);
    state.savePalette(); // while the file is on its way to its new name
    desk.desktop.background.holds = false;
    desk.desktop.background.finish();
    desk.settle();
    EXPECT_EQ(desk.notices(), Texts{"Saved Rouge.gpl"}) << "the renamed file is no other file";
    EXPECT_FALSE(fs::exists(desk.folder / "Reds.gpl"));

    state.trashPalette();
    desk.settle();
    EXPECT_FALSE(fs::exists(desk.folder / "Rouge.gpl"));
    EXPECT_EQ(state.title(), state.untitledName());
    EXPECT_EQ(state.swatches().size(), 4U);
    const auto undo = desk.desktop.toasts.shown.back().action.value();
    EXPECT_EQ(desk.notices(), Texts{"Moved Rouge.gpl to the Trash"});
    undo.perform();
    desk.settle();
    EXPECT_EQ(state.currentPaletteURL(), desk.folder / "Rouge.gpl");
    EXPECT_TRUE(fs::remove(desk.folder / "Rouge.gpl"));
    state.trashPalette();
    state.duplicatePalette("Again");
    desk.settle();
    EXPECT_EQ(desk.notices(),
              (Texts{"Rouge.gpl could not be moved to the Trash: No such file or directory",
                     "Could not duplicate Rouge"}));
}

TEST(AppStateFiles, WatchesAFolderOnce) {
    FilesDesk desk;
    fs::create_directory(desk.folder / "Inks");
    fs::create_directory_symlink(desk.folder / "Inks", desk.folder / "link");
    desk.window().addPaletteLocation(desk.folder / "Inks");
    desk.settle();
    desk.window().addPaletteLocation(desk.folder / "link/");
    desk.settle();
    EXPECT_EQ(desk.notices(), Texts{"That folder is already being watched"});
    const auto& locations = desk.models.preferences().paletteLocations;
    ASSERT_EQ(locations.value().size(), 1U);
    desk.desktop.dialogues.paths = {desk.folder / "Moved"};
    desk.window().rechoosePaletteLocation(locations.value()[0].id);
    desk.settle();
    EXPECT_EQ(desk.desktop.dialogues.openQuestions.back().prompt,
              "Choose “Inks” again so Tintra can read it. It only reads.");
    EXPECT_EQ(locations.value()[0].path, desk.folder / "Moved");
}

} // namespace
} // namespace tintra
