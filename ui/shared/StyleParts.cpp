#include "ui/shared/StyleParts.h"

#include "ui/shared/Controls.h"
#include "ui/shared/Theme.h"

#include <QFontMetrics>
#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

constexpr int kMark = 28;   ///< place of the mark of a menu row
constexpr int kEnd = 14;    ///< after the key of a menu row
constexpr int kKeyGap = 24; ///< before it
constexpr int kIcon = 16;

bool is(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state.testFlag(flag);
}

bool isDefault(const QStyleOption& option) {
    const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
    return button && button->features.testFlag(QStyleOptionButton::DefaultButton);
}

/// A menu row's title, key and second line.
struct MenuText {
    explicit MenuText(const QString& text) {
        const auto tab = text.indexOf(QLatin1Char('\t'));
        key = tab < 0 ? QString() : text.mid(tab + 1);
        const auto words = tab < 0 ? text : text.left(tab);
        const auto feed = words.indexOf(QLatin1Char('\n'));
        title = feed < 0 ? words : words.left(feed);
        title.remove(QLatin1Char('&'));
        detail = feed < 0 ? QString() : words.mid(feed + 1);
    }
    QString title, key, detail;
};

} // namespace

void StyleParts::button(const QStyleOption& option) const {
    const bool enabled = is(option, QStyle::State_Enabled);
    const auto body = QRectF(option.rect.marginsRemoved(kRingRoom)).adjusted(0.5, 0.5, -0.5, -0.5);
    auto fill = theme_.color(Token::panel);
    auto border = theme_.color(enabled ? Token::edge : Token::line);
    if (isDefault(option) && enabled)
        fill = border = theme_.color(Token::sel);
    else if (is(option, QStyle::State_Sunken))
        fill = theme_.color(Token::press);
    else if (is(option, QStyle::State_MouseOver) && enabled)
        fill = theme_.color(Token::hover);
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(border, 1));
    painter_.setBrush(fill);
    painter_.drawRoundedRect(body, metrics::kControlRadius, metrics::kControlRadius);
    if (is(option, QStyle::State_HasFocus))
        paintFocusRing(painter_, theme_, QRectF(option.rect).adjusted(2, 2, -2, -2),
                       metrics::kControlRadius + 2);
}

void StyleParts::buttonLabel(const QStyleOptionButton& option) const {
    const bool enabled = is(option, QStyle::State_Enabled);
    auto ink = theme_.color(enabled ? Token::ink : Token::off);
    if (isDefault(option) && enabled) ink = theme_.color(Token::onsel);
    const auto font = theme_.font(TextStyle::control, ink);
    painter_.setFont(font);
    painter_.setPen(ink);
    auto room = option.rect;
    if (!option.icon.isNull()) {
        const auto words = QFontMetrics(font).horizontalAdvance(option.text);
        const auto side = option.iconSize.width();
        const auto gap = option.text.isEmpty() ? 0 : 8;
        const auto left = room.center().x() - (words + side + gap) / 2;
        option.icon.paint(&painter_, QRect(left, room.center().y() - side / 2, side, side));
        room.setLeft(left + side + gap);
        painter_.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextHideMnemonic,
                          option.text);
        return;
    }
    painter_.drawText(room, Qt::AlignCenter | Qt::TextHideMnemonic, option.text);
}

void StyleParts::field(const QStyleOption& option) const {
    const bool focused = is(option, QStyle::State_HasFocus);
    const auto width = focused ? 2.0 : 1.0;
    const auto whole = QRectF(option.rect).adjusted(width / 2, width / 2, -width / 2, -width / 2);
    painter_.setRenderHint(QPainter::Antialiasing);
    const auto border = focused                             ? Token::ink
                        : is(option, QStyle::State_Enabled) ? Token::edge
                                                            : Token::line;
    painter_.setPen(QPen(theme_.color(border), width));
    painter_.setBrush(
        theme_.color(is(option, QStyle::State_Enabled) ? Token::raised : Token::panel));
    painter_.drawRoundedRect(whole, metrics::kControlRadius, metrics::kControlRadius);
}

