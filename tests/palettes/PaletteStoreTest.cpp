#include "palettes/PaletteStore.h"

#include "palettes/FileNames.h"
#include "palettes/PaletteFile.h"
#include "tests/TemporaryFolder.h"
#include "tests/support/FakeDesktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <filesystem>

namespace tintra {
namespace {

namespace fs = std::filesystem;
using State = PaletteEntry::State;
using Clash = PaletteStore::Clash;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kRed = "GIMP Palette\n255 0 0\tRed\n";
constexpr const char* kTwo = "GIMP Palette\n0 0 255\tBlue\n0 128 0\tGreen\n";

class RefusingTrash final : public Trash {
public:
    std::variant<TrashedFile, FileError> trash(const fs::path&) override {
        return FileError{"refused"};
    }
    std::optional<FileError> putBack(const TrashedFile&) override { return std::nullopt; }
};

/// A store over real folders: `watched`, the colour picker's `colors`, and `system`.
class PaletteStoreTest : public testing::Test {
protected:
    PaletteStoreTest() {
        for (const auto* name : {"watched", "other", "system", "GIMP"})
            fs::create_directory(folder / name);
        store.whenChanged([this] { ++told; });
    }

    PaletteLocation location(const std::string& name, unsigned char id = 1) const {
        PaletteLocation made;
        made.id.bytes[0] = id;
        made.path = folder / (name + "/"); // as a person may give it
        return made;
    }
    void watch(std::vector<PaletteLocation> locations, bool system = false) {
        store.setLocations(locations, system);
        desktop.loop.turn();
    }
    /// The folder's watcher tells, and the change settles.
    void touch(const std::string& name) {
        desktop.folderWatch.change(folder / name);
        desktop.loop.pass(1);
    }
    std::vector<std::string> names() const {
        std::vector<std::string> all;
        for (const auto& entry : store.available())
            all.push_back(entry.name);
        return all;
    }
    const PaletteEntry& named(const std::string& name) const {
        for (const auto& entry : store.available())
            if (entry.name == name) return entry;
        throw std::out_of_range(name);
    }
    using Error = std::optional<FileError>;
    using Saved = std::variant<PaletteStore::Saved, FileError>;
    using Trashed = std::variant<TrashedFile, FileError>;
    /// What is told of something that is done beside the main loop.
    template <class Told, class Act>
    Told done(Act act) {
        std::optional<Told> answer;
        act([&](const Told& what) { answer = what; });
        desktop.loop.turn();
        return answer.value();
    }
    PaletteStore::Saved save(const char* name, Clash clash) {
        return std::get<PaletteStore::Saved>(done<Saved>([&](auto then) {
            store.save({{{1, 0, 0, 0.5}}, {}}, name, clash, then);
        }));
    }
    Saved install(PaletteStore& into, Clash clash) {
        return done<Saved>([&](auto then) {
            into.install({{{1, 0, 0, 1}}, {}}, "Brand", {"GIMP", folder / "GIMP"}, clash, then);
        });
    }
    Error duplicate(const char* name, const std::string& as) {
        return done<Error>([&](auto then) { store.duplicate(named(name), as, then); });
    }
    Error rename(const char* name, const std::string& to) {
        return done<Error>([&](auto then) { store.rename(named(name), to, then); });
    }
    Trashed trash(const char* name) {
        return done<Trashed>([&](auto then) { store.trash(named(name), then); });
    }
    Error putBack(const TrashedFile& file) {
        return done<Error>([&](auto then) { store.putBack(file, then); });
    }

