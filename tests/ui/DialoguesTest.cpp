#include "tests/ui/Desk.h"
#include "tests/ui/Parts.h"
#include "ui/shared/DialogueBox.h"
#include "ui/shared/WarningLine.h"
#include "ui/shared/WindowDialogues.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace tintra::test {
namespace {

using testing::ElementsAre;

/// Dialogues over a window that a test can close.
class DialoguesTest : public testing::Test {
protected:
    DialoguesTest() : window(std::make_unique<QWidget>()) {
        dialogues.setTheme(desk.theme);
        dialogues.windowOf = [this](const ToastPlace&) { return window.get(); };
        test::open(*window, {900, 700});
    }

    /// The dialogue that is open; null for none.
    template <class Box = DialogueBox>
    static Box* box() {
        for (auto* widget : QApplication::topLevelWidgets())
            if (auto* found = dynamic_cast<Box*>(widget); found && found->isVisible()) return found;
        return nullptr;
    }
    static void toFront() {
        QApplication::setActiveWindow(box());
        QCoreApplication::processEvents();
    }
    static std::vector<QPushButton*> buttons() {
        std::vector<QPushButton*> visible;
        for (auto* button : partsOf<QPushButton>(*box()))
            if (button->isVisible()) visible.push_back(button);
        std::ranges::sort(visible, {}, [](const auto* button) { return button->x(); });
        return visible;
    }
    static std::vector<std::string> titles() {
        std::vector<std::string> texts;
        for (const auto* button : buttons())
            texts.push_back(toUtf8(button->text()));
        return texts;
    }
    static QLineEdit* field() { return &partOf<QLineEdit>(*box()); }

    void ask(std::vector<std::string> buttons, std::string title = "Clear the Bench?") {
        dialogues.ask({std::move(title), "Not in any open palette: 2 colours.", std::move(buttons),
                       desk.state().place()},
                      [this](std::size_t button) { answers.push_back(button); });
        toFront();
    }
    void askName(NameQuestion question) {
        dialogues.askName(std::move(question),
                          [this](std::optional<NameAnswer> answer) { names.push_back(answer); });
        toFront();
    }

