#include "colour/Contrast.h"

#include "colour/Clamp.h"
#include "colour/SrgbBytes.h"
#include "platform/SrgbCurve.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tintra::Contrast {

namespace {

Rgb clamped(const WashColor& c) {
    return {clampedUnit(c.r), clampedUnit(c.g), clampedUnit(c.b)};
}

/// The byte that a component 0...1 stands for exactly, as every colour given in hex does.
std::optional<std::uint8_t> exactByte(double component) {
    // NOLINTNEXTLINE(bugprone-incorrect-roundings): the comparison decides
    const auto nearest = static_cast<int>(component * 255 + 0.5);
    if (nearest / 255.0 != component) return std::nullopt;
    return static_cast<std::uint8_t>(nearest);
}

/// Relative luminance of WCAG 2.2, with the curve's threshold of IEC 61966-2-1.
double wcagY(const Rgb& c) {
    const auto& bytes = SrgbBytes::shared();
    const auto linear = [&bytes](double component) {
        const auto byte = exactByte(component);
        return byte ? bytes.linear(*byte) : srgbDecoded(component);
    };
    return 0.2126 * linear(c.r) + 0.7152 * linear(c.g) + 0.0722 * linear(c.b);
}

/// APCA takes a display's plain power, without the linear part of sRGB.
double displayLight(double component) {
    return std::pow(component, 2.4);
}

const std::array<double, 256>& displayLightOfBytes() {
    static const auto table = [] {
        std::array<double, 256> made{};
        for (std::size_t byte = 0; byte < made.size(); ++byte)
            made[byte] = displayLight(static_cast<double>(byte) / 255);
        return made;
    }();
    return table;
}

/// APCA's estimated screen luminance, black lifted softly.
double apcaY(const Rgb& c) {
    const auto& table = displayLightOfBytes();
    const auto light = [&table](double component) {
        const auto byte = exactByte(component);
        return byte ? table[*byte] : displayLight(component);
    };
    const double y = 0.2126729 * light(c.r) + 0.7151522 * light(c.g) + 0.072175 * light(c.b);
    return y < 0.022 ? y + std::pow(0.022 - y, 1.414) : y;
}

} // namespace

WashColor composited(const WashColor& text, const WashColor& ground) {
    const auto over = clamped(text), under = clamped(ground);
    const auto mixed = [a = text.a](double t, double g) { return a * t + (1 - a) * g; };
    return {mixed(over.r, under.r), mixed(over.g, under.g), mixed(over.b, under.b), 1};
}

double wcagRatio(const WashColor& text, const WashColor& ground) {
    const double yText = wcagY(clamped(composited(text, ground)));
    const double yGround = wcagY(clamped(ground));
    return (std::max(yText, yGround) + 0.05) / (std::min(yText, yGround) + 0.05);
}

double apcaLc(const WashColor& text, const WashColor& ground) {
    const double yText = apcaY(clamped(composited(text, ground)));
    const double yGround = apcaY(clamped(ground));
    if (std::abs(yGround - yText) < 0.0005) return 0;
    if (yText < yGround) {
        const double s = (std::pow(yGround, 0.56) - std::pow(yText, 0.57)) * 1.14;
        return s < 0.1 ? 0 : (s - 0.027) * 100;
    }
    const double s = (std::pow(yGround, 0.65) - std::pow(yText, 0.62)) * 1.14;
    return s > -0.1 ? 0 : (s + 0.027) * 100;
}

} // namespace tintra::Contrast
