#include "ui/palette/SeedRow.h"

#include "state/Models.h"
#include "tests/ui/Desk.h"
#include "ui/shared/ColourMime.h"

#include <gtest/gtest.h>

#include <QLineEdit>

namespace tintra::test {
namespace {

class SeedRowTest : public testing::Test {
protected:
    QWidget& part(const char* name) {
        auto* found = accessible(row, name);
        EXPECT_TRUE(found) << name;
        return *qobject_cast<QWidget*>(found->object());
    }

    Desk desk;
    AppState& state = desk.state();
    SeedRow row{desk.ui, state, nullptr};
};

TEST_F(SeedRowTest, StepsAndShadesKeepTheirBounds) {
    open(row, {1100, 56});
    const struct {
        HarmonyMode mode;
        bool steps, shades, last;
    } rows[] = {{HarmonyMode::ramp, true, false, true},
                {HarmonyMode::analogous, true, true, true},
                {HarmonyMode::monochromatic, true, false, false},
                {HarmonyMode::triadic, false, true, true}};
    for (const auto& [mode, steps, shades, last] : rows) {
        state.mode = mode;
        EXPECT_EQ(part("Steps").isVisible(), steps) << rawValue(mode);
        EXPECT_EQ(part("Shades").isVisible(), shades) << rawValue(mode);
        EXPECT_EQ(part("Last seed").isVisible(), last) << rawValue(mode);
        for (auto width = 240; width <= 1400; width += 29) {
            row.resize(width, row.height());
            const auto parts = row.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
            for (const auto* one : parts)
                for (const auto* other : parts) {
                    if (one->isHidden() || other->isHidden()) continue;
                    EXPECT_TRUE(row.rect().contains(one->geometry())) << width;
                    EXPECT_TRUE(one == other || !one->geometry().intersects(other->geometry()))
                        << width << " " << rawValue(mode);
                }
        }
    }
    state.mode = HarmonyMode::analogous;
    QWidget low;
    auto* within = new SeedRow(desk.ui, state, &low);
    low.resize(240, 180);
    within->resize(240, within->height());
    open(low);
    EXPECT_EQ(within->height(), 56) << "the colours keep the greater part";
    low.close();
    open(row, {1100, 56});
    const auto ends = [&](const char* name, QProperty<int>& of, int least, int most) {
        part(name).setFocus();
        press("End");
        press("Up");
        EXPECT_EQ(of.value(), most) << name;
        press("Home");
        press("Down");
        EXPECT_EQ(of.value(), least) << name;
    };
    ends("Steps", state.steps, AppState::kFewestSteps, AppState::kMostSteps);
    ends("Shades", state.shadesPerAnchor, AppState::kFewestShades, AppState::kMostShades);
    click(part("Add Harmony to Palette"), {30, 14});
    EXPECT_EQ(state.colors(), state.bands()[0]);
}

TEST_F(SeedRowTest, SeedsComeByDropAndByCode) {
    state.mode = HarmonyMode::ramp;
    open(row, {1000, 56});
    auto &first = part("First seed"), &last = part("Last seed");
    const WashColor coral{1, 0.5, 0.25, 1};
    const auto before = state.seeds().value();
    const decltype(Drag::source) sources[] = {
        DragOfSwatch{{std::nullopt, state.id(), state.id(), 0}},
        DragOfSeed{},
        DragOfBenchColumn{state.id()},
        DragOfWell{},
        DragOfLibrarySwatch{},
        DragOfContrastEntry{state.id()},
        DragOfBand{},
    };
    for (const auto& source : sources) {
        SCOPED_TRACE(source.index());
        EXPECT_TRUE(drop(first, {20, 20}, *mimeOf({coral, "Coral", source}, QString())).taken);
        EXPECT_EQ(state.first(), coral);
        desk.models.undo().undo(state.place());
        EXPECT_EQ(state.seeds().value(), before);
    }
    drop(first, {20, 20}, *mimeOf({coral, "Coral", DragOfBand{}}, QString()));
    QMimeData text;
    text.setText(QStringLiteral("#102030\n#405060"));
    EXPECT_TRUE(drop(last, {20, 20}, text).taken);
    EXPECT_EQ(state.last().hex(), "#102030");
    QMimeData file;
    file.setUrls({QUrl::fromLocalFile(QStringLiteral("/nowhere/x.ase"))});
    EXPECT_FALSE(drop(last, {20, 20}, file).entered);
    click(part("Swap the Seeds"), {16, 16});
    EXPECT_EQ(state.last(), coral);
    for (int i = 0; i < 3; ++i)
        desk.models.undo().undo(state.place());
    EXPECT_EQ(state.seeds().value(), before);

    // Typing is one step, and what does not read changes nothing.
    first.setFocus();
    press("Space");
    auto* pop = QApplication::activePopupWidget();
    ASSERT_TRUE(pop);
    auto* field = pop->findChild<QLineEdit*>();
    QTest::keyClicks(field, QStringLiteral("rgb(1, 2, 3) no"));
    field->selectAll();
    QTest::keyClicks(field, QStringLiteral("#ff8040"));
    EXPECT_EQ(state.first().hex(), "#FF8040");
    QTest::keyClicks(field, QStringLiteral("zz"));
    EXPECT_EQ(state.first().hex(), "#FF8040");
    EXPECT_FALSE(field->accessibleDescription().isEmpty());
    QTest::keyClick(field, Qt::Key_Escape);
    EXPECT_FALSE(QApplication::activePopupWidget());
    desk.models.undo().undo(state.place());
    EXPECT_EQ(state.seeds().value(), before);
    EXPECT_FALSE(desk.models.undo().canUndo());
}

} // namespace
} // namespace tintra::test
