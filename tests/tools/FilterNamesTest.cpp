#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

class FilterNames : public testing::Test {
protected:
    void SetUp() override {
        fs::remove_all(folder_);
        fs::create_directories(folder_);
        write("list", "#ff0000\tRed\n#00ff00\tLime #1\n#0000ff\tBlue\n");
    }
    void TearDown() override { fs::remove_all(folder_); }

    void write(const std::string& name, const std::string& text) const {
        std::ofstream(folder_ / name) << text;
    }
    /// Whether the tool succeeded.
    bool run() const {
        const auto at = [this](const char* name) { return " " + (folder_ / name).string(); };
        return std::system((TINTRA_FILTER_TOOL + at("list") + at("removed") + at("out") +
                            " 2>/dev/null")
                               .c_str()) == 0;
    }
    std::string out() const {
        std::ifstream in(folder_ / "out");
        return {std::istreambuf_iterator<char>(in), {}};
    }

    const fs::path folder_ = fs::temp_directory_path() / "tintra-filter-names";
};

TEST_F(FilterNames, LeavesOutWholeNamesOnly) {
    write("removed", "# a remark\nLime #1\n");
    EXPECT_TRUE(run());
    EXPECT_EQ(out(), "#ff0000\tRed\n#0000ff\tBlue\n");
}

TEST_F(FilterNames, FailsOnANameThatTheListLacks) {
    write("removed", "Lime\n");
    EXPECT_FALSE(run());
}

} // namespace
