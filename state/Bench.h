#pragma once

#include "colour/Vision.h"
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
#include <variant>
#include <vector>

namespace tintra {

class AppUndo;
struct Services;

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

    // Columns

    /// A column for a palette swatch, or a copy; made opaque.
    BenchColumn stagedColumn(const PaletteSwatch& holding, PaletteOrigin origin);
    BenchColumn stagedColumn(const WashColor& copyOf, std::optional<std::string> name);
    /// Appends the column, makes it active, opens the window.
    void addStagedToBench(BenchColumn column);
    /// The column that follows that swatch; none when there is none.
    const BenchColumn* columnOf(const Uuid& window, const Uuid& swatch) const;
    /// The column of that colour, whatever its source (by identity without alpha).
    const BenchColumn* columnHolding(const WashColor& color) const;
    /// A colour dropped before a column (none: at the end), with the notices and refusals of a
    /// send. A column of the Bench is moved instead.
    void receive(const Drag& drag, std::optional<Uuid> before);
    /// What would be said to a drop; nothing when it is taken.
    std::optional<std::string> refusal(const Drag& drag) const;
    /// With every well that has it as a parent.
    void removeBenchColumn(const Uuid& id);
    /// To a place counted without the column itself. Refused, with a notice, while there are wells.
    void moveBenchColumn(std::size_t from, std::size_t to);
    void renameBenchColumn(const Uuid& id, std::optional<std::string> name);

    // Wells

    /// Takes the pair's well away, whichever comes first, or makes one at equal shares and makes it
    /// active.
    void toggleWell(const Uuid& a, const Uuid& b);
    /// One checkpoint per well and field while changes follow each other closely.
    void updateWell(const Uuid& id, WellField field, double value);
    void removeWell(const Uuid& id);
    /// The mix becomes a column, active, and its well goes: one step of undo.
    void addWellToBench(const Uuid& id);
    /// What the well mixes, opaque.
    WashColor wellColor(const BenchWell& well) const;
    /// `count` mixes of the pair, from all `parentA` to all `parentB`.
    std::vector<WashColor> wellRamp(const BenchWell& well, std::size_t count) const;
    /// The column that "Mix with the Next Colour" pairs with this one; none for the last.
    std::optional<Uuid> mixCandidate(const Uuid& hovered) const;

    // Links to palettes

    /// The colour of the swatch it follows, opaque; else as last known.
    WashColor currentColor(const BenchColumn& of) const;
    PaletteSwatchResolution resolve(const BenchColumn& column) const;
    /// Brings every column in step with its swatch. Called after every change, load, save, opening
    /// and closing of a palette. Takes no checkpoint.
    void reconcileBenchProvenance();
    std::string name(const BenchColumn& of) const;
    std::string badgeText(const BenchColumn& column) const;
    /// "from this palette", as seen from a palette window (none: from the Bench itself).
    std::string describeOrigin(const BenchColumn& of, std::optional<Uuid> seenFrom) const;

    // Selection

    /// Columns and wells as they stand from left to right: a well after the first of its parents.
    std::vector<BenchSelection> activeOrder() const;
    /// Makes the next (1) or the one before (-1) active; stops at the ends.
    void walkActive(int by);
    void pruneBenchActiveIfInvalid();

    /// The WCAG ratio between each column and the next.
    std::vector<double> neighbourRatios() const;

    enum class Asking { no, yes };
    /// Asks, when asked to, if the Bench holds what no open palette does.
    void clearBench(Asking asking);

    BenchContent exchangeContent(BenchContent other) override;

    /// Writes the record "TintraBench".
    void captureForQuit();
    /// Reads it, once.
    void restoreIfNeeded();
    bool hasRestored() const { return hasRestored_; }
    bool wasOpenAtLastQuit() const { return wasOpenAtLastQuit_; }

private:
    Services& services_;
    const OpenPalettes& palettes_;
    AppUndo& undo_;
    QProperty<BenchContent> content_;
    bool hasRestored_ = false;
    bool wasOpenAtLastQuit_ = false;
};

} // namespace tintra
