#include "ui/shared/Theme.h"

#include "state/Preferences.h"
#include "ui/shared/DesktopSettings.h"

#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QPainter>
#include <QStringBuilder>
#include <QSvgRenderer>
#include <array>
#include <cmath>

namespace tintra {
namespace {

/// A token in the four looks, as 0xRRGGBB.
struct TokenRow {
    Token value;
    QRgb light, dark, highLight, highDark;
};
// clang-format off
constexpr std::array kTokens{
    TokenRow{Token::ground,     0xE4E4E4, 0x181818, 0xFFFFFF, 0x000000},
    TokenRow{Token::panel,      0xF4F4F4, 0x242424, 0xFFFFFF, 0x000000},
    TokenRow{Token::raised,     0xFFFFFF, 0x303030, 0xFFFFFF, 0x000000},
    TokenRow{Token::line,       0xCFCFCF, 0x3C3C3C, 0x000000, 0xFFFFFF},
    TokenRow{Token::edge,       0x767676, 0x8C8C8C, 0x000000, 0xFFFFFF},
    TokenRow{Token::ink,        0x161616, 0xF2F2F2, 0x000000, 0xFFFFFF},
    TokenRow{Token::ink2,       0x464646, 0xC6C6C6, 0x000000, 0xFFFFFF},
    TokenRow{Token::ink3,       0x5A5A5A, 0xACACAC, 0x000000, 0xFFFFFF},
    TokenRow{Token::off,        0x9A9A9A, 0x6E6E6E, 0x595959, 0xA6A6A6},
    TokenRow{Token::hover,      0xE2E2E2, 0x343434, 0xE6E6E6, 0x2A2A2A},
    TokenRow{Token::press,      0xD3D3D3, 0x404040, 0xCCCCCC, 0x404040},
    TokenRow{Token::sel,        0x161616, 0xF2F2F2, 0x000000, 0xFFFFFF},
    TokenRow{Token::onsel,      0xFFFFFF, 0x161616, 0xFFFFFF, 0x000000},
    TokenRow{Token::checkLight, 0xFFFFFF, 0x3A3A3A, 0xFFFFFF, 0x404040},
    TokenRow{Token::checkDark,  0xD0D0D0, 0x2A2A2A, 0xD0D0D0, 0x000000},
};
// clang-format on

enum class Face { text, display, mono };

struct StyleRow {
    TextStyle value;
    Face face;
    int size, line; ///< px
    QFont::Weight weight;
};
constexpr std::array kStyles{
    StyleRow{TextStyle::caption, Face::text, 11, 16, QFont::Normal},
    StyleRow{TextStyle::small, Face::text, 12, 16, QFont::Normal},
    StyleRow{TextStyle::body, Face::text, 13, 20, QFont::Normal},
    StyleRow{TextStyle::control, Face::text, 13, 20, QFont::Medium},
    StyleRow{TextStyle::name, Face::text, 13, 20, QFont::DemiBold},
    StyleRow{TextStyle::title, Face::text, 16, 24, QFont::DemiBold},
    StyleRow{TextStyle::question, Face::text, 16, 22, QFont::DemiBold},
    StyleRow{TextStyle::figure, Face::text, 20, 24, QFont::DemiBold},
    StyleRow{TextStyle::bigFigure, Face::display, 44, 48, QFont::Medium},
    StyleRow{TextStyle::quotation, Face::display, 30, 40, QFont::Normal},
    StyleRow{TextStyle::code, Face::mono, 12, 16, QFont::Normal},
    StyleRow{TextStyle::codeOnSide, Face::mono, 11, 16, QFont::Normal},
};

constexpr bool inOrder() {
    for (std::size_t i = 0; i < kTokens.size(); ++i)
        if (static_cast<std::size_t>(kTokens[i].value) != i) return false;
    for (std::size_t i = 0; i < kStyles.size(); ++i)
        if (static_cast<std::size_t>(kStyles[i].value) != i) return false;
    return true;
}
static_assert(inOrder());

const StyleRow& rowOf(TextStyle style) {
    return kStyles[static_cast<std::size_t>(style)];
}

double factor(TypeSize size) {
    switch (size) {
    case TypeSize::regular:
        return 1;
    case TypeSize::larger:
        return 1.15;
    case TypeSize::largest:
        return 1.3;
    }
    return 1;
}

/// The families to ask for, the most wanted first; the system's own stand in for one that is not
/// installed.
QStringList families(Face face) {
    static const auto systemText = QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    static const auto systemMono = QFontDatabase::systemFont(QFontDatabase::FixedFont).family();
    switch (face) {
    case Face::text:
        return {QStringLiteral("Inter"), systemText};
    case Face::display:
        return {QStringLiteral("Inter Display"), QStringLiteral("Inter"), systemText};
    case Face::mono:
        return {QStringLiteral("JetBrains Mono"), systemMono};
    }
    return {systemText};
}

/// Whether the interface is set in Inter.
bool isOurs() {
    static const bool is =
        QFontInfo(QFont(QStringLiteral("Inter"))).family() == QStringLiteral("Inter");
    return is;
}

/// FreeType darkens the stems of Inter's outlines, and Qt blends them by gamma: together that is
/// right for dark ink, but makes light ink look a weight heavier than it is.
QFont::Weight lighter(QFont::Weight weight) {
    switch (weight) {
    case QFont::DemiBold:
        return QFont::Medium;
    case QFont::Medium:
        return QFont::Normal;
    case QFont::Normal:
        return QFont::Light;
    default:
        return weight;
    }
}

} // namespace

struct Theme::Subscriptions {
    std::vector<QPropertyNotifier> all;
    using Fonts = QHash<TextStyle, QFont>;
    /// For dark and for light ink, made once for as long as nothing changes: a copy of a font
    /// shares what was found of its face.
    Fonts fonts, lightFonts;
};

Theme::Theme(const Preferences& preferences, const DesktopSettings& desktop)
    : preferences_(preferences), desktop_(desktop),
      subscriptions_(std::make_unique<Subscriptions>()) {
    const auto follow = [this](const auto& property) {
        subscriptions_->all.emplace_back(property, [this] {
            icons_.clear();
            subscriptions_->fonts.clear();
            subscriptions_->lightFonts.clear();
            version_ = version_ + 1;
        });
    };
    follow(preferences.appearance);
    follow(preferences.typeSize);
    follow(desktop.prefersDark);
    follow(desktop.prefersHighContrast);
    follow(desktop.reducesMotion);
}

Theme::~Theme() = default;

bool Theme::isDark() const {
    switch (preferences_.appearance.value()) {
    case Appearance::light:
        return false;
    case Appearance::dark:
        return true;
    case Appearance::system:
        break;
    }
    return desktop_.prefersDark;
}

bool Theme::isHighContrast() const {
    return desktop_.prefersHighContrast;
}

int Theme::milliseconds(int forMotion) const {
    return desktop_.reducesMotion ? 0 : forMotion;
}

QColor Theme::color(Token token) const {
    const auto& row = kTokens[static_cast<std::size_t>(token)];
    if (isHighContrast()) return QColor::fromRgb(isDark() ? row.highDark : row.highLight);
    return QColor::fromRgb(isDark() ? row.dark : row.light);
}

QFont Theme::font(TextStyle style) const {
    return font(style, color(Token::ink));
}

QFont Theme::font(TextStyle style, const QColor& ink) const {
    const bool isLight = ink.lightnessF() > 0.5F;
    auto& made = isLight ? subscriptions_->lightFonts : subscriptions_->fonts;
    if (const auto found = made.constFind(style); found != made.constEnd()) return *found;
    const auto& row = rowOf(style);
    QFont font;
    font.setFamilies(families(row.face));
    font.setPixelSize(scaled(row.size));
    const bool growsHeavy = row.face != Face::mono && isOurs() && isLight;
    font.setWeight(growsHeavy ? lighter(row.weight) : row.weight);
    // Ligatures of a mono face would join the hyphens of "--name".
    if (row.face == Face::mono) font.setStyleStrategy(QFont::PreferNoShaping);
    made.insert(style, font);
    return font;
}

int Theme::lineHeight(TextStyle style) const {
    return scaled(rowOf(style).line);
}

int Theme::scaled(int px) const {
    return static_cast<int>(std::lround(px * factor(preferences_.typeSize)));
}

QPixmap Theme::icon(std::string_view name, int size, const QColor& color, qreal ratio) const {
    const auto latin = QLatin1String(name.data(), static_cast<qsizetype>(name.size()));
    const auto file = QStringLiteral(":/icons/%1/%2.svg").arg(size).arg(latin);
    const QString key =
        file % QLatin1Char(' ') % color.name() % QLatin1Char(' ') % QString::number(ratio);
    if (const auto found = icons_.constFind(key); found != icons_.constEnd()) return *found;
    QFile drawing(file);
    if (!drawing.open(QIODevice::ReadOnly)) return {};
    // The renderer takes `currentColor` for black.
    auto source = drawing.readAll();
    source.replace("currentColor", color.name().toLatin1());
    QPixmap pixmap(QSize(size, size) * ratio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    QSvgRenderer(source).render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(ratio);
    icons_.insert(key, pixmap);
    return pixmap;
}

} // namespace tintra
