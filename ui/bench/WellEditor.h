#pragma once

#include "state/Bench.h"
#include "ui/Ui.h"
#include "ui/actions/Menus.h"
#include "ui/editor/EditorGradient.h"
#include "ui/shared/Subscriptions.h"

#include <QString>
#include <QWidget>
#include <array>
#include <functional>
#include <optional>

class QPushButton;

namespace tintra {

class ChannelRow;
class RampStrip;

/// The panel beneath the Bench while a well is active: the mix, its amounts, the ramp that it lies
/// on, and what can be done with it.
class WellEditor final : public QWidget {
public:
    // px at regular text size
    static constexpr int kHeight = 180, kLowHeight = 132;

    WellEditor(Ui& ui, ContextOf context, QWidget* parent);

    /// Shows the active well; nothing while a column is active.
    void sync();
    void focusRatio();
    /// Without the ramp, where height is short: the track of the ratio shows the same mixes.
    void setLow(bool low);
    /// Is told that the user is done with it: Esc was pressed.
    std::function<void()> done;

    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    static constexpr std::size_t kFields = 3;

    void subscribe();
    void restyle();
    const BenchWell* activeWell() const;
    void change(Bench::WellField field, double figure);
    void syncTracks(const BenchWell& well, const WashColor& color);
    GradientStops stops(BenchWell well, double BenchWell::*amount) const;
    void syncRamp(const BenchWell& well);
    QString code(const WashColor& color) const;
    QRect chipPlace() const;
    bool hasChip() const;

    Ui& ui_;
    Bench& bench_;
    std::array<ChannelRow*, kFields> rows_; ///< in the order of WellField
    RampStrip* ramp_;
    QPushButton *keep_, *copy_, *remove_;
    std::optional<WashColor> color_; ///< of the active well
    QString name_, code_, parents_;
    bool isLow_ = false;
    QRect rampWords_;
    Subscriptions subscriptions_;
};

} // namespace tintra
