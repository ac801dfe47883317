#pragma once

#include "colour/Vision.h"
#include "palettes/Swatch.h"
#include "state/BenchContent.h"
#include "state/Drag.h"
#include "state/Geometry.h"
#include "state/UndoTargets.h"

#include <QProperty>
#include <cstddef>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace tintra {

class AppUndo;
struct Services;
struct StoredBench;

/// The workbench on which colours stand side by side and pairs of them are mixed in wells. One for
/// the life of the program. Every change of columns or wells takes an undo checkpoint first. Main
/// loop.
class Bench final : public BenchUndoTarget {
public:
    /// Where a column's swatch is now.
    struct Attached {
        OpenPalettes::Sighting swatch;
    };
    struct Dormant {};
    struct Gone {};
    using PaletteSwatchResolution = std::variant<Attached, Dormant, Gone>;

    /// Which amount of a well changes; each is 0...1.
    enum class WellField { ratio, white, black };

    Bench(Services& services, const OpenPalettes& palettes, AppUndo& undo);

    // What views read and set.
    QProperty<std::optional<BenchSelection>> benchActive;
    QProperty<std::optional<Uuid>> hoveredColumn;
    QProperty<std::optional<Uuid>> draggingBenchColumn;
    QProperty<bool> swatchIsOver{false};
    QProperty<Vision> vision{Vision::typical};
    QProperty<bool> isWindowOpen{false};
    QProperty<std::optional<StoredFrame>> frame; ///< of the window, to be kept
    /// Opens the window, or brings it to the front; set by the front end.
    std::function<void()> openWindow;

    const QProperty<BenchContent>& content() const { return content_; }
    const std::vector<BenchColumn>& benchColumns() const { return content_.value().columns; }
    const std::vector<BenchWell>& benchWells() const { return content_.value().wells; }
    const BenchColumn* column(const Uuid& id) const;
    const BenchWell* well(const Uuid& id) const;

    // Columns (Bench.cpp)

    /// A column for a palette swatch, or a copy; made opaque.
    BenchColumn stagedColumn(const PaletteSwatch& holding, PaletteOrigin origin);
    BenchColumn stagedColumn(const WashColor& copyOf, std::optional<std::string> name);
    /// Appends the column, makes it active, opens the window.
    void addStagedToBench(BenchColumn column);
    /// The column that follows that swatch; none when there is none.
    const BenchColumn* columnOf(const Uuid& window, const Uuid& swatch) const;
    /// The column of that colour, whatever its source (by identity without alpha).
    const BenchColumn* columnHolding(const WashColor& color) const;
    /// With every well that has it as a parent.
    void removeBenchColumn(const Uuid& id);
    /// To a place counted without the column itself. Refused, with a notice, while there are wells.
    void moveBenchColumn(std::size_t from, std::size_t to);
    bool isReorderingPaused() const { return !benchWells().empty(); }
    /// Nothing happens to a column that follows a swatch: it is called as the swatch is.
    void renameBenchColumn(const Uuid& id, std::optional<std::string> name);
    /// The WCAG ratio between each column and the next.
    std::vector<double> neighbourRatios() const;

    enum class Asking { no, yes };
    /// Asks, when asked to, if the Bench holds what no open palette does.
    void clearBench(Asking asking);

    // Drops (BenchDrops.cpp)

    /// A colour dropped before a column (none: at the end), with the notices and refusals of a
    /// send. A column of the Bench is moved instead.
    void receive(const Drag& drag, std::optional<Uuid> before);
    /// Copies of pasted or dropped colours at the end, in one step, and says how many; colours that
    /// the Bench holds are passed over. At most `kPaletteCapacity` at a time.
    void receiveAll(std::span<const PaletteFile::Swatch> found);
    /// What would be said to a drop; nothing when it is taken.
    std::optional<std::string> refusal(const Drag& drag) const;

    // Wells (BenchWells.cpp)

