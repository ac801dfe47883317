#include "tools/cmyk/WholeFile.h"

#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>

namespace tintra::cmyk {
namespace {

bool writeBytes(const std::filesystem::path& path, std::span<const std::uint8_t> bytes) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    for (const std::uint8_t byte : bytes) {
        file.put(static_cast<char>(byte));
    }
    file.close();
    return !file.fail();
}

} // namespace

void writeWholeFile(const std::filesystem::path& path, std::span<const std::uint8_t> bytes) {
    std::filesystem::path partial = path;
    partial += ".partial";
    std::error_code error;
    if (writeBytes(partial, bytes)) {
        std::filesystem::rename(partial, path, error);
        if (!error) {
            return;
        }
    }
    std::error_code ignored;
    std::filesystem::remove(partial, ignored);
    throw std::runtime_error("cannot write " + path.string());
}

} // namespace tintra::cmyk
