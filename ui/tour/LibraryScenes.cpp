// The Library over two folders of a studio.

#include "palettes/PaletteExport.h"
#include "state/Models.h"
#include "ui/library/LibraryWindow.h"
#include "ui/tour/Scenes.h"
#include "ui/tour/Sheet.h"

#include <chrono>
#include <filesystem>
#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

namespace tintra::tour {
namespace {

namespace fs = std::filesystem;
using std::chrono::day, std::chrono::month, std::chrono::year;
using Day = std::chrono::year_month_day;
using Colours = std::initializer_list<std::pair<std::string_view, const char*>>; ///< with names

constexpr QSize kRows(960, 688), kTiles(960, 608), kSearch(960, 528), kSmall(560, 360);

constexpr Day on(unsigned d, unsigned m, int y = 2026) {
    return {year(y), month(m), day(d)};
}

Palette palette(const char* name, Colours colours) {
    Palette made{name, {}, {}};
    for (const auto& [code, called] : colours) {
        made.colours.push_back(colour(code));
        made.names.emplace_back(called);
    }
    return made;
}

/// Writes a file, last changed at noon of a day.
void write(const fs::path& file, ByteView content, Day changed) {
    fs::create_directories(file.parent_path());
    if (writeFile(file, content, Existing::replace))
        throw std::runtime_error("a file of a scene cannot be written");
    const std::chrono::sys_seconds noon = std::chrono::sys_days(changed) + std::chrono::hours(12);
    fs::last_write_time(file, std::chrono::file_clock::from_sys(noon));
}

void keep(const fs::path& folder, const Palette& palette, ExportFormat format, Day changed) {
    const auto file = folder / (palette.name + '.' + std::string(fileExtension(format)));
    const auto content =
        PaletteExport::data(format, palette.colours, palette.names, palette.name, FormatOptions());
    write(file, content.value(), changed);
}

Palette eveningFerryPalette() {
    return palette("Evening Ferry", {{"8c7aa0", "Dusk"},
                                     {"f1e7d2", "Sailcloth"},
                                     {"c2452d", "Hull"},
                                     {"e2b04a", "Lantern"},
                                     {"e8a27a", "Afterglow"},
                                     {"2c4066", "Deep Water"},
                                     {"3a3f5c", "Far Shore"}});
}

Palette orchardWall(std::string_view brick = "b4532a") {
    return palette("Orchard Wall", {{"f7e9d0", "Whitewash"},
                                    {"ebc48b", "Straw"},
                                    {"d98e4a", "Quince"},
                                    {brick, "Brick"},
                                    {"7c2f1e", "Russet"},
                                    {"4e6b3a", "Ivy"},
                                    {"8aa05a", "Moss"},
                                    {"cfd7a7", "Pear Leaf"}});
}

Palette museumLabels(std::string_view red = "9f2b33") {
    return palette("Museum Labels", {{"ffffff", "Card"},
                                     {"f4efe6", "Plaster"},
                                     {"d8c9b0", "Linen"},
                                     {red, "Seal"},
                                     {"5b1a23", "Oxblood"},
                                     {"22302f", "Cabinet"},
                                     {"0f1615", "Type"}});
}

Palette wetSlate() {
    return palette("Wet Slate", {{"e9ecee", "Rain"},
                                 {"c3cbd0", "Gutter"},
                                 {"98a4ac", "Dove"},
                                 {"6d7b85", "Ridge"},
                                 {"48545e", "Tile"},
                                 {"2a333b", "Flue"},
                                 {"161c22", "Soot"}});
}

fs::path studioFolder(Stage& stage) {
    return stage.folder() / "Design" / "Palettes";
}
fs::path clientFolder(Stage& stage) {
    return stage.folder() / "Clients" / "Shared";
}

void keepStudio(Stage& stage) {
    const auto studio = studioFolder(stage);
    keep(studio, harbourLight(), ExportFormat::ase, on(18, 11));
    keep(studio, interfaceScale(), ExportFormat::css, on(12, 11));
    keep(studio, eveningFerryPalette(), ExportFormat::gpl, on(9, 11));
    keep(studio, orchardWall(), ExportFormat::ase, on(30, 10));
    keep(studio, wetSlate(), ExportFormat::gpl, on(21, 10));
}

void keepClientWork(Stage& stage, const Palette& labels) {
    const auto client = clientFolder(stage);
    keep(client, labels, ExportFormat::scss, on(2, 10));
    keep(client,
         palette("Tram Lines", {{"d7263d", "One"},
                                {"f46036", "Two"},
                                {"f2c14e", "Three"},
                                {"1b998b", "Four"},
                                {"2e5eaa", "Five"},
                                {"5b3a8e", "Six"},
                                {"8c8c8c", "Rail"},
                                {"2b2b2b", "Tyre"},
                                {"ffffff", "Enamel"}}),
         ExportFormat::ase, on(27, 9));
    keep(client,
         palette("Tea Caddy", {{"2f3b2f", "Leaf"}, {"8a6b3c", "Brass"}, {"e7d8b5", "Milk"}}),
         ExportFormat::gpl, on(14, 8));
    keep(client, palette("Night Ledger", {{"101418", "Ink"}, {"c9a227", "Gilt"}}),
         ExportFormat::clr, on(3, 8));
}

PaletteLocation location(Stage& stage, const char* nickname, const fs::path& folder) {
    return {.id = stage.ui().services.chance.uuid(),
            .nickname = nickname,
            .path = folder,
            .tag = {},
            .includesStylesheets = true,
            .bookmark = {}};
}

void watch(Stage& stage, std::vector<PaletteLocation> locations) {
    auto& preferences = stage.preferences();
    preferences.librarySortByDate = true;
    preferences.librarySortAscending = false;
    preferences.paletteLocations = std::move(locations);
    stage.settle();
}

void watchBoth(Stage& stage) {
    auto client = location(stage, "Client Work", clientFolder(stage));
    client.tag = "2026";
    watch(stage, {location(stage, "Studio", studioFolder(stage)), std::move(client)});
}

LibraryWindow& opened(Stage& stage, QSize size) {
    stage.app().openLibrary();
    auto& window = stage.open<LibraryWindow>();
    window.resize(size);
    stage.settle(200);
    return window;
}

void search(Stage& stage, const char* text) {
    stage.preferences().libraryFindRequested = true;
    stage.settle();
    stage.write(QString::fromLatin1(text));
}

/// Walks down to a palette.
void walkTo(Stage& stage, LibraryWindow& window, const char* name) {
    stage.press(Qt::Key_Home);
    for (std::size_t step = 0; step < window.model().listing().finds.size(); ++step) {
        stage.press(Qt::Key_Down);
        const auto* current = window.model().currentPalette();
        if (current && current->name == name) return;
    }
    throw std::logic_error("a scene looks for a palette that is not listed");
}

QImage rows(Stage& stage) {
    keepStudio(stage);
    keepClientWork(stage, museumLabels());
    watchBoth(stage);
    auto& window = opened(stage, kRows);
    walkTo(stage, window, "Orchard Wall");
    stage.press(Qt::Key_Right);
    return stage.grab(window);
}

QImage tiles(Stage& stage) {
    keepStudio(stage);
    keepClientWork(stage, museumLabels());
    auto client = location(stage, "Client Work", clientFolder(stage));
    client.tag = "2026";
    auto archive = location(stage, "Archive", "/media/archive/palettes");
    stage.preferences().libraryCollapsed = {client.id.text(), archive.id.text()};
    stage.preferences().libraryTiles = true;
    watch(stage, {location(stage, "Studio", studioFolder(stage)), client, archive});
    auto& window = opened(stage, kTiles);
    stage.press(Qt::Key_Home);
    stage.press(Qt::Key_Down);
    stage.press(Qt::Key_Right);
    stage.press(Qt::Key_Right);
    return stage.grab(window);
}

QImage colourSearch(Stage& stage) {
    keepStudio(stage);
    const auto studio = studioFolder(stage);
    keep(studio, orchardWall("c4472f"), ExportFormat::ase, on(30, 10));
    keep(studio,
         palette("Kiln Tests", {{"f3e3cf", "Biscuit"},
                                {"e5b98a", "Slip"},
                                {"ce8348", "Honey"},
                                {"c54331", "Copper Red"},
                                {"8a3022", "Iron"},
                                {"53241d", "Umber"},
                                {"2a1a18", "Reduction"}}),
         ExportFormat::ase, on(24, 10));
    keepClientWork(stage, museumLabels("c0432a"));
    watchBoth(stage);
    auto& window = opened(stage, kSearch);
    search(stage, "#c2452d");
    return stage.grab(window);
}

/// The smallest window with the largest type: a search, and what is unfolded.
QImage narrow(Stage& stage) {
    stage.preferences().typeSize = TypeSize::largest;
    keepStudio(stage);
    keepClientWork(stage, museumLabels());
    watchBoth(stage);
    auto& window = opened(stage, {520, 640});
    std::vector<QImage> pictures;
    walkTo(stage, window, "Orchard Wall");
    stage.press(Qt::Key_Right);
    pictures.push_back(stage.grab(window));
    search(stage, "#c2452d");
    pictures.push_back(stage.grab(window));
    stage.preferences().libraryTiles = true;
    pictures.push_back(stage.grab(window));
    return sheet(pictures, 3);
}

// What is said where there is nothing to show

QImage noFolders(Stage& stage) {
    auto& window = opened(stage, kSmall);
    stage.press(Qt::Key_Down);
    return stage.grab(window);
}

QImage noPalettes(Stage& stage) {
    fs::create_directories(studioFolder(stage));
    watch(stage, {location(stage, "Studio", studioFolder(stage))});
    return stage.grab(opened(stage, kSmall));
}

/// Two palettes are still to be read, one cannot be.
QImage reading(Stage& stage) {
    const auto studio = studioFolder(stage);
    keep(studio, harbourLight(), ExportFormat::ase, on(18, 11));
    keep(studio, wetSlate(), ExportFormat::gpl, on(21, 1, 2019));
    write(studio / "Old Swatches.aco", asBytes("no palette"), on(2, 3, 2019));
    watch(stage, {location(stage, "Studio", studio)});
    auto& window = opened(stage, kSmall);
    keep(studio, palette("Interface Ramp", {{"c24238", "Brick"}}), ExportFormat::gpl, on(12, 11));
    keep(studio, eveningFerryPalette(), ExportFormat::gpl, on(9, 11));
    stage.holdBackground();
    stage.ui().models.rescanPalettes();
    stage.doHeld(Stage::Held::first); // the listing of the folder
    stage.settle(200);
    stage.doHeld(Stage::Held::last); // what the window shows of it
    return stage.grab(window);
}

QImage nothingFound(Stage& stage) {
    keepStudio(stage);
    watchBoth(stage);
    auto& window = opened(stage, kSmall);
    search(stage, "#c2d52d");
    return stage.grab(window);
}

QImage offline(Stage& stage) {
    watch(stage, {location(stage, "Archive", "/media/archive/palettes")});
    return stage.grab(opened(stage, kSmall));
}

constexpr Scene kScenes[] = {
    {"library-rows", kAll, rows},
    {"library-tiles", kBoth, tiles},
    {"library-colour-search", kBoth, colourSearch},
    {"library-narrow", kLight, narrow},
    {"library-no-folders", kBoth, noFolders},
    {"library-no-palettes", kLight, noPalettes},
    {"library-reading", kBoth, reading},
    {"library-nothing-found", kLight, nothingFound},
    {"library-offline", kLight, offline},
};

} // namespace

std::span<const Scene> libraryScenes() {
    return kScenes;
}

} // namespace tintra::tour
