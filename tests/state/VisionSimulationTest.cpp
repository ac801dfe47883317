#include "state/Models.h"
#include "tests/TemporaryFolder.h"
#include "tests/support/FakeDesktop.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

TEST(VisionSimulation, FollowsTheWindowInFront) {
    const TemporaryFolder folder;
    FakeDesktop desktop{folder / "trash"};
    Models models(desktop.services, {desktop.loop,
                                     desktop.background,
                                     desktop.folderWatch,
                                     desktop.trash,
                                     folder / "colors",
                                     {},
                                     {}});
    auto& palette = models.workspaces().openPrimary();
    const Uuid other = models.workspaces().openExtra().id();
    auto& simulation = models.vision();
    const auto clears = [&](ToastWindow window) {
        simulation.front = ToastPlace{window, palette.id()};
        return simulation.capabilities().clearTitle();
    };

    EXPECT_EQ(clears(ToastWindow::bench), "Clear Bench");
    simulation.setFront(Vision::tritanopia);
    EXPECT_EQ(clears(ToastWindow::contrast), "Clear Contrast");
    simulation.setFront(Vision::protanopia);
    palette.mode = HarmonyMode::triadic;
    EXPECT_EQ(clears(ToastWindow::palette), "Clear Seeds");
    palette.mode = HarmonyMode::paletteBuilder;
    EXPECT_EQ(simulation.capabilities().clearTitle(), "Clear Palette");
    EXPECT_EQ(simulation.frontVision(), Vision::typical);
    simulation.setFront(Vision::achromatopsia);
    EXPECT_EQ(palette.vision, Vision::achromatopsia);
    EXPECT_EQ(models.workspaces().state(other)->vision, Vision::typical);
    EXPECT_EQ(models.bench().vision, Vision::tritanopia);
    EXPECT_EQ(models.contrast().vision, Vision::protanopia);

    for (const auto& without : {ToastPlace{ToastWindow::library, {}}, ToastPlace{},
                                ToastPlace{ToastWindow::palette, Uuid{}}}) {
        simulation.front = without;
        simulation.setFront(Vision::deuteranopia);
        EXPECT_EQ(simulation.frontVision(), std::nullopt);
        EXPECT_FALSE(simulation.capabilities().hasVision);
        EXPECT_EQ(simulation.capabilities().clearTitle(), "Clear This Window");
    }
}

} // namespace
} // namespace tintra
