#include "platform/File.h"
#include "tests/desktop/SamplePictures.h"
#include "tests/ui/Desk.h"
#include "ui/picture/PictureBar.h"
#include "ui/picture/PictureCanvas.h"
#include "ui/picture/PicturePane.h"
#include "ui/picture/PictureSplit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <fstream>

namespace tintra {
namespace {

using test::Desk;
using test::press;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr int kBlock = 100;
/// Three by two blocks, in reading order.
constexpr std::array<QRgb, 6> kBlocks{0xffd02020, 0xff20c040, 0xff2040d0,
                                      0xffe8d040, 0xff101018, 0xfff0f0e8};

QImage blocks() {
    QImage image(3 * kBlock, 2 * kBlock, QImage::Format_RGB32);
    QPainter painter(&image);
    for (int i = 0; i < 6; ++i)
        painter.fillRect(i % 3 * kBlock, i / 3 * kBlock, kBlock, kBlock,
                         QColor::fromRgb(kBlocks[static_cast<std::size_t>(i)]));
    return image;
}

/// A picture beside nothing, with its bar beneath it.
class PictureTest : public testing::Test {
protected:
    PictureTest() {
        auto* column = new QVBoxLayout(&window);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(0);
        column->addWidget(pane = new PicturePane(desk.ui, state, &window), 1);
        column->addWidget(bar = new PictureBar(desk.ui, state, &window));
        test::open(window, {640, 448});
    }

    void load(const QImage& image = blocks(), const std::string& name = "Blocks.png") {
        state.loadImage(test::encoded(image, "png"), name);
        desk.settle();
    }
    PictureCanvas& canvas() { return pane->canvas(); }
    /// A place in the middle of a block, or beside it by pixels of the picture.
    QPointF in(int block, QPointF beside = {}) {
        return canvas().toView(
            {(block % 3 + 0.5) * kBlock + beside.x(), (block / 3 + 0.5) * kBlock + beside.y()});
    }
    void focusByTab() {
        canvas().setFocus(Qt::TabFocusReason);
        QCoreApplication::processEvents();
    }
    std::size_t pins() const { return state.imageSource.value().found.size(); }
    std::string colourOf(std::size_t pin) const {
        return state.imageSource.value().found[pin].color.hex();
    }
    std::vector<std::string> palette() const {
        std::vector<std::string> codes;
        for (const auto& colour : state.colors())
            codes.push_back(colour.hex());
        return codes;
    }
    static std::string hexOf(int block) {
        return QColor::fromRgb(kBlocks[static_cast<std::size_t>(block)])
            .name()
            .toUpper()
            .toStdString();
    }

    Desk desk;
    AppState& state = desk.state();
    QWidget window;
    PicturePane* pane = nullptr;
    PictureBar* bar = nullptr;
};

TEST_F(PictureTest, OffersAPlaceForOne) {
    EXPECT_FALSE(bar->isVisible());
    test::grab(window, "picture-empty");
    const auto file = desk.folder / "blocks.png";
    blocks().save(QString::fromStdString(file.string()));
    desk.desktop.dialogues.paths = {file};
    auto* choose = pane->findChild<QPushButton*>();
    choose->setFocus();
    press("Space");
    desk.settle();
    EXPECT_TRUE(bar->isVisible());
    EXPECT_EQ(QApplication::focusWidget(), &canvas());
    EXPECT_EQ(state.imageSource.value().name, "blocks.png");
    test::grab(window, "picture");
}

TEST_F(PictureTest, TellsOfItsPins) {
    load();
    ASSERT_EQ(pins(), 6U);
    auto* root = QAccessible::queryAccessibleInterface(&canvas());
    EXPECT_EQ(root->role(), QAccessible::Graphic);
    EXPECT_EQ(root->text(QAccessible::Name), QStringLiteral("Picture, Blocks.png"));
    ASSERT_EQ(root->childCount(), 6);
    for (int i = 0; i < 6; ++i) {
        auto* child = root->child(i);
        EXPECT_EQ(child->role(), QAccessible::Button);
        EXPECT_TRUE(
            child->text(QAccessible::Name).startsWith(QStringLiteral("Pin %1, ").arg(i + 1)));
        EXPECT_EQ(toUtf8(child->text(QAccessible::Value).toUpper()),
                  colourOf(static_cast<std::size_t>(i)));
    }
}

TEST_F(PictureTest, TakesClicksAndDrags) {
    load();
    state.reextract(1, ImagePalette::Emphasis::dominant);
    desk.settle();
    ASSERT_EQ(pins(), 1U);
    test::click(canvas(), in(4, {30, 30}));
    desk.settle();
    EXPECT_THAT(palette(), ElementsAre(hexOf(4)));
    EXPECT_EQ(pins(), 2U);
    // The pin in the palette comes first.
    EXPECT_NE(test::accessible(canvas(), ("Pin 1, " + state.swatchName(0)).c_str()), nullptr);

    const auto from = in(4, {30, 30}).toPoint(), to = in(2, {-20, 10}).toPoint();
    QTest::mousePress(&canvas(), Qt::LeftButton, {}, from);
    QTest::mouseMove(&canvas(), (from + to) / 2);
    QTest::mouseMove(&canvas(), to);
    test::grab(window, "picture-drag");
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, to);
    desk.settle();
    EXPECT_THAT(palette(), ElementsAre(hexOf(2)));
    EXPECT_EQ(pins(), 2U);
    EXPECT_EQ(state.selectedSwatch.value(), 0U);