    Desk desk;
    std::unique_ptr<QWidget> window;
    WindowDialogues dialogues;
    std::vector<std::size_t> answers;
    std::vector<std::optional<NameAnswer>> names;
};

const std::vector<std::string> kSaving{"Save", "Discard", "Cancel"};

TEST_F(DialoguesTest, KeysAnswerAQuestion) {
    struct Row {
        std::vector<std::string> buttons;
        std::vector<const char*> keys;
        std::size_t answer;
    };
    const Row rows[] = {
        {kSaving, {"Return"}, 0},
        {kSaving, {"Enter"}, 0},
        {kSaving, {"Space"}, 0},
        {kSaving, {"Esc"}, 2},
        {kSaving, {"Tab", "Return"}, 1},
        {kSaving, {"Tab", "Tab", "Space"}, 2},
        {kSaving, {"Tab", "Tab", "Tab", "Return"}, 0},
        {kSaving, {"Shift+Tab", "Return"}, 2},
        {{"Cancel", "Go"}, {"Esc"}, 0},
        {{"Yes", "No"}, {"Esc"}, 1},
        {{"OK"}, {"Esc"}, 0},
    };
    for (const auto& row : rows) {
        answers.clear();
        ask(row.buttons);
        EXPECT_TRUE(answers.empty()) << "it does not block";
        EXPECT_EQ(titles(), row.buttons);
        for (const auto* key : row.keys)
            press(key);
        EXPECT_THAT(answers, ElementsAre(row.answer)) << row.keys.back();
        desk.settle();
        EXPECT_EQ(box(), nullptr);
    }
}

TEST_F(DialoguesTest, TheMouseAndTheFrameAnswerIt) {
    for (std::size_t i = 0; i < 3; ++i) {
        ask(kSaving);
        auto* button = buttons()[i];
        click(*button, button->rect().center());
        EXPECT_EQ(answers.back(), i);
    }
    ask(kSaving);
    box()->close();
    EXPECT_THAT(answers, ElementsAre(0, 1, 2, 2));
}

TEST_F(DialoguesTest, StandsOverTheMiddleOfItsWindow) {
    window->setGeometry(150, 120, 500, 400);
    ask(kSaving);
    EXPECT_EQ(box()->width(), 420);
    const auto off = box()->geometry().center() - window->geometry().center();
    EXPECT_LE(off.manhattanLength(), 8) << "apart from a frame";
    auto* heard = QAccessible::queryAccessibleInterface(box());
    EXPECT_EQ(heard->role(), QAccessible::Dialog);
    EXPECT_EQ(heard->text(QAccessible::Name), u"Clear the Bench?");
    EXPECT_TRUE(accessible(*box(), "Not in any open palette: 2 colours."));
}

TEST_F(DialoguesTest, AnswersNothingWhenItsWindowGoesFirst) {
    ask(kSaving);
    askName(
        {.title = "Name", .note = {}, .proposal = "A", .button = "OK", .refusal = {}, .over = {}});
    dialogues.askWhatToOpen({}, [](const auto&) { FAIL(); });
    window.reset();
    desk.settle();
    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(names.empty());
    // Without a window it stands alone.
    ask(kSaving);
    press("Return");
    EXPECT_THAT(answers, ElementsAre(0));
}

TEST_F(DialoguesTest, AnAnswerMayCloseTheWindow) {
    dialogues.ask({"Save changes?", "", kSaving, {}}, [this](std::size_t) { window.reset(); });
    toFront();
    press("Return");
    desk.settle();
    EXPECT_EQ(box(), nullptr);
}

TEST_F(DialoguesTest, ANameIsJudgedWhileItIsTyped) {
    struct Row {
        const char *typed, *against;
        bool accepts;
    };
    const Row rows[] = {
        {"Brand", "", true},   {"taken", "“taken” is already there. Choose another name.", false},
        {"Brand 2", "", true}, {"", "", false},
        {"   ", "", false},
    };
    NameQuestion question{.title = "Duplicate “Brand” as",
                          .note = "The copy goes beside the original, in its folder.",
                          .proposal = "Brand copy",
                          .button = "Duplicate",
                          .refusal = [](std::string_view name) -> std::optional<std::string> {
                              if (name != "taken") return std::nullopt;
                              return "“taken” is already there. Choose another name.";
                          },
                          .over = {}};
    askName(question);
    EXPECT_EQ(QApplication::focusWidget(), field());
    EXPECT_EQ(field()->selectedText(), u"Brand copy") << "typing replaces it";
    for (const auto& row : rows) {
        field()->clear();
        QTest::keyClicks(field(), QString::fromUtf8(row.typed));
        auto* warning = &partOf<WarningLine>(*box());
        EXPECT_EQ(toUtf8(warning->sentence()), row.against) << row.typed;
        EXPECT_EQ(warning->isVisible(), *row.against != '\0');
        EXPECT_EQ(buttons().front()->isEnabled(), row.accepts) << row.typed;
        EXPECT_TRUE(accessible(*box(), "The copy goes beside the original, in its folder."));
        if (!row.accepts) press("Return");
        EXPECT_TRUE(names.empty()) << row.typed;
    }
    field()->setText(QStringLiteral("Brand 3"));
    press("Return");
    askName(question);
    press("Esc");
    askName(question);
    press("Tab");
    press("Tab");
    press("Return");
    ASSERT_EQ(names.size(), 3U);
    EXPECT_EQ(names[0].value().name, "Brand 3");
    EXPECT_FALSE(names[0]->button);
    EXPECT_FALSE(names[1] || names[2]) << "Esc and Cancel";
}

TEST_F(DialoguesTest, ANameThatClashesBringsItsButtons) {
    NameQuestion question{.title = "Install in the colour picker as",
                          .note = "It will appear.",
                          .proposal = "Brand",
                          .button = "Install",
                          .refusal = {},
                          .over = {}};
    question.clash = [](std::string_view name) -> std::optional<NameQuestion::Clash> {
        if (name != "Brand") return std::nullopt;
        return NameQuestion::Clash{"A list with that name is there.", {"Replace", "Keep Both"}};
    };
    struct Row {
        std::vector<const char*> keys;
        std::optional<std::size_t> button;
    };
    const Row rows[] = {
        {{"Return"}, 0}, {{"Tab", "Tab", "Return"}, 1}, {{"2", "Return"}, std::nullopt}};
    for (const auto& row : rows) {
        names.clear();
        askName(question);
        EXPECT_THAT(titles(), ElementsAre("Replace", "Keep Both", "Cancel"));
        for (const auto* key : row.keys)
            press(key);
        ASSERT_EQ(names.size(), 1U);
        EXPECT_EQ(names[0].value().button, row.button);
        desk.settle();
    }
    askName(question);
    press("2");
    EXPECT_THAT(titles(), ElementsAre("Install", "Cancel"));
    EXPECT_TRUE(accessible(*box(), "It will appear."));
}

TEST_F(DialoguesTest, TextOfAnyLengthKeepsItInBounds) {
    const std::string samples[] = {std::string(10000, 'x'), "شعار العلامة التجارية", "🎨🖌️",
                                   "a\nb\tc"};
    for (const auto& name : samples) {
        ask(kSaving, "Save changes to " + name + "?");
        EXPECT_EQ(box()->width(), 420);
        EXPECT_LT(box()->height(), 400);
        press("Esc");
        askName({.title = name,
                 .note = name,
                 .proposal = name,
                 .button = "OK",
                 .refusal = {},
                 .over = {}});
        EXPECT_LT(box()->height(), 400);
        press("Esc");
    }
}

TEST_F(DialoguesTest, FilesAreChosenWithoutBlockingAndTheFolderIsRemembered) {
    desk.folder.write("a.ase", "x");
    std::vector<std::optional<std::filesystem::path>> files;
    const auto ask = [&](OpenQuestion::Of kind) {
        dialogues.askWhatToOpen({kind, "Choose", {}}, [&](auto file) { files.push_back(file); });
        return box<QFileDialog>();
    };
    auto* first = ask(OpenQuestion::Of::palette);
    ASSERT_TRUE(first);
    EXPECT_TRUE(first->nameFilters().first().contains(QStringLiteral("*.scss")));
    first->selectFile(fromUtf8((desk.folder / "a.ase").string()));
    QMetaObject::invokeMethod(first, "accept");
    desk.settle();
    auto* again = ask(OpenQuestion::Of::palette);
    EXPECT_EQ(again->directory().path(), fromUtf8(desk.folder.path().string()));
    again->reject();
    desk.settle();
    auto* other = ask(OpenQuestion::Of::folder);
    EXPECT_NE(other->directory().path(), fromUtf8(desk.folder.path().string()));
    EXPECT_EQ(other->fileMode(), QFileDialog::Directory);
    other->reject();
    EXPECT_THAT(files, ElementsAre(desk.folder / "a.ase", std::nullopt, std::nullopt));
}

} // namespace
} // namespace tintra::test
