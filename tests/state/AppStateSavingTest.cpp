#include "tests/state/FilesDesk.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

namespace fs = std::filesystem;

struct SavingDesk : FilesDesk {
    void save(AppState& state) {
        state.savePalette([this](bool saved) { done.push_back(saved); });
        settle();
    }
    std::vector<bool> done;
};

TEST(AppStateSaving, KeepsTheWindowOnFilesThatCanBeReadAgain) {
    SavingDesk desk;
    for (const auto format : allExportFormats()) {
        auto& state = desk.another();
        FilesDesk::add(state, 1);
        const auto name = "Blues." + std::string(fileExtension(format));
        state.saveAs(desk.folder / name, format);
        desk.settle();
        const bool readable = FilesDesk::count(desk.folder / name) == 1;
        EXPECT_TRUE(fs::exists(desk.folder / name));
        EXPECT_EQ(state.currentPaletteURL().has_value(), readable) << name;
        EXPECT_EQ(state.paletteIsDirty().value(), !readable) << name;
        EXPECT_EQ(desk.models.preferences().lastExport.value(), format);
        EXPECT_EQ(desk.notices(), Texts{(readable ? "Saved " : "Exported ") + name});
        if (!readable) continue;
        FilesDesk::add(state, 0.5);
        desk.save(state);
        EXPECT_EQ(FilesDesk::count(desk.folder / name), 2U) << name;
        desk.notices();
    }
    EXPECT_EQ(desk.questions(), 0U);
}

TEST(AppStateSaving, AsksWhenTheFileChangedOnDisk) {
    SavingDesk desk;
    const auto file = desk.gpl("Reds.gpl", 3);
    auto& state = desk.opened(desk.window(), file);
    FilesDesk::add(state, 1);
    desk.gpl("Reds.gpl", 5);
    desk.save(state);
    desk.answer("Save As…");
    desk.desktop.dialogues.saves = {{desk.folder / "Mine.ase", "ase"}};
    desk.save(state);
    EXPECT_EQ(desk.desktop.dialogues.saveQuestions.back().format, "gpl");
    EXPECT_EQ(state.title(), "Mine");
    EXPECT_EQ(FilesDesk::count(file), 5U);
    desk.opened(state, file);
    desk.gpl("Reds.gpl", 7);
    FilesDesk::add(state, 1);
    desk.answer("Replace");
    desk.save(state);
    EXPECT_EQ(FilesDesk::count(file), 6U);
    desk.save(state);
    EXPECT_EQ(desk.done, (std::vector{false, true, true, true}));
    EXPECT_EQ(desk.questions(), 3U) << "its own save is no change";
}

TEST(AppStateSaving, KeepsEverythingWhenItFails) {
    SavingDesk desk;
    fs::create_directory(desk.folder / "inner");
    auto& state = desk.opened(desk.window(), desk.gpl("inner/Reds.gpl", 3));
    FilesDesk::add(state, 1);
    fs::rename(desk.folder / "inner", desk.folder / "away");
    desk.save(state);
    state.saveAs(desk.folder / "away", ExportFormat::ase);
    desk.settle();
    EXPECT_EQ(desk.notices(), (Texts{"Reds.gpl could not be saved: No such file or directory",
                                     "away could not be saved: Is a directory"}));
    EXPECT_TRUE(state.paletteIsDirty().value());
    EXPECT_EQ(state.title(), "Reds");
    EXPECT_EQ(FilesDesk::count(desk.folder / "away/Reds.gpl"), 3U);
    state.saveAs();
    state.emptyPalette();
    desk.save(state);
    EXPECT_EQ(desk.notices(), (Texts{"Saving was cancelled.", "There are no swatches to save."}));
    EXPECT_EQ(desk.done, (std::vector{false, false}));
}

TEST(AppStateSaving, AsksAboutAlphaOnceAndBeforeWriting) {
    SavingDesk desk;
    const auto file = desk.gpl("Reds.gpl", 1);
    auto& state = desk.opened(desk.window(), file);
    FilesDesk::add(state, 1, 0.5);
    state.renameSwatch(1, "Glass");
    desk.save(state);
    EXPECT_EQ(desk.question().title, "Save changes to Reds?");
    EXPECT_EQ(desk.question().text, "GPL holds no alpha: Glass will be saved opaque. Save As… a "
                                    "colour list keeps it.");
    EXPECT_EQ(desk.question().buttons, (Texts{"Save", "Save As…", "Cancel"}));
    EXPECT_EQ(FilesDesk::count(file), 1U);
    desk.answer("Save");
    state.newPalette();
    desk.settle();
    EXPECT_EQ(desk.question().text, "Reds.gpl holds no alpha: 1 will be saved opaque. Save As… a "
                                    "colour list keeps it.");
    EXPECT_EQ(desk.questions(), 2U) << "the answer stands for the save that follows";
    EXPECT_TRUE(state.swatches().empty());
    EXPECT_EQ(FilesDesk::count(file), 2U);
}

