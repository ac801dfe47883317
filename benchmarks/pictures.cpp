// The colours of pictures: the steps for the largest reduced picture, and whole runs of the program
// beside `djpeg -scale 1/8`, which does the least that any reader of a JPEG has to do.

#include "benchmarks/RunProgram.h"
#include "palettes/ImagePalette.h"
#include "palettes/image/Clustering.h"
#include "palettes/image/Seeds.h"

#include <benchmark/benchmark.h>
#include <unistd.h>

#include <QImage>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

namespace tintra {
namespace {

using bench::wholeRuns;
using namespace ImagePalette;

/// Waves of colour under grain, as a photograph has them: no flat areas, no clear clusters.
QImage scene(int width, int height) {
    std::mt19937 random(1); // NOLINT(cert-msc*): the same scene each time
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const double u = 9.0 * x / width, v = 6.0 * y / height;
            const auto level = [&](double wave) {
                const int grain = static_cast<int>(random() % 24U) - 12;
                return std::clamp(static_cast<int>(127 + 100 * wave) + grain, 0, 255);
            };
            image.setPixel(x, y,
                           qRgb(level(std::sin(u) * std::cos(v)), level(std::sin(u * v / 5)),
                                level(std::cos(u - v))));
        }
    return image;
}

Pixels largestSample() {
    const auto image = scene(kSampledSide, kSampledSide).convertToFormat(QImage::Format_RGBA8888);
    return sample(PixelBuffer{{kSampledSide, kSampledSide},
                              {image.constBits(), image.constBits() + image.sizeInBytes()}});
}

void clustering(benchmark::State& state) {
    const auto pixels = largestSample();
    const auto centres = seeds(pixels.samples, static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(cluster(pixels.samples, centres));
    state.counters["samples"] = static_cast<double>(pixels.samples.size());
}
BENCHMARK(clustering)->Arg(24)->Arg(96)->Unit(benchmark::kMillisecond);

void sampling(benchmark::State& state) {
    const auto image = scene(kSampledSide, kSampledSide).convertToFormat(QImage::Format_RGBA8888);
    const PixelBuffer buffer{{kSampledSide, kSampledSide},
                             {image.constBits(), image.constBits() + image.sizeInBytes()}};
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(sample(buffer));
}
BENCHMARK(sampling)->Unit(benchmark::kMillisecond);

/// Picture files that stay for the run of the benchmarks.
class Files {
public:
    Files()
        : folder_(std::filesystem::temp_directory_path() /
                  ("tintra-bench-" + std::to_string(::getpid()))),
          photo((folder_ / "photo.jpg").string()), png((folder_ / "picture.png").string()) {
        std::filesystem::create_directories(folder_);
        // Painted in another process: what this one holds counts in the memory of every program
        // that it starts.
        if (const auto painter = ::fork(); painter == 0) {
            const auto large = scene(6000, 4000);
            large.save(QString::fromStdString(photo), "JPEG", 90);
            large.scaled(1000, 1000).save(QString::fromStdString(png), "PNG");
            std::_Exit(0);
        } else {
            ::waitpid(painter, nullptr, 0);
        }
    }
    ~Files() { std::filesystem::remove_all(folder_); }
    Files(const Files&) = delete;
    Files& operator=(const Files&) = delete;

private:
    std::filesystem::path folder_;

public:
    std::string photo; ///< 24 megapixels, baseline
    std::string png;   ///< 1 megapixel
};

const Files& files() {
    static const Files made;
    return made;
}

void extractJpeg(benchmark::State& state) {
    wholeRuns(state, {TINTRA_PROGRAM, "extract", files().photo.c_str()});
}
void djpegEighth(benchmark::State& state) {
    wholeRuns(state, {"djpeg", "-scale", "1/8", files().photo.c_str()});
}
void extractPng(benchmark::State& state) {
    wholeRuns(state, {TINTRA_PROGRAM, "extract", files().png.c_str()});
}
BENCHMARK(extractJpeg)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(djpegEighth)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(extractPng)->UseManualTime()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tintra