    const TemporaryFolder folder;
    FakeDesktop desktop{folder / "trash"};
    PaletteSurroundings surroundings{desktop.loop,
                                     desktop.background,
                                     desktop.folderWatch,
                                     desktop.trash,
                                     folder / "colors",
                                     {folder / "system", folder / "watched"},
                                     {{"GIMP", folder / "GIMP"}, {"Krita", folder / "none"}}};
    PaletteStore store{surroundings};
    int told = 0;
};

TEST_F(PaletteStoreTest, ListsPaletteFilesByLocationAndName) {
    folder.write("watched/Tone 10.gpl", kTwo);
    folder.write("watched/tone 9.GPL", kRed);
    folder.write("watched/Broken.ase", "ASEF");
    folder.write("watched/.hidden.gpl", kRed);
    folder.write("watched/notes.txt", kRed);
    folder.write("watched/vars.css", ":root { --sea: #1e4d6b; }");
    folder.write("other/Other.gpl", kRed);
    folder.write("system/Shared.gpl", kRed);
    fs::create_directory(folder / "watched/folder.gpl");
    fs::create_symlink("circle.gpl", folder / "watched/circle.gpl");
    ASSERT_EQ(::mkfifo((folder / "watched/pipe.gpl").c_str(), 0600), 0);
    auto off = location("system", 3);
    off.isEnabled = false;
    watch({location("other", 2), location("watched"), off}, true);
    EXPECT_THAT(names(),
                ElementsAre("Other", "Broken", "tone 9", "Tone 10", "Shared", "Web Safe Colours"));
    EXPECT_EQ(named("Tone 10").count, 2U);
    EXPECT_EQ(named("Tone 10").location, location("watched").id);
    EXPECT_TRUE(named("Tone 10").isEditable);
    EXPECT_EQ(named("Broken").state, State::unreadable);
    EXPECT_EQ(named("Shared").group, PaletteEntry::Group::system);
    EXPECT_FALSE(named("Shared").isEditable);
    EXPECT_EQ(named("Web Safe Colours").count, 216U);
    EXPECT_EQ(store.entry((folder / "watched/Tone 10.gpl").native()), &named("Tone 10"));
    EXPECT_EQ(store.entry("nothing"), nullptr);
    EXPECT_EQ(store.progress().read, store.progress().found);
}

TEST_F(PaletteStoreTest, ListsStylesheetsWhereAsked) {
    folder.write("watched/vars.css", ":root { --sea: #1e4d6b; }");
    folder.write("watched/vars.min.css", ":root { --sea: #1e4d6b; }");
    folder.write("watched/page.css", "p { color: red; }");
    folder.write("watched/Zoo.gpl", kRed);
    auto sheets = location("watched");
    sheets.includesStylesheets = true;
    watch({sheets});
    EXPECT_THAT(names(), ElementsAre("vars", "Zoo"));
    EXPECT_EQ(sheets.files().size(), 2U);
    const auto page = folder.write("watched/page.css", "$wine: #722f37;");
    fs::last_write_time(page, fs::last_write_time(page) + std::chrono::seconds(1));
    touch("watched");
    EXPECT_THAT(names(), ElementsAre("page", "vars", "Zoo"));
    watch({location("watched")});
    EXPECT_THAT(names(), ElementsAre("Zoo"));
}

TEST_F(PaletteStoreTest, FilesVanishAndChangeWhileTheyAreRead) {
    for (const auto* name : {"Gone", "New", "Same"})
        folder.write("watched/" + std::string(name) + ".gpl", kRed);
    desktop.background.holds = true;
    watch({location("watched")});
    desktop.background.doNext(); // the location is listed
    desktop.background.doNext(); // and the colour picker's folder
    desktop.loop.turn();
    EXPECT_EQ(named("Gone").state, State::loading);
    EXPECT_EQ(store.progress().found, 3U);
    EXPECT_TRUE(store.isScanning());
    fs::remove(folder / "watched/Gone.gpl");
    folder.write("watched/New.gpl", kTwo);
    const int before = told;
    desktop.background.finish();
    EXPECT_EQ(told, before) << "nothing reaches the list outside the main loop";
    desktop.loop.turn();
    EXPECT_THAT(names(), ElementsAre("New", "Same"));
    EXPECT_EQ(named("New").count, 2U);
    EXPECT_FALSE(store.isScanning());
}

TEST_F(PaletteStoreTest, WhatArrivesAfterALaterRescanIsDropped) {
    folder.write("watched/Old.gpl", kRed);
    desktop.background.holds = true;
    watch({location("watched")});
    desktop.background.finish(); // its results are posted
    fs::remove(folder / "watched/Old.gpl");
    const auto generation = store.scanGeneration();
    store.rescan();
    EXPECT_GT(store.scanGeneration(), generation);
    desktop.loop.turn();
    EXPECT_THAT(names(), IsEmpty());
    desktop.background.finish();
    desktop.loop.turn();
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(store.isScanning());
}

TEST_F(PaletteStoreTest, UnchangedFilesAreNotReadAgainAndChangesAreToldOnce) {
    folder.write("watched/Same.gpl", kRed);
    folder.write("watched/Changed.gpl", kRed);
    folder.write("other/Other.gpl", kRed);
    watch({location("watched"), location("other", 2)});
    const auto same = named("Same").palette, changed = named("Changed").palette;
    const auto other = named("Other").palette;
    folder.write("watched/Changed.gpl", kTwo);
    folder.write("other/Other.gpl", kTwo);
    told = 0;
    desktop.folderWatch.change(folder / "watched");
    desktop.folderWatch.change(folder / "watched");
    EXPECT_EQ(named("Changed").palette, changed) << "changes settle first";
    desktop.loop.pass(1);
    EXPECT_EQ(told, 1);
    EXPECT_EQ(named("Same").palette, same);
    EXPECT_NE(named("Changed").palette, changed);
    EXPECT_EQ(named("Changed").count, 2U);
    EXPECT_EQ(named("Other").palette, other) << "only the folder that changed is read";
}

TEST_F(PaletteStoreTest, AFolderThatGoesAwayComesBack) {
    folder.write("watched/Red.gpl", kRed);
    watch({location("watched"), location("other", 2)});
    const auto red = named("Red").palette;
    fs::rename(folder / "watched", folder / "away");
    EXPECT_FALSE(location("watched").isOnline());
    touch("watched");
    EXPECT_THAT(names(), IsEmpty());
    EXPECT_FALSE(store.isOnline(location("watched").id));
    EXPECT_TRUE(store.isOnline(location("other", 2).id));
    fs::rename(folder / "away", folder / "watched");
    touch("watched");
    EXPECT_TRUE(store.isOnline(location("watched").id));
    EXPECT_EQ(named("Red").palette, red) << "it was read before";
}

TEST_F(PaletteStoreTest, FindsAndTellsWhatAWiderMatchFinds) {
    folder.write("watched/Red.gpl", kRed);
    folder.write("watched/Two.gpl", kTwo);
    watch({location("watched")});
    const auto hits = store.find(PaletteQuery("green", ColourMatch::close));
    ASSERT_EQ(hits.size(), 1U);
    EXPECT_EQ(hits[0].key, named("Two").key());
    EXPECT_EQ(hits[0].hit, (PaletteHit{1, 0.0}));
    EXPECT_EQ(&store.available()[hits[0].index], &named("Two"));
    const auto wider = store.wider("#800000", ColourMatch::exact);
    ASSERT_TRUE(wider);
    EXPECT_EQ(wider->match, ColourMatch::hue);
    EXPECT_EQ(wider->count, 1U);
    EXPECT_FALSE(store.wider("#800000", ColourMatch::hue));
    EXPECT_FALSE(store.wider("nothing", ColourMatch::exact));
}

TEST_F(PaletteStoreTest, SavesListsWithAPaletteBesideThemAndNeverOverwrites) {
    watch({});
    const auto first = save("Brand 50/50", Clash::replace);
    EXPECT_EQ(first.name, "Brand 50-50");
    EXPECT_FALSE(first.oldIsInTrash);
    EXPECT_THAT(names(), ElementsAre("Brand 50-50")) << "the list, not the palette beside it";
    EXPECT_EQ(store.loadNamed("Brand 50-50")->front().color, (WashColor{1, 0, 0, 0.5}));
    EXPECT_EQ(PaletteFile::readNamed(folder / "colors/Brand 50-50.gpl")->size(), 1U);
    EXPECT_EQ(save("Brand 50/50", Clash::keepBoth).name, "Brand 50-50 2");
    const auto old = folder.content("colors/Brand 50-50.gpl");
    folder.write("colors/Brand 50-50.gpl", kTwo);
    EXPECT_TRUE(save("Brand 50/50", Clash::replace).oldIsInTrash);
    EXPECT_EQ(folder.content("colors/Brand 50-50.gpl"), old);
    const auto trashed = store.trashedThisSession();
    ASSERT_EQ(trashed.size(), 1U);
    EXPECT_TRUE(putBack(trashed[0])) << "its place is taken";
    ASSERT_TRUE(std::holds_alternative<TrashedFile>(trash("Brand 50-50")));
    EXPECT_FALSE(fs::exists(folder / "colors/Brand 50-50.gpl"));
    EXPECT_FALSE(store.hasNamed("Brand 50/50"));
    EXPECT_FALSE(putBack(trashed[0]));
    EXPECT_TRUE(store.hasNamed("Brand 50/50"));
    EXPECT_EQ(folder.content("colors/Brand 50-50.gpl"), kTwo) << "what stood beside it comes too";
    EXPECT_EQ(store.trashedThisSession().size(), 1U);
}

TEST_F(PaletteStoreTest, AFailedReplacementLeavesEverythingAsItWas) {
    RefusingTrash refusing;
    folder.write("GIMP/Brand.gpl", kTwo);
    PaletteStore other({desktop.loop,
                        desktop.background,
                        desktop.folderWatch,
                        refusing,
                        folder / "colors",
                        {},
                        {}});
    EXPECT_EQ(std::get<FileError>(install(other, Clash::replace)).why, "refused");
    EXPECT_EQ(folder.content("GIMP/Brand.gpl"), kTwo);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "GIMP"), {}), 1) << "no rest is left";
    watch({});
    ASSERT_THAT(store.installTargets(), ElementsAre(InstallTarget{"GIMP", folder / "GIMP"}));
    EXPECT_EQ(std::get<PaletteStore::Saved>(install(store, Clash::keepBoth)).file,
              folder / "GIMP/Brand 2.gpl");
    const auto empty =
        done<Saved>([&](auto then) { store.save({}, "Empty", Clash::replace, then); });
    EXPECT_FALSE(std::get<FileError>(empty).why.empty());
}

