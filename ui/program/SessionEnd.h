#pragma once

#include "platform/desktop/services/EndingSignals.h"

#include <QObject>
#include <functional>

namespace tintra {

/// The ends of a run that wait for no question: the session ends, the platform tells the program to
/// end, or a signal does. Main loop.
class SessionEnd final : private QObject {
public:
    struct Told {
        std::function<void()> keep;  ///< the session may end: write everything
        std::function<void()> leave; ///< write everything, and end
    };
    explicit SessionEnd(Told told);

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    Told told_;
    EndingSignals signals_;
};

} // namespace tintra
