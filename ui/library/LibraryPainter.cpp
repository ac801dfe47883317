#include "ui/library/LibraryPainter.h"

#include "ui/library/LibraryWords.h"
#include "ui/shared/Badge.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

constexpr int kIcon = 16, kTool = 20, kButton = 24, kTileButton = 28, kInner = 8;
constexpr int kWordsAt = 20, kBadgeGap = 8, kPathGap = 12, kCaption = 50, kCaptionSide = 12;
constexpr int kHeading = 14;
constexpr int kSwatchRadius = 6;
constexpr qsizetype kLongestTag = 24;

} // namespace

std::string_view LibraryButton::icon() const {
    switch (does) {
    case Does::unfold:
        return isOn ? "chevron-up" : "chevron-down";
    case Does::duplicate:
        return "duplicate";
    case Does::reveal:
        return "folder";
    case Does::more:
        break;
    }
    return "more";
}

QString LibraryButton::title() const {
    switch (does) {
    case Does::unfold:
        return worded(isOn ? "Fold" : "Unfold");
    case Does::duplicate:
        return worded("Duplicate…");
    case Does::reveal:
        return worded("Reveal in File Manager");
    case Does::more:
        break;
    }
    return worded("More");
}

void LibraryPainter::write(QPainter& painter, TextStyle style, Token ink, const QRectF& in,
                           const QString& text, Qt::Alignment align) const {
    const auto font = ui_.theme.font(style);
    painter.setFont(font);
    painter.setPen(ui_.theme.color(ink));
    painter.drawText(in, static_cast<int>(align | Qt::AlignVCenter),
                     QFontMetricsF(font).elidedText(text, Qt::ElideRight, in.width()));
}

void LibraryPainter::twoLines(QPainter& painter, const QRectF& in, const QString& first,
                              const QString& second) const {
    const auto& theme = ui_.theme;
    const qreal line = theme.lineHeight(TextStyle::control) - 2;
    const qreal under = theme.lineHeight(TextStyle::small);
    const auto top = std::round(in.center().y() - (line + under) / 2);
    write(painter, TextStyle::control, Token::ink, QRectF(in.left(), top, in.width(), line), first);
    write(painter, TextStyle::small, Token::ink3, QRectF(in.left(), top + line, in.width(), under),
          second);
}

// Small buttons

std::vector<LibraryButton> LibraryPainter::rowButtons(const QRectF& in,
                                                      const LibraryLayout::Sides& sides,
                                                      std::size_t find) const {
    using Does = LibraryButton::Does;
    const auto& palette = model_.listing().paletteAt(find);
    std::vector<LibraryButton> all{
        {Does::unfold, {}, model_.isUnfolded(palette)}, {Does::duplicate, {}}, {Does::more, {}}};
    if (palette.canReveal) all.insert(all.end() - 1, {Does::reveal, {}});
    const qreal side = ui_.theme.scaled(kButton);
    auto left = sides.right - side * static_cast<qreal>(all.size());
    for (auto& button : all) {
        button.rect = QRectF(left, in.center().y() - side / 2, side, side);
        left += side;
    }
    return all;
}

std::vector<LibraryButton> LibraryPainter::tileButtons(const QRectF& in) const {
    const qreal side = ui_.theme.scaled(kTileButton);
    const auto middle = in.bottom() - ui_.theme.scaled(kCaption) / 2.0;
    return {
        {LibraryButton::Does::more, QRectF(in.right() - side - 10, middle - side / 2, side, side)}};
}

std::vector<LibraryButton> LibraryPainter::headerButtons(const QRectF& in) const {
    const qreal side = ui_.theme.scaled(kButton);
    return {{LibraryButton::Does::more,
             QRectF(in.right() - kInner - side + 4, in.center().y() - side / 2, side, side)}};
}

void LibraryPainter::buttons(QPainter& painter, const std::vector<LibraryButton>& buttons,
                             int hovered) const {
    const auto& theme = ui_.theme;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        if (static_cast<int>(i) == hovered) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(theme.color(Token::hover));
            painter.drawRoundedRect(buttons[i].rect, metrics::kControlRadius,
                                    metrics::kControlRadius);
        }
        const int size = buttons[i].does == LibraryButton::Does::unfold ? kIcon : kTool;
        const auto picture = theme.icon(buttons[i].icon(), size, theme.color(Token::ink2),
                                        painter.device()->devicePixelRatioF());
        painter.drawPixmap(buttons[i].rect.center() - QPointF(size / 2.0, size / 2.0), picture);
    }
}

