#include "platform/desktop/services/QtFolderWatch.h"

#include <fcntl.h>
#include <sys/inotify.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <iterator>
#include <system_error>
#include <utility>

namespace tintra {

namespace {

namespace fs = std::filesystem;

constexpr int kQuiet = 200;    // milliseconds
constexpr int kLongest = 2000; // milliseconds

/// Of a watched folder: what happens to the files in it and to itself.
constexpr std::uint32_t kFolder = IN_CLOSE_WRITE | IN_MOVED_FROM | IN_MOVED_TO | IN_CREATE |
                                  IN_DELETE | IN_ATTRIB | IN_DELETE_SELF | IN_MOVE_SELF;
/// Of a folder above it: only what takes the watched one along, since much else may happen there.
constexpr std::uint32_t kOnTheWay = IN_DELETE_SELF | IN_MOVE_SELF;
/// Of a folder in which the next one is missing or a link.
constexpr std::uint32_t kNames = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO | IN_ATTRIB;

bool meansAbsent(int error) {
    return error == ENOENT || error == ENOTDIR || error == ELOOP;
}

bool isLink(const fs::path& path) {
    std::error_code failed;
    return fs::is_symlink(fs::symlink_status(path, failed));
}

} // namespace

QtFolderWatch::QtFolderWatch()
    : inotify_(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)),
      mounts_(::open("/proc/self/mountinfo", O_RDONLY | O_CLOEXEC)) {
    quiet_.setSingleShot(true);
    QObject::connect(&quiet_, &QTimer::timeout, &quiet_, [this] { tell(); });
    if (inotify_.isOpen()) {
        events_ = std::make_unique<QSocketNotifier>(inotify_.number(), QSocketNotifier::Read);
        QObject::connect(events_.get(), &QSocketNotifier::activated, &quiet_,
                         [this] { readEvents(); });
    }
    if (mounts_.isOpen()) {
        mountEvents_ =
            std::make_unique<QSocketNotifier>(mounts_.number(), QSocketNotifier::Exception);
        QObject::connect(mountEvents_.get(), &QSocketNotifier::activated, &quiet_,
                         [this] { soon(); });
    }
}

void QtFolderWatch::watch(std::vector<Path> folders) {
    std::ranges::sort(folders);
    folders.erase(std::unique(folders.begin(), folders.end()), folders.end());

    std::vector<Folder> before = std::exchange(folders_, {});
    std::vector<std::size_t> fresh;
    for (auto& path : folders) {
        const auto known = std::ranges::find(before, path, &Folder::path);
        if (known == before.end()) fresh.push_back(folders_.size());
        folders_.push_back(known == before.end() ? Folder{.path = std::move(path)} : *known);
    }
    settle();
    for (const auto index : fresh)
        folders_[index].changed = false; // that it is watched from now on is no change
    if (std::ranges::any_of(folders_, &Folder::changed)) soon();
}

void QtFolderWatch::whenChanged(std::function<void(const Path&)> told) {
    told_ = std::move(told);
}

/// One buffer at a time: the notifier calls again while there is more, and the loop goes on
/// between.
void QtFolderWatch::readEvents() {
    alignas(inotify_event) std::array<char, 16384> buffer{};
    const auto size = ::read(inotify_.number(), buffer.data(), buffer.size());
    for (std::size_t at = 0; std::cmp_less(at, size);) {
        inotify_event event{};
        std::memcpy(&event, buffer.data() + at, sizeof event);
        at += sizeof event + event.len;
        note(event.wd);
    }
}

void QtFolderWatch::note(int watch) {
    const bool overflow = watch == kNoWatch; // some events were lost: any folder may have changed
    if (!overflow && !watches_.contains(watch)) return; // the end of a watch that was given up
    for (auto& folder : folders_)
        if (overflow || folder.watch == watch) folder.changed = true;
    soon();
}

void QtFolderWatch::soon() {
    if (!quiet_.isActive()) sinceFirst_.start();
    if (!quiet_.isActive() || sinceFirst_.elapsed() < kLongest - kQuiet) quiet_.start(kQuiet);
}

void QtFolderWatch::tell() {
    settle();
    std::vector<Path> changed;
    for (auto& folder : folders_)
        if (std::exchange(folder.changed, false)) changed.push_back(folder.path);
    const auto told = told_;
    for (const auto& path : changed) {
        // Whoever is told may have asked for other folders meanwhile.
        const bool wanted = std::ranges::find(folders_, path, &Folder::path) != folders_.end();
        if (told && wanted) told(path);
    }
}

/// Brings the watches in line with what exists now.
void QtFolderWatch::settle() {
    Watches watches;
    for (auto& folder : folders_) {
        std::error_code failed;
        auto place = fs::absolute(folder.path, failed);
        if (!place.has_filename()) place = place.parent_path();
        const int watch = watchWay(watches, place);
        if (const auto real = fs::canonical(place, failed); !failed && real != place)
            watchWay(watches, real);
        if (std::exchange(folder.watch, watch) != watch) folder.changed = true;
    }
    replaceWatches(std::move(watches));
}

/// Adds to what the watch of that folder reports; `kNoWatch`, with errno, where it cannot be
/// watched.
int QtFolderWatch::add(Watches& watches, const Path& path, std::uint32_t mask) const {
    const int watch =
        ::inotify_add_watch(inotify_.number(), path.c_str(), mask | IN_MASK_ADD | IN_ONLYDIR);
    if (watch == kNoWatch) return kNoWatch;
    auto& known = watches[watch];
    known.path = path;
    known.mask |= mask;
    return watch;
}

/// Watches every folder from the root down to that one, or to the last that exists; answers the
/// watch of the folder itself.
int QtFolderWatch::watchWay(Watches& watches, const Path& folder) const {
    Path way;
    for (auto part = folder.begin(); part != folder.end(); ++part) {
        const auto above = way;
        way /= *part;
        const bool last = std::next(part) == folder.end();
        const auto mask = last ? kFolder : kOnTheWay;
        int watch = add(watches, way, mask);
        if (watch == kNoWatch || isLink(way)) {
            add(watches, above, kNames);
            watch = add(watches, way, mask); // it may have appeared just before
        }
        if (last || (watch == kNoWatch && meansAbsent(errno))) return last ? watch : kNoWatch;
    }
    return kNoWatch;
}

void QtFolderWatch::replaceWatches(Watches watches) {
    const auto before = std::exchange(watches_, std::move(watches));
    for (const auto& [watch, old] : before) {
        const auto wanted = watches_.find(watch);
        if (wanted == watches_.end())
            ::inotify_rm_watch(inotify_.number(), watch);
        else if ((old.mask & ~wanted->second.mask) != 0) {
            // Another folder may stand there by now; then its watch is known and given up later.
            const auto now = wanted->second;
            const int renewed =
                ::inotify_add_watch(inotify_.number(), now.path.c_str(), now.mask | IN_ONLYDIR);
            if (renewed != kNoWatch) watches_.try_emplace(renewed, now);
        }
    }
}

} // namespace tintra
