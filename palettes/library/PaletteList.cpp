#include "palettes/library/PaletteList.h"

#include "platform/Background.h"
#include "platform/FolderWatch.h"
#include "platform/MainLoop.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace tintra {

namespace {

namespace fs = std::filesystem;

/// Changes of a folder within this time are read at once.
constexpr double kSettling = 0.4;

using Position = std::vector<PaletteEntry>::difference_type;

void moveRange(std::vector<PaletteEntry>& from, std::size_t begin, std::size_t end,
               std::vector<PaletteEntry>& to) {
    std::move(from.begin() + static_cast<Position>(begin),
              from.begin() + static_cast<Position>(end), std::back_inserter(to));
}

} // namespace

PaletteList::PaletteList(MainLoop& mainLoop, Background& background, FolderWatch& folderWatch)
    : mainLoop_(mainLoop), background_(background), folderWatch_(folderWatch) {}

PaletteList::~PaletteList() {
    for (const auto& part : parts_)
        if (part.scan) part.scan->cancel();
}

void PaletteList::start() {
    folderWatch_.whenChanged([weak = weak_from_this()](const fs::path& folder) {
        if (const auto self = weak.lock()) self->folderChanged(folder);
    });
}

void PaletteList::setSources(const std::vector<PaletteSource>& sources) {
    if (std::ranges::equal(sources, parts_, {}, {}, &Part::source)) return;
    auto parts = std::exchange(parts_, {});
    auto entries = std::exchange(entries_, {});
    positions_.reset();
    std::vector<fs::path> folders;
    for (const auto& source : sources) {
        if (!source.folder.empty()) folders.push_back(source.folder);
        parts_.emplace_back().source = source;
        std::size_t begin = 0;
        for (auto& old : parts) {
            if (old.source == source) {
                moveRange(entries, begin, begin + old.count, entries_);
                parts_.back().count = old.count;
                parts_.back().isOnline = old.isOnline;
            }
            begin += old.count;
        }
    }
    for (const auto& part : parts)
        if (part.scan) part.scan->cancel();
    dropAside(std::move(entries));
    folderWatch_.watch(std::move(folders));
    changed();
}

void PaletteList::rescan() {
    for (auto& part : parts_)
        scan(part);
}

void PaletteList::rescan(const fs::path& folder) {
    const auto plain = plainFolder(folder);
    for (auto& part : parts_)
        if (part.source.folder == plain) scan(part);
}

void PaletteList::folderChanged(const fs::path& folder) {
    const auto plain = plainFolder(folder);
    for (auto& part : parts_) {
        if (part.source.folder != plain || part.later) continue;
        part.later = mainLoop_.after(kSettling, [weak = weak_from_this(), plain] {
            if (const auto self = weak.lock()) self->rescan(plain);
        });
    }
}

void PaletteList::scan(Part& part) {
    part.later.reset();
    if (part.scan) part.scan->cancel();
    const auto itself = std::make_shared<SourceScan*>();
    part.scan =
        std::make_shared<SourceScan>(part.source, cache_, mainLoop_, background_, toldBy(itself));
    *itself = part.scan.get();
    part.found = part.read = 0;
    part.scan->start();
}

/// A scan that is told of is the one of its part: those before were cancelled.
SourceScan::Told PaletteList::toldBy(const std::shared_ptr<SourceScan*>& scan) {
    const auto withPart = [weak = weak_from_this(), scan](auto&& act) {
        const auto self = weak.lock();
        auto* const part = self ? self->partOf(*scan) : nullptr;
        if (part == nullptr) return;
        act(*self, *part);
        self->changed();
    };
    return {
        .listed =
            [withPart](bool isOnline, const SourceScan::Entries& entries, std::size_t toRead) {
                withPart([&](PaletteList& self, Part& part) {
                    part.isOnline = isOnline;
                    part.found = toRead;
                    self.replace(part, std::move(*entries));
                });
            },
        .read =
            [withPart](std::size_t files, const std::vector<SourceScan::Read>& reads) {
                withPart([&](PaletteList& self, Part& part) {
                    part.read += files;
                    const auto begin = self.beginOf(part);
                    for (const auto& read : reads)
                        take(self.entries_[begin + read.place], read.palette);
                });
            },
        .finished =
            [withPart](const SourceScan::Entries& entries) {
                withPart([&](PaletteList& self, Part& part) {
                    if (entries) self.replace(part, std::move(*entries));
                    part.found = part.read = 0;
                    part.scan.reset();
                });
            },
    };
}

