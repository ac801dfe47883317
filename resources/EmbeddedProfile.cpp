#include "resources/EmbeddedProfile.h"

// Defined by the assembler from the computed profile.
extern "C" {
extern const std::byte tintra_device_cmyk_begin[];
extern const std::byte tintra_device_cmyk_end[];
}

namespace tintra {

std::span<const std::byte> deviceCmykProfile() {
    return {static_cast<const std::byte*>(tintra_device_cmyk_begin),
            static_cast<const std::byte*>(tintra_device_cmyk_end)};
}

} // namespace tintra