TEST_F(PaletteStoreTest, CopiesAndNamesStayInTheirFolder) {
    folder.write("watched/Red.gpl", kRed);
    folder.write("watched/Two.gpl", kTwo);
    watch({location("watched")}, true);
    EXPECT_TRUE(duplicate("Red", "Two")->isTaken);
    EXPECT_TRUE(rename("Red", "Two")->isTaken);
    EXPECT_EQ(folder.content("watched/Two.gpl"), kTwo);
    for (const auto* unfit : {"", " ", "a/b", ".red", "..", "a\nb"}) {
        EXPECT_TRUE(duplicate("Red", unfit)) << unfit;
        EXPECT_TRUE(rename("Red", unfit)) << unfit;
    }
    EXPECT_TRUE(rename("Red", std::string(300, 'x')));
    EXPECT_FALSE(duplicate("Red", "Copy of Red"));
    EXPECT_FALSE(rename("Two", "Three"));
    EXPECT_FALSE(duplicate("Web Safe Colours", "Mine"));
    EXPECT_TRUE(rename("Web Safe Colours", "Theirs"));
    EXPECT_TRUE(std::holds_alternative<FileError>(trash("Web Safe Colours")));
    desktop.loop.turn();
    EXPECT_THAT(names(), ElementsAre("Copy of Red", "Red", "Three", "Mine", "Web Safe Colours"));
    EXPECT_EQ(store.loadNamed("Mine")->size(), 216U);
    EXPECT_EQ(fitFileName(" ..a/b\t"), "a-b");
    EXPECT_EQ(fitFileName(std::string(239, 'x') + "é"), std::string(239, 'x'));
}

