#include "colour/SrgbBytes.h"

#include "colour/WashColor.h"
#include "platform/SrgbCurve.h"

#include <cmath>

namespace tintra {

namespace {

/// The least double whose byte is the given one, 1...255. The inverse curve lands within some units
/// in the last place of it; the curve itself, which does not fall, decides.
double leastLinearOf(int byte) {
    const auto reaches = [byte](double linear) { return byteOf(srgbEncoded(linear)) >= byte; };
    double linear = srgbDecoded((byte - 0.5) / 255);
    while (reaches(linear))
        linear = std::nextafter(linear, 0.0);
    while (!reaches(linear))
        linear = std::nextafter(linear, 1.0);
    return linear;
}

} // namespace

const SrgbBytes& SrgbBytes::shared() {
    static const SrgbBytes tables;
    return tables;
}

SrgbBytes::SrgbBytes() {
    for (std::size_t byte = 0; byte < linear_.size(); ++byte)
        linear_[byte] = srgbDecoded(static_cast<double>(byte) / 255);
    for (int byte = 1; byte < 256; ++byte)
        from_[static_cast<std::size_t>(byte)] = leastLinearOf(byte);
    from_.back() = std::numeric_limits<double>::infinity();
    std::uint8_t byte = 0;
    for (std::size_t slot = 0; slot < lowest_.size(); ++slot) {
        if (static_cast<double>(slot) / kSlots >= from_[byte + 1U]) ++byte;
        lowest_[slot] = byte;
    }
}

} // namespace tintra
