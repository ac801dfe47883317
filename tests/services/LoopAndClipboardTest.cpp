#include "platform/desktop/services/QtClipboard.h"
#include "platform/desktop/services/QtMainLoop.h"
#include "tests/services/RunningLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <algorithm>
#include <array>
#include <limits>
#include <map>
#include <string>
#include <thread>
#include <vector>

namespace tintra {
namespace {

TEST(MainLoops, TasksPostedFromThreadsRunInOrderOnTheMainThread) {
    QtMainLoop loop;
    std::map<int, std::vector<int>> ran;
    int count = 0;
    const auto main = std::this_thread::get_id();
    std::vector<std::jthread> threads;
    for (int thread = 0; thread < 4; ++thread)
        threads.emplace_back([&, thread] {
            for (int i = 0; i < 100; ++i)
                loop.post([&, thread, i] {
                    count += std::this_thread::get_id() == main ? 1 : 1000;
                    ran[thread].push_back(i);
                });
        });
    EXPECT_TRUE(waitFor([&] { return count >= 400; }));
    EXPECT_EQ(count, 400);
    for (const auto& [thread, own] : ran)
        EXPECT_TRUE(std::ranges::is_sorted(own));
}

TEST(MainLoops, DelayedTasksRunOnceByTheirTimeUnlessCalledOff) {
    QtMainLoop loop;
    std::vector<std::string> ran;
    const auto late = loop.after(0.08, [&] { ran.emplace_back("last"); });
    const auto soon = loop.after(0.02, [&] { ran.emplace_back("second"); });
    auto calledOff = loop.after(0.01, [&] { ran.emplace_back("called off"); });
    auto ended = std::make_unique<QtMainLoop>();
    const auto never = ended->after(0, [&] { ran.emplace_back("of a loop that is gone"); });
    ended->post([&] { ran.emplace_back("of a loop that is gone"); });
    ended.reset();
    std::unique_ptr<DelayedTask> own;
    own = loop.after(0, [&, again = std::string("what a task holds outlives its own handle")] {
        own = loop.after(0.04, [&] { ran.emplace_back("third"); });
        ran.push_back(again);
    });
    calledOff.reset();
    EXPECT_TRUE(waitFor([&] { return ran.size() == 4; }));
    EXPECT_EQ(ran, (std::vector<std::string>{"what a task holds outlives its own handle", "second",
                                             "third", "last"}));
}

TEST(Clipboards, TextAndColourComeBackAndNothingElse) {
    QtClipboard clipboard;
    const Clipboard::Content text{"oklch(62% 0.2 29) · rot", {}};
    clipboard.set(text);
    EXPECT_EQ(clipboard.content(), text);

    constexpr double kNan = std::numeric_limits<double>::quiet_NaN();
    clipboard.set({"#3366CC80", {{-0.25, 0.4, 1.5, kNan}}});
    const auto content = clipboard.content();
    EXPECT_EQ(content.text, "#3366CC80");
    ASSERT_TRUE(content.colour);
    constexpr double kStep = 1.0 / 65535; // components have 16 bits
    EXPECT_THAT(*content.colour,
                testing::Pointwise(testing::DoubleNear(kStep), std::array{0.0, 0.4, 1.0, 0.0}));
    EXPECT_TRUE(
        QGuiApplication::clipboard()->mimeData()->hasFormat(QStringLiteral("application/x-color")));

    clipboard.set({"1\t2", {}, {}, "<table></table>"});
    EXPECT_EQ(QGuiApplication::clipboard()->mimeData()->html(), QStringLiteral("<table></table>"));
    EXPECT_EQ(clipboard.content().text, "1\t2");

    auto* other = new QMimeData;
    other->setData(QStringLiteral("image/png"), "x");
    QGuiApplication::clipboard()->setMimeData(other);
    EXPECT_EQ(clipboard.content(), Clipboard::Content());
}

} // namespace
} // namespace tintra
