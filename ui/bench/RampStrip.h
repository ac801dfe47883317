#pragma once

#include "colour/Vision.h"
#include "colour/WashColor.h"
#include "ui/Ui.h"
#include "ui/shared/Canvas.h"

#include <QString>
#include <vector>

namespace tintra {

/// Mixes from one colour of a well to the other, in equal steps; each can be taken.
class RampStrip final : public Canvas {
public:
    static constexpr std::size_t kSteps = 11;

    RampStrip(Ui& ui, QWidget* parent);

    struct Step {
        WashColor color;
        QString code;
        bool operator==(const Step&) const = default;
    };
    /// `ratio` 0...1 marks the step that it is nearest to when it is on it.
    void setRamp(std::vector<Step> steps, double ratio, Vision vision);
    /// Is told the ratio of the step that is taken.
    std::function<void(double)> chosen;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void take(int item);

    Ui& ui_;
    std::vector<Step> steps_;
    std::optional<std::size_t> at_;
    Vision vision_ = Vision::typical;
};

} // namespace tintra
