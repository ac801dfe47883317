#include "palettes/PasteColours.h"
#include "palettes/Stylesheet.h"
#include "tests/ui/Desk.h"
#include "ui/paste/PasteField.h"
#include "ui/paste/PasteReading.h"
#include "ui/paste/PasteSheet.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QClipboard>
#include <QLabel>
#include <QPushButton>

namespace tintra {
namespace {

using test::Desk;
using test::press;
using testing::ElementsAre;
using testing::IsEmpty;

/// A window with a field of its own and the sheet over it.
class PasteTest : public testing::Test {
protected:
    explicit PasteTest(Appearance appearance = Appearance::light) : desk(appearance) {
        test::open(window, {860, 568});
        beneath.setFocusPolicy(Qt::StrongFocus);
        beneath.setGeometry(window.rect());
        beneath.show();
        beneath.setFocus();
        sheet = std::make_unique<PasteSheet>(desk.ui, pasteTarget(desk.state()), &window);
        sheet->present();
    }

    PasteEditor& editor() { return *test::child<PasteEditor>(*sheet); }
    QPushButton* button(const char* text) {
        for (auto* one : sheet->findChildren<QPushButton*>())
            if (one->text() == QString::fromUtf8(text)) return one;
        return nullptr;
    }
    bool says(const QString& words) {
        for (const auto* label : sheet->findChildren<QLabel*>())
            if (label->text() == words && label->isVisible()) return true;
        return false;
    }
    void paste(const QString& text) {
        QApplication::clipboard()->setText(text);
        press("Ctrl+V");
    }
    /// What stands beside the lines, from the first to the last.
    std::vector<std::string> margin() {
        std::vector<std::string> words;
        const auto& shown = test::child<PasteField>(*sheet)->margin();
        const auto lines = static_cast<std::size_t>(editor().document()->blockCount());
        for (std::size_t i = 0; i < lines; ++i)
            words.push_back(toUtf8(shown.words(i)));
        return words;
    }
    std::vector<std::string> names() {
        std::vector<std::string> all;
        for (std::size_t i = 0; i < desk.state().swatches().size(); ++i)
            all.push_back(desk.state().swatchName(i));
        return all;
    }

