#include "tests/ui/Desk.h"
#include "ui/shared/WindowToasts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QLineEdit>

namespace tintra::test {
namespace {

using testing::ElementsAre;

/// A window with a field and a notice over it.
class NoticesTest : public testing::Test {
protected:
    NoticesTest() {
        field->setGeometry(20, 300, 200, 30);
        toasts.barOf = [this](const ToastPlace& place) {
            return place.window == ToastWindow::palette ? &bar : nullptr;
        };
        test::open(window, {800, 400});
        field->setFocus();
    }

    void show(std::string text, double seconds = 8, bool withAction = true) {
        auto action =
            withAction ? std::optional(ToastAction{"Undo", [this, text] { done.push_back(text); }})
                       : std::nullopt;
        toasts.show(std::move(text), seconds, std::move(action), {ToastWindow::palette, {}});
        QCoreApplication::processEvents();
    }
    void pointAt(bool notice) {
        QEnterEvent enter({5, 5}, {5, 5}, {5, 5});
        QEvent leave(QEvent::Leave);
        bar.setAttribute(Qt::WA_UnderMouse, notice);
        QCoreApplication::sendEvent(&bar, notice ? static_cast<QEvent*>(&enter) : &leave);
    }
    void pass(double seconds) { desk.desktop.loop.pass(seconds); }

    Desk desk;
    QWidget window;
    QLineEdit* field = new QLineEdit(&window);
    NoticeBar bar{desk.theme, desk.desktop.loop, &window};
    WindowToasts toasts{desk.history, desk.desktop.toasts};
    std::vector<std::string> done;
};

TEST_F(NoticesTest, StandsAtTheTopForItsTime) {
    show("Sorted dark to light");
    EXPECT_EQ(bar.geometry().top(), 12);
    EXPECT_EQ(bar.height(), 36);
    EXPECT_LE(std::abs(bar.geometry().center().x() - window.width() / 2), 1);
    auto* heard = QAccessible::queryAccessibleInterface(&bar);
    EXPECT_EQ(heard->role(), QAccessible::AlertMessage);
    EXPECT_EQ(heard->text(QAccessible::Name), u"Sorted dark to light");
    pass(7.9);
    EXPECT_TRUE(bar.isVisible());
    pass(0.2);
    EXPECT_FALSE(bar.isVisible());
    EXPECT_TRUE(done.empty());
}

TEST_F(NoticesTest, EveryWayToItsAction) {
    struct Row {
        const char* name;
        std::function<void()> act;
        bool acts;
    };
    const auto keys = [this](const char* key) {
        return [this, key] {
            bar.setFocus(Qt::ShortcutFocusReason);
            press(key);
            EXPECT_EQ(QApplication::focusWidget(), field) << "the keyboard goes back";
        };
    };
    const auto mouse = [this](Qt::MouseButton button) {
        return [this, button] { QTest::mouseClick(&bar, button); };
    };
    const Row rows[] = {
        {"click", mouse(Qt::LeftButton), true},
        {"right click", mouse(Qt::RightButton), false},
        {"Return", keys("Return"), true},
        {"Enter", keys("Enter"), true},
        {"Space", keys("Space"), true},
        {"Esc", keys("Esc"), false},
        {"screen reader",
         [this] { EXPECT_TRUE(doDefault(QAccessible::queryAccessibleInterface(&bar))); }, true},
    };
    for (const auto& row : rows) {
        done.clear();
        show(row.name);
        row.act();
        EXPECT_EQ(done, row.acts ? std::vector<std::string>{row.name} : std::vector<std::string>{});
        if (row.acts) {
            EXPECT_FALSE(bar.isVisible()) << row.name;
            bar.act();
            EXPECT_EQ(done.size(), 1U) << "once";
        }
        bar.dismiss();
    }
    show("nothing to do", 8, false);
    QTest::mouseClick(&bar, Qt::LeftButton);
    EXPECT_FALSE(bar.isVisible()) << "a click takes it away";
}

TEST_F(NoticesTest, PointerAndFocusStopTheClock) {
    show("hovered");
    pointAt(true);
    pass(60);
    EXPECT_TRUE(bar.isVisible());
    show("replaced under the pointer");
    pass(60);
    EXPECT_TRUE(bar.isVisible());
    pointAt(false);
    pass(9);
    EXPECT_FALSE(bar.isVisible());
    show("focused");
    bar.setFocus(Qt::ShortcutFocusReason);
    pointAt(true);
    pointAt(false);
    pass(60);
    EXPECT_TRUE(bar.isVisible());
    field->setFocus();
    pass(9);
    EXPECT_FALSE(bar.isVisible());
}

TEST_F(NoticesTest, ANewOneReplacesTheOldAndItsClock) {
    show("first");
    pass(5.5);
    show("second");
    pass(5.5);
    EXPECT_TRUE(bar.isVisible()) << "the time of the first does not count";
    QTest::mouseClick(&bar, Qt::LeftButton);
    EXPECT_THAT(done, ElementsAre("second"));
    // What is done may show a notice, which stays.
    toasts.show("third", 2, ToastAction{"Undo", [this] { show("fourth"); }},
                {ToastWindow::palette, {}});
    bar.act();
    EXPECT_TRUE(bar.isVisible());
    EXPECT_EQ(bar.text(), u"fourth");
}

TEST_F(NoticesTest, KeepsTheLastTwentyAndGoesElsewhereWithoutAWindow) {
    for (int i = 0; i < 25; ++i)
        show("notice " + std::to_string(i));
    ASSERT_EQ(desk.history.texts().size(), 20U);
    EXPECT_EQ(desk.history.texts().front(), u"notice 5");
    EXPECT_EQ(desk.history.texts().back(), u"notice 24");
    toasts.show("let go of ⌘ to add", 2, {}, {ToastWindow::bench, {}});
    EXPECT_THAT(desk.notices(), ElementsAre("let go of Ctrl to add"));
    EXPECT_EQ(desk.history.texts().back(), u"let go of Ctrl to add");
    EXPECT_EQ(bar.text(), u"notice 24");
}

TEST_F(NoticesTest, KeepsWithinAWindowOfAnySize) {
    const std::string samples[] = {std::string(10000, 'x'), "شعار العلامة التجارية", "🎨",
                                   "Sorted dark to light"};
    for (const auto& text : samples)
        for (const int width : {240, 960, 4000}) {
            show(text);
            window.resize(width, 180);
            QCoreApplication::processEvents();
            EXPECT_GE(bar.x(), 14) << width;
            EXPECT_LE(bar.geometry().right(), width - 14);
            bar.grab();
        }
}

TEST_F(NoticesTest, GoesWithItsWindow) {
    auto gone = std::make_unique<QWidget>();
    auto* notice = new NoticeBar(desk.theme, desk.desktop.loop, gone.get());
    notice->present(QStringLiteral("x"), 2, {});
    gone.reset();
    pass(60);
}

} // namespace
} // namespace tintra::test
