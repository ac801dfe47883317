#pragma once

#include <cstddef>
#include <span>

namespace tintra {

/// The ICC profile "Device CMYK", part of the program itself: an output profile (coated offset)
/// that converts both ways. The bytes live as long as the program.
std::span<const std::byte> deviceCmykProfile();

} // namespace tintra
