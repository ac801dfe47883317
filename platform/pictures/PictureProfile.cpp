#include "platform/pictures/PictureProfile.h"

#include "platform/IccProfile.h"

#include <algorithm>
#include <array>

namespace tintra {

namespace {

constexpr cmsUInt32Number kFlags = cmsFLAGS_BLACKPOINTCOMPENSATION | cmsFLAGS_COPY_ALPHA;

icc::TransformHandle transform(cmsHPROFILE from, cmsUInt32Number format) {
    const auto srgb = icc::rgbProfile(icc::kSrgb, "sRGB");
    if (srgb == nullptr) return nullptr;
    return icc::TransformHandle(cmsCreateTransform(from, format, srgb.get(), TYPE_RGBA_8,
                                                   INTENT_RELATIVE_COLORIMETRIC, kFlags));
}

icc::ProfileHandle profileOf(ByteView profile, PictureColours colours) {
    if (!profile.empty()) return icc::open(profile);
    if (colours == PictureColours::displayP3) return icc::rgbProfile(icc::kDisplayP3, "Display P3");
    if (colours == PictureColours::ituRBT2020) return icc::rgbProfile(icc::kBt2020, "BT.2020");
    return nullptr;
}

/// sRGB for each of the 256 greys; pixels of grey pictures carry the grey three times.
std::array<std::uint8_t, 1024> greyTable(cmsHTRANSFORM transform) {
    std::array<std::uint8_t, 512> greys{};
    std::array<std::uint8_t, 1024> table{};
    for (std::size_t i = 0; i < 256; ++i)
        greys[2 * i] = static_cast<std::uint8_t>(i);
    cmsDoTransform(transform, greys.data(), table.data(), 256);
    return table;
}

} // namespace

/// Either a transform of RGB pixels or a table of greys.
struct PictureProfile::Transform {
    icc::TransformHandle rgb;
    std::array<std::uint8_t, 1024> greys{};
};

PictureProfile::PictureProfile(std::unique_ptr<Transform> transform)
    : transform_(std::move(transform)) {}

PictureProfile::~PictureProfile() = default;

std::unique_ptr<PictureProfile> PictureProfile::of(ByteView profile, PictureColours colours) {
    const auto from = profileOf(profile, colours);
    if (from == nullptr) return nullptr;
    const auto model = icc::modelOf(from.get());
    if (model != ColourModel::rgb && model != ColourModel::grey) return nullptr;
    const bool isRgb = model == ColourModel::rgb;
    auto handle = transform(from.get(), isRgb ? TYPE_RGBA_8 : TYPE_GRAYA_8);
    if (handle == nullptr) return nullptr;
    auto made = std::make_unique<Transform>();
    if (isRgb)
        made->rgb = std::move(handle);
    else
        made->greys = greyTable(handle.get());
    return std::unique_ptr<PictureProfile>(new PictureProfile(std::move(made)));
}

void PictureProfile::toSrgb(std::uint8_t* rgba, std::size_t pixelCount) const {
    if (transform_->rgb != nullptr) {
        cmsDoTransform(transform_->rgb.get(), rgba, rgba, static_cast<cmsUInt32Number>(pixelCount));
        return;
    }
    for (std::size_t i = 0; i < pixelCount; ++i)
        std::copy_n(&transform_->greys[std::size_t{4} * rgba[4 * i]], 3, rgba + 4 * i);
}

} // namespace tintra
