#include "platform/Clock.h"

namespace tintra {

double SystemClock::seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

std::chrono::system_clock::time_point SystemClock::date() const {
    return std::chrono::system_clock::now();
}

} // namespace tintra
