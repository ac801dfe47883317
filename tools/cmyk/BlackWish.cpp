#include "tools/cmyk/BlackWish.h"

#include <algorithm>
#include <cmath>

namespace tintra::cmyk {

double blackWish(const Lab& colour, double blackLightness) {
    constexpr double kBlackStart = 90.0;
    constexpr double kFadeIn = 15.0;
    const double depth = kBlackStart - colour.l;
    const double greyBase = std::clamp(depth / (kBlackStart - blackLightness), 0.0, 1.0);
    const double grey = greyBase * greyBase;
    const double chromaScale = 20.0 + 0.3 * colour.l;
    const double chromaSquared = colour.a * colour.a + colour.b * colour.b;
    const double saturated = 1.0 - std::exp(-chromaSquared / (chromaScale * chromaScale));
    return grey + std::clamp(depth / kFadeIn, 0.0, 1.0) * (1.0 - grey) * saturated;
}

} // namespace tintra::cmyk