TEST_F(PaletteStoreTest, WorksOnFilesInTheBackgroundInTheOrderAsked) {
    folder.write("watched/Red.gpl", kRed);
    watch({location("watched")});
    desktop.background.holds = true;
    std::vector<std::string> outcomes;
    store.trash(named("Red"), [&](const auto&) { outcomes.push_back("trashed"); });
    store.duplicate(named("Red"), "Copy", [&](const Error& error) {
        outcomes.push_back(error ? "nothing to copy" : "copied");
    });
    store.trash(named("Red"), [&](const Trashed& result) {
        outcomes.push_back(std::holds_alternative<FileError>(result) ? "gone" : "trashed");
    });
    EXPECT_TRUE(fs::exists(folder / "watched/Red.gpl")) << "nothing is done on the main loop";
    for (int i = 0; i < 3; ++i) {
        desktop.background.finish();
        desktop.loop.turn();
    }
    EXPECT_THAT(outcomes, ElementsAre("trashed", "nothing to copy", "gone"));
    EXPECT_THAT(names(), IsEmpty());
}

TEST(PaletteOrder, DateWinsOverNameOverCountAndTiesGoByName) {
    std::vector<PaletteEntry> entries(3);
    const auto set = [&](std::size_t at, const char* name, std::size_t count, int date) {
        entries[at].name = name;
        entries[at].count = count;
        entries[at].modified += std::chrono::seconds(date);
    };
    set(0, "Tone 10", 5, 1);
    set(1, "tone 9", 5, 3);
    set(2, "Zoo", 1, 2);
    const auto order = [&](bool byName, bool byDate, bool ascending) {
        std::string all;
        for (const auto& entry : sorted(entries, {byName, byDate, ascending}))
            all += entry.name + ",";
        return all;
    };
    EXPECT_EQ(order(true, true, true), "Tone 10,Zoo,tone 9,");
    EXPECT_EQ(order(true, false, true), "tone 9,Tone 10,Zoo,");
    EXPECT_EQ(order(true, false, false), "Zoo,Tone 10,tone 9,");
    EXPECT_EQ(order(false, false, true), "Zoo,tone 9,Tone 10,");
    EXPECT_EQ(order(false, false, false), "tone 9,Tone 10,Zoo,");
}

} // namespace
} // namespace tintra
