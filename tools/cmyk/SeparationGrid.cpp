#include "tools/cmyk/SeparationGrid.h"

#include <algorithm>
#include <span>

namespace tintra::cmyk {
namespace {

// A node of an axis between which and the next the nodes stand evenly.
struct Knot {
    double node;
    double value;
};

constexpr double kLastNode = static_cast<double>(SeparationGrid::kSize - 1);
constexpr double kZeroNode = static_cast<double>(SeparationGrid::kNeutralNode);
constexpr double kWhiteLightness = 100;

// The knots are whole numbers: each is exactly a sample of a curve of 256 over -128..127.
constexpr std::array<Knot, 3> kAKnots{{{0, -82}, {kZeroNode, 0}, {kLastNode, 96}}};
constexpr std::array<Knot, 4> kBKnots{{{0, -114}, {3, -57}, {kZeroNode, 0}, {kLastNode, 100}}};

double valueAt(std::span<const Knot> knots, double node) {
    std::size_t i = 0;
    while (i + 2 < knots.size() && node > knots[i + 1].node) {
        ++i;
    }
    const double share = (node - knots[i].node) / (knots[i + 1].node - knots[i].node);
    return knots[i].value + share * (knots[i + 1].value - knots[i].value);
}

double positionOf(std::span<const Knot> knots, double value) {
    const double held = std::clamp(value, knots.front().value, knots.back().value);
    std::size_t i = 0;
    while (i + 2 < knots.size() && held > knots[i + 1].value) {
        ++i;
    }
    const double share = (held - knots[i].value) / (knots[i + 1].value - knots[i].value);
    return (knots[i].node + share * (knots[i + 1].node - knots[i].node)) / kLastNode;
}

} // namespace

Lab SeparationGrid::node(std::size_t index) const {
    const std::size_t layer = index / (kSize * kSize);
    const std::size_t row = index / kSize % kSize;
    const double height = static_cast<double>(layer) / kLastNode;
    return {blackLightness_ + height * (kWhiteLightness - blackLightness_),
            valueAt(kAKnots, static_cast<double>(row)),
            valueAt(kBKnots, static_cast<double>(index % kSize))};
}

double SeparationGrid::lightnessPosition(double l) const {
    return std::clamp((l - blackLightness_) / (kWhiteLightness - blackLightness_), 0.0, 1.0);
}

double SeparationGrid::aPosition(double a) {
    return positionOf(kAKnots, a);
}

double SeparationGrid::bPosition(double b) {
    return positionOf(kBKnots, b);
}

} // namespace tintra::cmyk
