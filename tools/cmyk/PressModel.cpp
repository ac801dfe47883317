#include "tools/cmyk/PressModel.h"

#include "tools/cmyk/PressFacts.h"

namespace tintra::cmyk {
namespace {

// Light a printed surface reflects even where it is darkest, as a share of the paper's. Inks
// below black darken only what is above it.
constexpr double kSurfaceReflection = 0.006;

constexpr std::size_t kBlackBit = std::size_t{1} << kBlack;

Vec3 againstPaper(const Lab& lab) {
    const Xyz paper = xyzFromLab(kSolids.front().lab);
    const Xyz xyz = xyzFromLab(lab);
    return {xyz[0] / paper[0], xyz[1] / paper[1], xyz[2] / paper[2]};
}

double underBlack(double primary, double black) {
    constexpr double s = kSurfaceReflection;
    return s + (primary - s) * (black - s) / (1.0 - s);
}

// The weight of one primary and the change of that weight by each coverage.
struct Demichel {
    double weight = 1;
    std::array<double, kInkCount> byInk{1, 1, 1, 1};
};

Demichel demichel(std::size_t primary, const Coverages& coverages) {
    Demichel result;
    for (std::size_t ink = 0; ink < kInkCount; ++ink) {
        const bool isThere = ((primary >> ink) & 1U) != 0;
        const double share = isThere ? coverages[ink] : 1.0 - coverages[ink];
        for (std::size_t other = 0; other < kInkCount; ++other) {
            result.byInk[other] *= other == ink ? (isThere ? 1.0 : -1.0) : share;
        }
        result.weight *= share;
    }
    return result;
}

} // namespace

PressModel::Primaries PressModel::primaryReflectances() {
    Primaries result{};
    const Vec3 black = againstPaper(kSolidBlack);
    for (const Solid& solid : kSolids) {
        const Vec3 reflectance = againstPaper(solid.lab);
        result[solid.inks] = reflectance;
        for (std::size_t i = 0; i < 3; ++i) {
            result[solid.inks + kBlackBit][i] = underBlack(reflectance[i], black[i]);
        }
    }
    return result;
}

std::array<InkCurve, kInkCount> PressModel::inkCurves(const Primaries& reflectances) {
    const auto curve = [&](std::size_t ink) {
        return InkCurve(reflectances[std::size_t{1} << ink][kInkChannel[ink]], kToneGain[ink]);
    };
    return {curve(kCyan), curve(kMagenta), curve(kYellow), curve(kBlack)};
}

PressModel::PressModel() : roots_(primaryReflectances()), curves_(inkCurves(roots_)) {
    for (Vec3& primary : roots_) {
        for (double& value : primary) {
            value = yuleNielsenRoot(value);
        }
    }
}

PrintedColour PressModel::print(const Coverages& coverages) const {
    PrintedColour roots;
    for (std::size_t primary = 0; primary < kPrimaryCount; ++primary) {
        const Demichel demichelWeights = demichel(primary, coverages);
        for (std::size_t i = 0; i < 3; ++i) {
            roots.xyz[i] += demichelWeights.weight * roots_[primary][i];
            for (std::size_t ink = 0; ink < kInkCount; ++ink) {
                roots.byInk[ink][i] += demichelWeights.byInk[ink] * roots_[primary][i];
            }
        }
    }
    PrintedColour result;
    for (std::size_t i = 0; i < 3; ++i) {
        const ValueSlope reflectance = yuleNielsenPower(roots.xyz[i]);
        result.xyz[i] = kD50[i] * reflectance.value;
        for (std::size_t ink = 0; ink < kInkCount; ++ink) {
            result.byInk[ink][i] = kD50[i] * reflectance.slope * roots.byInk[ink][i];
        }
    }
    return result;
}

PressModel::InkSum PressModel::inkSum(const Coverages& coverages) const {
    InkSum result;
    for (std::size_t ink = 0; ink < kInkCount; ++ink) {
        const ValueSlope tone = curves_[ink].tone(coverages[ink]);
        result.tones += tone.value;
        result.byInk[ink] = tone.slope;
    }
    return result;
}

} // namespace tintra::cmyk
