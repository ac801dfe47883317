#include "tests/ui/Desk.h"
#include "ui/palette/PaletteCanvas.h"
#include "ui/palette/PaletteToolBar.h"
#include "ui/palette/PaletteWindow.h"

#include <gtest/gtest.h>

#include <QPaintEvent>
#include <algorithm>
#include <map>

namespace tintra::test {
namespace {

/// Gathers what is painted of a window's parts.
class PaintWatch final : public QObject {
public:
    explicit PaintWatch(QWidget& window) {
        for (auto* part : window.findChildren<QWidget*>())
            part->installEventFilter(this);
    }
    QRegion of(const QWidget& part) const {
        const auto found = painted_.find(&part);
        return found == painted_.end() ? QRegion() : found->second;
    }
    void forget() { painted_.clear(); }

    bool eventFilter(QObject* part, QEvent* event) override {
        if (event->type() == QEvent::Paint)
            painted_[part] += static_cast<QPaintEvent*>(event)->region();
        return false;
    }

private:
    std::map<const QObject*, QRegion> painted_;
};

/// Where two pictures of one size are not the same, line by line.
QRegion difference(const QImage& one, const QImage& other) {
    QRegion region;
    for (int y = 0; y < one.height(); ++y) {
        int first = one.width(), last = -1;
        for (int x = 0; x < one.width(); ++x)
            if (one.pixel(x, y) != other.pixel(x, y)) {
                first = std::min(first, x);
                last = x;
            }
        if (last >= 0) region += QRect(QPoint(first, y), QPoint(last, y));
    }
    return region;
}

TEST(Repainting, AllThatChangesIsPaintedAndNothingElse) {
    Desk desk;
    auto& state = desk.stateWith(256);
    PaletteWindow window(desk.ui, state);
    open(window, {1600, 900});
    state.selectedSwatch = 3;
    state.editSwatch(3);
    desk.settle();
    auto& canvas = *child<PaletteCanvas>(window);
    canvas.setFocus(Qt::TabFocusReason);
    QTest::mouseMove(&canvas, canvas.items()[0].rect.center().toPoint());
    QCoreApplication::processEvents();

    struct Change {
        const char* is;
        std::function<void()> make;
        std::vector<std::size_t> swatches;
    };
    const Change changes[]{
        {"a step of a slider",
         [&] {
             state.editorBuffer = EditorBuffer{state.swatches()[3].id, {0.1, 0.2, 0.3, 1}};
         },
         {3}},
        {"a revert", [&] { state.revertEdit(); }, {3}},
        {"the pointer at the other end",
         [&] { QTest::mouseMove(&canvas, canvas.items()[200].rect.center().toPoint()); },
         {0, 200}},
        {"another selection", [&] { press("Right"); }, {3, 4}},
        {"a copied code", [&] { press("Ctrl+C"); }, {4}},
    };
    PaintWatch watch(window);
    for (const auto& change : changes) {
        SCOPED_TRACE(change.is);
        const auto before = canvas.grab().toImage();
        watch.forget();
        change.make();
        QCoreApplication::processEvents();
        QRegion allowed;
        for (const auto at : change.swatches) {
            const auto item = canvas.items()[at].rect.toAlignedRect();
            EXPECT_TRUE(watch.of(canvas).intersects(item)) << at;
            allowed += item.adjusted(-8, -8, 8, 8);
        }
        EXPECT_TRUE((watch.of(canvas) - allowed).isEmpty());
        EXPECT_TRUE(watch.of(*child<PaletteToolBar>(window)).isEmpty());
        const auto painted = watch.of(canvas);
        EXPECT_TRUE((difference(before, canvas.grab().toImage()) - painted).isEmpty());
    }
}

} // namespace
} // namespace tintra::test
