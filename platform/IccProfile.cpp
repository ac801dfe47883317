#include "platform/IccProfile.h"

#include "platform/Unicode.h"

namespace tintra::icc {

namespace {

struct FreeCurve {
    void operator()(cmsToneCurve* curve) const { cmsFreeToneCurve(curve); }
};
using CurveHandle = std::unique_ptr<cmsToneCurve, FreeCurve>;

CurveHandle curveOf(const Curve& curve) {
    return CurveHandle(cmsBuildParametricToneCurve(nullptr, curve.type, curve.parameters.data()));
}

struct FreeMlu {
    void operator()(cmsMLU* text) const { cmsMLUfree(text); }
};

void describe(cmsHPROFILE profile, const char* description) {
    const std::unique_ptr<cmsMLU, FreeMlu> text(cmsMLUalloc(nullptr, 1));
    if (text && cmsMLUsetASCII(text.get(), "en", "US", description))
        cmsWriteTag(profile, cmsSigProfileDescriptionTag, text.get());
}

/// The format of one pixel in doubles; 0 for models that are not converted.
cmsUInt32Number formatOf(ColourModel model) {
    switch (model) {
    case ColourModel::grey:
        return TYPE_GRAY_DBL;
    case ColourModel::rgb:
        return TYPE_RGB_DBL;
    case ColourModel::cmyk:
        return TYPE_CMYK_DBL;
    case ColourModel::other:
        break;
    }
    return 0;
}

cmsHPROFILE linearSrgb() {
    static const auto profile = rgbProfile(kLinearSrgb, "Linear sRGB");
    return profile.get();
}

TransformHandle transform(cmsHPROFILE from, cmsUInt32Number fromFormat, cmsHPROFILE to,
                          cmsUInt32Number toFormat) {
    if (fromFormat == 0 || toFormat == 0) return nullptr;
    // Without the one-pixel cache a transform may run on several threads at once.
    constexpr cmsUInt32Number kFlags = cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_NOCACHE;
    return TransformHandle(
        cmsCreateTransform(from, fromFormat, to, toFormat, INTENT_RELATIVE_COLORIMETRIC, kFlags));
}

} // namespace

ProfileHandle open(ByteView bytes) {
    return ProfileHandle(
        cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())));
}

ProfileHandle rgbProfile(const RgbDefinition& definition, const char* description) {
    const auto curve = curveOf(definition.curve);
    if (!curve) return nullptr;
    cmsToneCurve* curves[] = {curve.get(), curve.get(), curve.get()};
    ProfileHandle profile(cmsCreateRGBProfile(&definition.white, &definition.primaries,
                                              static_cast<cmsToneCurve* const*>(curves)));
    if (profile) describe(profile.get(), description);
    return profile;
}

ProfileHandle genericRgbProfile(const char* description) {
    auto profile = rgbProfile(RgbDefinition{kD65, kBt709Primaries, kGamma18}, description);
    if (!profile) return nullptr;
    // Columns in XYZ relative to D50, fitted to colours that real colour lists store both in this
    // space and in sRGB. The published Z of white (0.8253) is brought to the library's (0.8249) so
    // that white stays white.
    const double zOfWhite = cmsD50_XYZ()->Z / (0.0149 + 0.0907 + 0.7197);
    const cmsCIEXYZ red{0.4543, 0.2419, 0.0149 * zOfWhite};
    const cmsCIEXYZ green{0.3533, 0.6736, 0.0907 * zOfWhite};
    const cmsCIEXYZ blue{0.1566, 0.0845, 0.7197 * zOfWhite};
    const bool written = cmsWriteTag(profile.get(), cmsSigRedColorantTag, &red) &&
                         cmsWriteTag(profile.get(), cmsSigGreenColorantTag, &green) &&
                         cmsWriteTag(profile.get(), cmsSigBlueColorantTag, &blue);
    return written ? std::move(profile) : nullptr;
}

ProfileHandle greyProfile(const Curve& curve) {
    const auto tone = curveOf(curve);
    if (!tone) return nullptr;
    return ProfileHandle(cmsCreateGrayProfile(cmsD50_xyY(), tone.get()));
}

std::string description(cmsHPROFILE profile) {
    if (profile == nullptr) return {};
    const auto size =
        cmsGetProfileInfo(profile, cmsInfoDescription, "en", "US", nullptr, 0) / sizeof(wchar_t);
    std::wstring wide(size, L'\0');
    cmsGetProfileInfo(profile, cmsInfoDescription, "en", "US", wide.data(),
                      static_cast<cmsUInt32Number>(size * sizeof(wchar_t)));
    // The library hands out UTF-16 units in wide characters, closed by a zero.
    std::u16string units;
    for (const wchar_t unit : wide) {
        if (unit == L'\0') break;
        units.push_back(static_cast<char16_t>(unit));
    }
    return utf8FromUtf16(units);
}

ColourModel modelOf(cmsHPROFILE profile) {
    switch (cmsGetColorSpace(profile)) {
    case cmsSigGrayData:
        return ColourModel::grey;
    case cmsSigRgbData:
        return ColourModel::rgb;
    case cmsSigCmykData:
        return ColourModel::cmyk;
    default:
        return ColourModel::other;
    }
}

int componentCount(cmsHPROFILE profile) {
    return static_cast<int>(cmsChannelsOf(cmsGetColorSpace(profile)));
}

bool convertsBothWays(cmsHPROFILE profile) {
    return cmsIsIntentSupported(profile, INTENT_RELATIVE_COLORIMETRIC, LCMS_USED_AS_INPUT) != 0 &&
           cmsIsIntentSupported(profile, INTENT_RELATIVE_COLORIMETRIC, LCMS_USED_AS_OUTPUT) != 0;
}

Bytes bytesOf(cmsHPROFILE profile) {
    cmsUInt32Number size = 0;
    if (!cmsSaveProfileToMem(profile, nullptr, &size)) return {};
    Bytes bytes(size);
    if (!cmsSaveProfileToMem(profile, bytes.data(), &size)) return {};
    return bytes;
}

TransformHandle toLinearSrgb(cmsHPROFILE profile, ColourModel model) {
    return transform(profile, formatOf(model), linearSrgb(), TYPE_RGB_DBL);
}

TransformHandle fromLinearSrgb(cmsHPROFILE profile, ColourModel model) {
    return transform(linearSrgb(), TYPE_RGB_DBL, profile, formatOf(model));
}

} // namespace tintra::icc
