#include "palettes/PaletteFile.h"
#include "platform/ColourList.h"
#include "platform/File.h"
#include "platform/Number.h"

#include <benchmark/benchmark.h>

#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

namespace tintra {
namespace {

constexpr int kSwatches = 50'000;
constexpr int kFiles = 1'000;

void appendBigEndian(std::string& out, std::uint32_t value, int size) {
    for (int i = size - 1; i >= 0; --i)
        out += static_cast<char>(static_cast<unsigned char>(value >> (8 * i)));
}

std::string nameOf(int number) {
    std::string name = "Swatch number ";
    appendInteger(name, number);
    return name;
}

std::string aseFile(int swatches) {
    std::string file = "ASEF";
    appendBigEndian(file, 0x0001'0000, 4);
    appendBigEndian(file, static_cast<std::uint32_t>(swatches), 4);
    for (int i = 0; i < swatches; ++i) {
        const auto name = nameOf(i);
        const auto units = static_cast<std::uint32_t>(name.size() + 1);
        appendBigEndian(file, 1, 2);
        appendBigEndian(file, 2 + 2 * units + 4 + 12 + 2, 4);
        appendBigEndian(file, units, 2);
        for (const char c : name)
            appendBigEndian(file, static_cast<unsigned char>(c), 2);
        appendBigEndian(file, 0, 2);
        file += "RGB ";
        for (int c = 0; c < 3; ++c)
            appendBigEndian(file, 0x3F00'0000, 4); // 0.5
        appendBigEndian(file, 2, 2);
    }
    return file;
}

std::string gplFile(int lines) {
    std::string file = "GIMP Palette\nName: Benchmark\nColumns: 16\n#\n";
    for (int i = 0; i < lines; ++i) {
        for (const int byte : {i % 256, i / 256 % 256, 128}) {
            appendInteger(file, byte);
            file += ' ';
        }
        file += '\t' + nameOf(i) + '\n';
    }
    return file;
}

void readAse(benchmark::State& state) {
    const auto file = aseFile(kSwatches);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(PaletteFile::ase(asBytes(file)));
}
BENCHMARK(readAse)->Unit(benchmark::kMillisecond);

void readGpl(benchmark::State& state) {
    const auto file = gplFile(kSwatches);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(PaletteFile::gpl(asBytes(file)));
}
BENCHMARK(readGpl)->Unit(benchmark::kMillisecond);

/// A keyed archive of a fifth as many colours.
void readClr(benchmark::State& state) {
    std::vector<ColourListEntry> entries;
    entries.reserve(kSwatches / 5);
    for (int i = 0; i < kSwatches / 5; ++i)
        entries.push_back({nameOf(i), {ColourSpace::sRGB(), {i / 1e4, 0.5, 0.25}, 1}});
    const auto file = writeColourList(entries);
    if (!file) std::abort();
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(PaletteFile::clr(*file));
}
BENCHMARK(readClr)->Unit(benchmark::kMillisecond);

/// A folder of small palettes that goes away with its owner.
class Folder {
public:
    Folder() : path_(std::filesystem::temp_directory_path() / "tintra-bench-XXXXXX") {
        auto pattern = path_.string();
        if (::mkdtemp(pattern.data()) == nullptr) std::abort();
        path_ = pattern;
        const auto content = aseFile(8);
        for (int i = 0; i < kFiles; ++i) {
            files_.push_back(path_ / (nameOf(i) + ".ase"));
            if (writeFile(files_.back(), asBytes(content), Existing::refuse)) std::abort();
        }
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::vector<std::filesystem::path>& files() const { return files_; }

private:
    std::filesystem::path path_;
    std::vector<std::filesystem::path> files_;
};

void readThousandFiles(benchmark::State& state) {
    const Folder folder;
    for ([[maybe_unused]] auto _ : state)
        for (const auto& file : folder.files())
            benchmark::DoNotOptimize(PaletteFile::readNamed(file));
}
BENCHMARK(readThousandFiles)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tintra