PaletteList::Part* PaletteList::partOf(const SourceScan* scan) {
    const auto found =
        std::ranges::find_if(parts_, [&](const Part& part) { return part.scan.get() == scan; });
    return found == parts_.end() ? nullptr : &*found;
}

std::size_t PaletteList::beginOf(const Part& part) const {
    std::size_t begin = 0;
    for (const Part* at = parts_.data(); at != &part; ++at)
        begin += at->count;
    return begin;
}

void PaletteList::replace(Part& part, std::vector<PaletteEntry> fresh) {
    const auto begin = beginOf(part), end = begin + part.count;
    part.count = fresh.size();
    positions_.reset();
    if (begin > 0 || end < entries_.size()) {
        std::vector<PaletteEntry> all;
        all.reserve(entries_.size() - (end - begin) + fresh.size());
        moveRange(entries_, 0, begin, all);
        moveRange(fresh, 0, fresh.size(), all);
        moveRange(entries_, end, entries_.size(), all);
        fresh = std::move(all);
    }
    entries_.swap(fresh);
    dropAside(std::move(fresh));
}

/// Thousands of entries are not let go of on the main loop.
void PaletteList::dropAside(std::vector<PaletteEntry> entries) {
    if (entries.empty()) return;
    background_.run([dropped = std::make_shared<std::vector<PaletteEntry>>(std::move(entries))] {
        dropped->clear();
    });
}

void PaletteList::remove(const std::string& key) {
    const auto at = std::ranges::find_if(entries_, [&](const auto& e) { return e.key() == key; });
    if (at == entries_.end()) return;
    auto end = static_cast<std::size_t>(at - entries_.begin()) + 1;
    for (auto& part : parts_) {
        if (end <= part.count) {
            --part.count;
            entries_.erase(at);
            positions_.reset();
            scan(part); // one that is under way knows other positions
            changed();
            return;
        }
        end -= part.count;
    }
}

const PaletteEntry* PaletteList::entry(std::string_view key) const {
    if (!positions_) {
        auto& positions = positions_.emplace();
        positions.reserve(entries_.size());
        for (std::size_t i = 0; i < entries_.size(); ++i)
            positions.try_emplace(entries_[i].key(), i);
    }
    const auto found = positions_->find(key);
    return found == positions_->end() ? nullptr : &entries_[found->second];
}

bool PaletteList::isOnline(const Uuid& location) const {
    const auto found = std::ranges::find(
        parts_, location, [](const Part& part) { return part.source.location.value_or(Uuid()); });
    return found == parts_.end() || found->isOnline;
}

bool PaletteList::isScanning() const {
    return std::ranges::any_of(parts_, [](const Part& part) { return part.scan != nullptr; });
}

std::size_t PaletteList::filesFound() const {
    std::size_t sum = 0;
    for (const auto& part : parts_)
        sum += part.found;
    return sum;
}

std::size_t PaletteList::filesRead() const {
    std::size_t sum = 0;
    for (const auto& part : parts_)
        sum += part.read;
    return sum;
}

void PaletteList::changed() {
    if (tells_) return;
    tells_ = true;
    mainLoop_.post([weak = weak_from_this()] {
        const auto self = weak.lock();
        if (!self) return;
        self->tells_ = false;
        if (self->told_) self->told_();
    });
}

} // namespace tintra
