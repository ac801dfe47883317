#include "platform/FileDefaults.h"

#include "platform/Descriptor.h"
#include "tests/TemporaryFolder.h"
#include "tests/support/ManualLoop.h"

#include <fcntl.h>
#include <fmt/format.h>
#include <gtest/gtest.h>
#include <sched.h>
#include <sys/inotify.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <csignal>
#include <fstream>

namespace tintra {
namespace {

namespace fs = std::filesystem;

constexpr const char* kKey = "TintraWorkspace";
constexpr const char* kFile = "TintraWorkspace.json";

class Defaults : public testing::Test {
protected:
    Defaults() { open(); }
    void open() {
        store_.emplace(FileDefaults::Folders{folder_ / "settings", state_}, loop_, loop_);
        store_->whenFailing([this](std::string_view key, const FileError& error) {
            failures_.push_back(fmt::format("{}: {}", key, error.why));
        });
    }
    void write(std::string record) { store_->set(kKey, std::move(record)), store_->flush(); }
    std::string onDisk(const std::string& file = kFile) const {
        return folder_.content("state/" + file);
    }
    std::vector<std::string> aside() const {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(state_))
            if (auto name = entry.path().filename().string(); name.find(".damaged-") < name.size())
                names.push_back(std::move(name));
        std::ranges::sort(names);
        return names;
    }