void StyleParts::check(const QStyleOption& option) const {
    const bool on = is(option, QStyle::State_On), enabled = is(option, QStyle::State_Enabled);
    const auto box = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter_.setRenderHint(QPainter::Antialiasing);
    const auto fill = theme_.color(enabled ? Token::sel : Token::off);
    painter_.setPen(QPen(on ? fill : theme_.color(enabled ? Token::edge : Token::line), 1));
    painter_.setBrush(on ? fill : theme_.color(Token::raised));
    painter_.drawRoundedRect(box, metrics::kChipRadius, metrics::kChipRadius);
    if (!on) return;
    const auto icon = theme_.icon("check", kIcon, theme_.color(Token::onsel),
                                  painter_.device()->devicePixelRatioF());
    painter_.drawPixmap(box.center() - QPointF(kIcon / 2.0, kIcon / 2.0), icon);
}

void StyleParts::radio(const QStyleOption& option) const {
    const bool on = is(option, QStyle::State_On), enabled = is(option, QStyle::State_Enabled);
    const auto circle = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter_.setRenderHint(QPainter::Antialiasing);
    const auto fill = theme_.color(enabled ? Token::sel : Token::off);
    painter_.setPen(QPen(on ? fill : theme_.color(enabled ? Token::edge : Token::line), 1));
    painter_.setBrush(on ? fill : theme_.color(Token::raised));
    painter_.drawEllipse(circle);
    if (!on) return;
    const auto inset = circle.width() * 0.32;
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(theme_.color(Token::onsel));
    painter_.drawEllipse(circle.adjusted(inset, inset, -inset, -inset));
}

void StyleParts::menuPanel(const QStyleOption& option) const {
    painter_.fillRect(option.rect, theme_.color(Token::raised));
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(QPen(theme_.color(Token::edge), 1));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5),
                             metrics::kControlRadius, metrics::kControlRadius);
}

QRegion StyleParts::roundRegion(const QRect& whole) {
    // A circle's rows, so that no platform has to blend windows for it.
    constexpr int kRadius = metrics::kControlRadius;
    QRegion region(whole.adjusted(0, kRadius, 0, -kRadius));
    for (int row = 0; row < kRadius; ++row) {
        const auto up = kRadius - row - 0.5;
        const auto in =
            static_cast<int>(std::lround(kRadius - std::sqrt(kRadius * kRadius - up * up)));
        region += QRect(whole.left() + in, whole.top() + row, whole.width() - 2 * in, 1);
        region += QRect(whole.left() + in, whole.bottom() - row, whole.width() - 2 * in, 1);
    }
    return region;
}

QSize StyleParts::menuItemSize(const Theme& theme, const QStyleOptionMenuItem& option, int height,
                               int checkWidth) {
    if (option.menuItemType == QStyleOptionMenuItem::Separator && option.text.isEmpty())
        return {10, 9};
    const MenuText text(option.text);
    const QFontMetrics body(theme.font(TextStyle::body)), caption(theme.font(TextStyle::caption));
    auto width =
        std::max(body.horizontalAdvance(text.title), caption.horizontalAdvance(text.detail));
    // The menu adds the width of its widest key by itself.
    if (!text.key.isEmpty()) width += kKeyGap;
    if (option.menuItemType == QStyleOptionMenuItem::SubMenu) width += kIcon;
    auto rowHeight = theme.scaled(height);
    if (!text.detail.isEmpty()) rowHeight += theme.lineHeight(TextStyle::caption) + 3;
    return {checkWidth + 8 + width + kEnd, rowHeight};
}

