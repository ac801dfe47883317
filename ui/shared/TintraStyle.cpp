#include "ui/shared/TintraStyle.h"

#include "ui/shared/Controls.h"
#include "ui/shared/StyleParts.h"
#include "ui/shared/Theme.h"

#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QWidget>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kControl = 28;   ///< height of a control
constexpr int kMenuItem = 28;  ///< height of a row of a menu
constexpr int kCheckMark = 28; ///< of a menu row, at the left
constexpr int kIndicator = 16; ///< side of a check or radio button
constexpr int kScrollBar = 12;

/// What a scroll bar stands on: fields and lists say so by their background role.
Token groundOf(const QWidget* bar) {
    switch (bar ? bar->backgroundRole() : QPalette::Window) {
    case QPalette::Base:
        return Token::raised;
    case QPalette::Button:
        return Token::panel;
    default:
        return Token::ground;
    }
}

} // namespace

TintraStyle::TintraStyle(const Theme& theme)
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))), theme_(theme) {}

QPalette TintraStyle::standardPalette() const {
    QPalette palette;
    const auto set = [&](QPalette::ColorRole role, Token token, Token disabled) {
        palette.setColor(role, theme_.color(token));
        palette.setColor(QPalette::Disabled, role, theme_.color(disabled));
    };
    set(QPalette::Window, Token::panel, Token::panel);
    set(QPalette::Base, Token::raised, Token::panel);
    set(QPalette::AlternateBase, Token::panel, Token::panel);
    set(QPalette::Button, Token::panel, Token::panel);
    set(QPalette::ToolTipBase, Token::sel, Token::sel);
    set(QPalette::ToolTipText, Token::onsel, Token::onsel);
    set(QPalette::WindowText, Token::ink, Token::off);
    set(QPalette::Text, Token::ink, Token::off);
    set(QPalette::ButtonText, Token::ink, Token::off);
    set(QPalette::PlaceholderText, Token::ink3, Token::off);
    set(QPalette::Highlight, Token::sel, Token::line);
    set(QPalette::HighlightedText, Token::onsel, Token::off);
    set(QPalette::Link, Token::ink, Token::off);
    set(QPalette::LinkVisited, Token::ink2, Token::off);
    set(QPalette::Mid, Token::line, Token::line);
    set(QPalette::Dark, Token::edge, Token::line);
    set(QPalette::Light, Token::raised, Token::raised);
    return palette;
}

void TintraStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const {
    const StyleParts parts(theme_, *painter);
    switch (element) {
    case PE_PanelButtonCommand:
        parts.button(*option);
        return;
    case PE_PanelLineEdit:
    case PE_FrameLineEdit:
        parts.field(*option);
        return;
    case PE_IndicatorCheckBox:
        parts.check(*option);
        return;
    case PE_IndicatorRadioButton:
        parts.radio(*option);
        return;
    case PE_PanelMenu:
    case PE_FrameMenu:
        parts.menuPanel(*option);
        return;
    case PE_PanelTipLabel:
        painter->fillRect(option->rect, theme_.color(Token::sel));
        return;
    case PE_FrameFocusRect:
        if (option->state & State_KeyboardFocusChange)
            paintFocusRing(*painter, theme_, QRectF(option->rect).adjusted(2, 2, -2, -2),
                           metrics::kControlRadius);
        return;
    case PE_Frame:
        painter->setPen(theme_.color(Token::edge));
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void TintraStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const StyleParts parts(theme_, *painter);
    switch (element) {
    case CE_PushButtonLabel:
        if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
            parts.buttonLabel(*button);
            return;
        }
        break;
    case CE_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
            parts.menuItem(*item);
            return;
        }
        break;
    case CE_MenuBarEmptyArea:
        painter->fillRect(option->rect, theme_.color(Token::panel));
        return;
    case CE_MenuBarItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
            parts.menuBarItem(*item);
            return;
        }
        break;
    default:
        break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void TintraStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control == CC_ScrollBar && slider) {
        const auto handle =
            proxy()->subControlRect(CC_ScrollBar, option, SC_ScrollBarSlider, widget);
        StyleParts(theme_, *painter).scrollBar(*slider, handle, groundOf(widget));
        return;
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QSize TintraStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                    const QSize& size, const QWidget* widget) const {
    auto result = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton:
        result = QSize(std::max(size.width() + 24, theme_.scaled(56)), theme_.scaled(kControl))
                     .grownBy(StyleParts::kRingRoom);
        break;
    case CT_LineEdit:
        result.setHeight(theme_.scaled(kControl));
        break;
    case CT_CheckBox:
    case CT_RadioButton:
        result.setHeight(theme_.scaled(kControl));
        break;
    case CT_MenuItem:
        if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option))
            result = StyleParts::menuItemSize(theme_, *item, kMenuItem, kCheckMark);
        break;
    case CT_MenuBarItem:
        result = size + QSize(22, 10);
        break;
    default:
        break;
    }
    return result;
}

QRect TintraStyle::subElementRect(SubElement element, const QStyleOption* option,
                                  const QWidget* widget) const {
    // Its ring stands outside of what layouts place.
    if (element == SE_PushButtonLayoutItem)
        return option->rect.marginsRemoved(StyleParts::kRingRoom);
    if (element == SE_LineEditContents) return option->rect.adjusted(7, 2, -7, -2);
    return QProxyStyle::subElementRect(element, option, widget);
}

int TintraStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const {
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return theme_.scaled(kIndicator);
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 8;
    case PM_ScrollBarExtent:
        return kScrollBar;
    case PM_ScrollBarSliderMin:
        return 32;
    case PM_MenuPanelWidth:
        return 1;
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return 4;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
        return 0;
    case PM_ToolTipLabelFrameWidth:
        return 6;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int TintraStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const {
    switch (hint) {
    case SH_EtchDisabledText:
    case SH_DialogButtonBox_ButtonsHaveIcons:
        return 0;
    case SH_MenuBar_AltKeyNavigation:
        return 1;
    case SH_UnderlineShortcut:
        return 0;
    case SH_ScrollBar_LeftClickAbsolutePosition:
        return 0;
    case SH_Widget_Animation_Duration:
        return theme_.milliseconds(120);
    case SH_Menu_Mask:
    case SH_ToolTip_Mask:
        if (auto* mask = qstyleoption_cast<QStyleHintReturnMask*>(data); mask && option) {
            mask->region = StyleParts::roundRegion(option->rect);
            return 1;
        }
        return 0;
    case SH_ToolTip_WakeUpDelay:
        return 500;
    default:
        return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

} // namespace tintra