    const TemporaryFolder folder_;
    const fs::path state_ = folder_ / "state";
    ManualLoop loop_;
    std::vector<std::string> failures_;
    std::optional<FileDefaults> store_;
};

TEST_F(Defaults, RecordsOutliveTheStoreInFoldersForTheUserAlone) {
    EXPECT_EQ(store_->data(kKey), std::nullopt);
    const std::string any("\0\xff{\n", 4);
    store_->set(kKey, any);
    store_->set("TintraPreferences", "{}");
    store_->set("../odd key", "odd");
    EXPECT_EQ(store_->data(kKey), any);
    open();
    EXPECT_EQ(store_->data(kKey), any);
    EXPECT_EQ(onDisk("%2E%2E%2Fodd%20key.json"), "odd");
    EXPECT_EQ(folder_.content("settings/TintraPreferences.json"), "{}");
    EXPECT_EQ(fs::status(state_).permissions(), fs::perms::owner_all);
    store_->remove(kKey);
    EXPECT_EQ(store_->data(kKey), std::nullopt);
    open();
    EXPECT_EQ(store_->data(kKey), std::nullopt);
}

TEST_F(Defaults, OfRecordsThatFollowEachOtherTheLastIsWrittenAndNotEachOne) {
    write("first");
    const Descriptor renames(::inotify_init1(IN_NONBLOCK));
    ASSERT_GE(::inotify_add_watch(renames.number(), state_.c_str(), IN_MOVED_TO), 0);
    for (int i = 1; i <= 1000; ++i)
        store_->set(kKey, std::to_string(i));
    store_->flush();
    EXPECT_EQ(onDisk(), "1000");
    std::array<char, 1U << 16U> events{};
    EXPECT_LT(::read(renames.number(), events.data(), events.size()),
              1000 * static_cast<ssize_t>(sizeof(inotify_event)));
}

TEST_F(Defaults, ADamagedRecordIsSetAsideAndNoneIsOverwritten) {
    write("first");
    store_->set(kKey, "second"); // also one that may still be on its way
    store_->setAside(kKey);
    EXPECT_EQ(store_->data(kKey), std::nullopt);
    store_->set(kKey, "third");
    store_->setAside(kKey);
    store_->setAside(kKey); // nothing is there
    write("fourth");
    EXPECT_EQ(onDisk(), "fourth");
    ASSERT_EQ(aside().size(), 2U);
    EXPECT_EQ(onDisk(aside()[0]), "third"); // ...-2.json
    EXPECT_EQ(onDisk(aside()[1]), "second");
    for (int i = 10; i < 30; ++i) {
        loop_.pass(1);
        store_->set(kKey, std::to_string(i));
        store_->setAside(kKey);
    }
    store_->flush();
    EXPECT_EQ(aside().size(), 10U);
    EXPECT_EQ(onDisk(aside().front()) + onDisk(aside().back()), "2029");
}

TEST_F(Defaults, WhatCannotBeReadIsKeptBeforeItWouldBeReplacedOrRemoved) {
    const auto place = state_ / kFile;
    const std::vector<std::function<void()>> obstacles{
        [&] { fs::create_directory(place), std::ofstream(place / "in") << "kept"; },
        [&] { fs::create_symlink(kFile, place); }, // to itself
        [&] { ASSERT_EQ(::mkfifo(place.c_str(), 0600), 0); },
        [&] { std::ofstream(place).close(), fs::resize_file(place, 1U << 27U); },
    };
    write("x");
    for (std::size_t i = 0; i < 2 * obstacles.size(); ++i, loop_.pass(1)) {
        fs::remove(place);
        obstacles[i / 2]();
        open();
        EXPECT_EQ(store_->data(kKey), std::nullopt) << i;
        i % 2 == 0 ? store_->remove(kKey) : store_->set(kKey, "new");
        store_->flush();
        EXPECT_EQ(onDisk(), i % 2 == 0 ? "" : "new") << i;
        EXPECT_EQ(aside().size(), i + 1);
    }
    EXPECT_EQ(onDisk(aside().front() + "/in"), "kept");
}

TEST_F(Defaults, AFailureIsToldAndTheRecordKeptUntilItCanBeWritten) {
    const auto obstacle = folder_.write("state", "a file where the folder should be");
    write("one");
    loop_.turn();
    EXPECT_EQ(failures_, std::vector<std::string>{"TintraWorkspace: Not a directory"});
    EXPECT_EQ(store_->data(kKey), "one");
    // Whoever is told may use the store, also to no avail.
    store_->whenFailing([&](std::string_view key, const FileError&) {
        failures_.emplace_back(key);
        if (failures_.size() > 10) return;
        store_->set(key, "two");
        store_->set("TintraPreferences", "{}");
        store_->flush();
    });
    store_->flush();
    loop_.turn();
    EXPECT_EQ(failures_.size(), 11U);
    EXPECT_EQ(folder_.content("settings/TintraPreferences.json"), "{}");
    int recovered = 0;
    store_->whenRecovered([&] { ++recovered; });
    fs::remove(obstacle);
    store_->flush();
    EXPECT_EQ(onDisk(), "two");
    EXPECT_EQ(recovered, 1);
}

/// Mounts a disk of 64 KiB that only the calling process sees.
bool mountSmallDisk(const fs::path& folder) {
    const auto user = ::geteuid(), group = ::getegid();
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    std::ofstream("/proc/self/uid_map") << fmt::format("0 {} 1", user);
    std::ofstream("/proc/self/setgroups") << "deny";
    std::ofstream("/proc/self/gid_map") << fmt::format("0 {} 1", group);
    fs::create_directory(folder);
    return ::mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=64k,mode=700") == 0;
}

TEST_F(Defaults, OnAFullAndOnAReadOnlyDiskTheOldRecordStaysWhole) {
    store_.reset(); // a process with threads may not change its mounts
    constexpr int kSkipped = 77;
    const auto onSmallDisk = [this] {
        if (!mountSmallDisk(state_)) return kSkipped;
        open();
        write("old");
        const auto filler = folder_.write("state/filler", std::string(1U << 16U, 'x'));
        const std::string record(9000, 'n'); // more than one page
        write(record);
        EXPECT_EQ(onDisk(), "old");
        EXPECT_EQ(std::distance(fs::directory_iterator(state_), {}), 2) << "a part was left";
        fs::remove(filler);
        store_->flush();
        EXPECT_TRUE(onDisk() == record) << "not tried again";
        EXPECT_EQ(::mount("", state_.c_str(), "", MS_REMOUNT | MS_RDONLY, ""), 0);
        write("newer");
        EXPECT_TRUE(onDisk() == record);
        EXPECT_EQ(store_->data(kKey), "newer");
        EXPECT_EQ(failures_, (std::vector<std::string>{
                                 "TintraWorkspace: No space left on device",
                                 "TintraWorkspace: Read-only file system",
                             }));
        store_.reset();
        return HasFailure() ? 1 : 0;
    };
    const auto child = ::fork();
    if (child == 0) ::_exit(onSmallDisk());
    int status = 0;
    ::waitpid(child, &status, 0);
    if (WEXITSTATUS(status) == kSkipped) GTEST_SKIP() << "this machine allows no mounts";
    EXPECT_EQ(status, 0);
}

std::string recordOf(char letter) {
    return std::string(20000U + 10000U * static_cast<unsigned>(letter - 'a'), letter);
}

[[noreturn]] void setForever(DefaultsStore& store, int progress) {
    for (char letter = 'a';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1)) {
        store.set(kKey, recordOf(letter));
        if (::write(progress, &letter, 1) != 1) ::_exit(1);
    }
}

TEST_F(Defaults, KilledAtAnyMomentARecordIsWholeAndWhatWasLeftIsClearedAway) {
    write(recordOf('a'));
    store_.reset();
    for (int round = 0; round < 40; ++round) {
        std::array<int, 2> progress{};
        ASSERT_EQ(::pipe2(progress.data(), O_CLOEXEC), 0);
        const Descriptor told(progress[0]), tell(progress[1]);
        const auto child = ::fork();
        if (child == 0) open(), setForever(*store_, tell.number());
        char letter = 0;
        for (int i = 0; i <= round * 25; ++i)
            ASSERT_EQ(::read(told.number(), &letter, 1), 1);
        ::kill(child, SIGKILL);
        ::waitpid(child, nullptr, 0);
        const auto record = onDisk();
        ASSERT_TRUE(!record.empty() && record == recordOf(record[0])) << round;
    }
    for (const auto& entry : fs::directory_iterator(state_))
        fs::last_write_time(entry, fs::file_time_type::clock::now() - std::chrono::hours(2));
    std::ofstream(state_ / ".tintra-1-1").close(); // which another program may be writing
    open();
    store_.reset();
    EXPECT_EQ(std::distance(fs::directory_iterator(state_), {}), 2);
}

} // namespace
} // namespace tintra
