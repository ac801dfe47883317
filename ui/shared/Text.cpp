#include "ui/shared/Text.h"

#include "platform/Locations.h"

#include <QCoreApplication>
#include <array>

namespace tintra {
namespace {

constexpr auto kContext = "Tintra";

/// How this desktop words what the system's texts say in terms of another.
struct Wording {
    const char* source;
    const char* here;
};
constexpr std::array kWordings{
    Wording{"~/Library/Colors", "the colours folder of your data folder"},
    Wording{"on this Mac", "on this computer"},
    Wording{"in the Finder", "in the file manager"},
    Wording{"Include macOS system palettes", "Include system palettes"},
};

struct KeySymbol {
    char16_t symbol;
    const char* name;
};
constexpr std::array kKeySymbols{
    KeySymbol{u'⌘', "Ctrl"},
    KeySymbol{u'⌥', "Alt"},
    KeySymbol{u'⇧', "Shift"},
    KeySymbol{u'⌃', "Super"},
};

/// The name of a key symbol; null for any other character.
const char* keyName(QChar character) {
    for (const auto& key : kKeySymbols)
        if (character.unicode() == key.symbol) return key.name;
    return nullptr;
}

QString withKeyNames(const QString& text) {
    QString result;
    for (qsizetype i = 0; i < text.size(); ++i) {
        const auto* name = keyName(text[i]);
        if (!name) {
            result += text[i];
            continue;
        }
        result += QLatin1String(name);
        // "⌘Z" is one combination; "hold ⌘ for" is a key alone.
        const bool joins =
            i + 1 < text.size() && (text[i + 1].isLetterOrNumber() || keyName(text[i + 1]));
        if (joins) result += QLatin1Char('+');
    }
    return result;
}

} // namespace

QString fromUtf8(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string toUtf8(const QString& text) {
    return text.toStdString();
}

QString shown(std::string_view text) {
    auto result = QCoreApplication::translate(kContext, std::string(text).c_str());
    for (const auto& wording : kWordings)
        result.replace(QString::fromUtf8(wording.source), QString::fromUtf8(wording.here));
    return withKeyNames(result);
}

QString worded(const char* source) {
    return QCoreApplication::translate(kContext, source);
}

QString worded(const char* one, const char* many, qsizetype count) {
    auto text = QCoreApplication::translate(kContext, count == 1 ? one : many);
    return text.replace(QStringLiteral("%n"), QString::number(count));
}

QString oneLine(std::string_view name, qsizetype most) {
    // A name may be megabytes long; a few bytes per character shown are enough of it.
    auto text = fromUtf8(name.substr(0, static_cast<std::size_t>(most) * 8));
    for (auto& character : text)
        if (character.category() == QChar::Other_Control || character.isSpace())
            character = QLatin1Char(' ');
    text = text.trimmed();
    if (text.size() <= most) return text;
    auto cut = most - 1;
    if (text[cut].isLowSurrogate()) --cut;
    return text.left(cut) + QChar(0x2026);
}

QString shownPath(const std::filesystem::path& path) {
    constexpr qsizetype kMost = 1000;
    const auto home = homeFolder().string();
    const auto text = path.string();
    if (!home.empty() && text.starts_with(home + "/"))
        return QLatin1Char('~') + oneLine(std::string_view(text).substr(home.size()), kMost);
    return oneLine(text, kMost);
}

} // namespace tintra