    // Outside the picture nothing is added; a drag that begins on it ends where it was let go.
    QTest::mouseClick(&canvas(), Qt::LeftButton, {}, {2, 2});
    EXPECT_EQ(pins(), canvas().pictureRect().contains(2, 2) ? 3U : 2U);
    QTest::mousePress(&canvas(), Qt::LeftButton, {}, in(0, {-40, 0}).toPoint());
    QTest::mouseMove(&canvas(), in(1, {-40, 0}).toPoint());
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, in(1, {-40, 0}).toPoint());
    desk.settle();
    EXPECT_EQ(palette().back(), hexOf(1));
    // A colour that the palette has gets no second pin.
    const auto before = pins();
    QTest::mouseDClick(&canvas(), Qt::LeftButton, {}, in(1, {30, 30}).toPoint());
    desk.settle();
    EXPECT_EQ(pins(), before);
}

TEST_F(PictureTest, IsWorkedByKeyboard) {
    load();
    focusByTab();
    EXPECT_EQ(canvas().focused(), -1);
    press("Return"); // at the crosshair, in the middle
    desk.settle();
    ASSERT_EQ(pins(), 7U);
    EXPECT_EQ(state.swatches().size(), 1U);
    for (int i = 0; i < 7; ++i)
        press("Tab");
    EXPECT_EQ(canvas().focused(), 6);
    EXPECT_EQ(state.selectedSwatch.value(), 0U);
    const auto before = state.imageSource.value().found[6].point;
    const auto step = std::max(1.0, 3 * kBlock / canvas().pictureRect().width());
    press("Left");
    press("Left");
    press("Shift+Up");
    desk.settle();
    const auto after = state.imageSource.value().found[6].point;
    EXPECT_DOUBLE_EQ(after.x, before.x - 2 * step);
    EXPECT_DOUBLE_EQ(after.y, before.y - 10 * step);
    EXPECT_EQ(palette(), std::vector{colourOf(6)});
    test::grab(window, "picture-keys");
    press("Delete");
    EXPECT_EQ(pins(), 6U);
    EXPECT_THAT(palette(), IsEmpty());
    press("-");
    desk.settle();
    EXPECT_EQ(state.imageSource.value().count, 5);
    press("+");
    desk.settle();
    EXPECT_EQ(state.imageSource.value().count, 6);
}

TEST_F(PictureTest, NumbersPinsAsThePaletteStands) {
    load();
    state.applyExtraction();
    ASSERT_EQ(palette().size(), 6U);
    state.moveSwatch(5, 0);
    std::vector<std::string> numbers;
    for (const auto& mark : pinMarks(state))
        numbers.push_back(std::to_string(mark.number));
    EXPECT_THAT(numbers, ElementsAre("2", "3", "4", "5", "6", "1"));
    state.removeSwatch(1); // its pin is left, without a swatch, at the end
    numbers.clear();
    for (const auto& mark : pinMarks(state))
        numbers.push_back(std::to_string(mark.number) + (mark.swatch ? "" : "*"));
    EXPECT_THAT(numbers, ElementsAre("6*", "2", "3", "4", "5", "1"));
}

TEST_F(PictureTest, AddsAllAndAsksFirst) {
    desk.stateWith(2);
    load();
    desk.desktop.dialogues.buttons = {"Cancel", "Add to Palette", "Replace"};
    const std::vector<std::size_t> expected{2, 8, 6};
    auto* add = bar->findChild<QPushButton*>();
    for (const auto count : expected) {
        add->click();
        EXPECT_EQ(palette().size(), count);
    }
    EXPECT_EQ(desk.desktop.dialogues.questions.size(), 3U);
}

