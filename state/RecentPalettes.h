#pragma once

#include <QProperty>
#include <filesystem>
#include <string_view>
#include <vector>

namespace tintra {

struct Services;
class Workspaces;

/// The palette files that windows were attached to last, by opening or saving, newest first; kept
/// under "TintraRecentPalettes". Files that are gone stay listed. Main loop.
class RecentPalettes {
public:
    static constexpr std::string_view kKey = "TintraRecentPalettes"; ///< of the record
    static constexpr std::size_t kMost = 12;

    RecentPalettes(Services& services, const Workspaces& workspaces);

    /// Reads the record and follows the windows from now on. Writes nothing yet.
    void start();
    const QProperty<std::vector<std::filesystem::path>>& files() const { return files_; }
    void clear();

private:
    void followWindows();
    /// Puts a file first.
    void remember(const std::filesystem::path& file);
    void write() const;

    Services& services_;
    const Workspaces& workspaces_;
    QProperty<std::vector<std::filesystem::path>> files_;
    QPropertyNotifier order_;
    std::vector<QPropertyNotifier> windows_;
};

} // namespace tintra
