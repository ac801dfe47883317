#pragma once

#include "platform/MainLoop.h"

#include <QProperty>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

namespace tintra {

/// How long a change waits at most before its record is written; seconds.
inline constexpr double kSavingDelay = 0.3;

/// Captures the record of a shared model soon after a change, so that a run that ends
/// suddenly loses no more than that. Main loop.
class LateCapture {
public:
    /// Whether the model holds what its record held. Otherwise the record is the only one who
    /// knows, and is not captured until work has been done.
    enum class Begins { restored, empty };

    LateCapture(MainLoop& mainLoop, Begins begins, std::function<void()> capture)
        : mainLoop_(mainLoop), capture_(std::move(capture)), counts_(begins == Begins::restored) {}

    /// A property whose change is the user's work.
    template <class T>
    void watchWork(const QProperty<T>& property) {
        watch(property, [this] {
            counts_ = true;
            schedule();
        });
    }
    /// A property that tells how the work is shown.
    template <class T>
    void watchLooks(const QProperty<T>& property) {
        watch(property, [this] { schedule(); });
    }

    /// Captures at once what there is to keep.
    void capture() {
        waiting_.reset();
        if (counts_) capture_();
    }
    /// The record is complete; only `capture` writes it again.
    void end() { ended_ = true; }

private:
    template <class T, class Changed>
    void watch(const QProperty<T>& property, Changed changed) {
        watches_.push_back(QBindable<T>(&property).addNotifier(std::move(changed)));
    }
    void schedule() {
        // What waits is not put off: a steady stream of changes would never be written.
        if (ended_ || waiting_) return;
        waiting_ = mainLoop_.after(kSavingDelay, [this] { capture(); });
    }

    MainLoop& mainLoop_;
    std::function<void()> capture_;
    bool counts_;
    bool ended_ = false;
    std::unique_ptr<DelayedTask> waiting_;
    std::vector<QPropertyNotifier> watches_;
};

} // namespace tintra
