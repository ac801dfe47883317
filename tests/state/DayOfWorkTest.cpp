#include "palettes/PaletteFile.h"
#include "platform/File.h"
#include "platform/PngEncoder.h"
#include "tests/state/ModelRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <map>

// A day's work on real palettes, when TINTRA_SAMPLES names the folder that holds them, and the
// morning after.

namespace tintra {
namespace {

namespace fs = std::filesystem;

using testing::IsEmpty;

constexpr std::array kSamples{"ase/solarized__solarized.ase", "aco/adobe-color-swatch__rgb.aco",
                              "clr/nord__Nord.clr", "css/npm-catppuccin-palette___latte.scss"};

std::vector<WashColor> colorsIn(const fs::path& file) {
    std::vector<WashColor> colors;
    for (const auto& swatch :
         PaletteFile::readNamed(file).value_or(std::vector<PaletteFile::Swatch>{}))
        colors.push_back(swatch.color);
    return colors;
}

/// Four broad stripes.
fs::path picture(const TemporaryFolder& folder) {
    constexpr std::array kStripes{Rgba8{200, 40, 40, 255}, Rgba8{40, 160, 60, 255},
                                  Rgba8{20, 120, 200, 255}, Rgba8{240, 220, 60, 255}};
    const auto png = encodePng({64, 64}, [&](std::size_t y, std::span<Rgba8> row) {
        std::ranges::fill(row, kStripes.at(y / 16));
    });
    return folder.write("stripes.png", asText(png.value()));
}

class DayOfWork : public testing::Test {
protected:
    void SetUp() override {
        const char* const samples = std::getenv("TINTRA_SAMPLES"); // NOLINT(concurrency-mt-unsafe)
        if (samples == nullptr) GTEST_SKIP() << "TINTRA_SAMPLES names no folder of palette files";
        fs::create_directory(desk());
        for (const auto* name : kSamples)
            fs::copy(fs::path(samples) / name, desk() / fs::path(name).filename());
    }

    fs::path desk() const { return machine.folder / "desk"; }
    fs::path sample(std::size_t at) const { return desk() / fs::path(kSamples.at(at)).filename(); }

    /// Everything that is to be there in the morning, a part a name.
    using Scene = std::map<std::string, std::vector<std::string>>;

    static Scene scene(ModelRun& run) {
        run.pass();
        Scene scene;
        for (std::size_t i = 0; i < run.count(); ++i)
            scene["palettes"].push_back(encodedWorkspace(run.window(i).currentStored()));
        for (const auto& column : run.bench().benchColumns())
            scene["bench"].push_back(column.color.hexWithAlpha() + ' ' + run.bench().name(column) +
                                     ", " + run.bench().badgeText(column));
        for (const auto& well : run.bench().benchWells())
            scene["wells"].push_back(run.bench().wellColor(well).value().hex());
        for (const auto& entry : run.models.contrast().entries())
            scene["contrast"].push_back(entry.color.hexWithAlpha() + ' ' +
                                        run.models.contrast().name(entry));
        for (const auto& entry : run.models.store().available())
            scene["library"].push_back(entry.key());
        for (const auto& recent : run.models.preferences().recents.value())
            scene["recents"].push_back(recent.hex());
        return scene;
    }

    void openEverything(ModelRun& run) {
        run.primary().addPaletteLocation(desk());
        for (std::size_t i = 0; i < kSamples.size(); ++i) {
            auto& window = i == 0 ? run.primary() : run.windows().openExtra();
            run.open(window, sample(i));
            ASSERT_EQ(window.colors(), colorsIn(sample(i))) << kSamples.at(i);
        }
        run.pass();
        EXPECT_EQ(run.models.store().available().size(), 3U) << "stylesheets are not listed";
    }

    static void edit(AppState& palette) {
        palette.renameSwatch(0, "Night");
        palette.moveSwatch(0, 2);
        palette.replaceInPalette(1, color("1E3CB4"));
        palette.duplicateSwatch(1);
        palette.removeSwatch(3);
        palette.setSeed(AppState::SeedRole::first, palette.colors()[0]);
    }

