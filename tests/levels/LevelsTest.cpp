#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const std::map<std::string, int> kLevels{
    {"mix", 0},   {"platform", 0}, {"resources", 0}, {"colour", 1},      {"palettes", 2},
    {"state", 3}, {"cli", 4},      {"ui", 4},        {"integration", 4},
};

struct Include {
    std::string file, includedFolder, folder;
};

std::string topOf(const fs::path& path) {
    return path.begin()->string();
}

/// The includes between folders of the source tree, in every file of the levelled folders.
std::vector<Include> includes() {
    const fs::path root = TINTRA_SOURCE;
    const std::regex pattern(R"re(^\s*#\s*include\s*"([^"]+)")re");
    std::vector<Include> found;
    for (const auto& [folder, level] : kLevels) {
        if (!fs::exists(root / folder)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
            if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
            std::ifstream in(entry.path());
            std::smatch match;
            for (std::string line; std::getline(in, line);)
                if (std::regex_search(line, match, pattern))
                    found.push_back({entry.path().string(), topOf(match[1].str()), folder});
        }
    }
    return found;
}

TEST(Levels, AFolderIncludesOnlyItselfAndLowerOnes) {
    const auto found = includes();
    ASSERT_GT(found.size(), 50U) << "the scan found hardly any include: is the pattern right?";
    for (const auto& include : found) {
        if (include.includedFolder == include.folder) continue;
        const auto included = kLevels.find(include.includedFolder);
        ASSERT_NE(included, kLevels.end())
            << include.file << " includes from " << include.includedFolder << "/, not a level";
        // Level 0 folders stand side by side; only the platform may take the shipped resources.
        const bool resourceOfPlatform =
            include.folder == "platform" && include.includedFolder == "resources";
        EXPECT_TRUE(included->second < kLevels.at(include.folder) || resourceOfPlatform)
            << include.file << " includes upward from " << include.includedFolder << "/";
    }
}

TEST(Levels, TheCoreKnowsNoToolkit) {
    const fs::path root = TINTRA_SOURCE;
    const std::regex toolkit(R"(#\s*include\s*<Q[A-Z])");
    for (const auto* folder : {"mix", "colour", "palettes"}) {
        if (!fs::exists(root / folder)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
            std::ifstream in(entry.path());
            for (std::string line; std::getline(in, line);)
                EXPECT_FALSE(std::regex_search(line, toolkit)) << entry.path() << ": " << line;
        }
    }
}

} // namespace
