#include "cli/ColourArguments.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "colour/ColorFormat.h"
#include "colour/ColorNames.h"

#include <fmt/format.h>

namespace tintra::cli {

namespace {

struct CodeOptions {
    std::vector<std::string> colours;
    std::vector<std::string> formats;
    bool all = false;
    std::string name;
    FormatOptions writing;
    bool noHash = false;
};

std::vector<ColorFormat> formatsOf(const CodeOptions& options) {
    if (options.all) return {ColorFormat::all().begin(), ColorFormat::all().end()};
    std::vector<ColorFormat> formats;
    for (const auto& raw : options.formats)
        if (const auto format = ColorFormat::fromRaw(raw)) formats.push_back(*format);
    if (formats.empty()) formats.emplace_back(ColorFormat::cssHex);
    return formats;
}

bool usesName(ColorFormat format) {
    return format == ColorFormat::androidXML || format == ColorFormat::cssVariable ||
           format == ColorFormat::cssVar;
}

/// The names are loaded only for a format that writes one.
std::string codeOf(const WashColor& colour, ColorFormat format, const CodeOptions& options) {
    std::string name = options.name;
    if (name.empty() && usesName(format)) name = ColorNames::shared().name(colour);
    return format.string(colour, name, options.writing);
}

void codeText(Session& session, const WashColor& colour, const CodeOptions& options) {
    const auto formats = formatsOf(options);
    for (const auto format : formats) {
        const auto code = codeOf(colour, format, options);
        if (options.all)
            session.printLine(fmt::format("{:<32}{}", format.title(), code));
        else
            session.printLine(session.block(swatchBytes(colour)) + code);
    }
}

Json codeJson(const WashColor& colour, const CodeOptions& options) {
    Json codes = Json::object();
    for (const auto format : formatsOf(options))
        codes[std::string(format.rawValue())] = codeOf(colour, format, options);
    return {{"hex", hexText(colour)}, {"codes", codes}};
}

void code(Session& session, CodeOptions options) {
    options.writing.cssPrefixHash = !options.noHash;
    Json list = Json::array();
    for (const auto& colour : colourArguments(session, options.colours)) {
        if (session.json())
            list.push_back(codeJson(colour, options));
        else
            codeText(session, colour, options);
    }
    if (session.json()) session.printJson(list);
}

std::vector<std::string> formatIds() {
    std::vector<std::string> ids;
    for (const auto format : ColorFormat::all())
        ids.emplace_back(format.rawValue());
    return ids;
}

} // namespace

Action declareCode(Declaration& declaration) {
    const auto options = std::make_shared<CodeOptions>();
    declaration.positional("COLOUR", options->colours, kColourHelp);
    declaration.choice("--format", options->formats, formatIds(), "ID",
                       "Format to write; may be given again (default cssHex)");
    declaration.flag("--all", options->all, "Every format, with its title");
    declaration.option("--name", options->name, "NAME",
                       "Name for the formats that write one (default: the nearest name)");
    declaration.option("--decimals", options->writing.decimals, "N",
                       "Digits after the point, taken as 1 to 5 (default 3)");
    declaration.flag("--fractions", options->writing.useFractions, "Channels as a division by 255");
    declaration.flag("--no-spaces", options->writing.removeWhitespace, "No blank after a comma");
    declaration.flag("--uppercase", options->writing.cssUppercase, "CSS in upper case");
    declaration.flag("--no-hash", options->noHash, "No “#” before a CSS hex code");
    return [options](Session& session) { code(session, *options); };
}

} // namespace tintra::cli