    void extract(ModelRun& run, AppState& palette) {
        const auto before = palette.swatches().size();
        palette.loadImage(picture(machine.folder));
        machine.desktop.loop.turn();
        ASSERT_FALSE(palette.imageSource.value().found.empty());
        run.answer({"Add to Palette"});
        palette.applyExtraction();
        EXPECT_GE(palette.swatches().size(), before + 4);
    }

    /// Two swatches side by side, mixed, and the mix kept.
    static void mix(ModelRun& run, AppState& palette) {
        auto& bench = run.bench();
        palette.toggleBenchedSwatch(0);
        palette.toggleBenchedSwatch(1);
        const auto a = bench.benchColumns().at(0).id, b = bench.benchColumns().at(1).id;
        bench.toggleWell(a, b);
        bench.updateWell(bench.benchWells().at(0).id, Bench::WellField::ratio, 0.3);
        const auto mixed = bench.wellColor(bench.benchWells().at(0));
        bench.addWellToBench(bench.benchWells().at(0).id);
        ASSERT_EQ(bench.benchColumns().back().color, mixed.value());
        bench.toggleWell(b, bench.benchColumns().back().id);
        bench.isWindowOpen = true;
    }

    Machine machine;
};

TEST_F(DayOfWork, IsThereTheNextMorning) {
    Scene evening;
    std::vector<std::vector<WashColor>> saved;
    {
        ModelRun run(machine);
        openEverything(run);
        for (std::size_t i = 0; i < run.count(); ++i)
            edit(run.window(i));
        extract(run, run.window(1));
        mix(run, run.primary());
        run.window(2).sendAllToContrast();
        run.models.contrast().isWindowOpen = true;
        run.primary().copy(run.primary().colors()[0], {});

        run.save(run.primary());
        run.saveTo(run.window(1), desk() / "from the picture.gpl");
        run.saveTo(run.window(3), desk() / "from the stylesheet.gpl");
        for (const std::size_t at : {0U, 1U, 3U}) {
            EXPECT_FALSE(run.window(at).paletteIsDirty()) << at;
            saved.push_back(run.window(at).colors());
        }
        run.window(3).renameSwatch(0, "Still to be saved");
        machine.desktop.folderWatch.change(desk());
        evening = scene(run);
        ASSERT_TRUE(run.quits({"Discard", "Discard"}));
    }
    machine.notices();
    EXPECT_THAT(machine.desktop.log.lines, IsEmpty());

    ModelRun run(machine);
    EXPECT_TRUE(run.opening.bench && run.opening.contrast && !run.opening.library);
    EXPECT_EQ(scene(run), evening);
    EXPECT_EQ(evening["palettes"].size(), 4U);
    EXPECT_EQ(evening["bench"].size(), 3U);
    EXPECT_EQ(evening["wells"].size(), 1U);
    EXPECT_EQ(evening["library"].size(), 5U);
    EXPECT_EQ(evening["recents"].size(), 1U);
    EXPECT_EQ(run.window(3).swatchName(0), "Still to be saved");
    EXPECT_TRUE(run.window(3).paletteIsDirty());
    EXPECT_THAT(machine.notices(), IsEmpty());
    const std::array files{sample(0), desk() / "from the picture.gpl",
                           desk() / "from the stylesheet.gpl"};
    for (std::size_t i = 0; i < files.size(); ++i) {
        const auto found = colorsIn(files.at(i));
        ASSERT_EQ(found.size(), saved[i].size()) << files.at(i);
        for (std::size_t j = 0; j < found.size(); ++j)
            EXPECT_EQ(found[j].identity(), saved[i][j].identity()) << files.at(i) << ' ' << j;
    }

    // The history of yesterday is gone; a new one begins, and links have stayed.
    EXPECT_FALSE(run.models.undo().canUndo());
    run.models.undo().undo(run.primary().place());
    EXPECT_EQ(scene(run), evening);
    run.primary().replaceInPalette(0, color("ABCDEF"));
    EXPECT_EQ(run.bench().benchColumns()[0].color, color("ABCDEF"));
    run.models.undo().undo(run.primary().place());
    EXPECT_EQ(scene(run), evening);
}

} // namespace
} // namespace tintra