// Headers

void LibraryPainter::header(QPainter& painter, const QRectF& in,
                            const LibraryListing::Section& section, const LibraryLook& look) const {
    const auto& theme = ui_.theme;
    const auto& listing = model_.listing();
    const auto& group = listing.groupOf(section);
    const auto left = in.left() + kInner, middle = in.center().y();
    const auto* chevron = model_.isFolded(group) ? "chevron-right" : "chevron-down";
    painter.drawPixmap(
        QPointF(left - 4, middle - kIcon / 2.0),
        theme.icon(chevron, kIcon, theme.color(Token::ink), painter.device()->devicePixelRatioF()));
    if (group.kind == PaletteEntry::Group::location)
        buttons(painter, headerButtons(in), look.hoveredButton);
    const auto count = countText(listing, section);
    const auto end = in.right() - kInner - theme.scaled(kButton) - 4;
    painter.setFont(theme.font(TextStyle::body));
    painter.setPen(theme.color(Token::ink3));
    drawFigures(painter, QRectF(left, in.top(), end - left, in.height()),
                Qt::AlignRight | Qt::AlignVCenter, count);
    const auto room = end - figuresWidth(theme.font(TextStyle::body), count) - kPathGap;

    auto x = left + kWordsAt;
    auto font = theme.font(TextStyle::name);
    font.setPixelSize(theme.scaled(kHeading));
    const QFontMetricsF metrics(font);
    const auto title = titleOf(group);
    const auto wide = std::min(metrics.horizontalAdvance(title) + 1, (room - x) * 0.6);
    painter.setFont(font);
    painter.setPen(theme.color(Token::ink));
    painter.drawText(QRectF(x, in.top(), wide, in.height()), Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(title, Qt::ElideRight, wide));
    x += wide;
    const auto badge = [&](const QString& text, BadgeFill fill) {
        x = paintBadge(painter, theme, text, x + kBadgeGap, middle, fill);
    };
    if (group.location && group.location->tag)
        badge(oneLine(*group.location->tag, kLongestTag), BadgeFill::no);
    if (!group.isOnline) badge(worded("OFFLINE"), BadgeFill::yes);
    if (group.kind == PaletteEntry::Group::system) badge(worded("SYSTEM"), BadgeFill::yes);
    if (room - x > 3 * kPathGap)
        write(painter, TextStyle::small, Token::ink3,
              QRectF(x + kPathGap, in.top(), room - x - kPathGap, in.height()), pathOf(group));
    if (look.isFocused) paintFocusRing(painter, theme, in, metrics::kGroupRadius);
}

// Rows

