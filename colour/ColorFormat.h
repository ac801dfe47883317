#pragma once

#include "colour/FormatOptions.h"
#include "colour/WashColor.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tintra {

/// A shape in which a colour is copied as a line of code; a closed list. The order of the cases is
/// the order in which all of them are listed.
class ColorFormat {
public:
    enum Case {
        androidARGB,
        androidRGB,
        androidXML,
        composeColor,
        flutterColor,
        cgColorRGB,
        cgColorCMYK,
        cssHex,
        cssHSL,
        cssHSLA,
        cssRGB,
        cssRGBA,
        cssOKLCH,
        cssVariable,
        cssVar,
        javaRGB,
        javaRGBA,
        netRGB,
        netARGB,
        openGLRGB,
        openGLRGBA,
        nsCalibratedHSB,
        nsCalibratedRGB,
        nsDeviceHSB,
        nsDeviceRGB,
        nsDeviceCMYK,
        nsHSB,
        nsRGB,
        nsSRGB,
        uiHSB,
        uiRGB,
        swiftNSCalibratedHSB,
        swiftNSCalibratedRGB,
        swiftNSDeviceHSB,
        swiftNSDeviceRGB,
        swiftNSDeviceCMYK,
        swiftNSHSB,
        swiftNSRGB,
        swiftNSSRGB,
        swiftUIHSB,
        swiftUIRGB,
        swiftUIColor,
        swiftUIColorHSB,
    };

    enum class Platform { web, apple, other };

    /// Formats shown under one heading; its title is its identity.
    struct Family {
        Platform platform;
        std::string_view title;
        std::vector<ColorFormat> formats; ///< in menu order
    };

    constexpr ColorFormat(Case value) : value_(value) {} // NOLINT(google-explicit-constructor)
    constexpr operator Case() const { return value_; }   // NOLINT(google-explicit-constructor)

    /// The format of a persisted text; nothing for an unknown one.
    static std::optional<ColorFormat> fromRaw(std::string_view raw);
    /// Every format, in the order of the cases.
    static std::span<const ColorFormat> all();

    /// The persisted text: the case's name.
    std::string_view rawValue() const;
    /// The title that menus show.
    std::string_view title() const;
    /// The family that lists it.
    const Family& family() const;

    /// Every family, in menu order; `families(platform)` those of one platform.
    static const std::vector<Family>& families();
    static std::vector<Family> families(Platform in);
    /// The formats of those families, one after the other.
    static std::vector<ColorFormat> formats(Platform in);
    /// What a user's favourites start as.
    static std::span<const ColorFormat> defaultFavourites();

    /// The colour as code. `name` is the swatch's name, or the nearest name when it has none; only
    /// androidXML, cssVariable and cssVar use it. A translucent colour is written by the format's
    /// sibling with alpha where there is one. Whole numbers and hex follow the RGB space selected
    /// in ColorProfiles; 0 to 1 numbers are the stored components, unclamped.
    std::string string(const WashColor& colour, std::string_view name,
                       const FormatOptions& options) const;

private:
    Case value_;
};

/// The persisted text of a platform: "web", "apple" or "other".
std::string_view rawValue(ColorFormat::Platform platform);

enum class LeadingDigit { allowed, notAllowed };

/// A name as a CSS identifier: words in lower case joined by single hyphens, apostrophes dropped,
/// marks taken off letters; "colour" when nothing is left; "c-" before a leading digit where that
/// is not allowed. The result is an identifier as `isIdentifier` tests it.
std::string cssSlug(std::string_view name, LeadingDigit leadingDigitAllowed);

/// Whether the text already is a slug: a-z, 0-9 and single inner hyphens.
bool isIdentifier(std::string_view text, LeadingDigit leadingDigitAllowed);

/// A name as an Android resource name: lower case, every character that is neither a letter nor a
/// number an underscore.
std::string androidName(std::string_view name);

} // namespace tintra
