#include "colour/ColorProfiles.h"
#include "state/Preferences.h"
#include "tests/ui/Desk.h"
#include "ui/editor/EditedColour.h"
#include "ui/editor/EditorPanel.h"
#include "ui/editor/PickerControl.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <cmath>

namespace tintra::test {
namespace {

WashColor hex(const char* code) {
    return *WashColor::fromHex(code);
}

EditorProfiles profiles(LabIlluminant white = LabIlluminant::d50) {
    return {ColourSpace::sRGB().get(), ColourSpace::deviceCMYK().get(), white};
}

/// The largest difference in red, green or blue.
double apart(const WashColor& a, const WashColor& b) {
    return std::max({std::abs(a.r - b.r), std::abs(a.g - b.g), std::abs(a.b - b.b)});
}

TEST(EditorSpaces, FiguresArePublishedOnesAndLeadBack) {
    using enum EditorSpace;
    // CSS Color 4 samples; red under D65 by Lindbloom.
    // clang-format off
    const struct { EditorSpace space; const char* code; LabIlluminant white; Figures figures; } rows[]{
        {rgb,   "663399", LabIlluminant::d50, {102, 51, 153}},
        {hsl,   "663399", LabIlluminant::d50, {270, 50, 40}},
        {hsb,   "00ff00", LabIlluminant::d50, {120, 100, 100}},
        {lab,   "663399", LabIlluminant::d50, {32.39, 38.43, -47.69}},
        {lab,   "ff0000", LabIlluminant::d65, {53.24, 80.09, 67.20}},
        {oklch, "663399", LabIlluminant::d50, {0.4403, 0.1603, 303.37}},
    };
    // clang-format on
    for (const auto& row : rows) {
        const auto found = editorSpace(row.space).figures(hex(row.code), profiles(row.white));
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_NEAR(found[i], row.figures[i], 0.02) << row.code << ' ' << i;
    }
    const auto with = profiles(LabIlluminant::d65);
    for (const auto& space : allEditorSpaces())
        for (const char* code : {"000000", "ffffff", "808080", "ff0000", "0000ff", "9db17c"}) {
            const auto back = space.color(space.figures(hex(code), with), 0.5, with);
            // What counts as printed comes back within 0.02.
            const bool splits = space.value == cmyk && isOutsideGamut(hex(code), *with.cmyk);
            const auto most = space.value != cmyk ? 2e-4 : splits ? 1 : 0.0201;
            EXPECT_LT(apart(back, hex(code)), most) << space.title << ' ' << code;
            EXPECT_EQ(back.a, 0.5);
        }
}

TEST(EditorSpaces, TypedFiguresAreReadAndFitted) {
    const auto& hue = editorSpace(EditorSpace::oklch).channels[2];
    const auto& axis = editorSpace(EditorSpace::lab).channels[1];
    const auto& ink = editorSpace(EditorSpace::cmyk).channels[0];
    // clang-format off
    const struct { const EditorChannel& channel; const char *typed, *spoken; } rows[]{
        {hue,  "36.5",  "36.5°"}, {hue,  "-10°",   "350.0°"}, {hue, "725", "5.0°"},
        {axis, "−23,14", "-23.1"}, {axis, "-0.01", "0.0"},    {axis, "900", "125.0"},
        {ink,  " 76 % ", "76 %"}, {ink,  "-3",     "0 %"},
        {ink,  "", ""}, {ink, "seven", ""}, {axis, "nan", ""}, {axis, "1e999", ""},
    };
    // clang-format on
    for (const auto& row : rows) {
        const auto read = row.channel.read(QString::fromUtf8(row.typed));
        EXPECT_EQ(read ? row.channel.spoken(*read) : QString(), QString::fromUtf8(row.spoken))
            << row.typed;
    }
}

TEST(EditedColour, KeepsWhatAColourCannotSay) {
    const auto editing = [](EditorSpace space, const char* code) {
        EditedColour edited(space, profiles());
        edited.show(hex(code), EditedFigures::Of::anotherSwatch);
        return edited;
    };
    for (const auto space : {EditorSpace::hsb, EditorSpace::hsl, EditorSpace::oklch}) {
        auto edited = editing(space, "e4572e");
        const auto hue = space == EditorSpace::oklch ? 2U : 0U;
        const auto before = edited.sliders().figures()[hue];
        edited.setChannel(1, 0);
        edited.settle();
        EXPECT_NEAR(edited.sliders().figures()[hue], before, 1e-6) << static_cast<int>(space);
        edited.show(hex("808080"), EditedFigures::Of::anotherSwatch);
        EXPECT_EQ(edited.sliders().figures()[hue], 0) << "another swatch's hue";
    }
    auto plane = editing(EditorSpace::hsb, "3e7cb1");
    const auto hue = plane.hsb()[0];
    EXPECT_EQ(plane.setPlane(0, 0), hex("000000"));
    EXPECT_EQ(plane.hsb()[0], hue);
    plane.setHue(200);
    EXPECT_EQ(plane.sliders().figures()[0], 200) << "sliders and plane agree";

    auto inks = editing(EditorSpace::cmyk, "9db17c");
    auto expected = inks.sliders().figures();
    inks.setChannel(0, expected[0] = 76);
    inks.settle();
    EXPECT_EQ(inks.sliders().figures(), expected) << "not split anew";

    auto wide = editing(EditorSpace::oklch, "9db17c");
    wide.setChannel(1, 0.37);
    EXPECT_EQ(wide.sliders().figures()[1], 0.37) << "while it is dragged";
    wide.settle();
    EXPECT_LT(wide.sliders().figures()[1], 0.25) << "as much as there is";
}

class Editor : public testing::Test {
protected:
    Editor() {
        preferences.editorSpace = EditorSpace::rgb;
        state.editSwatch(1);
        tintra::test::open(panel, {312, 640});
        state.renameSwatch(0, "Signal");
        desk.models.undo().discardEntries(state.id());
    }
    /// The visible part of that role and name; a failed cast is a failed test.
    QWidget& part(QAccessible::Role role, const char* name) {
        for (auto* const one : panel.findChildren<QWidget*>()) {
            const auto* const face = QAccessible::queryAccessibleInterface(one);
            if (one->isVisible() && face->role() == role &&
                face->text(QAccessible::Name) == QString::fromUtf8(name))
                return *one;
        }
        ADD_FAILURE() << "no " << name;
        return panel;
    }
    QLineEdit& field(const char* name) {
        return dynamic_cast<QLineEdit&>(part(QAccessible::EditableText, name));
    }
    PickerControl& slider(const char* name) {
        return dynamic_cast<PickerControl&>(part(QAccessible::Slider, name));
    }
    void type(const char* name, const char* text, const char* key = nullptr) {
        field(name).setFocus();
        field(name).selectAll();
        QTest::keyClicks(&field(name), QString::fromUtf8(text));
        if (key) press(key);
    }
    QString spoken(const char* name) {
        return QAccessible::queryAccessibleInterface(&slider(name))->text(QAccessible::Value);
    }
    static void drag(QWidget& over, QPoint to) {
        QTest::mousePress(&over, Qt::LeftButton, {}, over.rect().center());
        QTest::mouseMove(&over, to);
        QTest::mouseRelease(&over, Qt::LeftButton, {}, to);
    }
    const WashColor& now() { return state.editorBuffer.value()->color; }
    const WashColor& held(std::size_t at = 1) { return state.swatches()[at].color; }

