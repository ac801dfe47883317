#include "palettes/PaletteFile.h"
#include "state/AppState.h"
#include "state/Preferences.h"
#include "tests/ui/Desk.h"
#include "tests/ui/Parts.h"
#include "ui/exporting/ExportDialogue.h"
#include "ui/exporting/ExportFormatList.h"
#include "ui/exporting/ExportParts.h"
#include "ui/exporting/ExportPreview.h"
#include "ui/shared/DialogueBox.h"
#include "ui/shared/WarningLine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QImage>
#include <QPushButton>

namespace tintra::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Texts = std::vector<std::string>;

class ExportTest : public testing::Test {
protected:
    void SetUp() override {
        state.addToPalette({1, 0, 0, 1}, AppState::Duplicates::allow, std::string("Signal"));
        state.addToPalette({0, 0, 1, 0.5}, AppState::Duplicates::allow, std::string("Deep"));
    }
    void TearDown() override {
        if (dialogue) dialogue->close();
        desk.settle();
    }

    void show(const char* format = "css", std::string name = "Brand") {
        dialogue = new ExportDialogue(desk.ui, state,
                                      {std::move(name), format, desk.folder.path(), state.place()},
                                      [this](auto answer) { answers.push_back(answer); });
        dialogue->open();
        test::open(*dialogue);
        desk.settle();
    }
    template <class Part>
    Part& part() const {
        return partOf<Part>(*dialogue);
    }
    QAbstractButton& button(const char* text) const {
        for (auto* button : partsOf<QAbstractButton>(*dialogue))
            if (toUtf8(button->text()) == text) return *button;
        throw std::runtime_error(text);
    }
    void clickOn(const char* text) {
        click(button(text), button(text).rect().center());
        desk.settle();
    }
    /// The sentences that warn now.
    std::vector<std::string> warnings() const {
        std::vector<std::string> texts;
        for (const auto* line : partsOf<WarningLine>(*dialogue))
            if (line->isVisible()) texts.push_back(toUtf8(line->sentence()));
        return texts;
    }

    Desk desk;
    AppState& state = desk.state();
    QPointer<ExportDialogue> dialogue;
    std::vector<std::optional<SaveAnswer>> answers;
};

TEST_F(ExportTest, EveryFormatIsShownAsItIsSaved) {
    for (const auto format : allExportFormats()) {
        const std::string raw(rawValue(format));
        show(raw.c_str(), "Brand " + raw);
        const auto sample = part<ExportPreview>().sample();
        clickOn("Save");
        ASSERT_EQ(answers.size(), 1U) << raw;
        const auto answer = std::exchange(answers, {}).front().value();
        EXPECT_EQ(answer.format, raw);
        EXPECT_EQ(answer.file,
                  desk.folder / ("Brand " + raw + "." + std::string(fileExtension(format))));
        bool saved = false;
        state.saveAs(answer.file, format, [&](bool done) { saved = done; });
        desk.settle();
        ASSERT_TRUE(saved) << raw;
        const auto file = desk.folder.content(answer.file.filename().string());
        ASSERT_TRUE(sample.content);
        EXPECT_TRUE(file == asText(*sample.content)) << raw;
        const auto kinds = (sample.lines.empty() ? 0 : 1) + (sample.rows.empty() ? 0 : 1) +
                           (sample.picture.isNull() ? 0 : 1);
        EXPECT_EQ(kinds, 1) << raw;
        EXPECT_EQ(sample.pictureSize, sample.picture.isNull() ? QSize() : QSize(160, 80));
    }
}

