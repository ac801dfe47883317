#pragma once

#include "colour/Contrast.h"
#include "colour/ContrastTarget.h"
#include "colour/Vision.h"
#include "state/OpenPalettes.h"

#include <QProperty>
#include <cstddef>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tintra {

struct Services;
struct StoredContrast;

/// The model behind the contrast window: the colours that it holds, in the user's order, which of
/// them is the text and which the ground, and how they are read. Main loop.
class ContrastBoard {
public:
    struct Entry {
        Uuid id; ///< fixed for the life of the entry
        WashColor color;
        std::optional<std::string> givenName; ///< by the user, or of the swatch it came from
        bool operator==(const Entry&) const = default;
    };
    enum class Mode { pair, matrix, ladder };
    enum class Measure { wcag, apca };
    using Target = Contrast::Target;
    using Role = Contrast::Role;

    /// The colours and their roles, as undo exchanges them.
    struct Content {
        std::vector<Entry> entries;
        std::optional<Uuid> textID, groundID;
        /// Identifiers of the entries, the longest held first; the board keeps it complete.
        std::vector<Uuid> arrivals;
        bool operator==(const Content&) const = default;
    };

    static constexpr std::string_view kKey = "TintraContrast"; ///< of the record
    static constexpr std::size_t kCapacity = 32;
    static constexpr std::size_t kMatrixSize = 10;
    // Of the specimen's size, px, and weight; a record's are brought into them.
    static constexpr double kSmallestSize = 1, kLargestSize = 1000;
    static constexpr int kLightestWeight = 100, kHeaviestWeight = 900;
    static constexpr std::string_view kDefaultSpecimen =
        "Paste the words you are actually setting. A pair can pass on the numbers and still be "
        "hard to read at this size and weight, and looking is the only check for that.";

    ContrastBoard(Services& services, const OpenPalettes& palettes);

    // Choices that views read and set.
    QProperty<Mode> mode{Mode::pair};
    QProperty<Measure> measure{Measure::wcag};
    QProperty<Target> target{Target::aa};
    QProperty<double> size{16};                   ///< of the specimen, px
    QProperty<int> weight{400};                   ///< of the specimen, 100...900
    QProperty<std::optional<std::string>> family; ///< none for the system face
    QProperty<std::string> specimen{std::string(kDefaultSpecimen)};
    QProperty<bool> specimenEditRequested{false}; ///< asks the view to open its editor
    QProperty<bool> ladderFixesGround{true};      ///< false: grounds under one fixed text
    QProperty<bool> matrixRowsAreText{true};      ///< false: rows are grounds
    QProperty<std::optional<Uuid>> draggingEntry;
    QProperty<Vision> vision{Vision::typical}; ///< how the window draws; never the figures
    QProperty<bool> isWindowOpen{false};

    /// The colours and roles; replaced whole by every change of them.
    const QProperty<Content>& content() const { return content_; }
    const std::vector<Entry>& entries() const { return content_.value().entries; }
    std::optional<Uuid> textID() const { return content_.value().textID; }
    std::optional<Uuid> groundID() const { return content_.value().groundID; }
    /// Six upper-case digits each, in plain sRGB.
    std::set<std::string> heldHexes() const;
    /// The entry of that identity (alpha included); none when the board holds no such colour.
    const Entry* held(const WashColor& color) const;
    const Entry* entry(const Uuid& id) const;
    /// The entries in the roles; none while there is none.
    const Entry* text() const;
    const Entry* ground() const;
    /// The first ten entries, or all.
    std::span<const Entry> matrixEntries() const;
    bool isFull() const { return entries().size() >= kCapacity; }
    /// The name given, else the nearest one.
    std::string name(const Entry& entry) const;

    /// Adds a colour; the first becomes the text and the second the ground, as long as no entry has
    /// that role. Nothing when the board is full or already holds the colour.
    std::optional<Uuid> send(std::optional<std::string> name, const WashColor& color);
    /// The same without a role.
    std::optional<Uuid> hold(std::optional<std::string> name, const WashColor& color);
    /// Takes out and answers the oldest entry that is neither the text nor the ground; nothing when
    /// there is none.
    std::optional<Entry> letGoOfOldestLoose();
    /// Gives an entry a role; the role's last holder stays as an entry, and takes the role that the
    /// entry had.
    void setRole(Role role, const Uuid& id);
    /// The text becomes the ground and the other way round.
    void exchangeRoles();
    /// Two entries change places.
    void exchange(const Uuid& one, const Uuid& other);
    /// Clears the entry's role.
    void remove(const Uuid& id);
    /// A new colour for an entry, which keeps its identifier, name and role; nothing happens when
    /// another entry holds the colour.
    void replace(const Uuid& id, const WashColor& color);
    void rename(const Uuid& id, std::optional<std::string> name);
    /// To a place counted without the entry itself.
    void move(const Uuid& id, std::size_t to);
    void clear();
    /// Asks first when a colour would be lost, one that no open palette holds; the notice offers to
    /// undo.
    void clearAsking();
    /// Takes another content in and answers the one before; a role whose entry is not there is
    /// none.
    Content exchangeContent(Content other);

    /// By relative luminance, stable. `withinMatrix` sorts the first ten only. Answers the order
    /// before (identifiers), nothing when the order was right.
    std::optional<std::vector<Uuid>> sortByLightness(bool lightestFirst, bool withinMatrix);
    /// Entries that came since stand at the end; those gone meanwhile are passed over.
    void restoreOrder(std::span<const Uuid> order);
    /// Equal luminances count as in order.
    bool isDarkToLight() const;

    /// Of the specimen.
    Contrast::LargeText isLargeText() const;
    Contrast::Grade mark(double ratio) const;
    std::string title(Target of) const;
    std::string verdict(double ratio) const;
    std::string typeDescription() const;

    /// Writes the record.
    void captureForQuit();
    /// Reads it, once. One that is damaged is set aside, and the board stays as it is.
    void restoreIfNeeded();
    bool hasRestored() const { return hasRestored_; }
    bool wasOpenAtLastQuit() const { return wasOpenAtLastQuit_; }

private:
    void setContent(Content to);
    /// Of the entries, by identity with alpha, how many no open palette holds.
    std::size_t countOfUnkept() const;
    void clearOfferingUndo();
    /// What was cleared, and what came since as far as there is room.
    void bringBack(Content cleared);
    StoredContrast stored() const;
    void apply(const StoredContrast& record);

    Services& services_;
    const OpenPalettes& palettes_;
    QProperty<Content> content_;
    bool hasRestored_ = false;
    bool wasOpenAtLastQuit_ = false;
};

std::string_view rawValue(ContrastBoard::Mode mode);
std::string_view rawValue(ContrastBoard::Measure measure);
std::optional<ContrastBoard::Mode> contrastMode(std::string_view raw);
std::optional<ContrastBoard::Measure> contrastMeasure(std::string_view raw);

} // namespace tintra
