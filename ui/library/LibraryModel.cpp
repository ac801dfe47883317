#include "ui/library/LibraryModel.h"

#include "state/Errands.h"
#include "state/Models.h"

#include <algorithm>
#include <utility>

namespace tintra {
namespace {

/// While palettes are being read, what is shown follows after this time; seconds.
constexpr double kFollowing = 0.1;

std::optional<std::size_t> placeOf(const LibraryListing& listing, const std::string& key) {
    for (std::size_t i = 0; i < listing.finds.size(); ++i)
        if (listing.paletteAt(i).key == key) return i;
    return std::nullopt;
}

void change(QProperty<std::set<std::string>>& keys, const std::string& key, bool holds) {
    auto now = keys.value();
    if (holds)
        now.insert(key);
    else
        now.erase(key);
    keys = std::move(now);
}

} // namespace

LibraryModel::LibraryModel(Ui& ui)
    : ui_(ui), content_(std::make_shared<LibraryContent>()),
      listing_(std::make_unique<LibraryListing>()) {
    subscribe();
    takeUnfolded();
    takeContent();
}

LibraryModel::~LibraryModel() = default;

bool LibraryModel::installsFor() const {
    return !ui_.models.store().installTargets().empty();
}

void LibraryModel::subscribe() {
    auto& preferences = ui_.models.preferences();
    subscriptions_.add(ui_.models.libraryVersion(), [this] { takeChange(); });
    subscriptions_.add(preferences.paletteLocations, [this] { takeContent(); });
    subscriptions_.add(preferences.includeSystemPalettes, [this] { takeContent(); });
    const auto again = [this] { ask(); };
    subscriptions_.add(preferences.libraryMatch, again);
    subscriptions_.add(preferences.labIlluminant, again);
    subscriptions_.add(preferences.librarySortByName, again);
    subscriptions_.add(preferences.librarySortByDate, again);
    subscriptions_.add(preferences.librarySortAscending, again);
    subscriptions_.add(preferences.libraryCollapsed, [this] { version_ = version_.value() + 1; });
    subscriptions_.add(preferences.libraryExpanded, [this] {
        takeUnfolded();
        version_ = version_.value() + 1;
    });
}

void LibraryModel::takeUnfolded() {
    const auto& keys = ui_.models.preferences().libraryExpanded.value();
    unfolded_ = {keys.begin(), keys.end()};
}

ColourMatch LibraryModel::match() const {
    return ui_.models.preferences().libraryMatch;
}

void LibraryModel::search(std::string text) {
    if (text == text_.value()) return;
    if (text_.value().empty()) foldedInSearch_.clear();
    text_ = std::move(text);
    ask();
}

void LibraryModel::takeChange() {
    if (!ui_.models.store().isScanning()) {
        takeContent();
        return;
    }
    if (later_) return;
    later_ = ui_.services.mainLoop.after(kFollowing, [this] { takeContent(); });
}

void LibraryModel::takeContent() {
    later_.reset();
    const auto& preferences = ui_.models.preferences();
    content_ = std::make_shared<LibraryContent>(libraryContent(ui_.models.store(),
                                                               preferences.paletteLocations.value(),
                                                               preferences.includeSystemPalettes));
    ask();
}

void LibraryModel::ask() {
    const auto& preferences = ui_.models.preferences();
    LibraryQuestion question{.text = text_.value(),
                             .match = preferences.libraryMatch,
                             .order = {.byName = preferences.librarySortByName,
                                       .byDate = preferences.librarySortByDate,
                                       .ascending = preferences.librarySortAscending}};
    inBackground(
        ui_.services, alive_,
        [content = content_, question = std::move(question)]() mutable {
            return libraryListing(std::move(content), question);
        },
        [this, turn = ++turn_](LibraryListing&& listing) {
            if (turn == turn_) take(std::move(listing));
        });
}

void LibraryModel::take(LibraryListing listing) {
    auto before = std::exchange(listing_, std::make_unique<LibraryListing>(std::move(listing)));
    current_ = follow(*before);
    version_ = version_.value() + 1;
    // Thousands of palettes are not let go of on the main loop.
    ui_.services.background.run([dropped = std::make_shared<std::unique_ptr<LibraryListing>>(
                                     std::move(before))] { dropped->reset(); });
}

std::optional<std::size_t> LibraryModel::follow(const LibraryListing& before) const {
    const auto& now = *listing_;
    const bool isOther = now.isSearch && (!before.isSearch || before.content == now.content);
    const auto first = now.finds.empty() ? std::nullopt : std::optional<std::size_t>(0);
    // What is typed is a new search: its first palette is the one that Enter opens.
    if (isOther) return first;
    if (!current_ || *current_ >= before.finds.size()) return now.isSearch ? first : std::nullopt;
    if (const auto same = placeOf(now, before.paletteAt(*current_).key)) return same;
    // Of one that has gone the next one takes the place.
    if (now.finds.empty()) return std::nullopt;
    return std::min(*current_, now.finds.size() - 1);
}

bool LibraryModel::isFolded(const LibraryGroup& group) const {
    if (listing_->isSearch) return foldedInSearch_.contains(group.key);
    return ui_.models.preferences().libraryCollapsed.value().contains(group.key);
}

void LibraryModel::fold(const LibraryGroup& group, bool folds) {
    if (!listing_->isSearch) {
        change(ui_.models.preferences().libraryCollapsed, group.key, folds);
        return;
    }
    if (folds)
        foldedInSearch_.insert(group.key);
    else
        foldedInSearch_.erase(group.key);
    version_ = version_.value() + 1;
}

bool LibraryModel::isUnfolded(const LibraryPalette& palette) const {
    return !unfolded_.empty() && unfolded_.contains(palette.key);
}

void LibraryModel::unfold(const LibraryPalette& palette, bool unfolds) {
    auto& expanded = ui_.models.preferences().libraryExpanded;
    auto keys = expanded.value();
    // Palettes that are gone are not remembered for ever.
    std::erase_if(keys, [&](const auto& key) { return !ui_.models.store().entry(key); });
    if (unfolds)
        keys.insert(palette.key);
    else
        keys.erase(palette.key);
    expanded = std::move(keys);
}

void LibraryModel::setCurrent(std::optional<std::size_t> find) {
    if (find == current_) return;
    current_ = find;
}

const LibraryPalette* LibraryModel::currentPalette() const {
    if (!current_ || *current_ >= listing_->finds.size()) return nullptr;
    return &listing_->paletteAt(*current_);
}

} // namespace tintra
