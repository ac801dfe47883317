#include "platform/File.h"

#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace tintra {
namespace {

namespace fs = std::filesystem;

class Files : public testing::Test {
protected:
    static std::string content(const fs::path& path) {
        const auto read = readFile(path);
        return std::string(asText(std::get<Bytes>(read)));
    }
    static std::optional<FileError> write(const fs::path& path, std::string_view text,
                                          Existing existing) {
        return writeFile(path, asBytes(text), existing);
    }
    std::size_t fileCount() const {
        return static_cast<std::size_t>(
            std::distance(fs::directory_iterator(folder_.path()), fs::directory_iterator()));
    }

    const TemporaryFolder folder_;
};

TEST_F(Files, ANewFileHasTheUsualPermissionsAndNothingElseIsLeft) {
    const mode_t old = ::umask(027);
    EXPECT_FALSE(write(folder_ / "a", "one", Existing::refuse));
    ::umask(old);
    EXPECT_EQ(content(folder_ / "a"), "one");
    EXPECT_EQ(fileCount(), 1U);
    EXPECT_EQ(fs::status(folder_ / "a").permissions(), static_cast<fs::perms>(0640));
}

TEST_F(Files, AnExistingFileIsRefusedOrReplacedWithItsPermissions) {
    ASSERT_FALSE(write(folder_ / "a", "one", Existing::refuse));
    fs::permissions(folder_ / "a", static_cast<fs::perms>(0604));
    const auto refused = write(folder_ / "a", "two", Existing::refuse);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->why, "File exists");
    EXPECT_EQ(content(folder_ / "a"), "one");
    EXPECT_FALSE(write(folder_ / "a", "two", Existing::replace));
    EXPECT_EQ(content(folder_ / "a"), "two");
    EXPECT_EQ(fs::status(folder_ / "a").permissions(), static_cast<fs::perms>(0604));
    EXPECT_EQ(fileCount(), 1U);
}

TEST_F(Files, ALinkStaysAndItsTargetIsReplaced) {
    ASSERT_FALSE(write(folder_ / "target", "one", Existing::refuse));
    fs::create_symlink("target", folder_ / "link");
    EXPECT_TRUE(write(folder_ / "link", "two", Existing::refuse));
    EXPECT_FALSE(write(folder_ / "link", "two", Existing::replace));
    EXPECT_TRUE(fs::is_symlink(folder_ / "link"));
    EXPECT_EQ(content(folder_ / "target"), "two");
}

TEST_F(Files, WhatCannotBeWrittenSaysWhyAndLeavesNothing) {
    fs::create_directory(folder_ / "sub");
    EXPECT_EQ(write(folder_ / "sub", "x", Existing::replace)->why, "Is a directory");
    EXPECT_EQ(write(folder_ / "none" / "a", "x", Existing::refuse)->why,
              "No such file or directory");
    EXPECT_EQ(fileCount(), 1U);
}

TEST_F(Files, WhatCannotBeReadSaysWhy) {
    const auto why = [](const auto& result) { return std::get<FileError>(result).why; };
    EXPECT_EQ(why(readFile(folder_.path())), "Is a directory");
    EXPECT_EQ(why(readFile(folder_ / "none")), "No such file or directory");
    ASSERT_FALSE(write(folder_ / "a", "12345", Existing::refuse));
    EXPECT_EQ(why(readFile(folder_ / "a", 4)), "the file is too large");
    EXPECT_EQ(content("/dev/null"), "");
    // A device has no size: the limit holds while it is read.
    EXPECT_EQ(why(readFile("/dev/zero", 100000)), "the file is too large");
}

} // namespace
} // namespace tintra
