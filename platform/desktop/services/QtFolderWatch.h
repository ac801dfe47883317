#pragma once

#include "platform/Descriptor.h"
#include "platform/FolderWatch.h"

#include <QElapsedTimer>
#include <QSocketNotifier>
#include <QTimer>
#include <cstdint>
#include <map>
#include <memory>

namespace tintra {

/// Watches by inotify: one watch a folder, however many files lie in it, and one for each folder on
/// the way to it, so that a folder that is moved, replaced or unmounted with one above it is
/// noticed, and noticed again when it is back. (QFileSystemWatcher reports no file that is written
/// in place unless every file is watched, and forgets a folder that goes away.)
/// Tells when nothing has happened for 0.2 s, during a long stream of changes every 2 s. Where the
/// system gives no watch (its number is limited), changes there are not noticed.
class QtFolderWatch final : public FolderWatch {
public:
    QtFolderWatch();

    void watch(std::vector<std::filesystem::path> folders) override;
    void whenChanged(std::function<void(const std::filesystem::path& folder)> told) override;

private:
    using Path = std::filesystem::path;
    static constexpr int kNoWatch = -1;

    struct Folder {
        Path path; ///< as given
        int watch = kNoWatch;
        bool changed = false;
    };
    struct Watch {
        Path path;
        std::uint32_t mask = 0; ///< what is wanted of it
    };
    using Watches = std::map<int, Watch>;

    void readEvents();
    void note(int watch);
    void soon();
    void tell();
    void settle();
    int add(Watches& watches, const Path& path, std::uint32_t mask) const;
    int watchWay(Watches& watches, const Path& folder) const;
    void replaceWatches(Watches watches);

    Descriptor inotify_;
    Descriptor mounts_; ///< the table of mounts, which says when it changes
    std::unique_ptr<QSocketNotifier> events_, mountEvents_;
    QTimer quiet_;
    QElapsedTimer sinceFirst_; ///< runs while changes wait to be told
    std::vector<Folder> folders_;
    Watches watches_;
    std::function<void(const Path&)> told_;
};

} // namespace tintra
