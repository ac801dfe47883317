#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

const std::map<std::string, int> kLevels{
    {"mix", 0},   {"platform", 0}, {"resources", 0},   {"colour", 1}, {"palettes", 2},
    {"state", 3}, {"cli", 4},      {"integration", 4}, {"ui", 5},
};

struct Include {
    std::string file, includedFolder, folder;
};

std::string topOf(const fs::path& path) {
    return path.begin()->string();
}

/// What an include directive names behind `opening` (a quotation mark or "<"); nothing for any
/// other line.
std::optional<std::string> includedBy(const std::string& line, char opening) {
    const auto hash = line.find_first_not_of(" \t");
    if (hash == std::string::npos || line[hash] != '#') return std::nullopt;
    const auto directive = line.find("include", hash);
    const auto begin = line.find(opening, hash);
    if (directive == std::string::npos || begin == std::string::npos) return std::nullopt;
    const auto end = line.find(opening == '<' ? '>' : opening, begin + 1);
    return line.substr(begin + 1, end - begin - 1);
}

/// The includes between folders of the source tree, in every file of the levelled folders.
std::vector<Include> includes() {
    const fs::path root = TINTRA_SOURCE;
    std::vector<Include> found;
    for (const auto& [folder, level] : kLevels) {
        if (!fs::exists(root / folder)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
            if (entry.path().extension() != ".h" && entry.path().extension() != ".cpp") continue;
            std::ifstream in(entry.path());
            for (std::string line; std::getline(in, line);)
                if (const auto included = includedBy(line, '"'))
                    found.push_back({entry.path().string(), topOf(*included), folder});
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
    for (const auto* folder : {"mix", "colour", "palettes"}) {
        if (!fs::exists(root / folder)) continue;
        for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
            std::ifstream in(entry.path());
            for (std::string line; std::getline(in, line);)
                EXPECT_FALSE(includedBy(line, '<').value_or("").starts_with('Q'))
                    << entry.path() << ": " << line;
        }
    }
}

} // namespace
