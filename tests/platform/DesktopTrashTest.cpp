#include "platform/DesktopTrash.h"

#include "tests/TemporaryFolder.h"
#include "tests/support/ManualLoop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tintra {
namespace {

namespace fs = std::filesystem;

class Trashes : public testing::Test {
protected:
    Trashes() { ::setenv("XDG_DATA_HOME", (folder_ / "not/yet/there").c_str(), 1); }
    TrashedFile trashed(const fs::path& file) {
        const auto result = trash_.trash(file);
        const auto* done = std::get_if<TrashedFile>(&result);
        EXPECT_TRUE(done) << std::get<FileError>(result).why;
        return done ? *done : TrashedFile();
    }
    std::string putBack(const TrashedFile& file) {
        return trash_.putBack(file).value_or(FileError{"done"}).why;
    }
    static fs::path note(const TrashedFile& file) {
        return file.inTrash.parent_path().parent_path() / "info" /
               (file.inTrash.filename().string() + ".trashinfo");
    }
    static std::string content(const fs::path& file) {
        return std::string(asText(std::get<Bytes>(readFile(file))));
    }

    const TemporaryFolder folder_;
    ManualLoop clock_;
    DesktopTrash trash_{clock_};
};

TEST_F(Trashes, AFileGoesIntoTheTrashOfTheUserAndBack) {
    ::setenv("TZ", "UTC", 1), ::tzset();
    fs::create_directory(folder_ / "ä b");
    const auto file = folder_.write("ä b/100% rot.gpl", "GIMP Palette");
    const auto moved = trashed(file);
    EXPECT_FALSE(fs::exists(file));
    EXPECT_EQ(moved, (TrashedFile{file, folder_ / "not/yet/there/Trash/files/100% rot.gpl"}));
    EXPECT_EQ(content(note(moved)),
              "[Trash Info]\nPath=" + folder_.path().string() +
                  "/%C3%A4%20b/100%25%20rot.gpl\nDeletionDate=2023-11-14T22:30:00\n");
    EXPECT_EQ(putBack(moved), "done");
    EXPECT_EQ(content(file), "GIMP Palette");
    EXPECT_FALSE(fs::exists(note(moved)) || fs::exists(moved.inTrash));
}

TEST_F(Trashes, NothingIsPutBackOverAnythingNorOutOfNothing) {
    fs::create_directory(folder_ / "sub");
    const auto first = trashed(folder_.write("sub/a.gpl", "first"));
    const auto second = trashed(folder_.write("sub/a.gpl", "second"));
    EXPECT_EQ(second.inTrash.filename(), "a 2.gpl");
    folder_.write("sub/a.gpl", "newer");
    EXPECT_EQ(putBack(second), "File exists");
    EXPECT_EQ(folder_.content("sub/a.gpl"), "newer");
    fs::remove_all(folder_ / "sub");
    EXPECT_EQ(putBack(second), "the folder that it was in is gone");
    EXPECT_EQ(content(second.inTrash), "second");
    EXPECT_TRUE(fs::exists(note(second)));
    fs::create_directory(folder_ / "sub");
    EXPECT_EQ(putBack(first), "done");
    EXPECT_EQ(folder_.content("sub/a.gpl"), "first");
    EXPECT_EQ(putBack(first), "it is no longer in the Trash");
}

TEST_F(Trashes, WhatCannotBeTrashedStays) {
    const auto file = folder_.write("a.gpl", "kept");
    fs::create_directories(folder_ / "not/yet/there/Trash/files");
    folder_.write("not/yet/there/Trash/info", "a file where a folder should be");
    EXPECT_EQ(std::get<FileError>(trash_.trash(file)).why, "Not a directory");
    EXPECT_EQ(content(file), "kept");
}

TEST_F(Trashes, AFileOfAnotherFileSystemStaysThereAlsoBehindALink) {
    const TemporaryFolder elsewhere("/dev/shm");
    struct stat here {
    }, there{};
    ::stat(folder_.path().c_str(), &here);
    if (::stat(elsewhere.path().c_str(), &there) != 0 || here.st_dev == there.st_dev)
        GTEST_SKIP() << "this machine has no other file system to write to";
    const auto trash = fs::path("/dev/shm/.Trash-" + std::to_string(::getuid()));
    const bool isNew = !fs::exists(trash);
    fs::create_directory_symlink(elsewhere.path(), folder_ / "link");
    const auto file = folder_.write("link/a b.gpl", "content");
    const auto moved = trashed(file);
    EXPECT_EQ(moved, (TrashedFile{file, trash / "files/a b.gpl"}));
    const auto path = "\nPath=" + elsewhere.path().filename().string() + "/a%20b.gpl\n";
    EXPECT_THAT(content(note(moved)), testing::HasSubstr(path));
    EXPECT_EQ(putBack(moved), "done");
    EXPECT_EQ(elsewhere.content("a b.gpl"), "content");
    if (isNew) fs::remove_all(trash);
}

} // namespace
} // namespace tintra
