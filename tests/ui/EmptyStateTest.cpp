#include "ui/palette/EmptyState.h"

#include "tests/ui/Desk.h"

#include <gtest/gtest.h>

namespace tintra::test {
namespace {

TEST(EmptyStateTest, TheQuotationGivesWayAndTheActionsNever) {
    for (const auto size : {TypeSize::regular, TypeSize::largest}) {
        Desk desk;
        desk.models.preferences().typeSize = size;
        EmptyState empty(desk.ui, desk.state(), nullptr);
        const struct {
            QSize size;
            bool quotes;
        } rows[] = {{{240, 100}, false}, {{240, 180}, false}, {{360, 300}, true},
                    {{900, 464}, true},  {{3840, 60}, false}, {{3840, 2000}, true}};
        for (const auto& [room, quotes] : rows) {
            SCOPED_TRACE(std::to_string(room.width()) + " by " + std::to_string(room.height()));
            open(empty, room);
            int actions = 0, quotations = 0;
            for (const auto& one : empty.items()) {
                if (room.height() >= 100) {
                    EXPECT_TRUE(QRectF(empty.rect()).contains(one.rect)) << one.kind;
                }
                actions += one.kind == EmptyState::action && one.rect.height() >= 24;
                quotations += one.kind == EmptyState::quotation;
                for (const auto& other : empty.items())
                    EXPECT_TRUE(&one == &other || room.height() < 100 ||
                                !one.rect.intersects(other.rect));
            }
            EXPECT_EQ(actions, 4);
            if (size == TypeSize::regular) {
                EXPECT_EQ(quotations, quotes);
            }
        }
    }
}

TEST(EmptyStateTest, BeginsByKeyAndByMouse) {
    Desk desk;
    EmptyState empty(desk.ui, desk.state(), nullptr);
    int sheets = 0;
    empty.typeOrPaste = [&] { ++sheets; };
    open(empty, {900, 464});
    press("Home");
    press("Return");
    EXPECT_EQ(sheets, 1);
    press("Down");
    press("Space");
    press("Down");
    press("Return");
    press("Down");
    press("Down");
    press("Return");
    EXPECT_EQ(desk.desktop.dialogues.openQuestions.size(), 2U) << "a picture, then a palette";
    EXPECT_EQ(desk.windows.taken(), std::vector<std::string>{"library"});
    for (const auto& item : empty.items())
        click(empty, item.rect.center());
    EXPECT_EQ(sheets, 2);
    EXPECT_EQ(desk.desktop.dialogues.openQuestions.size(), 4U);
    auto* paste = accessible(empty, "Type or paste values");
    ASSERT_TRUE(paste);
    EXPECT_EQ(paste->role(), QAccessible::Button);
    EXPECT_EQ(toUtf8(paste->text(QAccessible::Description)), "Ctrl+Shift+V");
    EXPECT_TRUE(accessible(empty, std::string(desk.state().quote().text).c_str()));
}

} // namespace
} // namespace tintra::test
