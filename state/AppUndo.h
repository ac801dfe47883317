#pragma once

#include "platform/Toasts.h"
#include "state/UndoTargets.h"

#include <QProperty>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tintra {

struct Services;

/// One history for every palette window and the Bench: the last thirty changes. Main loop.
class AppUndo {
public:
    static constexpr std::size_t kDepth = 30;
    static constexpr double kCoalescingSeconds = 2.0;

    // What a change replaced.

    struct PaletteEntry {
        PaletteContent content;
    };
    struct BenchEntry {
        BenchContent content;
        bool isClear = false;
    };
    struct SeedsEntry {
        Seeds seeds;
    };
    struct MoveEntry {
        std::size_t from = 0, to = 0; ///< places of the swatch before and after
    };

    struct Entry {
        std::variant<PaletteEntry, BenchEntry, SeedsEntry, MoveEntry> change;
        Uuid window; ///< nothing's identifier for the Bench
        double time = 0;
        std::string coalescing; ///< empty for a change that is never absorbed
    };

    AppUndo(Services& services);

    /// Hands in the targets, once, before the first change.
    void attach(UndoWindows& windows, BenchUndoTarget& bench);

    /// Takes an entry before a change. With a key it is absorbed into the top entry when that is of
    /// the same kind, target and key and less than two seconds old, or of the same pointer gesture.
    void checkpointPalette(const Uuid& window, PaletteContent before, std::string coalescing);
    void checkpointSeeds(const Uuid& window, Seeds before, std::string coalescing);
    void checkpointBench(BenchContent before, std::string coalescing, bool isClear = false);
    /// After a move. A further move of the same swatch in one gesture extends the top entry.
    void appendMove(const Uuid& window, std::size_t from, std::size_t to);
    /// Answers whether the top entry was a move of this gesture that ended at `from` and now ends
    /// at `to`.
    bool extendTopToMove(const Uuid& window, std::size_t from, std::size_t to);

    /// A pointer gesture: from mouse down to mouse up.
    void beginGesture();
    void endGesture();

    /// Say what they did in the window `from`; do nothing when there is nothing to undo or redo.
    void undo(ToastPlace from);
    void redo(ToastPlace from);
    bool canUndo() const { return !entries().empty(); }
    bool canRedo() const { return !redos().empty(); }
    /// "Undo" and the name of the action; "Undo" alone when there is none.
    std::string title() const;
    std::string redoTitle() const;

    void discardEntries(const Uuid& forWindow);

    const std::vector<Entry>& entries() const { return entries_; }
    const std::vector<Entry>& redos() const { return redos_; }
    /// Changes with every change of the lists, so that menus follow.
    QProperty<std::uint64_t> version{0};

private:
    Services& services_;
    UndoWindows* windows_ = nullptr;
    BenchUndoTarget* bench_ = nullptr;
    std::vector<Entry> entries_; ///< oldest first
    std::vector<Entry> redos_;
    std::uint64_t gesture_ = 0;    ///< counts gestures; 0 outside of one
    std::uint64_t topGesture_ = 0; ///< in which the top entry was taken
};

} // namespace tintra
