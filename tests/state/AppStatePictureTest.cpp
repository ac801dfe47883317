#include "platform/PngEncoder.h"
#include "tests/state/FilesDesk.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

using ImagePalette::Emphasis;

constexpr Rgba8 kRed{255, 0, 0, 255}, kGreen{0, 255, 0, 255}, kBlue{0, 0, 255, 255};

struct PictureDesk : FilesDesk {
    /// A picture of one row of pixels.
    AppState& showing(const std::vector<Rgba8>& pixels) {
        const PictureSize size{static_cast<int>(pixels.size()), 1};
        window().loadImage(
            *encodePng(size, [&](std::size_t,
                                 std::span<Rgba8> row) { std::ranges::copy(pixels, row.begin()); }),
            "row.png");
        settle();
        return window();
    }
    Texts found() {
        Texts codes;
        for (const auto& one : window().imageSource.value().found)
            codes.push_back(one.color.identity().substr(0, 6));
        return codes;
    }
    Texts palette() {
        Texts codes;
        for (const auto& color : window().colors())
            codes.push_back(color.identity().substr(0, 6));
        return codes;
    }
};

TEST(AppStatePicture, ShowsWhatGivesColours) {
    PictureDesk desk;
    auto& state = desk.window();
    state.loadImage(desk.folder.write("notes.png", "no picture"));
    state.loadImage(desk.folder / "gone.png");
    desk.settle();
    state.loadImage(desk.folder / "notes.png");
    desk.settle();
    desk.showing({{255, 0, 0, 0}});
    EXPECT_EQ(
        desk.notices(),
        (Texts{"gone.png could not be read as an image: No such file or directory",
               "notes.png could not be read as an image", "Nothing to extract from row.png"}));
    EXPECT_FALSE(state.isPictureWindowOpen.value());

    desk.showing({kRed, kRed, kRed, kGreen, kGreen, kBlue});
    EXPECT_TRUE(state.isPictureWindowOpen.value());
    EXPECT_EQ(desk.found(), (Texts{"FF0000", "00FF00", "0000FF"}));
    EXPECT_FALSE(state.canExtractMore()) << "there are but three";
    desk.desktop.background.holds = true;
    state.reextract(2, Emphasis::spread);
    state.reextract(1, Emphasis::dominant);
    desk.desktop.background.finish();
    EXPECT_TRUE(state.imageSource.value().extracting);
    desk.settle();
    EXPECT_EQ(desk.found(), Texts{"FF0000"});
    EXPECT_TRUE(state.canExtractMore());
    EXPECT_FALSE(state.canExtractFewer());
    state.reextract(2, Emphasis::spread);
    state.closePicture();
    desk.desktop.background.finish();
    desk.settle();
    EXPECT_EQ(state.imageSource.value().picture, nullptr);
    EXPECT_TRUE(desk.found().empty());
}

TEST(AppStatePicture, AsksWhereThePaletteHoldsColours) {
    PictureDesk desk;
    auto& state = desk.showing({kRed, kRed, kGreen});
    state.applyExtraction();
    desk.showing({kGreen, kGreen, kBlue});
    desk.answer("Add to Palette");
    state.applyExtraction();
    EXPECT_EQ(desk.question().title, "Add 2 colours to this palette?");
    EXPECT_EQ(desk.question().text, "There are already 2 colours here. They can stay, with the "
                                    "ones from this picture after them.");
    EXPECT_EQ(desk.question().buttons, (Texts{"Add to Palette", "Replace", "Cancel"}));
    EXPECT_EQ(desk.notices(),
              (Texts{"Added 2 to the palette", "Added 1 to the palette · 1 already there"}));
    EXPECT_EQ(desk.palette(), (Texts{"FF0000", "00FF00", "0000FF"}));
    desk.answer("Replace");
    state.applyExtraction();
    EXPECT_EQ(desk.palette(), (Texts{"00FF00", "0000FF"}));
    EXPECT_EQ(state.pinSwatchIDs().size(), 2U);
}

TEST(AppStatePicture, PinsAreSwatches) {
    PictureDesk desk;
    auto& state = desk.showing({kRed, kRed, kRed, kGreen, kBlue});
    for (const double x : {3.5, 3.2, 9.5}) {
        state.addPin({x, 0.5});
        desk.settle();
    }
    EXPECT_EQ(desk.notices(), Texts{"#00FF00 is already in this palette"});
    EXPECT_EQ(desk.palette(), Texts{"00FF00"}) << "there is no pixel outside of the picture";
    ASSERT_EQ(desk.found().size(), 4U);

    desk.desktop.background.holds = true;
    const auto steps = desk.models.undo().entries().size();
    for (const double x : {2.5, 0.5, 4.5})
        state.movePin(3, {x, 0.5});
    for (int turn = 0; turn < 3; ++turn) {
        desk.desktop.background.finish();
        desk.settle();
    }
    desk.desktop.background.holds = false;
    EXPECT_EQ(desk.palette(), Texts{"0000FF"}) << "of a drag the last place counts";
    EXPECT_EQ(desk.models.undo().entries().size(), steps + 1);

    state.reextract(1, Emphasis::dominant);
    desk.settle();
    ASSERT_EQ(desk.found(), (Texts{"FF0000", "0000FF"})) << "own pins stay";
    state.removePin(1);
    EXPECT_TRUE(desk.palette().empty());
    desk.models.undo().undo(state.place());
    EXPECT_EQ(desk.palette(), Texts{"0000FF"});
}

} // namespace
} // namespace tintra