    /// Takes the pair's well away, whichever comes first, or makes one at equal shares and makes it
    /// active.
    void toggleWell(const Uuid& a, const Uuid& b);
    /// Brought into 0...1. One checkpoint per well and field while changes follow each other
    /// closely.
    void updateWell(const Uuid& id, WellField field, double value);
    void removeWell(const Uuid& id);
    /// The mix becomes a column, active, and its well goes: one step of undo. Refused, with a
    /// notice, when the Bench holds the colour already.
    void addWellToBench(const Uuid& id);
    /// What the well mixes, opaque; none for a well whose parents are not on the Bench.
    std::optional<WashColor> wellColor(const BenchWell& well) const;
    /// `count` mixes of the pair with the well's white and black, from all `parentA` to all
    /// `parentB`; none where there is no colour.
    std::vector<WashColor> wellRamp(const BenchWell& well, std::size_t count) const;
    /// The column that "Mix with the Next Colour" pairs with this one; none for the last.
    std::optional<Uuid> mixCandidate(const Uuid& hovered) const;

    // Links to palettes (BenchLinks.cpp)

    /// The colour of the swatch it follows, opaque; else as last known.
    WashColor currentColor(const BenchColumn& of) const;
    /// A column that never had a swatch answers `Gone`. A dormant one is also found in an open
    /// palette of the same name, at the same place in the same colour.
    PaletteSwatchResolution resolve(const BenchColumn& column) const;
    /// Brings every column in step with its swatch. Called after every change, load, save, opening
    /// and closing of a palette. Takes no checkpoint.
    void reconcileBenchProvenance();
    /// Of its swatch, else the one kept, else the nearest.
    std::string name(const BenchColumn& of) const;
    std::string badgeText(const BenchColumn& column) const;
    /// "from this palette", as seen from a palette window (none: from the Bench itself).
    std::string describeOrigin(const BenchColumn& of, std::optional<Uuid> seenFrom) const;

    // Selection (BenchSelection.cpp)

    /// Columns and wells as they stand from left to right: a well after the first of its parents.
    std::vector<BenchSelection> activeOrder() const;
    /// Makes the next (1) or the one before (-1) active; stops at the ends.
    void walkActive(int by);
    void pruneBenchActiveIfInvalid();

    BenchContent exchangeContent(BenchContent other) override;

    // Records (BenchPersistence.cpp)

    /// Writes the record "TintraBench".
    void captureForQuit();
    /// Reads it, once. Linked columns find their swatches in the windows that are open by then, the
    /// others stay dormant.
    void restoreIfNeeded();
    bool hasRestored() const { return hasRestored_; }
    bool wasOpenAtLastQuit() const { return wasOpenAtLastQuit_; }

private:
    /// A change of the user's: a checkpoint, and then the new content and active item, seen at
    /// once. Nothing happens when the content is the same.
    void change(BenchContent to, std::optional<BenchSelection> active, std::string coalescing = {});
    void change(BenchContent to) { change(std::move(to), benchActive.value()); }
    void insert(BenchColumn column, std::size_t at);
    void clear();
    void say(std::string text, double seconds) const;
    void moveBefore(const Uuid& column, std::optional<Uuid> before);
    BenchColumn columnFor(const Drag& drag);
    std::optional<Uuid> wellOf(const Uuid& a, const Uuid& b) const;
    /// The columns that a well mixes; nothing when one is not on the Bench.
    std::optional<std::pair<WashColor, WashColor>> parentColors(const BenchWell& well) const;
    std::optional<OpenPalettes::Sighting> seenByName(const BenchColumn& column) const;
    BenchColumn reconciled(const BenchColumn& column) const;
    StoredBench stored() const;
    void restore(const StoredBench& stored);

    Services& services_;
    const OpenPalettes& palettes_;
    AppUndo& undo_;
    QProperty<BenchContent> content_;
    bool hasRestored_ = false;
    bool wasOpenAtLastQuit_ = false;
};

} // namespace tintra
