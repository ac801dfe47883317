// What nobody should do to a window, and somebody does: it says so in a sentence, loses nothing and
// goes on.

#include "tests/desktop/SamplePictures.h"
#include "tests/ui/Desk.h"
#include "ui/editor/EditorPanel.h"
#include "ui/palette/CollapsedStrip.h"
#include "ui/palette/PaletteCanvas.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/ColourMime.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QMenu>
#include <QPointer>
#include <QUrl>
#include <fstream>

namespace tintra::test {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A palette window that closes as the application closes it.
class BadInputTest : public testing::Test {
public:
    BadInputTest() {
        desk.windows.closing = [this](const Uuid& id) {
            desk.models.workspaces().close(id, [this](bool closed) {
                if (!closed) return;
                window->closeNow();
                window->deleteLater();
            });
        };
        open(*window, {960, 600});
        desk.settle();
    }
    ~BadInputTest() override { delete window; }

    std::filesystem::path file(const char* name, std::uint64_t size = 0) {
        const auto path = desk.folder / name;
        std::ofstream(path).close();
        std::filesystem::resize_file(path, size);
        return path;
    }
    void dropFiles(const std::vector<std::filesystem::path>& files) {
        QMimeData data;
        QList<QUrl> urls;
        for (const auto& one : files)
            urls << QUrl::fromLocalFile(fromUtf8(one.string()));
        data.setUrls(urls);
        drop(*window, window->rect().center(), data);
        desk.settle();
    }
    void paste(std::string text) {
        desk.desktop.clipboard.held.text = std::move(text);
        press("Ctrl+V");
    }
    PaletteCanvas& canvas() const { return *child<PaletteCanvas>(*window); }

