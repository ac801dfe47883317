#include "cli/ColourArguments.h"
#include "cli/Commands.h"
#include "cli/Json.h"
#include "colour/ColorNames.h"
#include "colour/ColorProfiles.h"
#include "platform/Number.h"

#include <fmt/format.h>

#include <numbers>

namespace tintra::cli {

namespace {

/// OKLCH with the hue in degrees 0...360, and 0 where the chroma is too small to have one.
struct OklchDegrees {
    double L, C, h;
};

OklchDegrees oklchOf(const WashColor& colour) {
    const auto lch = oklchFromOklab(colour.oklab());
    if (lch.c < 0.0005) return {lch.l, lch.c, 0};
    const double degrees = lch.h * 180 / std::numbers::pi;
    return {lch.l, lch.c, degrees < 0 ? degrees + 360 : degrees};
}

Json labJson(const WashColor& colour, LabIlluminant illuminant) {
    const auto lab = colour.lab(illuminant);
    return {lab.L, lab.a, lab.b};
}

Json showJson(const WashColor& colour) {
    auto json = colourJson(colour);
    const auto rgb = colour.rgb255(ColorProfiles::shared().rgbSpace());
    const auto hsb = colour.hsb();
    const auto hsl = colour.hsl();
    const auto cmyk = colour.cmyk();
    const auto oklab = colour.oklab();
    const auto oklch = oklchOf(colour);
    json["name"] = ColorNames::shared().name(colour);
    json["rgb"] = {rgb.r, rgb.g, rgb.b};
    json["hsb"] = {hsb.h, hsb.s, hsb.b};
    json["hsl"] = {hsl.h, hsl.s, hsl.l};
    json["cmyk"] = {cmyk.c, cmyk.m, cmyk.y, cmyk.k};
    json["lab"] = {{"d50", labJson(colour, LabIlluminant::d50)},
                   {"d65", labJson(colour, LabIlluminant::d65)}};
    json["oklab"] = {oklab.L, oklab.a, oklab.b};
    json["oklch"] = {oklch.L, oklch.C, oklch.h};
    json["luminance"] = colour.luminance();
    json["readableForeground"] = hexText(colour.readableForeground());
    return json;
}

/// Numbers as people read them, by a blank apart.
std::string figures(std::initializer_list<double> values, int decimals) {
    std::string text;
    for (const double value : values) {
        if (!text.empty()) text += ' ';
        appendFixed(text, value, decimals);
    }
    return text;
}

std::string percent(std::initializer_list<double> fractions) {
    std::string text;
    for (const double fraction : fractions) {
        if (!text.empty()) text += ' ';
        appendFixed(text, fraction * 100, 0);
        text += '%';
    }
    return text;
}

void row(Session& session, std::string_view title, const std::string& value) {
    session.printLine(fmt::format("  {:<11}{}", title, value));
}

std::string hueText(double degrees) {
    return fixed(degrees, 0) + "° ";
}

void showText(Session& session, const WashColor& colour) {
    const auto& profiles = ColorProfiles::shared();
    const auto rgb = colour.rgb255(profiles.rgbSpace());
    const auto hsb = colour.hsb();
    const auto hsl = colour.hsl();
    const auto cmyk = colour.cmyk();
    const auto lab = colour.lab(profiles.labIlluminant());
    const auto oklab = colour.oklab();
    const auto oklch = oklchOf(colour);
    session.printLine(labelled(session, colour) + "  " + ColorNames::shared().name(colour));
    row(session, "RGB", fmt::format("{} {} {}", rgb.r, rgb.g, rgb.b));
    row(session, "HSB", hueText(hsb.h * 360) + percent({hsb.s, hsb.b}));
    row(session, "HSL", hueText(hsl.h) + percent({hsl.s / 100, hsl.l / 100}));
    row(session, "CMYK", percent({cmyk.c, cmyk.m, cmyk.y, cmyk.k}));
    row(session, profiles.labIlluminant() == LabIlluminant::d50 ? "Lab D50" : "Lab D65",
        figures({lab.L, lab.a, lab.b}, 2));
    row(session, "OKLab", figures({oklab.L, oklab.a, oklab.b}, 4));
    row(session, "OKLCH", figures({oklch.L, oklch.C}, 4) + ' ' + fixed(oklch.h, 2) + "°");
    row(session, "Luminance", fixed(colour.luminance(), 4));
    if (!colour.isOpaque()) row(session, "Alpha", fixed(colour.a, 3));
    row(session, "Text on it", colour.readableForeground().r > 0 ? "white" : "black");
}

struct ShowOptions {
    std::vector<std::string> colours;
};

void show(Session& session, const ShowOptions& options) {
    Json list = Json::array();
    for (const auto& colour : colourArguments(session, options.colours)) {
        if (session.json())
            list.push_back(showJson(colour));
        else
            showText(session, colour);
    }
    if (session.json()) session.printJson(list);
}

} // namespace

Action declareShow(Declaration& declaration) {
    const auto options = std::make_shared<ShowOptions>();
    declaration.positional("COLOUR", options->colours, kColourHelp);
    return [options](Session& session) { show(session, *options); };
}

} // namespace tintra::cli