void LibraryPainter::row(QPainter& painter, const QRectF& in, const LibraryLayout::Sides& sides,
                         std::size_t find, const LibraryLook& look) const {
    const auto& theme = ui_.theme;
    const auto& palette = model_.listing().paletteAt(find);
    if (look.isCurrent) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme.color(Token::panel));
        painter.drawRoundedRect(in, metrics::kGroupRadius, metrics::kGroupRadius);
    }
    twoLines(painter, QRectF(sides.left, in.top(), sides.strip - sides.left - 16, in.height()),
             oneLine(palette.name), countAndType(palette));
    const qreal high = theme.scaled(model_.listing().color ? 40 : 32);
    strip(painter,
          QRectF(sides.strip, std::round(in.center().y() - high / 2), sides.stripEnd - sides.strip,
                 high),
          find);
    const bool showsButtons = look.isHovered || look.isCurrent;
    const auto all = showsButtons ? rowButtons(in, sides, find) : std::vector<LibraryButton>();
    // Without room behind it the value gives way to the buttons of a row that is pointed at.
    const bool showsValue = sides.valueEnd < sides.right || !look.isHovered;
    if (showsValue)
        value(painter,
              QRectF(sides.stripEnd + 12, in.top(), sides.valueEnd - sides.stripEnd - 12,
                     in.height()),
              find);
    if (sides.valueEnd < sides.right || look.isHovered) buttons(painter, all, look.hoveredButton);
    if (look.isCurrent || look.isFocused) {
        painter.setPen(QPen(theme.color(look.isFocused ? Token::ink : Token::edge),
                            look.isFocused ? metrics::kFocusWidth : 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(in.adjusted(1, 1, -1, -1), metrics::kGroupRadius,
                                metrics::kGroupRadius);
    }
}

void LibraryPainter::value(QPainter& painter, const QRectF& in, std::size_t find) const {
    const auto& theme = ui_.theme;
    const auto match = matchOf(model_, find);
    if (!match.swatch) {
        painter.setFont(theme.font(TextStyle::small));
        painter.setPen(theme.color(Token::ink3));
        drawFigures(painter, in, Qt::AlignRight | Qt::AlignVCenter,
                    dateText(model_.listing().paletteAt(find)));
        return;
    }
    const qreal line = theme.lineHeight(TextStyle::code);
    const QRectF first(in.left(), std::round(in.center().y() - line), in.width(), line);
    const bool hasDistance = !match.distance.isEmpty();
    const auto code = swatchCode(ui_, *match.swatch);
    const auto name = swatchName(*match.swatch);
    write(painter, hasDistance ? TextStyle::code : TextStyle::small, Token::ink, first,
          hasDistance ? code : name, Qt::AlignRight);
    const auto second = first.translated(0, line);
    if (!hasDistance) {
        write(painter, TextStyle::code, Token::ink3, second, code, Qt::AlignRight);
        return;
    }
    painter.setFont(theme.font(TextStyle::small));
    painter.setPen(theme.color(Token::ink3));
    drawFigures(painter, second, Qt::AlignRight | Qt::AlignVCenter, match.distance);
}

// Tiles

void LibraryPainter::tile(QPainter& painter, const QRectF& in, std::size_t find,
                          const LibraryLook& look) const {
    const auto& theme = ui_.theme;
    const auto& palette = model_.listing().paletteAt(find);
    const qreal caption = theme.scaled(kCaption);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.color(Token::panel));
    painter.drawRoundedRect(in, metrics::kGroupRadius, metrics::kGroupRadius);
    mosaic(painter, in.adjusted(0, 0, 0, -caption), find);
    const QRectF words(in.left() + kCaptionSide, in.bottom() - caption,
                       in.width() - 2 * kCaptionSide - theme.scaled(kTileButton), caption);
    const auto match = matchOf(model_, find);
    auto second = countAndType(palette);
    if (match.swatch)
        second = match.distance.isEmpty()
                     ? swatchName(*match.swatch)
                     : swatchCode(ui_, *match.swatch) + QStringLiteral(" · ") + match.distance;
    twoLines(painter, words, oneLine(palette.name), second);
    if (!look.isDragged) buttons(painter, tileButtons(in), look.hoveredButton);
    if (look.isFocused)
        paintFocusRing(painter, theme, in.adjusted(-2, -2, 2, 2), metrics::kGroupRadius + 2);
    else if (look.isCurrent) {
        painter.setPen(QPen(theme.color(Token::edge), 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(in.adjusted(-1.5, -1.5, 1.5, 1.5), metrics::kGroupRadius + 1,
                                metrics::kGroupRadius + 1);
    }
}

// What is unfolded

void LibraryPainter::panel(QPainter& painter, const LibraryPanel& panel) const {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ui_.theme.color(Token::panel));
    painter.drawRoundedRect(panel.rect(), metrics::kGroupRadius, metrics::kGroupRadius);
    if (panel.hidden() > 0)
        write(painter, TextStyle::small, Token::ink3, panel.rest(),
              worded("and %n more colour", "and %n more colours",
                     static_cast<qsizetype>(panel.hidden())));
}

void LibraryPainter::swatch(QPainter& painter, const QRectF& in, const PaletteFile::Swatch& swatch,
                            bool isSmall, const LibraryLook& look) const {
    const auto& theme = ui_.theme;
    auto place = in;
    if (!isSmall) place.setHeight(LibraryPanel::swatchHeight(theme));
    constexpr auto kRadius = kSwatchRadius;
    ui_.painter.fill(painter, place, swatch.color, Vision::typical,
                     {kRadius, kRadius, kRadius, kRadius});
    ui_.painter.hairline(painter, place, kRadius);
    if (look.isFocused) paintFocusRing(painter, theme, place.adjusted(-2, -2, 2, 2), kRadius + 2);
    if (isSmall) return;
    const qreal line = theme.lineHeight(TextStyle::small), code = theme.lineHeight(TextStyle::code);
    write(painter, TextStyle::small, Token::ink,
          QRectF(in.left(), in.bottom() - code - 3 - line, in.width(), line), swatchName(swatch));
    write(painter, TextStyle::codeOnSide, Token::ink3,
          QRectF(in.left(), in.bottom() - code, in.width(), code), swatchCode(ui_, swatch));
}

} // namespace tintra
