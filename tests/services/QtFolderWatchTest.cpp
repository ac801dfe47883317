#include "platform/desktop/services/QtFolderWatch.h"

#include "tests/TemporaryFolder.h"
#include "tests/services/RunningLoop.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <fstream>
#include <map>

namespace tintra {
namespace {

namespace fs = std::filesystem;

class Watches : public testing::Test {
protected:
    Watches() {
        watch_.whenChanged([this](const fs::path& folder) { ++told_[folder]; });
    }
    /// Whether that folder is told of, once, after the act; others are forgotten.
    bool tells(const fs::path& folder, const std::function<void()>& act) {
        told_.clear();
        act();
        return waitFor([&] { return told_.contains(folder); }) && told_[folder] == 1;
    }

    const TemporaryFolder folder_;
    std::map<fs::path, int> told_;
    QtFolderWatch watch_;
};

TEST_F(Watches, EveryKindOfChangeOfAFileIsToldOfOnce) {
    const auto watched = folder_ / "in";
    fs::create_directory(watched);
    fs::create_directory(folder_ / "other");
    watch_.watch({watched, folder_ / "other", watched});
    const auto file = watched / "a";
    const std::vector<std::pair<const char*, std::function<void()>>> changes{
        {"added", [&] { folder_.write("in/a", "1"); }},
        {"written in place", [&] { std::fstream(file) << "2"; }},
        {"replaced", [&] { fs::rename(folder_.write("b", "3"), file); }},
        {"made readable", [&] { fs::permissions(file, fs::perms::owner_read); }},
        {"removed", [&] { fs::remove(file); }},
        {"many",
         [&] {
             for (int i = 0; i < 500; ++i)
                 folder_.write("in/" + std::to_string(i), "");
         }},
    };
    for (const auto& [what, change] : changes) {
        EXPECT_TRUE(tells(watched, change)) << what;
        EXPECT_EQ(told_.size(), 1U) << what;
    }
}

TEST_F(Watches, AFolderThatComesAndGoesIsFollowed) {
    const auto above = folder_ / "x", deep = above / "y/z", elsewhere = folder_ / "elsewhere";
    watch_.watch({deep});
    const auto write = [&] { std::ofstream(deep / "a") << "x"; };
    const std::vector<std::pair<const char*, std::function<void()>>> changes{
        {"made", [&] { fs::create_directories(deep); }},
        {"written to", write},
        {"removed", [&] { fs::remove_all(above); }},
        {"made again", [&] { fs::create_directories(deep); }},
        {"moved with one above it", [&] { fs::rename(above, elsewhere); }},
        {"linked", [&] { fs::create_directory_symlink(elsewhere, above); }},
        {"written to behind the link", write},
        {"gone behind the link", [&] { fs::rename(elsewhere, folder_ / "w"); }},
        {"in place of the link", [&] { fs::remove(above), fs::rename(folder_ / "w", above); }},
        {"written to at last", write},
    };
    for (const auto& [what, change] : changes)
        EXPECT_TRUE(tells(deep, change)) << what;
}

TEST_F(Watches, OnlyTheFoldersAskedForLastAreToldOf) {
    const auto a = folder_ / "a", b = folder_ / "b";
    fs::create_directory(a), fs::create_directory(b);
    watch_.watch({a});
    watch_.watch({b, folder_ / "never/there", ""});
    const auto writeBoth = [&] { folder_.write("a/1", ""), folder_.write("b/1", ""); };
    EXPECT_TRUE(tells(b, writeBoth));
    EXPECT_EQ(told_.size(), 1U);
    // Whoever is told may change what is watched.
    watch_.watch({a, b});
    watch_.whenChanged([&](const fs::path& told) { ++told_[told], watch_.watch({b}); });
    EXPECT_TRUE(tells(a, writeBoth));
    EXPECT_TRUE(tells(b, writeBoth));
    EXPECT_EQ(told_.size(), 1U);
}

} // namespace
} // namespace tintra