TEST(AppStateSaving, LeavesSwatchesEditedMeanwhileDirty) {
    SavingDesk desk;
    const auto file = desk.gpl("Reds.gpl", 1);
    auto& state = desk.opened(desk.window(), file);
    FilesDesk::add(state, 1);
    desk.desktop.background.holds = true;
    desk.save(state);
    FilesDesk::add(state, 0.5);
    desk.save(state);
    desk.desktop.background.finish();
    desk.settle();
    EXPECT_TRUE(state.paletteIsDirty().value());
    EXPECT_EQ(FilesDesk::count(file), 2U);
    desk.desktop.background.finish();
    desk.settle();
    EXPECT_FALSE(state.paletteIsDirty().value());
    EXPECT_EQ(FilesDesk::count(file), 3U);
    EXPECT_EQ(desk.questions(), 0U) << "its own first save is no other window's";

    state.saveAs(desk.folder / "Blue.ase", ExportFormat::ase);
    state.newPalette();
    desk.desktop.background.finish();
    desk.settle();
    EXPECT_TRUE(fs::exists(desk.folder / "Blue.ase"));
    EXPECT_EQ(state.title(), state.untitledName()) << "another palette is shown by then";
}

TEST(AppStateSaving, SavesBeforeGoingOn) {
    SavingDesk desk;
    const auto ask = [&] {
        desk.window().confirmDiscardingChanges("quitting",
                                               [&](bool on) { desk.done.push_back(on); });
        desk.settle();
    };
    ask();
    FilesDesk::add(desk.window(), 1);
    ask();
    EXPECT_EQ(desk.question().title, "Save changes to this palette?");
    EXPECT_EQ(desk.question().text, "The palette has 1 swatch that is not saved to a file. It will "
                                    "be lost by quitting.");
    desk.answer("Save");
    ask();
    desk.desktop.dialogues.buttons = {"Save", "Discard"};
    desk.desktop.dialogues.saves = {{desk.folder / "x.json", "json"},
                                    {desk.folder / "x.ase", "ase"}};
    ask();
    EXPECT_EQ(desk.questions(), 4U) << "an export saves nothing, so it is asked again";
    desk.answer("Save");
    ask();
    EXPECT_EQ(desk.done, (std::vector{true, false, false, true, true}));
    EXPECT_FALSE(desk.window().paletteIsDirty().value());
}

TEST(AppStateSaving, KeepsInTheColourPickerWhatCannotBeWrittenBack) {
    SavingDesk desk;
    auto& state = desk.window();
    // Photoshop swatches, version 1: one RGB colour.
    const std::string aco("\0\1\0\1\0\0\xff\xff\0\0\0\0\0\0", 14);
    desk.opened(state, desk.folder.write("Old.aco", aco));
    FilesDesk::add(state, 1);
    desk.answer("Save");
    state.newPalette();
    desk.settle();
    EXPECT_NE(desk.question().text.find("saved to the system colour picker."), std::string::npos);
    EXPECT_EQ(FilesDesk::count(desk.folder / "colors/Old.clr"), 2U);
    PaletteStore::Entry crayons;
    crayons.name = "Old";
    crayons.isEditable = false;
    crayons.palette = desk.models.store().cache().keep("crayons", {{{1, 1, 0, 1}, "Lemon"}});
    state.loadPalette(crayons);
    desk.settle();
    desk.answer("Replace");
    desk.save(state);
    EXPECT_EQ(desk.question().text, "A list with that name is already in the colour picker. "
                                    "Replacing it moves the old one to the Trash.");
    FilesDesk::add(state, 1);
    desk.save(state);
    for (const auto* const name : {"colors/Old.clr", "colors/Old.gpl"})
        EXPECT_EQ(FilesDesk::count(desk.folder / name), 2U) << name;

    const std::string css = "/* Brand */\n:root { --ink: #112233; }\np { margin: 0; }\n";
    desk.save(desk.opened(state, desk.folder.write("site.css", css)));
    EXPECT_EQ(desk.folder.content("site.css"), css) << "its rules would be lost";
    desk.save(
        desk.opened(state, desk.folder.write("own.css", "//\n:root {\n  --ink: #111111;\n}\n")));
    EXPECT_EQ(desk.notices(),
              (Texts{"Old can’t be written back · saved to the colour picker",
                     "Old is never written back · saved to the colour picker · the old list is in "
                     "the Trash",
                     "Saved Old to the system colour picker",
                     "site can’t be written back · saved to the colour picker", "Saved own.css"}));
}

TEST(AppStateSaving, InstallsInTheColourPicker) {
    SavingDesk desk;
    auto& state = desk.opened(desk.window(), desk.gpl("Reds.gpl", 2));
    const auto install = [&](std::string name) {
        desk.desktop.dialogues.names = {std::move(name)};
        state.installInColourPicker();
        desk.settle();
    };
    install("Reds");
    EXPECT_EQ(state.currentPaletteURL(), desk.folder / "Reds.gpl") << "it stays with its file";
    desk.answer("Keep Both");
    install("Reds");
    desk.answer("Replace");
    install("Reds");
    install("Reds");
    EXPECT_EQ(
        desk.notices(),
        (Texts{"Saved Reds to the system colour picker", "Saved Reds 2 to the system colour picker",
               "Saved Reds to the system colour picker · the old list is in the Trash"}));
    desk.opened(state, desk.folder / "colors/Reds 2.clr");
    desk.answer("Rename");
    install("Rouge");
    EXPECT_EQ(desk.question().text, "Rename moves the old list to the Trash. Keep Both leaves "
                                    "“Reds 2” in the colour picker as it is.");
    EXPECT_EQ(state.currentPaletteURL(), desk.folder / "colors/Rouge.clr");
    EXPECT_FALSE(fs::exists(desk.folder / "colors/Reds 2.gpl"));
    desk.notices();
    desk.desktop.dialogues.names = {"Reds"};
    state.installFor({"GIMP 2.10", desk.folder.path()});
    EXPECT_EQ(desk.notices(), Texts{}) << "Reds.gpl is there, and the question was cancelled";
}

} // namespace
} // namespace tintra
