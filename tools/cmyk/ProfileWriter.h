#pragma once

#include "tools/cmyk/PressModel.h"
#include "tools/cmyk/PressTable.h"
#include "tools/cmyk/SeparationTable.h"

#include <cstdint>
#include <vector>

namespace tintra::cmyk {

/// The bytes of the ICC profile (version 4, output class, CMYK, CIELAB). The same tables always
/// give the same bytes. Throws std::runtime_error when Little CMS fails.
[[nodiscard]] std::vector<std::uint8_t>
profileBytes(const PressModel& press, const PressTable& colours, const SeparationTable& inks);

} // namespace tintra::cmyk
