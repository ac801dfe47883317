#pragma once

#include "platform/Background.h"
#include "platform/MainLoop.h"
#include "platform/Services.h"

#include <memory>
#include <type_traits>
#include <utility>

// Work that outlives the call that began it, and its way back to a model that may be gone by then.
// A model holds a token for its life; what comes back after that is dropped.

namespace tintra {

/// What is done only while the holder of the token lives. Main loop.
template <class Task>
auto whileAlive(const std::shared_ptr<bool>& token, Task task) {
    return [alive = std::weak_ptr<bool>(token), task = std::move(task)](auto&&... given) mutable {
        if (!alive.expired()) task(std::forward<decltype(given)>(given)...);
    };
}

/// Does `work` on another thread and hands what it answers to `then` on the main loop, while the
/// holder of the token lives. What `then` holds is let go of on the main loop too.
template <class Work, class Then>
void inBackground(Services& services, const std::shared_ptr<bool>& token, Work work, Then then) {
    auto back = whileAlive(token, std::move(then));
    auto held = std::make_shared<decltype(back)>(std::move(back));
    services.background.run(
        [&loop = services.mainLoop, work = std::move(work), held = std::move(held)]() mutable {
            auto found = std::make_shared<std::invoke_result_t<Work&>>(work());
            loop.post(
                [found = std::move(found), held = std::move(held)] { (*held)(std::move(*found)); });
        });
}

} // namespace tintra
