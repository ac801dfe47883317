#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace tintra {

/// A folder of its own for a test, removed with everything in it. No two are the same, also where
/// tests run side by side.
class TemporaryFolder {
public:
    explicit TemporaryFolder(
        const std::filesystem::path& in = std::filesystem::temp_directory_path()) {
        auto name = (in / "tintra-test-XXXXXX").string();
        if (::mkdtemp(name.data()) != nullptr) path_ = name;
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

    /// Writes a file and answers its path.
    std::filesystem::path write(std::string_view name, std::string_view content) const {
        std::ofstream(path_ / name, std::ios::binary) << content;
        return path_ / name;
    }
    std::string content(std::string_view name) const {
        std::ifstream in(path_ / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

private:
    std::filesystem::path path_;
};

} // namespace tintra
