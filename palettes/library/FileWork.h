#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <type_traits>
#include <utility>

namespace tintra {

class Background;
class MainLoop;

/// Work on files beside the main loop, one piece after the other in the order in which it was asked
/// for, so that each finds what those before it have left. Main loop.
class FileWork {
public:
    FileWork(MainLoop& mainLoop, Background& background);

    /// `then` is told on the main loop what `work` answers; not after the end of this, which also
    /// drops what has not begun.
    template <class Work, class Then>
    void run(Work work, Then then) {
        auto answer = std::make_shared<std::optional<std::invoke_result_t<Work&>>>();
        add({[work = std::move(work), answer]() mutable { answer->emplace(work()); },
             [then = std::move(then), answer] { then(std::move(**answer)); }});
    }

private:
    struct Piece {
        std::function<void()> work, then;
    };
    struct Line;

    void add(Piece piece);
    static void next(const std::shared_ptr<Line>& line);

    std::shared_ptr<Line> line_;
};

} // namespace tintra