    Desk desk;
    AppState& state = desk.stateWith(3);
    QPointer<PaletteWindow> window = new PaletteWindow(desk.ui, state);
};

TEST_F(BadInputTest, FilesThatAreNoneAreNamed) {
    std::filesystem::create_directory(desk.folder / "Folder");
    constexpr auto kHuge = std::uint64_t{500} << 20U;
    const struct {
        std::filesystem::path file;
        const char* says;
    } rows[]{
        {desk.folder / "Folder", "Folder could not be read as an image"},
        {desk.folder / "gone.gpl", "gone.gpl could not be read"},
        {desk.folder / "gone.png", "gone.png could not be read as an image"},
        {file("empty.ase"), "empty.ase is empty"},
        {file("huge.ase", kHuge), "huge.ase could not be read"},
        {file("huge.png", kHuge), "huge.png could not be read as an image"},
        {file("huge.txt", kHuge), "huge.txt could not be read"},
    };
    for (const auto& row : rows) {
        dropFiles({row.file});
        EXPECT_THAT(desk.notices(), ElementsAre(HasSubstr(row.says))) << row.says;
        EXPECT_EQ(state.swatches().size(), 3U);
        EXPECT_FALSE(state.fileIsOver);
    }
}

TEST_F(BadInputTest, OfManyFilesOneIsTaken) {
    std::vector<std::filesystem::path> files(10'000, desk.folder / "nothing.xyz");
    dropFiles(files);
    EXPECT_THAT(desk.notices(), ElementsAre(HasSubstr("nothing.xyz could not be read")));
    std::ofstream(desk.folder / "two.gpl") << "GIMP Palette\n1 2 3 One\n4 5 6 Two\n";
    files[500] = desk.folder / "two.gpl";
    desk.desktop.dialogues.buttons = {"Discard"};
    dropFiles(files);
    EXPECT_EQ(state.swatches().size(), 2U);
}

TEST_F(BadInputTest, DropsOfNonsenseChangeNothing) {
    const auto own = QString::fromLatin1(kColourMimeType);
    const struct {
        QString type;
        QByteArray bytes;
    } rows[]{
        {own, "nonsense"},
        {own, R"({"colour": {"r": "red"}, "source": "swatch"})"},
        {own, QByteArray(1 << 20, '[')},
        {QStringLiteral("application/x-color"), "abc"},
        {QStringLiteral("image/png"), "no picture"},
        {QStringLiteral("text/uri-list"), "http://example.org/picture.png\r\n"},
        {QStringLiteral("text/plain"), "\xff\xfe no colour"},
    };
    for (const auto& row : rows) {
        QMimeData data;
        data.setData(row.type, row.bytes);
        for (QWidget* on : {static_cast<QWidget*>(window), static_cast<QWidget*>(&canvas())})
            drop(*on, on->rect().center(), data);
        desk.settle();
        EXPECT_EQ(state.swatches().size(), 3U) << row.type.toStdString();
        EXPECT_EQ(state.draggingSwatch.value(), std::nullopt);
        EXPECT_FALSE(state.swatchIsOver);
    }
}

TEST_F(BadInputTest, AFloodFromTheClipboardIsBounded) {
    desk.desktop.background.holds = true;
    canvas().setFocus();
    paste(std::string(std::size_t{100} << 20U, 'x'));
    // The main loop does not read it.
    EXPECT_THAT(desk.notices(), IsEmpty());
    desk.desktop.background.finish();
    desk.settle();
    EXPECT_THAT(desk.notices(), ElementsAre("Nothing there that reads as a colour"));

    std::string colours;
    for (int i = 0; i < 10'000; ++i)
        colours += "#" + WashColor(i % 256 / 255.0, i / 256 / 255.0, 0.5).hex() + "\n";
    paste(colours);
    EXPECT_EQ(state.swatches().size(), 3U);
    desk.desktop.background.finish();
    desk.settle();
    EXPECT_EQ(state.swatches().size(), 256U);
    EXPECT_EQ(desk.notices().size(), 1U);
    press("Ctrl+Z");
    EXPECT_EQ(state.swatches().size(), 3U);
}

struct Middle {
    const char* of;
    void (*begin)(BadInputTest&);
};

class ClosingTest : public BadInputTest, public testing::WithParamInterface<Middle> {};

TEST_P(ClosingTest, TakesWhatGoesOnAlong) {
    canvas().setFocus();
    state.selectedSwatch = 0;
    GetParam().begin(*this);
    QCoreApplication::processEvents();
    desk.desktop.dialogues.buttons = {"Discard"};
    const auto id = state.id();
    window->close();
    // The window goes with the loop of the toolkit, before the model does.
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    desk.settle();
    desk.desktop.background.finish();
    desk.desktop.loop.pass(10);
    desk.settle();
    EXPECT_FALSE(window);
    EXPECT_EQ(desk.models.workspaces().state(id), nullptr);
}

const Middle kMiddles[]{
    {"ARename", [](BadInputTest& at) { at.window->beginRename(); }},
    {"AMenu", [](BadInputTest& at) { at.window->showContextMenu(); }},
    {"AnEdit", [](BadInputTest& at) { at.state.editSwatch(1); }},
    {"APaste", [](BadInputTest& at) { at.window->showPasteSheet(); }},
    {"AStrip", [](BadInputTest& at) { at.state.isCollapsed = true; }},
    {"ANotice",
     [](BadInputTest& at) { at.window->notices().present(QStringLiteral("Said"), 5, {}); }},
    {"APress",
     [](BadInputTest& at) {
         const auto on = at.canvas().items()[0].rect.center().toPoint();
         QTest::mousePress(&at.canvas(), Qt::LeftButton, {}, on);
     }},
    {"ADragOverIt",
     [](BadInputTest& at) {
         static QMimeData data;
         data.setColorData(QColor(Qt::red));
         QDragEnterEvent enter({200, 200}, Qt::CopyAction, &data, Qt::LeftButton, {});
         QCoreApplication::sendEvent(&at.canvas(), &enter);
         QDragMoveEvent move({200, 200}, Qt::CopyAction, &data, Qt::LeftButton, {});
         QCoreApplication::sendEvent(&at.canvas(), &move);
     }},
    {"AnExtraction",
     [](BadInputTest& at) {
         at.desk.desktop.background.holds = true;
         at.state.loadImage(encoded(halves(), "png"), "Halves.png");
     }},
    {"AFlood",
     [](BadInputTest& at) {
         at.desk.desktop.background.holds = true;
         at.paste(std::string(100'000, 'x'));
     }},
};
INSTANTIATE_TEST_SUITE_P(In, ClosingTest, testing::ValuesIn(kMiddles),
                         [](const auto& row) { return std::string(row.param.of); });

TEST_F(BadInputTest, ANameThatIsTypedIsKeptAtClosing) {
    std::ofstream(desk.folder / "one.gpl") << "GIMP Palette\n1 2 3 One\n";
    desk.desktop.dialogues.buttons = {"Discard"};
    state.open(desk.folder / "one.gpl");
    desk.settle();
    ASSERT_FALSE(state.paletteIsDirty());
    state.selectedSwatch = 0;
    window->beginRename();
    QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("Buoy"));
    window->close();
    EXPECT_EQ(state.swatchName(0), "Buoy");
    EXPECT_EQ(desk.desktop.dialogues.questions.size(), 2U);
}

TEST_F(BadInputTest, NamesOfAnyLengthAndScriptKeepEveryPartInBounds) {
    const std::string names[]{std::string(10'000, 'n'),
                              std::string(10'000, ' '),
                              "אדום בהיר מאוד",
                              "لون أحمر 12 (فاتح)",
                              "👩‍🎨🎨🏳️‍🌈",
                              "a\nb\tc",
                              "[*]",
                              "<b>bold</b> & <img src='x'>",
                              "\xff\xfe"};
    const auto least = window->minimumSizeHint().width();
    for (const auto& name : names) {
        SCOPED_TRACE(name.substr(0, 30));
        state.renameSwatch(0, name);
        state.selectedSwatch = 0;
        state.editSwatch(0);
        for (const auto display : {PaletteDisplay::columns, PaletteDisplay::tiles}) {
            window->setDisplay(display);
            for (const auto size : {QSize(1200, 600), QSize(700, 400), QSize(240, 180)}) {
                window->resize(size);
                grab(*window, "names");
                EXPECT_EQ(window->size(), size);
                EXPECT_LE(canvas().items()[0].name.size(), 200);
            }
        }
        EXPECT_LE(window->windowTitle().size(), 300);
        EXPECT_EQ(window->minimumSizeHint().width(), least);
        state.isCollapsed = true;
        grab(*window, "names-strip");
        EXPECT_LE(window->width(), 1920);
        state.isCollapsed = false;
        desk.settle();
    }
}

} // namespace
} // namespace tintra::test
