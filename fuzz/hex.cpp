#include "colour/WashColor.h"

#include <cstdint>
#include <cstdlib>

using namespace tintra;

/// Reads a hex code; what is read must be written as the same code.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto colour = WashColor::fromHex({reinterpret_cast<const char*>(data), size});
    if (colour && WashColor::fromHex(colour->identity()) != *colour) std::abort();
    return 0;
}