void StyleParts::menuItem(const QStyleOptionMenuItem& option) const {
    const QRectF row = option.rect;
    if (option.menuItemType == QStyleOptionMenuItem::Separator && option.text.isEmpty()) {
        painter_.fillRect(QRectF(row.left() + 8, std::floor(row.center().y()), row.width() - 16, 1),
                          theme_.color(Token::line));
        return;
    }
    const MenuText text(option.text);
    const bool heading = option.menuItemType == QStyleOptionMenuItem::Separator;
    const bool enabled = is(option, QStyle::State_Enabled) && !heading;
    const bool chosen = is(option, QStyle::State_Selected) && enabled;
    painter_.setRenderHint(QPainter::Antialiasing);
    if (chosen) {
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(theme_.color(Token::sel));
        painter_.drawRoundedRect(row, metrics::kChipRadius, metrics::kChipRadius);
    }
    const auto ink = theme_.color(chosen ? Token::onsel : enabled ? Token::ink : Token::off);
    const auto ratio = painter_.device()->devicePixelRatioF();
    if (option.checkType != QStyleOptionMenuItem::NotCheckable && option.checked)
        painter_.drawPixmap(QPointF(row.left() + 8, row.center().y() - kIcon / 2.0),
                            theme_.icon("check", kIcon, ink, ratio));
    auto words = row.adjusted(kMark + 8, 0, -kEnd, 0);
    if (!text.detail.isEmpty()) {
        auto detail = words.adjusted(0, words.height() / 2, 0, -5);
        painter_.setFont(theme_.font(TextStyle::caption, ink));
        painter_.setPen(chosen ? ink : theme_.color(Token::ink3));
        painter_.drawText(detail, Qt::AlignLeft | Qt::AlignVCenter, text.detail);
        words.adjust(0, 5, 0, 0);
        words.setBottom(detail.top() + 2);
    }
    auto font = theme_.font(heading ? TextStyle::caption : TextStyle::body, ink);
    if (heading) font.setWeight(QFont::DemiBold);
    painter_.setFont(font);
    painter_.setPen(heading ? theme_.color(Token::ink3) : ink);
    painter_.drawText(words, Qt::AlignLeft | Qt::AlignVCenter, text.title);
    if (option.menuItemType == QStyleOptionMenuItem::SubMenu)
        painter_.drawPixmap(QPointF(words.right() - kIcon + 4, row.center().y() - kIcon / 2.0),
                            theme_.icon("chevron-right", kIcon, ink, ratio));
    painter_.setFont(theme_.font(TextStyle::small, ink));
    painter_.setPen(chosen ? ink : theme_.color(enabled ? Token::ink3 : Token::off));
    painter_.drawText(words, Qt::AlignRight | Qt::AlignVCenter, text.key);
}

void StyleParts::menuBarItem(const QStyleOptionMenuItem& option) const {
    painter_.fillRect(option.rect, theme_.color(Token::panel));
    const bool open = is(option, QStyle::State_Selected);
    painter_.setRenderHint(QPainter::Antialiasing);
    if (open) {
        painter_.setPen(Qt::NoPen);
        painter_.setBrush(theme_.color(Token::sel));
        painter_.drawRoundedRect(QRectF(option.rect).adjusted(1, 2, -1, -2), metrics::kChipRadius,
                                 metrics::kChipRadius);
    }
    const auto ink = theme_.color(open ? Token::onsel : Token::ink);
    painter_.setFont(theme_.font(TextStyle::body, ink));
    painter_.setPen(ink);
    painter_.drawText(option.rect, Qt::AlignCenter | Qt::TextHideMnemonic, option.text);
}

void StyleParts::scrollBar(const QStyleOptionSlider& option, const QRect& handle,
                           Token ground) const {
    painter_.fillRect(option.rect, theme_.color(ground));
    if (option.minimum == option.maximum) return;
    painter_.setRenderHint(QPainter::Antialiasing);
    painter_.setPen(Qt::NoPen);
    const bool held = is(option, QStyle::State_Sunken) || is(option, QStyle::State_MouseOver);
    painter_.setBrush(theme_.color(held ? Token::ink2 : Token::edge));
    const auto place = QRectF(handle).adjusted(3, 3, -3, -3);
    const auto radius = std::min(place.width(), place.height()) / 2;
    painter_.drawRoundedRect(place, radius, radius);
}

} // namespace tintra
