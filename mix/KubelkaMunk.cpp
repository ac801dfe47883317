#include "mix/KubelkaMunk.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace TintraMix::KubelkaMunk {

double luminance(const SpectralData::Spectrum& reflectance) {
    double y = 0;
    for (std::size_t i = 0; i < reflectance.size(); ++i)
        y += SpectralData::cmf[1][i] * reflectance[i];
    return std::max(y, std::numeric_limits<double>::epsilon());
}

SpectralData::Spectrum mix(std::span<const Pigment> pigments) {
    SpectralData::Spectrum sum{};
    double weights = 0;
    for (const auto& pigment : pigments) {
        const double weight = pigment.factor * pigment.factor * pigment.luminance;
        weights += weight;
        for (std::size_t i = 0; i < sum.size(); ++i) {
            const double r = pigment.reflectance[i];
            sum[i] += weight * ((1 - r) * (1 - r) / (2 * r));
        }
    }
    for (double& sample : sum) {
        const double ks = sample / weights;
        sample = 1 + ks - std::sqrt(ks * ks + 2 * ks);
    }
    return sum;
}

} // namespace TintraMix::KubelkaMunk