TEST_F(PictureTest, ChoosesEmphasisAndCount) {
    load();
    auto* count = test::child<Stepper>(*bar);
    count->setFocus();
    press("Down");
    desk.settle();
    EXPECT_EQ(pins(), 5U);
    auto* emphasis = test::child<Segmented>(*bar);
    emphasis->setFocus();
    press("Right");
    desk.settle();
    EXPECT_EQ(state.imageSource.value().emphasis, ImagePalette::Emphasis::vibrant);
    EXPECT_EQ(pins(), 5U);
    desk.desktop.background.holds = true;
    press("Right");
    EXPECT_TRUE(state.imageSource.value().extracting);
    desk.desktop.loop.pass(0.5);
    test::grab(*bar, "picture-finding");
    state.closePicture(); // while colours are being found
    desk.desktop.background.finish();
    desk.settle();
    EXPECT_FALSE(bar->isVisible());
    EXPECT_EQ(pins(), 0U);
}

TEST_F(PictureTest, KeepsWithinANarrowWindow) {
    load();
    for (const int width : {240, 320, 420, 520, 700, 1000}) {
        window.resize(width, 300);
        desk.settle();
        for (auto* one : bar->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (!one->isVisible()) continue;
            EXPECT_TRUE(bar->rect().contains(one->geometry())) << width;
        }
        EXPECT_TRUE(QRectF(canvas().rect()).contains(canvas().pictureRect())) << width;
        test::grab(window, "picture-" + std::to_string(width));
    }
    desk.models.preferences().appearance = Appearance::dark;
    desk.models.preferences().typeSize = TypeSize::largest;
    desk.settings.prefersHighContrast = true;
    desk.applyStyle();
    focusByTab();
    press("Tab");
    press("Right");
    EXPECT_GT(canvas().items()[0].rect.width(), 40); // grown with the text
    test::grab(window, "picture-hc");
}

TEST_F(PictureTest, TakesDroppedPicturesOnly) {
    load();
    const auto file = desk.folder / "other.png";
    blocks().scaled(30, 20).save(QString::fromStdString(file.string()));
    const auto nonsense = desk.folder / "nonsense.bin";
    std::ofstream(nonsense) << "nothing";
    using Files = std::vector<std::filesystem::path>;
    const auto files = [](const Files& all) {
        auto data = std::make_unique<QMimeData>();
        QList<QUrl> urls;
        for (const auto& one : all)
            urls.push_back(QUrl::fromLocalFile(QString::fromStdString(one.string())));
        data->setUrls(urls);
        return data;
    };
    QMimeData text, colour, picture;
    text.setText(QStringLiteral("#f00"));
    colour.setColorData(QColor(Qt::red));
    picture.setImageData(blocks());
    const std::vector<std::pair<Files, std::string>> cases{
        {{desk.folder / "a.gpl"}, "Blocks.png"},      {{nonsense}, "Blocks.png"},
        {{desk.folder / ""}, "Blocks.png"},           {{desk.folder / "gone.png"}, "Blocks.png"},
        {{desk.folder / "a.ase", file}, "other.png"},
    };
    const auto droppedOn = [&](const QMimeData& data) {
        test::drop(*pane, {50, 50}, data);
        desk.settle();
        return state.imageSource.value().name;
    };
    EXPECT_EQ(droppedOn(text), "Blocks.png");
    EXPECT_EQ(droppedOn(colour), "Blocks.png");
    for (const auto& [all, shown] : cases)
        EXPECT_EQ(droppedOn(*files(all)), shown) << all.front();
    EXPECT_EQ(droppedOn(picture), "Picture");
    EXPECT_THAT(desk.notices(), testing::SizeIs(3)); // what was no picture has been said
}

TEST_F(PictureTest, SurvivesItsWindowInTheMiddle) {
    load();
    desk.desktop.background.holds = true;
    const auto at = canvas().items()[0].rect.center().toPoint();
    QTest::mousePress(&canvas(), Qt::LeftButton, {}, at);
    QTest::mouseMove(&canvas(), at + QPoint(40, 10));
    window.resize(800, 500);
    delete pane;
    delete bar;
    desk.desktop.background.finish();
    desk.settle();
    EXPECT_EQ(pins(), 6U);
}

TEST(PictureSplitTest, SnapsToItsShares) {
    for (const auto& [at, share] : {std::pair{0, PictureShare::third},
                                    {370, PictureShare::third},
                                    {380, PictureShare::half},
                                    {520, PictureShare::half},
                                    {530, PictureShare::twoThirds},
                                    {900, PictureShare::twoThirds}})
        EXPECT_EQ(PictureSplit::nearest(at, 900), share) << at;
    EXPECT_EQ(PictureSplit::pictureWidth(PictureShare::third, 900), 300);
    EXPECT_EQ(PictureSplit::pictureWidth(PictureShare::half, 900), 450);
    EXPECT_EQ(PictureSplit::pictureWidth(PictureShare::twoThirds, 900), 600);
}

} // namespace
} // namespace tintra
