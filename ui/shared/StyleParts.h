#pragma once

#include "ui/shared/Theme.h"

#include <QMargins>
#include <QPainter>
#include <QRect>
#include <QRegion>
#include <QStyleOption>

namespace tintra {

/// The parts of standard controls, drawn from the tokens.
class StyleParts {
public:
    StyleParts(const Theme& theme, QPainter& painter) : theme_(theme), painter_(painter) {}

    /// Round the body of a button, for the ring of focus. Layouts do not count it.
    static constexpr QMargins kRingRoom{4, 4, 4, 4};
    void button(const QStyleOption& option) const;
    void buttonLabel(const QStyleOptionButton& option) const;
    void field(const QStyleOption& option) const;
    void check(const QStyleOption& option) const;
    void radio(const QStyleOption& option) const;
    void menuPanel(const QStyleOption& option) const;
    /// What of a menu or a tip is shown: all but its corners.
    static QRegion roundRegion(const QRect& whole);
    /// A second line of a row stands behind a line feed in its text.
    void menuItem(const QStyleOptionMenuItem& option) const;
    static QSize menuItemSize(const Theme& theme, const QStyleOptionMenuItem& option, int height,
                              int checkWidth);
    void menuBarItem(const QStyleOptionMenuItem& option) const;
    void scrollBar(const QStyleOptionSlider& option, const QRect& handle, Token ground) const;

private:
    const Theme& theme_;
    QPainter& painter_;
};

} // namespace tintra
