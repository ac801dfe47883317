#pragma once

#include "colour/Clamp.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>

namespace tintra {

/// The sRGB curve between bytes and linear light from tables: to the last bit what `srgbDecoded`,
/// `srgbEncoded` and `byteOf` answer, without their powers. Immutable; any thread.
class SrgbBytes {
public:
    /// The tables, made when first asked for.
    static const SrgbBytes& shared();

    /// Linear light of the component byte / 255.
    double linear(std::uint8_t byte) const { return linear_[byte]; }

    /// The byte of linear light: clamped, halves of the encoded value away from zero; NaN gives 0.
    std::uint8_t byte(double linear) const {
        const double v = clampedUnit(linear);
        const std::uint8_t low = lowest_[static_cast<std::size_t>(v * kSlots)];
        return v >= from_[low + 1U] ? static_cast<std::uint8_t>(low + 1) : low;
    }

private:
    SrgbBytes();

    /// So many that no slot of 1 / kSlots holds the beginnings of two bytes: in the linear part of
    /// the curve bytes lie 1 / (255 * 12.92) apart, elsewhere further.
    static constexpr int kSlots = 4096;

    std::array<double, 256> linear_{};
    /// The least linear light that has the byte; beyond 255 nothing has.
    std::array<double, 257> from_{};
    /// The byte at the lower end of a slot; the last slot is 1 alone.
    std::array<std::uint8_t, kSlots + 1> lowest_{};
};

} // namespace tintra
