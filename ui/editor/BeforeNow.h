#pragma once

#include "colour/Vision.h"
#include "colour/WashColor.h"

#include <QAbstractButton>

namespace tintra {

class SwatchPainter;
class Theme;

/// The colour as the palette holds it beside the colour as it is edited. A click on the first goes
/// back to it.
class BeforeNow final : public QAbstractButton {
public:
    static constexpr int kHeight = 44; ///< px at regular text size

    BeforeNow(Theme& theme, const SwatchPainter& painter, QWidget* parent);

    void show(const WashColor& before, const WashColor& now, Vision vision);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool hitButton(const QPoint& place) const override;

private:
    Theme& theme_;
    const SwatchPainter& painter_;
    WashColor before_, now_;
    Vision vision_ = Vision::typical;
};

} // namespace tintra
