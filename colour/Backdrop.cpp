#include "colour/Backdrop.h"

namespace tintra {

namespace {

/// Only the thread that handed the source in sees it.
std::function<Rgb()>& ownSource() {
    thread_local std::function<Rgb()> source;
    return source;
}

} // namespace

void setBackdropSource(std::function<Rgb()> source) {
    ownSource() = std::move(source);
}

Rgb backdrop() {
    const auto& source = ownSource();
    return source ? source() : Rgb{kNeutralBackdrop, kNeutralBackdrop, kNeutralBackdrop};
}

} // namespace tintra
