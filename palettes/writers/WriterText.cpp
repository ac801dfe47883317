#include "palettes/writers/WriterText.h"

#include "colour/Clamp.h"
#include "colour/ColorFormat.h"
#include "colour/ColorProfiles.h"
#include "platform/Number.h"
#include "platform/Unicode.h"

namespace tintra {

namespace {

char16_t harmless(char16_t unit) {
    const bool isControl = unit < 0x20 || (unit >= 0x7F && unit <= 0x9F);
    const bool isSeparator = unit == 0x2028 || unit == 0x2029;
    if (isControl || isSeparator) return u' ';
    return unit >= 0xFFFE ? u'\uFFFD' : unit;
}

} // namespace

std::string wellFormed(std::string_view text) {
    return isValidUtf8(text) ? std::string(text) : utf8FromUtf16(utf16FromUtf8(text));
}

std::string singleLine(std::string_view text) {
    auto units = utf16FromUtf8(text);
    for (auto& unit : units)
        unit = harmless(unit);
    return utf8FromUtf16(units);
}

std::string entityEscaped(std::string_view text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        switch (c) {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped.push_back(c);
        }
    }
    return escaped;
}

std::string markupText(std::string_view name) {
    return entityEscaped(singleLine(name));
}

std::string hexCode(const WashColor& colour, const FormatOptions& options) {
    return ColorFormat(ColorFormat::cssHex).string(colour, {}, options);
}

std::string hashedHexCode(const WashColor& colour, const FormatOptions& options) {
    auto hashed = options;
    hashed.cssPrefixHash = true;
    return hexCode(colour, hashed);
}

Rgb255 selectedRgb255(const WashColor& colour) {
    return colour.rgb255(ColorProfiles::shared().rgbSpace());
}

std::string inkPercents(const WashColor& colour) {
    const auto inks = colour.cmyk();
    std::string text;
    for (const double ink : {inks.c, inks.m, inks.y, inks.k}) {
        if (!text.empty()) text += ", ";
        appendFixed(text, clampedUnit(ink) * 100, 0);
    }
    return text;
}

std::string alphaText(const WashColor& colour) {
    return fixed(clampedUnit(colour.a), 2);
}

} // namespace tintra
