#pragma once

#include "platform/Uuid.h"

#include <cstddef>
#include <cstdint>

namespace tintra {

/// Where random values come from. Main loop.
class Chance {
public:
    virtual ~Chance() = default;

    /// 64 bits, each as likely 0 as 1.
    virtual std::uint64_t bits() = 0;

    /// A fresh identifier (RFC 9562, version 4).
    Uuid uuid();
    /// A whole number from 0 up to but not including `count` (from 1), each equally likely.
    std::size_t below(std::size_t count);
};

/// The system's random source.
class SystemChance final : public Chance {
public:
    std::uint64_t bits() override;
};

} // namespace tintra
