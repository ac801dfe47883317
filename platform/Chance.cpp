#include "platform/Chance.h"

#include <sys/random.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>

namespace tintra {

Uuid Chance::uuid() {
    Uuid id;
    for (std::size_t half = 0; half < 2; ++half) {
        const auto random = bits();
        std::memcpy(id.bytes.data() + 8 * half, &random, sizeof random);
    }
    id.bytes[6] = static_cast<std::uint8_t>((id.bytes[6] & 0x0fU) | 0x40U); // version 4
    id.bytes[8] = static_cast<std::uint8_t>((id.bytes[8] & 0x3fU) | 0x80U); // variant
    return id;
}

std::size_t Chance::below(std::size_t count) {
    // The lowest 2^64 mod `count` values are drawn again: without them, the rest fall evenly.
    const std::uint64_t uneven = (0 - std::uint64_t{count}) % count;
    for (;;)
        if (const auto random = bits(); random >= uneven) return random % count;
}

std::uint64_t SystemChance::bits() {
    std::uint64_t random = 0;
    while (::getrandom(&random, sizeof random, 0) != static_cast<ssize_t>(sizeof random))
        if (errno != EINTR) std::abort(); // a system without random numbers: none can be made up
    return random;
}

} // namespace tintra