    Desk desk;
    Preferences& preferences = desk.models.preferences();
    AppState& state = desk.stateWith(4);
    EditorPanel panel{desk.ui, state, nullptr};
};

TEST_F(Editor, FieldsShowAtOnceAndEnterApplies) {
    type("Red", "203");
    EXPECT_EQ(now().srgb255().r, 203);
    EXPECT_NE(held().srgb255().r, 203);
    press("Up");
    press("Shift+Down");
    EXPECT_EQ(now().srgb255().r, 194);
    press("Return");
    EXPECT_EQ(held().srgb255().r, 194);
    type("Red", "many", "Return");
    EXPECT_EQ(field("Red").text(), QStringLiteral("194"));
    // Changes of one channel that follow closely are one step; another channel's is its own.
    type("Red", "10", "Return");
    type("Green", "20", "Return");
    desk.models.undo().undo(state.place());
    EXPECT_EQ(held().srgb255().r, 10);
    desk.models.undo().undo(state.place());
    EXPECT_EQ(held(), Desk::colour(1));
    EXPECT_EQ(now(), held());
    EXPECT_FALSE(desk.models.undo().canUndo());
}

TEST_F(Editor, CodesAreMeantInTheSpaceTheyAreShownIn) {
    type("Code", "#ff8800", "Return");
    EXPECT_EQ(held(), hex("ff8800"));
    preferences.rgbProfile = "Display P3";
    EXPECT_NE(field("Code").text(), QStringLiteral("#ff8800")) << "shown anew at once";
    type("Code", "#ff8800", "Return");
    EXPECT_EQ(field("Code").text(), QStringLiteral("#ff8800"));
    EXPECT_GT(held().r, 1) << "beyond sRGB";
    preferences.format = ColorFormat(ColorFormat::cssHSL);
    type("Code", "hsl(120, 100%, 50%)", "Return");
    EXPECT_EQ(held(), hex("00ff00")) << "a code of sRGB whatever the profile";
    preferences.rgbProfile = std::string(ColorProfiles::kDefaultRgb);
}

TEST_F(Editor, GoesOnWhenItsSwatchIsRemoved) {
    state.removeSwatch(1);
    EXPECT_EQ(state.editorBuffer.value()->swatchID, state.swatches()[1].id);
    EXPECT_EQ(now(), Desk::colour(2));
    const std::vector others{hex("102030"), hex("405060")};
    state.replacePalette(others, {});
    EXPECT_FALSE(state.editorBuffer.value()) << "nothing of what was edited is left";
}

TEST_F(Editor, SlidersAreDraggedAndStepped) {
    preferences.editorSpace = EditorSpace::hsb;
    auto& track = slider("Saturation");
    drag(track, {track.width() / 2, 14});
    EXPECT_NEAR(now().hsb().s, 0.5, 0.01);
    drag(track, {track.width() + 200, 14});
    EXPECT_EQ(now().hsb().s, 1);
    const std::pair<const char*, double> rows[]{{"Home", 0},    {"Right", 0.01}, {"Shift+Up", 0.11},
                                                {"PgUp", 0.21}, {"Down", 0.2},   {"End", 1}};
    track.setFocus();
    for (const auto& [keys, share] : rows) {
        press(keys);
        EXPECT_NEAR(now().hsb().s, share, 1e-9) << keys;
    }
    auto* const value = QAccessible::queryAccessibleInterface(&track)->valueInterface();
    ASSERT_TRUE(value);
    EXPECT_EQ(value->maximumValue().toDouble(), 100);
    value->setCurrentValue(40);
    EXPECT_NEAR(now().hsb().s, 0.4, 1e-9);
    EXPECT_EQ(spoken("Saturation"), QStringLiteral("40 %"));
    slider("Alpha").choose(50);
    EXPECT_EQ(now().a, 0.5);
    EXPECT_EQ(held(), Desk::colour(1));
}

TEST_F(Editor, PlaneAndWheelMoveTheColour) {
    auto& plane = slider("Saturation and brightness");
    drag(plane, {12 + 210, 12 + 54}); // three quarters of 280, a quarter of 216 from above
    EXPECT_NEAR(now().hsb().s, 0.75, 0.005);
    EXPECT_NEAR(now().hsb().b, 0.75, 0.005);
    EXPECT_EQ(spoken("Saturation and brightness"), QStringLiteral("75 %, 75 %"));
    EXPECT_FALSE(QAccessible::queryAccessibleInterface(&plane)->valueInterface());
    press("End");
    press("Shift+Down");
    EXPECT_EQ(now().hsb().s, 1);
    EXPECT_NEAR(now().hsb().b, 0.65, 0.005);

    preferences.editorPicker = PickerStyle::wheel;
    auto& ring = slider("Hue");
    const auto middle = ring.rect().center();
    QTest::mouseClick(&ring, Qt::LeftButton, {}, middle - QPoint(95, 0));
    EXPECT_NEAR(now().hsb().h, 0.5, 0.005) << "cyan stands at the left";
    QTest::mouseClick(&ring, Qt::LeftButton, {}, middle - QPoint(70, 0));
    EXPECT_NEAR(now().hsb().h, 0.5, 0.005) << "beside the ring";
    press("Home");
    press("Left");
    EXPECT_NEAR(now().hsb().h * 360, 359, 1e-6);
    drag(slider("Saturation and brightness"), {12, 12});
    EXPECT_EQ(now(), hex("ffffff"));
}

TEST_F(Editor, CodeReadsWhatPasteReadsAndRefusesTheRest) {
    type("Code", "rebeccapurple");
    EXPECT_EQ(now(), hex("663399"));
    press("Return");
    EXPECT_EQ(held(), hex("663399"));
    EXPECT_EQ(field("Code").text(), QStringLiteral("#663399"));
    type("Code", "#12g", "Return");
    EXPECT_EQ(held(), hex("663399"));
    EXPECT_EQ(field("Code").text(), QStringLiteral("#12g"));
    part(QAccessible::StaticText, "Nothing there that reads as a colour");
    grab(panel, "editor-refused");
    press("Esc");
    EXPECT_EQ(field("Code").text(), QStringLiteral("#663399"));
    part(QAccessible::Button, "Copy").setFocus();
    press("Return");
    EXPECT_EQ(desk.desktop.clipboard.held.text, "#663399");
}

TEST_F(Editor, AnotherSwatchAppliesEscRevertsThenCloses) {
    type("Blue", "7");
    type("Name of the swatch", "Kelp");
    state.selectedSwatch = 2;
    EXPECT_EQ(held().srgb255().b, 7);
    EXPECT_EQ(state.swatches()[1].name, "Kelp");
    EXPECT_EQ(state.editorBuffer.value()->swatchID, state.swatches()[2].id);
    EXPECT_TRUE(field("Name of the swatch").text().isEmpty());
    EXPECT_EQ(toUtf8(field("Name of the swatch").placeholderText()), state.swatchName(2));

    for (const char* back : {"Esc", "Before", "Revert"}) {
        type("Blue", "9");
        EXPECT_NE(now(), held(2));
        if (std::string_view(back) == "Esc")
            press("Esc");
        else
            click(part(QAccessible::Button, back), {8, 8});
        EXPECT_EQ(now(), held(2)) << back;
    }
    EXPECT_EQ(held(2), Desk::colour(2));
    press("Esc");
    EXPECT_FALSE(state.editorBuffer.value());
}

TEST_F(Editor, GamutSentenceStandsInCmykOnly) {
    const auto stands = [&](EditorSpace space, const char* code) {
        preferences.editorSpace = space;
        type("Code", code);
        const auto* sentence = accessible(
            panel,
            "Outside the CMYK gamut. Editing here moves the colour to the nearest printable one.");
        return sentence && !sentence->state().invisible;
    };
    EXPECT_FALSE(stands(EditorSpace::oklch, "0000ff"));
    EXPECT_TRUE(stands(EditorSpace::cmyk, "0000ff"));
    EXPECT_FALSE(stands(EditorSpace::cmyk, "808080"));
    type("Code", "0000ff");
    slider("Black").choose(20);
    EXPECT_FALSE(isOutsideGamut(now(), ColorProfiles::shared().cmykSpace()));
}

} // namespace
} // namespace tintra::test
