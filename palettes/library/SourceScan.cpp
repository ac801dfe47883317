#include "palettes/library/SourceScan.h"

#include "palettes/Stylesheet.h"
#include "platform/Background.h"
#include "platform/MainLoop.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <unordered_set>

namespace tintra {

namespace {

/// Files that one piece of work reads; their results are one task of the main loop.
constexpr std::size_t kFilesAtOnce = 64;
/// Pieces of work at the same time.
constexpr int kAbreast = 2;

bool liesDirectlyIn(const std::string& folder, std::string_view file) {
    const auto slash = file.rfind('/');
    return slash != std::string_view::npos && file.substr(0, slash) == folder;
}

} // namespace

SourceScan::SourceScan(PaletteSource source, std::shared_ptr<PaletteCache> cache,
                       MainLoop& mainLoop, Background& background, Told told)
    : source_(std::move(source)), cache_(std::move(cache)), mainLoop_(mainLoop),
      background_(background), told_(std::move(told)) {}

void SourceScan::post(std::function<void()> task) {
    mainLoop_.post([self = shared_from_this(), task = std::move(task)] {
        if (!self->cancelled_) task();
    });
}

void SourceScan::start() {
    background_.run([self = shared_from_this()] {
        if (!self->cancelled_) self->list();
    });
}

void SourceScan::list() {
    if (source_.folder.empty()) {
        post([this, all = std::make_shared<std::vector<PaletteEntry>>(entriesByRule(*cache_))] {
            told_.listed(true, all, 0);
            told_.finished(nullptr);
        });
        return;
    }
    auto listing = listFolder(source_.folder, source_.listed);
    std::size_t place = 0;
    for (auto& listed : listing.files) {
        auto palette = cache_->cached(listed.path);
        const bool isKnown =
            palette != nullptr && palette->isReadable() && palette->stamp == listed.stamp;
        // Whether a stylesheet is a palette is known once it was read.
        const bool isTold = isKnown || !listed.isStylesheet;
        if (!isKnown) toRead_.push_back(files_.size());
        files_.push_back({std::move(listed), std::move(palette), place, isTold});
        if (isTold) ++place;
    }
    post([this, isOnline = !listing.failed, all = entries()] {
        told_.listed(isOnline, all, toRead_.size());
    });
    isOnline_ = !listing.failed;
    if (toRead_.empty()) return finish();
    for (int i = 0; i < kAbreast; ++i)
        background_.run([self = shared_from_this()] { self->readSome(); });
}

SourceScan::Entries SourceScan::entries() const {
    auto all = std::make_shared<std::vector<PaletteEntry>>();
    all->reserve(files_.size());
    for (const auto& file : files_)
        if (file.isTold) all->push_back(entryOf(source_, file.file, file.palette));
    return all;
}

void SourceScan::readSome() {
    const auto begin = next_.fetch_add(kFilesAtOnce);
    if (begin >= toRead_.size()) return;
    const auto end = std::min(begin + kFilesAtOnce, toRead_.size());
    for (auto i = begin; i < end; ++i) {
        if (cancelled_) return;
        if (!read(files_[toRead_[i]])) changed_ = true;
    }
    tellRead(begin, end);
    if (done_.fetch_add(end - begin) + end - begin == toRead_.size()) return finish();
    background_.run([self = shared_from_this()] { self->readSome(); });
}

/// Whether the file is what was told of it: a palette that is there, or a stylesheet that is none.
bool SourceScan::read(File& file) {
    const auto& path = file.file.path;
    file.isPalette = !file.file.isStylesheet || Stylesheet::isPalette(path);
    file.palette = file.isPalette ? cache_->warm(path) : nullptr;
    return file.isTold == (file.palette != nullptr);
}

void SourceScan::tellRead(std::size_t begin, std::size_t end) {
    auto reads = std::make_shared<std::vector<Read>>();
    for (auto i = begin; i < end; ++i) {
        const auto& file = files_[toRead_[i]];
        if (file.isTold && file.palette != nullptr) reads->push_back({file.place, file.palette});
    }
    post([this, files = end - begin, reads] { told_.read(files, *reads); });
}

void SourceScan::finish() {
    if (cancelled_) return;
    Entries all;
    if (changed_) {
        for (auto& file : files_)
            file.isTold = file.palette != nullptr;
        all = entries();
    }
    post([this, all] { told_.finished(all); });
    forgetAbsentFiles();
}

/// What was read of a folder that went away is good when it comes back.
void SourceScan::forgetAbsentFiles() {
    if (!isOnline_) return;
    std::unordered_set<std::string_view> present;
    for (const auto& file : files_)
        present.insert(file.file.path.native());
    cache_->retain([&](std::string_view file) {
        return present.contains(file) || !liesDirectlyIn(source_.folder.native(), file);
    });
}

} // namespace tintra
