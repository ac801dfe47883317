#pragma once

#include "platform/MainLoop.h"
#include "ui/Ui.h"
#include "ui/library/LibraryListing.h"
#include "ui/shared/Subscriptions.h"

#include <QProperty>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <unordered_set>

namespace tintra {

/// What the Library window shows: the palettes that its field asks for, listed and searched in the
/// background, which groups and palettes stand open, and the one that actions act on. Main loop.
class LibraryModel {
public:
    explicit LibraryModel(Ui& ui);
    ~LibraryModel();
    LibraryModel(const LibraryModel&) = delete;
    LibraryModel& operator=(const LibraryModel&) = delete;

    /// What is searched for; empty for nothing.
    const QProperty<std::string>& text() const { return text_; }
    void search(std::string text);

    /// The latest listing that is ready, and what goes up with each.
    const LibraryListing& listing() const { return *listing_; }
    const QProperty<std::uint64_t>& version() const { return version_; }
    /// Something was listed since the start.
    bool isReady() const { return version_.value() > 0; }

    /// The match of a search for a colour.
    ColourMatch match() const;
    /// There are drawing programs to install palettes for.
    bool installsFor() const;

    /// In a search every group stands open at first, and what is folded then is not kept.
    bool isFolded(const LibraryGroup& group) const;
    void fold(const LibraryGroup& group, bool folds);
    bool isUnfolded(const LibraryPalette& palette) const;
    void unfold(const LibraryPalette& palette, bool unfolds);

    /// The palette that was chosen last, as long as it is shown; in a search, the first that was
    /// found until another is chosen; none otherwise.
    std::optional<std::size_t> current() const { return current_; }
    /// A place among the finds; none for no palette.
    void setCurrent(std::optional<std::size_t> find);
    const LibraryPalette* currentPalette() const;

private:
    void subscribe();
    /// The store's list has changed; while it is being read, seldom enough that the main loop stays
    /// free.
    void takeChange();
    void takeContent();
    void takeUnfolded();
    void ask();
    void take(LibraryListing listing);
    std::optional<std::size_t> follow(const LibraryListing& before) const;

    Ui& ui_;
    QProperty<std::string> text_;
    QProperty<std::uint64_t> version_{0};
    std::shared_ptr<const LibraryContent> content_;
    std::unique_ptr<LibraryListing> listing_;
    std::set<std::string> foldedInSearch_;
    std::optional<std::size_t> current_;
    std::unordered_set<std::string> unfolded_; ///< what the preferences keep, to be found quickly
    std::uint64_t turn_ = 0; ///< of questions; an answer to an earlier one is dropped
    std::unique_ptr<DelayedTask> later_;
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
    Subscriptions subscriptions_;
};

} // namespace tintra
