#pragma once

#include <lcms2.h>

#include <memory>
#include <stdexcept>
#include <string>

namespace tintra::cmyk {

/// Little CMS objects that free themselves. A stage belongs to its pipeline once inserted.
using LcmsPipeline = std::unique_ptr<cmsPipeline, decltype(&cmsPipelineFree)>;
using LcmsCurve = std::unique_ptr<cmsToneCurve, decltype(&cmsFreeToneCurve)>;
using LcmsText = std::unique_ptr<cmsMLU, decltype(&cmsMLUfree)>;
using LcmsProfile = std::unique_ptr<void, decltype(&cmsCloseProfile)>;

/// Throws std::runtime_error naming the step when Little CMS reports failure.
inline void require(bool succeeded, const char* step) {
    if (!succeeded) {
        throw std::runtime_error(std::string("Little CMS could not ") + step);
    }
}

} // namespace tintra::cmyk
