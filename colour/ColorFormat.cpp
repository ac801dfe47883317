#include "colour/ColorFormat.h"

#include "colour/ColorProfiles.h"
#include "colour/FormatTable.h"
#include "colour/Hex.h"
#include "platform/Number.h"
#include "platform/Unicode.h"

#include <array>
#include <cmath>
#include <numbers>

namespace tintra {

namespace {

using ChannelValues = std::array<double, 4>;

/// Below this chroma a colour counts as a grey, whose hue is 0.
constexpr double kGreyChroma = 0.0005;

ChannelValues oklchChannels(const WashColor& colour) {
    const auto [l, c, radians] = oklchFromOklab(colour.oklab());
    if (c < kGreyChroma) return {l, c, 0};
    const double degrees = radians * 180 / std::numbers::pi;
    return {l, c, degrees < 0 ? degrees + 360 : degrees};
}

ChannelValues byteChannels(const WashColor& colour) {
    const auto bytes = colour.rgb255(ColorProfiles::shared().rgbSpace());
    return {static_cast<double>(bytes.r), static_cast<double>(bytes.g),
            static_cast<double>(bytes.b)};
}

ChannelValues hsbChannels(const WashColor& colour) {
    const auto [h, s, b] = colour.hsb();
    return {h, s, b};
}

ChannelValues hslChannels(const WashColor& colour) {
    const auto [h, s, l] = colour.hsl();
    return {h, s, l};
}

ChannelValues cmykChannels(const WashColor& colour) {
    const auto [c, m, y, k] = colour.cmyk();
    return {c, m, y, k};
}

ChannelValues channelsOf(const WashColor& colour, Channels channels) {
    switch (channels) {
    case Channels::none:
        return {};
    case Channels::rgb:
        return {colour.r, colour.g, colour.b};
    case Channels::bytes:
        return byteChannels(colour);
    case Channels::hsb:
        return hsbChannels(colour);
    case Channels::hsl:
        return hslChannels(colour);
    case Channels::oklch:
        return oklchChannels(colour);
    case Channels::cmyk:
        return cmykChannels(colour);
    }
    return {};
}

std::string alphaByte(const WashColor& colour) {
    std::string text;
    appendHexByte(text, byteOf(colour.a));
    return text;
}

/// Writes the fields of one colour's code.
class FieldWriter {
public:
    FieldWriter(std::string& out, const FormatRow& row, const WashColor& colour,
                std::string_view name, const FormatOptions& options)
        : out_(out), over_(row.over), colour_(colour), name_(name), options_(options),
          channels_(channelsOf(colour, row.channels)) {}

    void operator()(const CodePiece& piece) {
        switch (piece.field) {
        case CodeField::channel:
            return writeChannel(piece);
        case CodeField::alpha:
            return writeAlpha(piece);
        case CodeField::hex:
            out_ += asciiLowerCased(colour_.hexNoHash());
            return;
        case CodeField::HEX:
            out_ += colour_.hexNoHash();
            return;
        case CodeField::aa:
            out_ += asciiLowerCased(alphaByte(colour_));
            return;
        case CodeField::AA:
            out_ += alphaByte(colour_);
            return;
        case CodeField::hash:
            out_ += options_.cssPrefixHash ? "#" : "";
            return;
        case CodeField::slug:
            out_ += cssSlug(name_, LeadingDigit::allowed);
            return;
        case CodeField::resource:
            out_ += androidName(name_);
            return;
        }
    }

private:
    void writeChannel(const CodePiece& piece) {
        const double value = channels_[piece.channel];
        if (piece.decimals == CodePiece::kAsOptionsSay)
            out_ += options_.number(value, over_);
        else
            appendFixed(out_, value, piece.decimals);
    }

    void writeAlpha(const CodePiece& piece) {
        if (piece.decimals == CodePiece::kAsOptionsSay)
            out_ += options_.decimal(colour_.a);
        else
            appendFixed(out_, colour_.a, piece.decimals);
    }

    std::string& out_;
    std::string_view over_;
    const WashColor& colour_;
    std::string_view name_;
    const FormatOptions& options_;
    ChannelValues channels_;
};

void dropBlanksAfterCommas(std::string& text) {
    for (auto at = text.find(", "); at != std::string::npos; at = text.find(", ", at + 1))
        text.erase(at + 1, 1);
}

} // namespace

std::string ColorFormat::string(const WashColor& colour, std::string_view name,
                                const FormatOptions& options) const {
    const auto& row = rowOf(*this);
    const bool translucent = !colour.isOpaque() && !row.translucentCode.empty();
    std::string text;
    (translucent ? row.translucentCode : row.code)
        .render(text, FieldWriter(text, row, colour, name, options));
    if (options.cssUppercase && family().platform == Platform::web) text = upperCased(text);
    if (options.removeWhitespace) dropBlanksAfterCommas(text);
    return text;
}

} // namespace tintra