TEST_F(ExportTest, TheListIsAKeyboardList) {
    show("css");
    auto& list = part<ExportFormatList>();
    list.setFocus(Qt::TabFocusReason);
    struct Row {
        const char *keys, *format, *extension;
    };
    const Row rows[] = {
        {"Down", "scss", "scss"}, {"Up", "css", "css"},    {"Home", "json", "json"},
        {"End", "png", "png"},    {"G", "gpl", "gpl"},     {"S", "svg", "svg"},
        {"S", "scss", "scss"},    {"M", "markdown", "md"},
    };
    for (const auto& row : rows) {
        press(row.keys);
        desk.settle();
        EXPECT_EQ(rawValue(list.chosen()), row.format) << row.keys;
        EXPECT_EQ(part<ExportPreview>().sample().format, list.chosen());
        EXPECT_EQ(part<FileNameField>().accessibleDescription(),
                  QLatin1Char('.') + fromUtf8(row.extension));
    }
    EXPECT_EQ(children(list).size(), 13U);
    EXPECT_EQ(children(list)[9], "Adobe Swatch Exchange; .ase; ");
    click(list, list.items()[0].rect.center());
    EXPECT_EQ(list.chosen(), ExportFormat::json);
    press("Return");
    desk.settle();
    EXPECT_EQ(answers.at(0).value().format, "json") << "Enter saves from anywhere";
}

TEST_F(ExportTest, TabWalksFromTheNameThroughEverything) {
    show("json");
    Texts walked;
    for (int i = 0; i < 9; ++i) {
        walked.push_back(toUtf8(QAccessible::queryAccessibleInterface(QApplication::focusWidget())
                                    ->text(QAccessible::Name)));
        press("Tab");
    }
    EXPECT_THAT(walked,
                ElementsAre("Name", testing::StartsWith("Folder: "), "Save", "Copy", "Cancel",
                            "Format", "Preview of the file", "Upper-case hex", "# before hex"));
    EXPECT_EQ(QApplication::focusWidget(), &part<FileNameField>());
}

TEST_F(ExportTest, OptionsAreOnWhereTheFormatReadsThem) {
    auto& options = desk.models.preferences().formatOptions;
    for (const auto format : allExportFormats()) {
        options = FormatOptions{};
        show(std::string(rawValue(format)).c_str());
        const auto written = [&] { return part<ExportPreview>().sample().content; };
        const auto before = written();
        const auto changes = [&](const char* option) {
            if (!button(option).isEnabled()) return false;
            clickOn(option);
            return written() != before;
        };
        EXPECT_EQ(changes("Upper-case hex"), button("Upper-case hex").isEnabled());
        options = FormatOptions{};
        desk.settle();
        EXPECT_EQ(changes("# before hex"), button("# before hex").isEnabled());
        // An option that is off has nothing to change.
        const auto cased = PaletteExport::data(format, state.colors(), state.names(), "Brand",
                                               {.cssUppercase = true});
        const auto bare = PaletteExport::data(format, state.colors(), state.names(), "Brand",
                                              {.cssPrefixHash = false});
        EXPECT_EQ(button("Upper-case hex").isEnabled(), cased != before) << rawValue(format);
        EXPECT_EQ(button("# before hex").isEnabled(), bare != before) << rawValue(format);
        dialogue->reject();
        desk.settle();
    }
}

TEST_F(ExportTest, CopiesTextAndPictures) {
    show("css");
    clickOn("Copy");
    EXPECT_EQ(desk.desktop.clipboard.held.text,
              "/* Brand */\n:root {\n  --signal: #ff0000;\n  --deep: #0000ff80;\n}\n");
    EXPECT_EQ(part<NoticeBar>().text(), u"Copied CSS");
    part<ExportFormatList>().setFocus();
    press("End");
    clickOn("Copy");
    const auto& png = desk.desktop.clipboard.held.png;
    EXPECT_EQ(
        QImage::fromData(reinterpret_cast<const uchar*>(png.data()), static_cast<int>(png.size()))
            .size(),
        QSize(160, 80));
    part<ExportFormatList>().setFocus();
    press("A");
    EXPECT_FALSE(button("Copy").isEnabled());
    EXPECT_TRUE(answers.empty());
}

