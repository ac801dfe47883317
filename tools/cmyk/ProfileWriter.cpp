#include "tools/cmyk/ProfileWriter.h"

#include "tools/cmyk/LcmsHandles.h"
#include "tools/cmyk/PressFacts.h"

#include <algorithm>
#include <array>

namespace tintra::cmyk {
namespace {

constexpr double kProfileVersion = 4.3;

// Year, month, day, hour, minute, second as ICC dateTimeNumber: the first of January 2024. Little
// CMS would write the time of the build.
constexpr std::size_t kDateOffset = 24;
constexpr std::array<std::uint8_t, 12> kCreationDate{0x07, 0xE8, 0, 1, 0, 1, 0, 0, 0, 0, 0, 0};

void writeTag(cmsHPROFILE profile, cmsTagSignature tag, const void* content) {
    require(cmsWriteTag(profile, tag, content) != 0, "write a tag");
}

void writeText(cmsHPROFILE profile, cmsTagSignature tag, const char* text) {
    const LcmsText content(cmsMLUalloc(nullptr, 1), &cmsMLUfree);
    require(content != nullptr && cmsMLUsetASCII(content.get(), "en", "US", text) != 0,
            "make a text");
    writeTag(profile, tag, content.get());
}

// One table for all three intents: black point compensation takes the black of the perceptual
// one, which must be the black of the intent in use.
void writeTables(cmsHPROFILE profile, std::array<cmsTagSignature, 3> tags,
                 const LcmsPipeline& table) {
    writeTag(profile, tags[0], table.get());
    require(cmsLinkTag(profile, tags[1], tags[0]) != 0, "link a table");
    require(cmsLinkTag(profile, tags[2], tags[0]) != 0, "link a table");
}

void setHeader(cmsHPROFILE profile) {
    cmsSetProfileVersion(profile, kProfileVersion);
    cmsSetDeviceClass(profile, cmsSigOutputClass);
    cmsSetColorSpace(profile, cmsSigCmykData);
    cmsSetPCS(profile, cmsSigLabData);
    cmsSetHeaderRenderingIntent(profile, INTENT_RELATIVE_COLORIMETRIC);
}

std::vector<std::uint8_t> savedBytes(cmsHPROFILE profile) {
    cmsUInt32Number size = 0;
    require(cmsSaveProfileToMem(profile, nullptr, &size) != 0, "measure the profile");
    std::vector<std::uint8_t> bytes(size);
    require(cmsSaveProfileToMem(profile, bytes.data(), &size) != 0, "save the profile");
    return bytes;
}

} // namespace

std::vector<std::uint8_t> profileBytes(const PressModel& press, const PressTable& colours,
                                       const SeparationTable& inks) {
    const LcmsProfile profile(cmsCreateProfilePlaceholder(nullptr), &cmsCloseProfile);
    require(profile != nullptr, "make a profile");
    setHeader(profile.get());
    writeText(profile.get(), cmsSigProfileDescriptionTag, "Device CMYK");
    writeText(profile.get(), cmsSigCopyrightTag, "Part of Tintra, MIT licence");
    const Xyz paper = xyzFromLab(kSolids.front().lab);
    const cmsCIEXYZ white{paper[0], paper[1], paper[2]};
    writeTag(profile.get(), cmsSigMediaWhitePointTag, &white);
    writeTables(profile.get(), {cmsSigAToB0Tag, cmsSigAToB1Tag, cmsSigAToB2Tag},
                colours.pipeline(press));
    writeTables(profile.get(), {cmsSigBToA0Tag, cmsSigBToA1Tag, cmsSigBToA2Tag},
                inks.pipeline(press));
    std::vector<std::uint8_t> bytes = savedBytes(profile.get());
    std::copy(kCreationDate.begin(), kCreationDate.end(), bytes.begin() + kDateOffset);
    return bytes;
}

} // namespace tintra::cmyk
