#include "tools/cmyk/InkCurve.h"

#include <algorithm>
#include <cmath>

namespace tintra::cmyk {

double yuleNielsenRoot(double reflectance) {
    return std::pow(reflectance, 1.0 / kYuleNielsen);
}

ValueSlope yuleNielsenPower(double root) {
    // Written for n = 2.5 with the square root, which every machine rounds alike.
    static_assert(kYuleNielsen == 2.5);
    const double size = std::abs(root);
    const double lower = size * std::sqrt(size);
    return {root * lower, kYuleNielsen * lower};
}

InkCurve::InkCurve(double solid, double gain)
    : solid_(solid), solidRoot_(yuleNielsenRoot(solid)), bend_(4.0 * gain) {}

double InkCurve::coverage(double tone) const {
    const double t = std::clamp(tone, 0.0, 1.0);
    const double area = t + bend_ * t * (1.0 - t);
    const double reflectance = 1.0 + (solid_ - 1.0) * area;
    return std::clamp((1.0 - yuleNielsenRoot(reflectance)) / (1.0 - solidRoot_), 0.0, 1.0);
}

ValueSlope InkCurve::tone(double coverage) const {
    const double c = std::clamp(coverage, 0.0, 1.0);
    const ValueSlope reflectance = yuleNielsenPower(1.0 - c * (1.0 - solidRoot_));
    const double area = (1.0 - reflectance.value) / (1.0 - solid_);
    // The smaller solution of  bend t^2 - (1 + bend) t + area = 0.
    const double middle = 1.0 + bend_;
    const double root = std::sqrt(middle * middle - 4.0 * bend_ * area);
    const double t = std::clamp((middle - root) / (2.0 * bend_), 0.0, 1.0);
    if (c != coverage) {
        return {t, 0.0};
    }
    const double areaSlope = reflectance.slope * (1.0 - solidRoot_) / (1.0 - solid_);
    return {t, areaSlope / root};
}

} // namespace tintra::cmyk
