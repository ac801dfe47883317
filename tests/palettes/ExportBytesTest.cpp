#include "palettes/PaletteExport.h"
#include "platform/PngEncoder.h"

#include <gtest/gtest.h>
#include <png.h>

#include <algorithm>
#include <cstdint>
#include <stdexcept>

namespace tintra {
namespace {

using PaletteExport::Entry;

Bytes bytes(std::initializer_list<int> values) {
    Bytes out;
    for (const int value : values)
        out.push_back(static_cast<std::byte>(value));
    return out;
}

TEST(ExportAse, WritesTheBytesOfTheFormat) {
    const Entry entries[] = {{{1, 0.5, 0, 1}, "A\u00E9"}, {{-1, 2, 0.2, 0.5}, "\U0001F3A8"}};
    // 128/255 is 0x3F008081 as a 32-bit float, 51/255 is 0x3E4CCCCD.
    EXPECT_EQ(PaletteExport::ase(entries),
              bytes({
                  'A',  'S',  'E',  'F',  0,    1,    0,    0,    0,    0,    0,    2,    0,
                  1,    0,    0,    0,    26,   0,    3,    0,    'A',  0,    0xE9, 0,    0,
                  'R',  'G',  'B',  ' ',  0x3F, 0x80, 0,    0,    0x3F, 0x00, 0x80, 0x81, 0,
                  0,    0,    0,    0,    2,    0,    1,    0,    0,    0,    26,   0,    3,
                  0xD8, 0x3C, 0xDF, 0xA8, 0,    0,    'R',  'G',  'B',  ' ',  0,    0,    0,
                  0,    0x3F, 0x80, 0,    0,    0x3E, 0x4C, 0xCC, 0xCD, 0,    2,
              }));
}

TEST(ExportAse, CutsALongNameBetweenCharacters) {
    struct Row {
        std::string name;
        std::size_t units; ///< with the terminator
    };
    // The palette sign is two units long, so it fits an even place and not an odd one.
    const Row rows[] = {
        {std::string(65'534, 'x'), 65'535},
        {std::string(70'000, 'x'), 65'535},
        {std::string(65'532, 'x') + "\U0001F3A8", 65'535},
        {std::string(65'533, 'x') + "\U0001F3A8", 65'534},
    };
    for (const auto& [name, units] : rows) {
        const Entry entry[] = {{{}, name}};
        const auto file = PaletteExport::ase(entry);
        EXPECT_EQ(file.size(), 12 + 6 + 2 + 2 * units + 4 + 12 + 2);
        EXPECT_EQ(std::to_integer<std::size_t>(file[18]) << 8U |
                      std::to_integer<std::size_t>(file[19]),
                  units);
    }
}

/// A picture as an independent decoder sees it.
struct Picture {
    std::size_t width = 0, height = 0;
    std::vector<Rgba8> pixels;
};

Picture decoded(const std::optional<Bytes>& file) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (!file || png_image_begin_read_from_memory(&image, file->data(), file->size()) == 0)
        return {};
    EXPECT_EQ(image.format, unsigned{PNG_FORMAT_RGBA}); // no other format: 8 bits, sRGB
    Picture picture{image.width, image.height, {}};
    picture.pixels.resize(picture.width * picture.height);
    EXPECT_NE(png_image_finish_read(&image, nullptr, picture.pixels.data(), 0, nullptr), 0);
    return picture;
}

TEST(ExportPng, IsRowsOfSquares) {
    struct Row {
        std::size_t count, width, height, side;
    };
    // 256 squares a row; 100,000 squares of 16 pixels are the most that 4,096 of 80 cover.
    const Row rows[] = {{3, 240, 80, 80}, {257, 20480, 160, 80}, {100'000, 4096, 6256, 16}};
    const WashColor colours[] = {{1, 0.5, 0, 1}, {0, 0, 1, 0.5}, {1, 1, 1, 0.9992}};
    const Rgba8 pixels[] = {{255, 128, 0, 255}, {0, 0, 255, 128}, {255, 255, 255, 255}};
    for (const auto& [entryCount, width, height, side] : rows) {
        std::vector<Entry> entries(entryCount);
        for (std::size_t at = 0; at < entryCount; ++at)
            entries[at].color = colours[at % 3];
        const auto file = PaletteExport::png(entries);
        const auto picture = decoded(file);
        ASSERT_EQ(picture.width, width);
        ASSERT_EQ(picture.height, height);
        EXPECT_NE(asText(*file).find("sRGB"), std::string_view::npos);
        std::size_t wrong = 0;
        for (std::size_t y = 0; y < height; ++y)
            for (std::size_t x = 0; x < width; ++x) {
                const auto square = y / side * 256 + x / side;
                const auto expected = square < entryCount ? pixels[square % 3] : Rgba8{};
                wrong += picture.pixels[y * width + x] == expected ? 0 : 1;
            }
        EXPECT_EQ(wrong, 0U) << entryCount;
    }
    EXPECT_EQ(PaletteExport::png({}), std::nullopt);
}

TEST(PngEncoder, RefusesSizesAndPassesExceptionsOn) {
    const auto blank = [](std::size_t, std::span<Rgba8>) {};
    for (const PictureSize size : {PictureSize{0, 1}, {1, 0}, {1'000'001, 1}, {-1, 1}})
        EXPECT_EQ(encodePng(size, blank), std::nullopt);
    EXPECT_THROW(encodePng({2, 2},
                           [](std::size_t y, auto) {
                               if (y == 1) throw std::runtime_error("no");
                           }),
                 std::runtime_error);
}

} // namespace
} // namespace tintra
