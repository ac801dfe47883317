#pragma once

#include "platform/Bytes.h"

#include <array>
#include <memory>
#include <optional>
#include <string>

namespace tintra {

enum class ColourModel { grey, rgb, cmyk, other };

/// Gamma-encoded extended-range sRGB: nominally 0...1, below and above for colours outside sRGB
/// (the transfer curve mirrored at zero).
struct ExtendedSrgb {
    double r = 0, g = 0, b = 0;
};

/// Component values of a colour space, in its order, each nominally 0...1. Spaces with fewer than
/// four components leave the rest at 0.
using Components = std::array<double, 4>;

/// A colour space of the platform's colour management (Little CMS). Immutable; may be used from any
/// thread. Conversions are relative colorimetric with black point compensation, in double
/// precision, and are set up at their first use.
class ColourSpace {
public:
    class Profile;

    /// The standard sRGB space; always the same object, so that it is told by its address.
    static std::shared_ptr<const ColourSpace> sRGB();
    static std::shared_ptr<const ColourSpace> displayP3();
    static std::shared_ptr<const ColourSpace> adobeRGB1998();
    /// Gamma 1.8 with the primaries of the colour lists that carry it.
    static std::shared_ptr<const ColourSpace> genericRGB();
    static std::shared_ptr<const ColourSpace> ituRBT2020();
    static std::shared_ptr<const ColourSpace> rommRGB();
    static std::shared_ptr<const ColourSpace> dciP3();
    static std::shared_ptr<const ColourSpace> ituRBT709();
    static std::shared_ptr<const ColourSpace> linearSRGB();
    /// Grey of gamma 1.8, as old colour lists store calibrated white.
    static std::shared_ptr<const ColourSpace> genericGrey();
    /// Grey on the sRGB curve.
    static std::shared_ptr<const ColourSpace> genericGreyGamma22();
    /// The program's own CMYK profile, named "Device CMYK".
    static std::shared_ptr<const ColourSpace> deviceCMYK();

    /// The space of an ICC profile; null when the bytes are no profile or one of no colour.
    static std::shared_ptr<const ColourSpace> fromIccProfile(ByteView bytes);

    ~ColourSpace();
    ColourSpace(const ColourSpace&) = delete;
    ColourSpace& operator=(const ColourSpace&) = delete;

    ColourModel model() const;
    /// 1, 3 or 4; another count for models that are not converted.
    int componentCount() const;
    /// The description that the profile carries, in English where it has several languages.
    const std::string& localizedName() const;
    /// Whether colours can go into the space and come back.
    bool convertsBothWays() const;
    /// The space as the bytes of an ICC profile; empty when it cannot be written.
    Bytes iccProfile() const;

    /// The colour of the components; nothing when the space refuses the conversion. CMYK inks are
    /// 0 (none) to 1 (full).
    std::optional<ExtendedSrgb> toSrgb(const Components& components) const;
    /// The components of the colour, unclamped for RGB; nothing when the space refuses.
    std::optional<Components> fromSrgb(const ExtendedSrgb& colour) const;

private:
    explicit ColourSpace(std::unique_ptr<Profile> profile);
    friend class ColourSpaceFactory;

    std::unique_ptr<Profile> profile_;
};

/// A colour of the platform: components in a space, and alpha 0...1.
struct PlatformColour {
    std::shared_ptr<const ColourSpace> space;
    Components components{};
    double alpha = 1;
};

} // namespace tintra
