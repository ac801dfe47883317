#include "colour/FormatTable.h"

#include "colour/CaseTable.h"

namespace tintra {

namespace {

using F = ColorFormat;

// Apple's components are floating point wherever they are divided; elsewhere whole numbers on
// both sides would divide to 0 or 1.
constexpr std::string_view kWhole = "255", kPoint = "255.0";

// What a format and its sibling without alpha share.
constexpr const char* kHsla = "hsla({0:.0f}, {1:.0f}%, {2:.0f}%, {A})";
constexpr const char* kRgba = "rgba({0:.0f}, {1:.0f}, {2:.0f}, {A})";
constexpr const char* kJavaRgba = "new Color({0}, {1}, {2}, {A})";
constexpr const char* kNetArgb = "Color.FromArgb({A}, {0}, {1}, {2})";
constexpr const char* kOpenGLRgba = "glColor4f({0}f, {1}f, {2}f, {A}f)";

// clang-format off
constexpr std::array kFormats = std::to_array<FormatRow>({
    {F::androidARGB, "androidARGB", "Android ARGB", Channels::none, kPoint,
     "#{AA}{HEX}"},
    {F::androidRGB, "androidRGB", "Android RGB", Channels::none, kPoint,
     "#{HEX}",
     "#{AA}{HEX}"},
    {F::androidXML, "androidXML", "Android XML", Channels::none, kPoint,
     R"(<color name="{resource}">#{AA}{HEX}</color>)"},
    {F::composeColor, "composeColor", "Compose Color", Channels::none, kPoint,
     "Color(0x{AA}{HEX})"},
    {F::flutterColor, "flutterColor", "Flutter Color", Channels::none, kPoint,
     "Color(0x{AA}{HEX})"},
    {F::cgColorRGB, "cgColorRGB", "CGColor RGB", Channels::rgb, kPoint,
     "CGColorCreateGenericRGB({0}, {1}, {2}, {A})"},
    {F::cgColorCMYK, "cgColorCMYK", "CGColor CMYK", Channels::cmyk, kPoint,
     "CGColorCreateGenericCMYK({0}, {1}, {2}, {3}, {A})"},
    {F::cssHex, "cssHex", "CSS HEX", Channels::none, kPoint,
     "{#}{hex}",
     "{#}{hex}{aa}"},
    {F::cssHSL, "cssHSL", "CSS HSL", Channels::hsl, kPoint,
     "hsl({0:.0f}, {1:.0f}%, {2:.0f}%)",
     kHsla},
    {F::cssHSLA, "cssHSLA", "CSS HSLA", Channels::hsl, kPoint,
     kHsla},
    {F::cssRGB, "cssRGB", "CSS RGB", Channels::bytes, kPoint,
     "rgb({0:.0f}, {1:.0f}, {2:.0f})",
     kRgba},
    {F::cssRGBA, "cssRGBA", "CSS RGBA", Channels::bytes, kPoint,
     kRgba},
    {F::cssOKLCH, "cssOKLCH", "CSS OKLCH", Channels::oklch, kPoint,
     "oklch({0:.3f} {1:.3f} {2:.1f})",
     "oklch({0:.3f} {1:.3f} {2:.1f} / {A:.2f})"},
    {F::cssVariable, "cssVariable", "CSS Variable", Channels::none, kPoint,
     "--{slug}: #{hex};",
     "--{slug}: #{hex}{aa};"},
    {F::cssVar, "cssVar", "CSS var()", Channels::none, kPoint,
     "var(--{slug})"},
    {F::javaRGB, "javaRGB", "Java RGB", Channels::rgb, kPoint,
     "new Color({0}, {1}, {2})",
     kJavaRgba},
    {F::javaRGBA, "javaRGBA", "Java RGBA", Channels::rgb, kPoint,
     kJavaRgba},
    {F::netRGB, "netRGB", ".Net RGB", Channels::rgb, kPoint,
     "Color.FromRgb({0}, {1}, {2})",
     kNetArgb},
    {F::netARGB, "netARGB", ".Net ARGB", Channels::rgb, kPoint,
     kNetArgb},
    {F::openGLRGB, "openGLRGB", "OpenGL RGB", Channels::rgb, kPoint,
     "glColor3f({0}f, {1}f, {2}f)",
     kOpenGLRgba},
    {F::openGLRGBA, "openGLRGBA", "OpenGL RGBA", Channels::rgb, kPoint,
     kOpenGLRgba},
    {F::nsCalibratedHSB, "nsCalibratedHSB", "NSColor Calibrated HSB (Obj-C)", Channels::hsb, kPoint,
     "[NSColor colorWithCalibratedHue:{0} saturation:{1} brightness:{2} alpha:{A}]"},
    {F::nsCalibratedRGB, "nsCalibratedRGB", "NSColor Calibrated RGB (Obj-C)", Channels::rgb, kWhole,
     "[NSColor colorWithCalibratedRed:{0} green:{1} blue:{2} alpha:{A}]"},
    {F::nsDeviceHSB, "nsDeviceHSB", "NSColor Device HSB (Obj-C)", Channels::hsb, kPoint,
     "[NSColor colorWithDeviceHue:{0} saturation:{1} brightness:{2} alpha:{A}]"},
    {F::nsDeviceRGB, "nsDeviceRGB", "NSColor Device RGB (Obj-C)", Channels::rgb, kWhole,
     "[NSColor colorWithDeviceRed:{0} green:{1} blue:{2} alpha:{A}]"},
    {F::nsDeviceCMYK, "nsDeviceCMYK", "NSColor Device CMYK (Obj-C)", Channels::cmyk, kPoint,
     "[NSColor colorWithDeviceCyan:{0} magenta:{1} yellow:{2} black:{3} alpha:{A}]"},
    {F::nsHSB, "nsHSB", "NSColor HSB (Obj-C)", Channels::hsb, kPoint,
     "[NSColor colorWithHue:{0} saturation:{1} brightness:{2} alpha:{A}]"},
    {F::nsRGB, "nsRGB", "NSColor RGB (Obj-C)", Channels::rgb, kWhole,
     "[NSColor colorWithRed:{0} green:{1} blue:{2} alpha:{A}]"},
    {F::nsSRGB, "nsSRGB", "NSColor sRGB (Obj-C)", Channels::rgb, kWhole,
     "[NSColor colorWithSRGBRed:{0} green:{1} blue:{2} alpha:{A}]"},
    {F::uiHSB, "uiHSB", "UIColor HSB (Obj-C)", Channels::hsb, kPoint,
     "[UIColor colorWithHue:{0} saturation:{1} brightness:{2} alpha:{A}]"},
    {F::uiRGB, "uiRGB", "UIColor RGB (Obj-C)", Channels::rgb, kWhole,
     "[UIColor colorWithRed:{0} green:{1} blue:{2} alpha:{A}]"},
    {F::swiftNSCalibratedHSB, "swiftNSCalibratedHSB", "NSColor Calibrated HSB (Swift)", Channels::hsb, kPoint,
     "NSColor(calibratedHue: {0}, saturation: {1}, brightness: {2}, alpha: {A})"},
    {F::swiftNSCalibratedRGB, "swiftNSCalibratedRGB", "NSColor Calibrated RGB (Swift)", Channels::rgb, kWhole,
     "NSColor(calibratedRed: {0}, green: {1}, blue: {2}, alpha: {A})"},
    {F::swiftNSDeviceHSB, "swiftNSDeviceHSB", "NSColor Device HSB (Swift)", Channels::hsb, kPoint,
     "NSColor(deviceHue: {0}, saturation: {1}, brightness: {2}, alpha: {A})"},
    {F::swiftNSDeviceRGB, "swiftNSDeviceRGB", "NSColor Device RGB (Swift)", Channels::rgb, kWhole,
     "NSColor(deviceRed: {0}, green: {1}, blue: {2}, alpha: {A})"},
    {F::swiftNSDeviceCMYK, "swiftNSDeviceCMYK", "NSColor Device CMYK (Swift)", Channels::cmyk, kPoint,
     "NSColor(deviceCyan: {0}, magenta: {1}, yellow: {2}, black: {3}, alpha: {A})"},
    {F::swiftNSHSB, "swiftNSHSB", "NSColor HSB (Swift)", Channels::hsb, kPoint,
     "NSColor(hue: {0}, saturation: {1}, brightness: {2}, alpha: {A})"},
    {F::swiftNSRGB, "swiftNSRGB", "NSColor RGB (Swift)", Channels::rgb, kWhole,
     "NSColor(red: {0}, green: {1}, blue: {2}, alpha: {A})"},
    {F::swiftNSSRGB, "swiftNSSRGB", "NSColor sRGB (Swift)", Channels::rgb, kWhole,
     "NSColor(srgbRed: {0}, green: {1}, blue: {2}, alpha: {A})"},
    {F::swiftUIHSB, "swiftUIHSB", "UIColor HSB (Swift)", Channels::hsb, kPoint,
     "UIColor(hue: {0}, saturation: {1}, brightness: {2}, alpha: {A})"},
    {F::swiftUIRGB, "swiftUIRGB", "UIColor RGB (Swift)", Channels::rgb, kWhole,
     "UIColor(red: {0}, green: {1}, blue: {2}, alpha: {A})"},
    {F::swiftUIColor, "swiftUIColor", "SwiftUI Color", Channels::rgb, kWhole,
     "Color(red: {0}, green: {1}, blue: {2})",
     "Color(red: {0}, green: {1}, blue: {2}, opacity: {A})"},
    {F::swiftUIColorHSB, "swiftUIColorHSB", "SwiftUI Color HSB", Channels::hsb, kPoint,
     "Color(hue: {0}, saturation: {1}, brightness: {2})",
     "Color(hue: {0}, saturation: {1}, brightness: {2}, opacity: {A})"},
});
// clang-format on
static_assert(inCaseOrder(kFormats));

constexpr auto kAll = []<std::size_t... i>(std::index_sequence<i...>) {
    return std::array{ColorFormat(kFormats[i].value)...};
}
(std::make_index_sequence<kFormats.size()>());

} // namespace

const FormatRow& rowOf(ColorFormat format) {
    return rowOf(kFormats, static_cast<F::Case>(format));
}

std::optional<ColorFormat> ColorFormat::fromRaw(std::string_view raw) {
    return caseOf(kFormats, raw);
}

std::span<const ColorFormat> ColorFormat::all() {
    return kAll;
}

std::string_view ColorFormat::rawValue() const {
    return rowOf(*this).raw;
}

std::string_view ColorFormat::title() const {
    return rowOf(*this).title;
}

} // namespace tintra
