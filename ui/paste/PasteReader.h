#pragma once

#include "platform/MainLoop.h"
#include "platform/Services.h"
#include "ui/paste/PasteReading.h"

#include <QString>
#include <functional>
#include <memory>
#include <optional>

namespace tintra {

/// Reads a text while it is being typed: a short one at once, a long one in the background once the
/// typing rests, one after the other. Main loop.
class PasteReader {
public:
    explicit PasteReader(Services& services) : services_(services) {}

    void read(const QString& text);
    /// The last text has been read.
    bool isDone() const { return !isReading_ && !wanted_; }
    /// Is told what has been read; of the last text at any rate.
    std::function<void(PasteReading)> done;

private:
    void begin();

    Services& services_;
    std::optional<QString> wanted_; ///< to be read next
    bool isReading_ = false;
    std::unique_ptr<DelayedTask> rest_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

} // namespace tintra
