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

    using Change = std::variant<PaletteEntry, BenchEntry, SeedsEntry, MoveEntry>;

    struct Entry {
        Change change;
        Uuid window; ///< nothing's identifier for the Bench
        double time = 0;
        std::string coalescing; ///< empty for a change that is never absorbed
    };

    explicit AppUndo(Services& services) : services_(services) {}

    /// Hands in the targets, once, before the first change.
    void attach(UndoWindows& windows, BenchUndoTarget& bench);

    // Take an entry before something is really changed. With a key it is absorbed into the top
    // entry when that is of the same kind, target and key and less than two seconds old; within one
    // pointer gesture it is when kind and target are the same. Nothing can be redone after it.

    void checkpointPalette(const Uuid& window, PaletteContent before, std::string coalescing);
    void checkpointSeeds(const Uuid& window, Seeds before, std::string coalescing);
    void checkpointBench(BenchContent before, std::string coalescing, bool isClear = false);
    /// After a move. A further move of the same swatch in one gesture extends the top entry.
    void appendMove(const Uuid& window, std::size_t from, std::size_t to);
    /// Answers whether the top entry was a move of this gesture that ended at `from` and now ends
    /// at `to`. One that is back where it began is no change and goes.
    bool extendTopToMove(const Uuid& window, std::size_t from, std::size_t to);

    /// A pointer gesture: from mouse down to mouse up.
    void beginGesture();
    void endGesture();

    /// Say what they did in the window `from`, with the way back; do nothing when there is nothing
    /// to undo or redo. Entries of windows that are gone are passed over.
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
    /// What a change is called.
    enum class Action { palette, colour, bench, benchClear, seeds, move };
    struct ActionRow;
    static const ActionRow& row(Action action);
    Action action(const Entry& of) const;
    Action paletteAction(const PaletteEntry& entry, const Uuid& window) const;

    void checkpoint(Change change, const Uuid& window, std::string coalescing);
    bool topAbsorbs(const Entry& entry) const;
    void append(Entry entry);
    /// Exchanges stored and current values; false when the window is gone.
    bool exchange(Entry& entry);
    /// Exchanges the top of one list and moves it to the other; what it is called, or nothing when
    /// there was none.
    std::optional<Action> step(std::vector<Entry>& from, std::vector<Entry>& to);
    void changed() { version = version.value() + 1; }

    Services& services_;
    UndoWindows* windows_ = nullptr;
    BenchUndoTarget* bench_ = nullptr;
    std::vector<Entry> entries_;   ///< oldest first
    std::vector<Entry> redos_;     ///< the next one last
    std::uint64_t gestures_ = 0;   ///< begun so far
    std::uint64_t gesture_ = 0;    ///< number of the gesture; 0 outside of one
    std::uint64_t topGesture_ = 0; ///< in which the top entry was taken
};

} // namespace tintra
