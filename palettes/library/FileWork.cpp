#include "palettes/library/FileWork.h"

#include "platform/Background.h"
#include "platform/MainLoop.h"

namespace tintra {

/// Those that wait for their turn; none runs while it is not busy.
struct FileWork::Line {
    MainLoop& mainLoop;
    Background& background;
    std::deque<Piece> waiting{};
    bool isBusy = false;
};

FileWork::FileWork(MainLoop& mainLoop, Background& background)
    : line_(std::make_shared<Line>(Line{mainLoop, background})) {}

void FileWork::add(Piece piece) {
    line_->waiting.push_back(std::move(piece));
    next(line_);
}

void FileWork::next(const std::shared_ptr<Line>& line) {
    if (line->isBusy || line->waiting.empty()) return;
    line->isBusy = true;
    auto piece = std::make_shared<Piece>(std::move(line->waiting.front()));
    line->waiting.pop_front();
    line->background.run(
        [&loop = line->mainLoop, piece = std::move(piece), weak = std::weak_ptr(line)]() mutable {
            piece->work();
            // What is told is let go of on the main loop too.
            loop.post([piece = std::move(piece), weak = std::move(weak)] {
                const auto held = weak.lock();
                if (!held) return;
                held->isBusy = false;
                next(held);
                piece->then();
            });
        });
}

} // namespace tintra
