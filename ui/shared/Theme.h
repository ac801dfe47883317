#pragma once

#include "state/Choices.h"

#include <QColor>
#include <QFont>
#include <QHash>
#include <QPixmap>
#include <QProperty>
#include <QString>
#include <memory>
#include <string_view>
#include <vector>

namespace tintra {

class DesktopSettings;
class Preferences;

/// The colours of the interface; every one of them is a grey.
enum class Token {
    ground, ///< surround of colour
    panel,  ///< tool bars, panels, dialogues
    raised, ///< fields, menus, lists
    line,   ///< separators
    edge,   ///< borders of controls
    ink,    ///< text, focus, selection
    ink2,   ///< icons, secondary text
    ink3,   ///< captions, placeholders
    off,    ///< disabled
    hover,
    press,
    sel,   ///< what is on, the default button, notices
    onsel, ///< text on it
    checkLight,
    checkDark,
};

/// The faces of the interface: size, weight and line height each.
enum class TextStyle {
    caption,    ///< 11/16
    small,      ///< 12/16
    body,       ///< 13/20
    control,    ///< 13/20, medium
    name,       ///< 13/20, semi-bold
    title,      ///< 16/24, semi-bold
    question,   ///< 16/22, semi-bold: the title of a dialogue
    figure,     ///< 20/24, semi-bold
    bigFigure,  ///< 44/48, medium, display
    quotation,  ///< 30/40, display
    code,       ///< 12/16, mono
    codeOnSide, ///< 11/16, mono, for rotated columns
};

/// Lengths that no text size changes, px.
namespace metrics {
inline constexpr int kChipRadius = 4, kControlRadius = 6, kGroupRadius = 8;
inline constexpr int kFocusWidth = 2, kFocusGap = 2;
} // namespace metrics

/// How the interface looks now: from the preferences, the desktop's settings and the fonts that are
/// installed. Main loop.
class Theme {
public:
    Theme(const Preferences& preferences, const DesktopSettings& desktop);
    ~Theme();
    Theme(const Theme&) = delete;
    Theme& operator=(const Theme&) = delete;

    /// Goes up whenever anything here answers differently; views lay out and paint anew.
    const QProperty<int>& version() const { return version_; }

    bool isDark() const;
    bool isHighContrast() const;
    /// 0 when the desktop turns animations off.
    int milliseconds(int forMotion) const;

    QColor color(Token token) const;
    /// For text in `ink`; without one, in the theme's own.
    QFont font(TextStyle style) const;
    QFont font(TextStyle style, const QColor& ink) const;
    /// px, text size applied.
    int lineHeight(TextStyle style) const;
    /// A height or width of a control at the text size chosen: 28 is 28, 32 or 36.
    int scaled(int px) const;

    /// A drawing of `ui/icons`, in one colour, `size` (16 or 20, text size not applied) px wide at
    /// a device pixel ratio. An unknown name gives an empty picture.
    QPixmap icon(std::string_view name, int size, const QColor& color, qreal ratio) const;

private:
    struct Subscriptions;

    const Preferences& preferences_;
    const DesktopSettings& desktop_;
    QProperty<int> version_{0};
    mutable QHash<QString, QPixmap> icons_;
    std::unique_ptr<Subscriptions> subscriptions_;
};

} // namespace tintra
