#include "state/AppState.h"
#include "tests/ui/Desk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tintra::test {
namespace {

using testing::ElementsAre;

TEST(Install, ATakenNameIsAskedAboutWhereItIsGiven) {
    Desk desk;
    auto& asked = desk.desktop.dialogues;
    std::filesystem::create_directories(desk.folder / "colors");
    const auto install = [&](AppState& state, const char* button) {
        asked.names = {"Brand"};
        asked.buttons.clear();
        if (button) asked.buttons = {button};
        state.installInColourPicker();
        desk.settle();
        return desk.notices();
    };
    auto& first = desk.stateWith(2);
    EXPECT_THAT(install(first, nullptr), ElementsAre("Saved Brand to the system colour picker"));
    EXPECT_FALSE(asked.clash) << "the name was free";
    struct Row {
        const char* button;
        std::vector<std::string> notices;
    };
    const Row rows[] = {
        {nullptr, {}},
        {"Keep Both", {"Saved Brand 2 to the system colour picker"}},
        {"Replace",
         {"Saved Brand to the system colour picker · the old list is in the Trash",
          "Updated from another window’s save"}},
    };
    for (const auto& row : rows) {
        auto& state = desk.another();
        state.addToPalette({0, 0, 1, 1}, AppState::Duplicates::allow);
        desk.notices();
        EXPECT_EQ(install(state, row.button), row.notices);
        ASSERT_TRUE(asked.clash);
        EXPECT_EQ(asked.clash->text, "A list with that name is already in the colour picker. "
                                     "Replacing it moves the old one to the Trash.");
        EXPECT_THAT(asked.clash->buttons, ElementsAre("Replace", "Keep Both"));
    }
    // A window that shows the list saves it under its own name without a question.
    install(first, nullptr);
    EXPECT_FALSE(asked.clash);
    EXPECT_TRUE(asked.questions.empty()) << "no second dialogue";
}

} // namespace
} // namespace tintra::test
