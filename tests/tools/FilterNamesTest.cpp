#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

class FilterNames : public testing::Test {
protected:
    void SetUp() override {
        folder_.write("list", "#ff0000\tRed\n#00ff00\tLime #1\n#0000ff\tBlue\n");
    }

    /// Whether the tool succeeded.
    bool run() const {
        const auto at = [this](const char* name) { return " " + (folder_ / name).string(); };
        return std::system(
                   (TINTRA_FILTER_TOOL + at("list") + at("removed") + at("out") + " 2>/dev/null")
                       .c_str()) == 0;
    }

    const tintra::TemporaryFolder folder_;
};

TEST_F(FilterNames, LeavesOutWholeNamesOnly) {
    folder_.write("removed", "# a remark\nLime #1\n");
    EXPECT_TRUE(run());
    EXPECT_EQ(folder_.content("out"), "#ff0000\tRed\n#0000ff\tBlue\n");
}

TEST_F(FilterNames, FailsOnANameThatTheListLacks) {
    folder_.write("removed", "Lime\n");
    EXPECT_FALSE(run());
}

} // namespace
