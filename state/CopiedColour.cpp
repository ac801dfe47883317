#include "state/CopiedColour.h"

#include "colour/ColorNames.h"
#include "platform/Services.h"
#include "state/Preferences.h"

namespace tintra {
namespace {

std::string code(const WashColor& colour, const std::optional<std::string>& name,
                 ColorFormat format, const FormatOptions& options) {
    return format.string(colour, name ? *name : ColorNames::shared().name(colour), options);
}

} // namespace

Clipboard::Content copiedColour(const WashColor& colour, const std::optional<std::string>& name,
                                ColorFormat format, const FormatOptions& options) {
    return {code(colour, name, format, options), {{colour.r, colour.g, colour.b, colour.a}}};
}

Clipboard::Content copiedColours(std::span<const WashColor> colours,
                                 std::span<const std::optional<std::string>> names,
                                 ColorFormat format, const FormatOptions& options) {
    if (colours.size() == 1)
        return copiedColour(colours[0], names.empty() ? std::nullopt : names[0], format, options);
    Clipboard::Content content;
    for (std::size_t i = 0; i < colours.size(); ++i) {
        if (i > 0) content.text += '\n';
        content.text +=
            code(colours[i], i < names.size() ? names[i] : std::nullopt, format, options);
    }
    return content;
}

void copyColour(Services& services, Preferences& preferences, const WashColor& colour,
                const std::optional<std::string>& name, std::optional<ColorFormat> as) {
    services.clipboard.set(copiedColour(colour, name, as.value_or(preferences.format),
                                        preferences.formatOptions.value()));
    preferences.remember(colour);
}

} // namespace tintra
