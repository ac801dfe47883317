#pragma once

#include "platform/ColourSpace.h"

#include <lcms2.h>

#include <memory>

// What ColourSpace needs of Little CMS: owners of its handles, profiles made from published
// figures, transforms to and from linear sRGB. Internal to the colour-space service.

namespace tintra::icc {

struct CloseProfile {
    using pointer = cmsHPROFILE;
    void operator()(cmsHPROFILE handle) const { cmsCloseProfile(handle); }
};
struct DeleteTransform {
    using pointer = cmsHTRANSFORM;
    void operator()(cmsHTRANSFORM handle) const { cmsDeleteTransform(handle); }
};
using ProfileHandle = std::unique_ptr<void, CloseProfile>;
using TransformHandle = std::unique_ptr<void, DeleteTransform>;

/// A transfer curve as the library's parametric curve: type and parameters (ICC.1:2010, 10.16).
struct Curve {
    int type;
    std::array<double, 5> parameters;
};

/// An RGB space by its published figures: CIE 1931 chromaticities and curve.
struct RgbDefinition {
    cmsCIExyY white;
    cmsCIExyYTRIPLE primaries;
    Curve curve;
};

// clang-format off
inline constexpr Curve kLinear{1, {1.0}};
inline constexpr Curve kGamma18{1, {1.8}};
/// IEC 61966-2-1.
inline constexpr Curve kSrgbCurve{4, {2.4, 1 / 1.055, 0.055 / 1.055, 1 / 12.92, 0.04045}};
/// ITU-R BT.709 and BT.2020 (10 bit), decoding.
inline constexpr Curve kBt709Curve{4, {1 / 0.45, 1 / 1.099, 0.099 / 1.099, 1 / 4.5, 0.081}};
/// ISO 22028-2 (ROMM RGB), decoding.
inline constexpr Curve kRommCurve{4, {1.8, 1, 0, 1 / 16.0, 16 * 0.001953125}};

inline constexpr cmsCIExyY kD65{0.3127, 0.3290, 1};
inline constexpr cmsCIExyYTRIPLE kBt709Primaries{{0.640, 0.330, 1}, {0.300, 0.600, 1}, {0.150, 0.060, 1}};
inline constexpr cmsCIExyYTRIPLE kP3Primaries{{0.680, 0.320, 1}, {0.265, 0.690, 1}, {0.150, 0.060, 1}};

inline constexpr RgbDefinition kSrgb{kD65, kBt709Primaries, kSrgbCurve};
inline constexpr RgbDefinition kLinearSrgb{kD65, kBt709Primaries, kLinear};
inline constexpr RgbDefinition kBt709{kD65, kBt709Primaries, kBt709Curve};
/// SMPTE EG 432-1 primaries with the sRGB curve.
inline constexpr RgbDefinition kDisplayP3{kD65, kP3Primaries, kSrgbCurve};
/// SMPTE RP 431-2.
inline constexpr RgbDefinition kDciP3{{0.314, 0.351, 1}, kP3Primaries, {1, {2.6}}};
/// Adobe RGB (1998) Color Image Encoding, version 2005-05: gamma 2 51/256.
inline constexpr RgbDefinition kAdobeRgb{
    kD65, {{0.640, 0.330, 1}, {0.210, 0.710, 1}, {0.150, 0.060, 1}}, {1, {563.0 / 256}}};
inline constexpr RgbDefinition kBt2020{
    kD65, {{0.708, 0.292, 1}, {0.170, 0.797, 1}, {0.131, 0.046, 1}}, kBt709Curve};
inline constexpr RgbDefinition kRomm{
    {0.3457, 0.3585, 1}, {{0.7347, 0.2653, 1}, {0.1596, 0.8404, 1}, {0.0366, 0.0001, 1}}, kRommCurve};
// clang-format on

/// All makers answer null when the library refuses.
ProfileHandle open(ByteView bytes);
ProfileHandle rgbProfile(const RgbDefinition& definition, const char* description);
ProfileHandle genericRgbProfile(const char* description);
ProfileHandle greyProfile(const Curve& curve);

std::string description(cmsHPROFILE profile);
ColourModel modelOf(cmsHPROFILE profile);
int componentCount(cmsHPROFILE profile);
bool convertsBothWays(cmsHPROFILE profile);
Bytes bytesOf(cmsHPROFILE profile);

/// Transforms between doubles of the profile's components (CMYK in percent) and linear sRGB.
TransformHandle toLinearSrgb(cmsHPROFILE profile, ColourModel model);
TransformHandle fromLinearSrgb(cmsHPROFILE profile, ColourModel model);

} // namespace tintra::icc
