#include "platform/ColourSpace.h"

#include "platform/IccProfile.h"
#include "platform/SrgbCurve.h"
#include "resources/EmbeddedProfile.h"

#include <atomic>
#include <mutex>

namespace tintra {

using icc::ProfileHandle;
using icc::TransformHandle;

/// The profile of a space with its two transforms to linear sRGB and back. Linear light goes
/// through the library unclamped; the mirrored sRGB curve is applied outside it, so that colours
/// beyond sRGB convert exactly.
class ColourSpace::Profile {
public:
    Profile(ProfileHandle profile, std::string title)
        : handle(std::move(profile)), name(std::move(title)), model(icc::modelOf(handle.get())) {}

    cmsHTRANSFORM toLinear() const {
        std::call_once(toOnce_, [this] { to_ = icc::toLinearSrgb(handle.get(), model); });
        return to_.get();
    }
    cmsHTRANSFORM fromLinear() const {
        std::call_once(fromOnce_, [this] { from_ = icc::fromLinearSrgb(handle.get(), model); });
        return from_.get();
    }

    const ProfileHandle handle;
    const std::string name;
    const ColourModel model;

private:
    mutable std::once_flag toOnce_, fromOnce_;
    mutable TransformHandle to_, from_;
};

/// Makes spaces; keeps the constructor of ColourSpace out of the public contract.
class ColourSpaceFactory {
public:
    static std::shared_ptr<const ColourSpace> make(ProfileHandle handle, std::string name) {
        if (!handle) return nullptr;
        return std::shared_ptr<const ColourSpace>(new ColourSpace(
            std::make_unique<ColourSpace::Profile>(std::move(handle), std::move(name))));
    }
};

ColourSpace::ColourSpace(std::unique_ptr<Profile> profile) : profile_(std::move(profile)) {}
ColourSpace::~ColourSpace() = default;

ColourModel ColourSpace::model() const {
    return profile_->model;
}
const std::string& ColourSpace::localizedName() const {
    return profile_->name;
}
bool ColourSpace::convertsBothWays() const {
    return icc::convertsBothWays(profile_->handle.get());
}
int ColourSpace::componentCount() const {
    return icc::componentCount(profile_->handle.get());
}
Bytes ColourSpace::iccProfile() const {
    return icc::bytesOf(profile_->handle.get());
}

std::optional<ExtendedSrgb> ColourSpace::toSrgb(const Components& components) const {
    auto* const transform = profile_->toLinear();
    if (transform == nullptr) return std::nullopt;
    Components in = components;
    if (model() == ColourModel::cmyk) // the library counts inks in percent
        for (double& ink : in)
            ink *= 100;
    ExtendedSrgb linear;
    cmsDoTransform(transform, in.data(), &linear, 1);
    return ExtendedSrgb{srgbEncoded(linear.r), srgbEncoded(linear.g), srgbEncoded(linear.b)};
}

std::optional<Components> ColourSpace::fromSrgb(const ExtendedSrgb& colour) const {
    auto* const transform = profile_->fromLinear();
    if (transform == nullptr) return std::nullopt;
    const ExtendedSrgb linear{srgbDecoded(colour.r), srgbDecoded(colour.g), srgbDecoded(colour.b)};
    Components out{};
    cmsDoTransform(transform, &linear, out.data(), 1);
    if (model() == ColourModel::cmyk)
        for (double& ink : out)
            ink /= 100;
    return out;
}

std::shared_ptr<const ColourSpace> ColourSpace::fromIccProfile(ByteView bytes) {
    auto handle = icc::open(bytes);
    auto name = icc::description(handle.get());
    return ColourSpaceFactory::make(std::move(handle), std::move(name));
}

namespace {

std::shared_ptr<const ColourSpace> named(const char* name, const icc::RgbDefinition& definition) {
    return ColourSpaceFactory::make(icc::rgbProfile(definition, name), name);
}

} // namespace

std::shared_ptr<const ColourSpace> ColourSpace::sRGB() {
    static const auto space = named("sRGB IEC61966-2.1", icc::kSrgb);
    return space;
}

std::shared_ptr<const ColourSpace> ColourSpace::displayP3() {
    static const auto space = named("Display P3", icc::kDisplayP3);
    return space;
}

std::shared_ptr<const ColourSpace> ColourSpace::adobeRGB1998() {
    static const auto space = named("Adobe RGB (1998)", icc::kAdobeRgb);
    return space;
}

std::shared_ptr<const ColourSpace> ColourSpace::ituRBT2020() {
    static const auto space = named("ITU-R BT.2020", icc::kBt2020);
    return space;
}

std::shared_ptr<const ColourSpace> ColourSpace::rommRGB() {
    static const auto space = named("ROMM RGB", icc::kRomm);
    return space;
}

std::shared_ptr<const ColourSpace> ColourSpace::dciP3() {
    static const auto space = named("DCI-P3", icc::kDciP3);
    return space;
}

std::shared_ptr<const ColourSpace> ColourSpace::ituRBT709() {
    static const auto space = named("ITU-R BT.709", icc::kBt709);
    return space;
}

std::shared_ptr<const ColourSpace> ColourSpace::linearSRGB() {
    static const auto space = named("Linear sRGB", icc::kLinearSrgb);
    return space;
}

std::shared_ptr<const ColourSpace> ColourSpace::genericRGB() {
    static const auto space =
        ColourSpaceFactory::make(icc::genericRgbProfile("Generic RGB"), "Generic RGB");
    return space;
}

std::shared_ptr<const ColourSpace> ColourSpace::genericGrey() {
    static const auto space =
        ColourSpaceFactory::make(icc::greyProfile(icc::kGamma18), "Generic Gray");
    return space;
}

std::shared_ptr<const ColourSpace> ColourSpace::genericGreyGamma22() {
    static const auto space =
        ColourSpaceFactory::make(icc::greyProfile(icc::kSrgbCurve), "Generic Gray Gamma 2.2");
    return space;
}

std::shared_ptr<const ColourSpace> ColourSpace::deviceCMYK() {
    static const auto space =
        ColourSpaceFactory::make(icc::open(deviceCmykProfile()), "Device CMYK");
    return space;
}

} // namespace tintra