    Desk desk;
    QWidget window;
    QWidget beneath{&window};
    std::unique_ptr<PasteSheet> sheet;
};

constexpr auto kStylesheet = ":root {\n"
                             "  --harbour: #1f4e79;\n"
                             "  --slack-tide: #3e7cb1;\n"
                             "  --salt: oklch(0.953 0.007 128);\n"
                             "  --buoy: rgb(244, 169, 59);\n"
                             "  --signal: var(--warm);\n"
                             "  --kelp: hsl(128, 22%, 27%);\n"
                             "}";

TEST(PasteReadingTest, TellsWhatEachLineHoldsAndTakesWhatThePaletteTakes) {
    struct Case {
        const char* what;
        std::string text;
        std::vector<std::string> lines; ///< number, code of the first colour (- for none), more
    };
    const std::vector<Case> cases{
        {"nothing", "", {}},
        {"blank lines", "\n  \n\t\n", {}},
        {"lines",
         "#f00\n\nnonsense\nrgb(0, 0, 255)\nred",
         {"0 #FF0000", "2 -", "3 #0000FF", "4 #FF0000"}},
        {"a stylesheet",
         ":root {\n  --a: #1f4e79;\n  --b: var(--a);\n  --c: hsl(128, 22%, 27%);\n}",
         {"1 #1F4E79", "2 -", "3 #36543A"}},
        {"repeats",
         "--a: #f00;\n--b: red;\n--c: blue, red;",
         {"0 #FF0000", "1 #FF0000 again", "2 #0000FF"}},
        {"a gradient",
         "a { background: linear-gradient(#f00, #0f0 50%, #00f); }",
         {"0 #FF0000 +2"}},
        {"two on a line", "--a: #f00; --b: #0f0;", {"0 #FF0000 +1"}},
        {"comments of many lines",
         "/* one\ntwo\n*/ --a: #f00;\n// --b: #0f0;\n--c: #00f;",
         {"2 #FF0000", "4 #0000FF"}},
        {"several lines of one", "a {\n  color:\n    #f00;\n}", {"1 #FF0000"}},
    };
    for (const auto& one : cases) {
        const auto reading = readPasted(one.text);
        std::vector<std::string> lines;
        for (const auto& line : reading.lines)
            lines.push_back(std::to_string(line.number) + ' ' +
                            (line.color ? line.color->hex() : std::string("-")) +
                            (line.isRepeat ? " again" : "") +
                            (line.more > 0 ? " +" + std::to_string(line.more) : ""));
        EXPECT_EQ(lines, one.lines) << one.what;
        Desk desk;
        const auto taken = desk.state().receiveText(one.text);
        EXPECT_EQ(reading.swatches.size(), taken) << one.what;
    }
}

TEST_F(PasteTest, ShowsWhatIsReadWhileItIsTyped) {
    QTest::keyClicks(&editor(), QStringLiteral("#1f4e79"));
    EXPECT_TRUE(says(QStringLiteral("1 colour read")));
    QTest::keyClick(&editor(), Qt::Key_Return);
    QTest::keyClicks(&editor(), QStringLiteral("gibberish"));
    EXPECT_EQ(margin().back(), "—");
    EXPECT_TRUE(says(QStringLiteral("1 colour read")));
    press("Ctrl+A");
    paste(QString::fromUtf8(kStylesheet));
    EXPECT_THAT(margin(),
                ElementsAre("", "Harbour", "Slack Tide", "Salt", "Buoy", "—", "Kelp", ""));
    EXPECT_TRUE(says(QStringLiteral("5 colours read")));
    test::grab(window, "paste");
}

TEST_F(PasteTest, AddsWithTheNamesOfVariables) {
    paste(QString::fromUtf8(kStylesheet));
    press("Ctrl+Return");
    EXPECT_FALSE(sheet->isVisible());
    EXPECT_THAT(names(), ElementsAre("Harbour", "Slack Tide", "Salt", "Buoy", "Kelp"));
    EXPECT_EQ(QApplication::focusWidget(), &beneath);
    sheet->present();
    EXPECT_TRUE(editor().document()->isEmpty());
}

TEST_F(PasteTest, KeepsTheKeyboardAndWhatWasTypedOnCancel) {
    paste(QStringLiteral("#1f4e79"));
    press("Tab");
    EXPECT_EQ(QApplication::focusWidget(), button("Add to Palette"));
    press("Tab");
    EXPECT_EQ(QApplication::focusWidget(), button("Cancel"));
    press("Tab");
    EXPECT_EQ(QApplication::focusWidget(), &editor());
    press("Shift+Tab");
    EXPECT_EQ(QApplication::focusWidget(), button("Cancel"));
    QTest::mouseClick(sheet.get(), Qt::LeftButton, {}, {5, 500});
    EXPECT_TRUE(sheet->isVisible());
    press("Esc");
    EXPECT_FALSE(sheet->isVisible());
    EXPECT_THAT(names(), IsEmpty());
    sheet->present();
    EXPECT_EQ(editor().text(), QStringLiteral("#1f4e79"));
}

TEST_F(PasteTest, SaysThatThereIsNothing) {
    for (const auto& text :
         {QString(), QStringLiteral("nothing\nof the kind"), QString(300, u'x')}) {
        press("Ctrl+A");
        paste(text);
        press("Ctrl+Return");
        EXPECT_TRUE(sheet->isVisible());
        EXPECT_TRUE(says(QStringLiteral("Nothing there that reads as a colour")));
    }
    test::grab(window, "paste-refused");
    press("Return");
    QTest::keyClicks(&editor(), QStringLiteral("red"));
    EXPECT_FALSE(says(QStringLiteral("Nothing there that reads as a colour")));
    button("Add to Palette")->click();
    EXPECT_THAT(names(), ElementsAre("Red"));
}

TEST_F(PasteTest, MakesSeedsInAHarmony) {
    struct Case {
        HarmonyMode mode;
        const char* button;
        const char* text;
        std::string first;
        std::optional<std::string> last; ///< none: follows from the first
    };
    const std::vector<Case> cases{
        {HarmonyMode::triadic, "Use as Seed", "x\n#102030\n#405060", "#102030", {}},
        {HarmonyMode::ramp, "Use as Seeds", "#112233", "#112233", {}},
        {HarmonyMode::ramp, "Use as Seeds", "#102030\n#405060\n#fff", "#102030", "#405060"},
    };
    for (const auto& one : cases) {
        desk.state().clearSeeds();
        desk.state().mode = one.mode;
        sheet->present();
        paste(QString::fromUtf8(one.text));
        ASSERT_NE(button(one.button), nullptr) << one.button;
        press("Ctrl+Return");
        EXPECT_EQ(desk.state().first().hex(), one.first);
        const auto follows = AppState::defaultingLast(desk.state().first()).hex();
        EXPECT_EQ(desk.state().last().hex(), one.last.value_or(follows));
        EXPECT_TRUE(desk.state().swatches().empty());
    }
}

TEST_F(PasteTest, ReadsLongTextBesideTheKeyboard) {
    QString lines;
    for (int i = 0; i < 10'000; ++i)
        lines += QStringLiteral("#%1\n").arg(i, 6, 16, QLatin1Char('0'));
    paste(lines);
    EXPECT_FALSE(says(QStringLiteral("10000 colours read"))); // still to be read
    press("Ctrl+Return");
    EXPECT_TRUE(sheet->isVisible());
    desk.desktop.loop.pass(1);
    EXPECT_FALSE(sheet->isVisible());
    EXPECT_EQ(desk.state().swatches().size(), 256U);
    EXPECT_THAT(desk.notices(), testing::SizeIs(1));
}

TEST_F(PasteTest, ShowsTheBeginningOfWhatIsTooLongToEdit) {
    const auto one = QStringLiteral("a{color:#102030}");
    const auto whole = one.repeated(100'000); // one line
    paste(whole);
    EXPECT_TRUE(editor().isCut());
    EXPECT_EQ(editor().text().size(), whole.size());
    EXPECT_LT(editor().document()->characterCount(), 1000);
    desk.desktop.loop.pass(1);
    EXPECT_TRUE(says(QStringLiteral("1 colour read · only the beginning is shown")));
    press("Backspace");
    EXPECT_TRUE(editor().text().isEmpty());
    paste(QString(PasteEditor::kMost + 1, u'x'));
    EXPECT_TRUE(says(QStringLiteral("That is more text than can be read at once")));
    EXPECT_TRUE(editor().text().isEmpty());
}

TEST_F(PasteTest, SurvivesItsWindowWhileItReads) {
    desk.desktop.background.holds = true;
    paste(QStringLiteral("#102030\n").repeated(5'000));
    desk.desktop.loop.pass(1);
    sheet.reset();
    desk.desktop.background.finish();
    desk.desktop.loop.turn();
    EXPECT_THAT(names(), IsEmpty());
}

class DarkPasteTest : public PasteTest {
protected:
    DarkPasteTest() : PasteTest(Appearance::dark) {}
};

TEST_F(DarkPasteTest, FitsItsWindow) {
    for (const auto& size : {QSize(860, 568), QSize(300, 260), QSize(2000, 1400)}) {
        window.resize(size);
        desk.settle();
        EXPECT_TRUE(
            window.rect().contains(editor().rect().translated(editor().mapTo(&window, QPoint()))))
            << size.width();
        EXPECT_GE(editor().height(), 32);
        test::grab(window, "paste-dark-" + std::to_string(size.width()));
    }
}

} // namespace
} // namespace tintra
