#include "colour/ColorFormat.h"

#include <algorithm>
#include <array>

namespace tintra {

namespace {

using F = ColorFormat;

constexpr std::array<std::string_view, 3> kPlatforms{"web", "apple", "other"};

constexpr std::array<ColorFormat, 9> kFavourites{
    F::cssHex,   F::cssRGB,       F::cssRGBA,    F::cssHSL,      F::cssHSLA,
    F::cssOKLCH, F::swiftUIColor, F::swiftUIRGB, F::swiftNSSRGB,
};

// clang-format off
std::vector<F::Family> everyFamily() {
    using enum F::Platform;
    return {
        {web, "CSS", {F::cssHex, F::cssRGB, F::cssRGBA, F::cssHSL, F::cssHSLA, F::cssOKLCH,
                      F::cssVariable, F::cssVar}},
        {apple, "SwiftUI", {F::swiftUIColor, F::swiftUIColorHSB}},
        {apple, "UIKit, Swift", {F::swiftUIRGB, F::swiftUIHSB}},
        {apple, "AppKit, Swift", {F::swiftNSSRGB, F::swiftNSRGB, F::swiftNSHSB,
                                  F::swiftNSCalibratedRGB, F::swiftNSCalibratedHSB,
                                  F::swiftNSDeviceRGB, F::swiftNSDeviceHSB, F::swiftNSDeviceCMYK}},
        {apple, "UIKit, Objective-C", {F::uiRGB, F::uiHSB}},
        {apple, "AppKit, Objective-C", {F::nsSRGB, F::nsRGB, F::nsHSB, F::nsCalibratedRGB,
                                        F::nsCalibratedHSB, F::nsDeviceRGB, F::nsDeviceHSB,
                                        F::nsDeviceCMYK}},
        {other, "Android", {F::composeColor, F::androidARGB, F::androidRGB, F::androidXML}},
        {other, "Flutter", {F::flutterColor}},
        {other, "Java", {F::javaRGB, F::javaRGBA}},
        {other, ".Net", {F::netRGB, F::netARGB}},
        {other, "OpenGL", {F::openGLRGB, F::openGLRGBA}},
        {other, "CGColor", {F::cgColorRGB, F::cgColorCMYK}},
    };
}
// clang-format on

} // namespace

std::string_view rawValue(ColorFormat::Platform platform) {
    return kPlatforms[static_cast<std::size_t>(platform)];
}

const std::vector<ColorFormat::Family>& ColorFormat::families() {
    static const auto all = everyFamily();
    return all;
}

std::vector<ColorFormat::Family> ColorFormat::families(Platform in) {
    std::vector<Family> found;
    std::copy_if(families().begin(), families().end(), std::back_inserter(found),
                 [in](const Family& family) { return family.platform == in; });
    return found;
}

std::vector<ColorFormat> ColorFormat::formats(Platform in) {
    std::vector<ColorFormat> found;
    for (const auto& family : families(in))
        found.insert(found.end(), family.formats.begin(), family.formats.end());
    return found;
}

const ColorFormat::Family& ColorFormat::family() const {
    const auto lists = [this](const Family& family) {
        return std::find(family.formats.begin(), family.formats.end(), *this) !=
               family.formats.end();
    };
    return *std::find_if(families().begin(), families().end(), lists);
}

std::span<const ColorFormat> ColorFormat::defaultFavourites() {
    return kFavourites;
}

} // namespace tintra