TEST_F(ExportTest, SaysWhatAFormatLosesAndWhyANameIsRefused) {
    show("ase");
    const auto alpha =
        "ASE holds no alpha: Deep will be saved opaque. Save As… a colour list keeps it.";
    EXPECT_THAT(warnings(), ElementsAre(alpha));
    EXPECT_EQ(part<ExportPreview>().sample().rows[1].lost, u"alpha 50% is left out");
    struct Row {
        const char *typed, *sentence;
    };
    const Row rows[] = {
        {"", "A palette needs a name."},
        {"a/b", "A name cannot hold “/”."},
        {".hidden", "A name cannot begin with a full stop."},
        {"  Brand  ", nullptr},
        {"Brand.ASE", nullptr},
        {"Brand.v2", nullptr},
    };
    auto& field = part<FileNameField>();
    for (const auto& row : rows) {
        field.setText(QString::fromUtf8(row.typed));
        EXPECT_EQ(button("Save").isEnabled(), !row.sentence) << row.typed;
        EXPECT_EQ(warnings(), row.sentence ? Texts({alpha, row.sentence}) : Texts{alpha});
    }
    field.setText(QString(10000, QLatin1Char('x')));
    EXPECT_THAT(warnings(), ElementsAre(alpha, "That name is too long."));
    press("Return");
    EXPECT_TRUE(answers.empty());
    press("Esc");
    EXPECT_THAT(answers, ElementsAre(testing::Eq(std::nullopt)));
}

TEST_F(ExportTest, AsksBeforeAFileIsReplaced) {
    desk.folder.write("Brand.css", "old");
    const auto box = [] { return dynamic_cast<DialogueBox*>(QApplication::activeModalWidget()); };
    show("css");
    press("Return");
    desk.settle();
    ASSERT_TRUE(box());
    EXPECT_EQ(box()->accessibleName(), u"Replace “Brand.css”?");
    QApplication::setActiveWindow(box());
    press("Esc");
    desk.settle();
    EXPECT_TRUE(answers.empty());
    EXPECT_TRUE(dialogue->isVisible()) << "another name can be given";
    clickOn("Save");
    QApplication::setActiveWindow(box());
    press("Return");
    desk.settle();
    EXPECT_EQ(answers.at(0).value().file, desk.folder / "Brand.css");
    EXPECT_FALSE(dialogue);

    show("css");
    std::filesystem::remove_all(desk.folder.path());
    clickOn("Save");
    EXPECT_THAT(warnings(), ElementsAre(HasSubstr("folder is not there any more")));
}

TEST_F(ExportTest, AnswersNothingWhenItsWindowGoes) {
    auto window = std::make_unique<QWidget>();
    desk.desktop.background.holds = true;
    auto* over = new ExportDialogue(
        desk.ui, state, {"Brand", "clr", {}, {}}, [](const auto&) { FAIL(); }, window.get());
    over->open();
    window.reset();
    desk.desktop.background.finish();
    desk.settle();
}

TEST_F(ExportTest, ShowsTheLatestOfManyChangesAndLargePalettes) {
    show("json");
    desk.desktop.background.holds = true;
    auto& field = part<FileNameField>();
    for (const char* name : {"One", "Two", "Three"})
        field.setText(QString::fromUtf8(name));
    desk.desktop.background.holds = false;
    desk.desktop.background.finish();
    desk.settle();
    EXPECT_EQ(part<ExportPreview>().sample().lines.at(1), u"  \"name\": \"Three\",");
    EXPECT_EQ(toUtf8(part<FigureLabel>().accessibleName()).find("2 swatches · "), 0U);
    for (std::size_t i = 0; i < 254; ++i)
        state.addToPalette(Desk::colour(i), AppState::Duplicates::allow, std::string(10000, 'x'));
    desk.settle();
    const auto& sample = part<ExportPreview>().sample();
    EXPECT_EQ(sample.lines.size(), 3U + 256 * 8 + 2);
    EXPECT_LT(sample.lines[20].size(), 1000);
    EXPECT_TRUE(accessible(part<ExportPreview>(), "        \"hex\": \"#ff0000\","));
    part<ExportPreview>().setFocus(Qt::TabFocusReason);
    press("End");
    EXPECT_GT(part<ExportPreview>().visibleRegion().boundingRect().top(), 20000);
    grab(*dialogue, "export-256");
}

} // namespace
} // namespace tintra::test
