#include "ui/paste/PasteReader.h"

#include "state/Errands.h"

#include <utility>

namespace tintra {
namespace {

constexpr qsizetype kAtOnce = 8'000; ///< characters; read within a millisecond or two
constexpr double kRest = 0.1;        ///< seconds

} // namespace

void PasteReader::read(const QString& text) {
    if (text.size() <= kAtOnce) {
        wanted_.reset();
        rest_.reset();
        // What is still being read of an earlier text comes too late.
        alive_ = std::make_shared<bool>(true);
        isReading_ = false;
        if (done) done(readPasted(text.toStdString()));
        return;
    }
    wanted_ = text;
    if (!isReading_) rest_ = services_.mainLoop.after(kRest, [this] { begin(); });
}

void PasteReader::begin() {
    isReading_ = true;
    inBackground(
        services_, alive_,
        [text = *std::exchange(wanted_, std::nullopt)] { return readPasted(text.toStdString()); },
        [this](PasteReading&& reading) {
            isReading_ = false;
            if (wanted_) begin();
            if (done) done(std::move(reading));
        });
}

} // namespace tintra
