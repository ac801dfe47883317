#include "platform/Pictures.h"

#include "platform/ColourSpace.h"
#include "tests/desktop/SamplePictures.h"
#include "tests/support/ByteBuilder.h"

#include <gtest/gtest.h>

#include <QColorSpace>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <map>
#include <random>

namespace tintra {

std::ostream& operator<<(std::ostream& out, const Rgba8& pixel) {
    return out << int{pixel.r} << ' ' << int{pixel.g} << ' ' << int{pixel.b} << ' ' << int{pixel.a};
}

namespace {

using test::encoded;
using test::fromBase64;
using test::halves;

using Shared = std::shared_ptr<const Picture>;

constexpr Rgba8 kRed{255, 0, 0, 255}, kBlue{0, 0, 255, 255};

/// Null when the content is refused.
Shared opened(ByteView content, const PictureLimits& limits = {}) {
    auto result = openPicture(content, limits);
    const auto* picture = std::get_if<Shared>(&result);
    return picture == nullptr ? nullptr : *picture;
}

Rgba8 at(const PixelBuffer& pixels, int x, int y) {
    const auto i = 4 * static_cast<std::size_t>(y * pixels.size.width + x);
    return {pixels.rgba[i], pixels.rgba[i + 1], pixels.rgba[i + 2], pixels.rgba[i + 3]};
}

Rgba8 pixel(const Picture& picture, int column, int row) {
    const auto result = picture.pixel(column, row);
    const auto* found = std::get_if<Rgba8>(&result);
    return found == nullptr ? Rgba8{} : *found;
}

PixelBuffer reduced(const Picture& picture, int side, AlphaForm form = AlphaForm::straight) {
    auto result = picture.reduced(side, form);
    auto* pixels = std::get_if<PixelBuffer>(&result);
    return pixels == nullptr ? PixelBuffer{} : std::move(*pixels);
}

bool near(const Rgba8& p, const Rgba8& q, int tolerance) {
    return std::abs(p.r - q.r) <= tolerance && std::abs(p.g - q.g) <= tolerance &&
           std::abs(p.b - q.b) <= tolerance && p.a == q.a;
}

/// A picture of 64 by 32, red and blue, by libaom and x265.
constexpr const char* kAvif =
    "AAAAHGZ0eXBhdmlmAAAAAGF2aWZtaWYxbWlhZgAAAOptZXRhAAAAAAAAACFoZGxyAAAAAAAAAABwaWN0AAAAAAAAAAAA"
    "AAAAAAAAAA5waXRtAAAAAAABAAAAImlsb2MAAAAAREAAAQABAAAAAAEOAAEAAAAAAAAAKAAAACNpaW5mAAAAAAABAAAA"
    "FWluZmUCAAAAAAEAAGF2MDEAAAAAamlwcnAAAABLaXBjbwAAABNjb2xybmNseAACAAIABoAAAAAMYXYxQ4EADAAAAAAU"
    "aXNwZQAAAAAAAABAAAAAIAAAABBwaXhpAAAAAAMICAgAAAAXaXBtYQAAAAAAAAABAAEEgYIDhAAAADBtZGF0EgAKBhgV"
    "P/sCEDIcEYAAAECyi0gJsqMikszAt1qNrO/n7ekcfmGPmQ==";
constexpr const char* kHeic =
    "AAAAHGZ0eXBoZWljAAAAAG1pZjFoZWljbWlhZgAAAaptZXRhAAAAAAAAACFoZGxyAAAAAAAAAABwaWN0AAAAAAAAAAAA"
    "AAAAAAAAAA5waXRtAAAAAAACAAAAEGlkYXQAAAAAAEAAIAAAADhpbG9jAQAAAERAAAIAAQAAAAAAAAHOAAEAAAAAAAAA"
    "jgACAAEAAAAAAAAAAQAAAAAAAAAIAAAAOGlpbmYAAAAAAAIAAAAVaW5mZQIAAAEAAQAAaHZjMQAAAAAVaW5mZQIAAAAA"
    "AgAAZ3JpZAAAAADVaXBycAAAALNpcGNvAAAAc2h2Y0MBA3AAAAAAAAAAAAAe8AD8/fj4AAAPAyAAAQAYQAEMAf//A3AA"
    "AAMAkAAAAwAAAwAeugJAIQABACdCAQEDcAAAAwCQAAADAAADAB6gIIEFlurkprmwIAAAAwAgAAADACEiAAEABkQBwXPA"
    "iQAAABRpc3BlAAAAAAAAAEAAAABAAAAAFGlzcGUAAAAAAAAAQAAAACAAAAAQcGl4aQAAAAADCAgIAAAAGmlwbWEAAAAA"
    "AAAAAgABAoECAAICA4QAAAAaaXJlZgAAAAAAAAAOZGltZwACAAEAAQAAAJZtZGF0AAAAiigBrwY4iS58L/ajX///s9P9"
    "l/kw5KaZf4+hXI/5W7n//4zGpv/ATs0T9bJQ1ZyXuwR0xhlteo5eLFSIzQB/A9kJdqtANlHYrs2PVlrKD+BExrceEWBQ"
    "c6h2fsAGDTLg5qUV1HDk5xqStZ1z8JLDjk270qmXo9qTvp6BzVf396AplRBiSls9IaERwA==";
/// The same of 16 by 8.
constexpr const char* kGif =
    "R0lGODlhEAAIAPAAAP8AAAAA/yH5BAAAAAAALAAAAAAQAAgAAAIThG+hq4jM3IFLJhoswN"
    "ly/XlYAQA7";
/// Inks: red and blue halves of 16 by 8.
constexpr const char* kCmykJpeg =
    "/9j/7gAOQWRvYmUAZAAAAAAC/9sAQwANCQoLCggNCwoLDg4NDxMgFRMSEhMnHB4XIC4pMTAuKS0sMzpKPjM2RjcsLUBX"
    "QUZMTlJTUjI+WmFaUGBKUVJP/9sAQwEODg4TERMmFRUmTzUtNU9PT09PT09PT09PT09PT09PT09PT09PT09PT09PT09P"
    "T09PT09PT09PT09PT09PT09P/8AAFAgACAAQBAERAAIRAQMRAQQRAP/EABYAAQEBAAAAAAAAAAAAAAAAAAUAB//EABQQ"
    "AQAAAAAAAAAAAAAAAAAAAAD/xAAVAQEBAAAAAAAAAAAAAAAAAAAHBf/EABQRAQAAAAAAAAAAAAAAAAAAAAD/2gAOBAEA"
    "AhEDEQQAAD8AfWRs046HSqn/2Q==";

Bytes svg(const std::string& inside, const std::string& attributes = R"(width="64" height="32")") {
    return test::fromText(R"(<?xml version="1.0"?>
<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" )" +
                          attributes + ">" + inside + "</svg>");
}

const std::string kSvgHalves = R"(<rect width="32" height="32" fill="#f00"/>
<rect x="32" width="32" height="32" fill="#00f"/>)";

struct NamedFile {
    const char* name;
    Bytes content;
    int tolerance = 0;
};

std::vector<NamedFile> filesOfHalves() {
    auto translucent = halves(QImage::Format_ARGB32);
    translucent.setPixel(0, 31, 0);
    return {{"png", encoded(halves(), "png")},
            {"png of 16 bit", encoded(halves(QImage::Format_RGBA64), "png")},
            {"png with a palette", encoded(halves(QImage::Format_Indexed8), "png")},
            {"png with alpha", encoded(translucent, "png")},
            {"jpeg", encoded(halves(), "jpeg"), 3},
            {"bmp", encoded(halves(), "bmp")},
            {"tiff", encoded(halves(), "tiff")},
            {"webp", encoded(halves(), "webp"), 6},
            {"gif", fromBase64(kGif)},
            {"svg", svg(kSvgHalves)},
            {"svg without size", svg(kSvgHalves, "")},
            {"svg with a view box alone", svg(kSvgHalves, R"(viewBox="0 0 64 32")")},
            {"avif", fromBase64(kAvif), 12},
            {"heic", fromBase64(kHeic), 12}};
}

TEST(Pictures, EveryKindIsReadWholeReducedAndAtAPoint) {
    for (const auto& [name, content, tolerance] : filesOfHalves()) {
        SCOPED_TRACE(name);
        const auto picture = opened(content);
        ASSERT_NE(picture, nullptr);
        const auto [width, height] = picture->size();
        EXPECT_EQ(width, 2 * height);
        const auto small = reduced(*picture, 4);
        ASSERT_EQ(small.size, (PictureSize{4, 2}));
        EXPECT_PRED3(near, at(small, 0, 0), kRed, tolerance);
        EXPECT_PRED3(near, at(small, 3, 1), kBlue, tolerance);
        EXPECT_PRED3(near, pixel(*picture, 1, height / 2), kRed, tolerance);
        EXPECT_PRED3(near, pixel(*picture, width - 1, height - 1), kBlue, tolerance);
        EXPECT_EQ(reduced(*picture, 1000).size, picture->size()) << "never enlarged";
        for (const auto& [x, y] : {std::pair{-1, 0}, {0, -1}, {width, 0}, {0, height}})
            EXPECT_TRUE(std::holds_alternative<PictureError>(picture->pixel(x, y)));
    }
}

TEST(Pictures, GreyAndInkPicturesAreRead) {
    QImage grey(8, 8, QImage::Format_Grayscale8);
    grey.fill(100);
    for (const char* format : {"png", "jpeg"}) {
        const auto picture = opened(encoded(grey, format));
        ASSERT_NE(picture, nullptr);
        EXPECT_EQ(pixel(*picture, 3, 3), (Rgba8{100, 100, 100, 255})) << format;
    }
    const auto inks = opened(fromBase64(kCmykJpeg));
    ASSERT_NE(inks, nullptr);
    EXPECT_PRED3(near, pixel(*inks, 2, 2), kRed, 16);
    EXPECT_PRED3(near, pixel(*inks, 13, 5), kBlue, 16);
}

/// The stored top left, top right, bottom left and bottom right corner as they are shown, by
/// orientation 1 to 8 (Exif 2.3, tag 274): the sides at which row 0 and column 0 stand.
constexpr const char* kShown[] = {"RGBW", "GRWB", "WBGR", "BWRG", "RBGW", "BRWG", "WGBR", "GWRB"};

Bytes withOrientation(const Bytes& jpeg, unsigned orientation) {
    test::ByteBuilder exif;
    exif.u16(0xFFE1).u16(34).text(std::string_view("Exif\0\0MM\0*", 10)).u32(8).u16(1);
    exif.u16(274).u16(3).u32(1).u16(orientation).u16(0).u32(0);
    auto content = jpeg;
    content.insert(content.begin() + 2, exif.built().begin(), exif.built().end());
    return content;
}

TEST(Pictures, OrientationIsAppliedToThePictureAndItsPoints) {
    QImage image(48, 32, QImage::Format_RGB32);
    const std::map<char, QRgb> colours{
        {'R', 0xFFFF0000}, {'G', 0xFF00FF00}, {'B', 0xFF0000FF}, {'W', 0xFFFFFFFF}};
    for (int y = 0; y < 32; ++y)
        for (int x = 0; x < 48; ++x)
            image.setPixel(x, y, colours.at("RGBW"[(y / 16) * 2 + x / 24]));
    const auto jpeg = encoded(image, "jpeg");
    for (unsigned orientation = 1; orientation <= 8; ++orientation) {
        SCOPED_TRACE(orientation);
        const auto picture = opened(withOrientation(jpeg, orientation));
        ASSERT_NE(picture, nullptr);
        const bool turned = orientation > 4;
        EXPECT_EQ(picture->size(), (turned ? PictureSize{32, 48} : PictureSize{48, 32}));
        const auto small = reduced(*picture, 6);
        for (int corner = 0; corner < 4; ++corner) {
            const auto shown = colours.at(kShown[orientation - 1][corner]);
            const Rgba8 expected{static_cast<std::uint8_t>(qRed(shown)),
                                 static_cast<std::uint8_t>(qGreen(shown)),
                                 static_cast<std::uint8_t>(qBlue(shown)), 255};
            const int right = corner % 2, bottom = corner / 2;
            EXPECT_PRED3(
                near, at(small, right * (small.size.width - 1), bottom * (small.size.height - 1)),
                expected, 8);
            EXPECT_PRED3(near,
                         pixel(*picture, 3 + right * (picture->size().width - 7),
                               3 + bottom * (picture->size().height - 7)),
                         expected, 8);
        }
    }
}

TEST(Pictures, EmbeddedProfilesAreConvertedToSrgb) {
    // The bytes that stand for sRGB 200 100 50 and grey 60 in another space.
    const auto inSpace = [](const ColourSpace& space, double r, double g, double b) {
        const auto values = space.fromSrgb({r / 255, g / 255, b / 255}).value();
        const auto byte = [](double v) { return static_cast<int>(std::lround(v * 255)); };
        return qRgb(byte(values[0]), byte(values[1]), byte(values[2]));
    };
    for (const auto& [named, space] :
         {std::pair{QColorSpace::DisplayP3, ColourSpace::displayP3()},
          std::pair{QColorSpace::AdobeRgb, ColourSpace::adobeRGB1998()},
          std::pair{QColorSpace::ProPhotoRgb, ColourSpace::rommRGB()}}) {
        QImage image(32, 16, QImage::Format_RGB32);
        image.fill(inSpace(*space, 200, 100, 50));
        image.setColorSpace(QColorSpace(named));
        for (const char* format : {"png", "jpeg"}) {
            const auto picture = opened(encoded(image, format));
            ASSERT_NE(picture, nullptr);
            const Rgba8 expected{200, 100, 50, 255};
            EXPECT_PRED3(near, pixel(*picture, 5, 5), expected, 4) << space->localizedName();
            EXPECT_PRED3(near, at(reduced(*picture, 4), 2, 1), expected, 4);
        }
    }
}

TEST(Pictures, AreasAreAveragedByAlpha) {
    // 3 by 1 to 2 by 1: each result covers one pixel and half of the middle one.
    QImage image(3, 1, QImage::Format_RGBA8888);
    const Rgba8 pixels[] = {{90, 0, 30, 255}, {30, 60, 0, 255}, {200, 200, 200, 0}};
    std::memcpy(image.scanLine(0), pixels, sizeof pixels);
    const auto picture = opened(encoded(image, "png"));
    ASSERT_NE(picture, nullptr);
    const auto straight = reduced(*picture, 2);
    EXPECT_EQ(at(straight, 0, 0), (Rgba8{70, 20, 20, 255}));
    EXPECT_EQ(at(straight, 1, 0), (Rgba8{30, 60, 0, 85})) << "transparent colours do not show";
    EXPECT_EQ(at(reduced(*picture, 2, AlphaForm::premultiplied), 1, 0), (Rgba8{10, 20, 0, 85}));
    EXPECT_EQ(pixel(*picture, 2, 0).a, 0);

    // Black and white columns of one pixel: a subsample would show one of them.
    QImage stripes(1600, 800, QImage::Format_RGB32);
    for (int y = 0; y < 800; ++y)
        for (int x = 0; x < 1600; ++x)
            stripes.setPixel(x, y, x % 2 == 0 ? 0xFFFFFFFF : 0xFF000000);
    for (const char* format : {"png", "jpeg"}) {
        const auto grey = reduced(*opened(encoded(stripes, format)), 160);
        ASSERT_EQ(grey.size, (PictureSize{160, 80}));
        for (const int x : {0, 79, 159})
            EXPECT_PRED3(near, at(grey, x, 40), (Rgba8{128, 128, 128, 255}), 1) << format;
    }
}

TEST(Pictures, ReducedSizeCutsFractionsOff) {
    const struct {
        PictureSize full;
        PictureSize expected;
    } rows[] = {{{3200, 1600}, {160, 80}}, {{100, 50}, {100, 50}},   {{160, 161}, {159, 160}},
                {{1, 20000}, {1, 160}},    {{481, 480}, {160, 159}}, {{49, 2147483647}, {1, 160}}};
    for (const auto& [full, expected] : rows)
        EXPECT_EQ(reducedSize(full, 160), expected) << full.width << " by " << full.height;
}

TEST(Pictures, SidesOfOneAreRead) {
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 20000}, {20000, 1}}) {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(0xFF336699);
        for (const char* format : {"png", "jpeg"}) {
            const auto small = reduced(*opened(encoded(image, format)), 160);
            EXPECT_EQ(small.size, reducedSize({width, height}, 160));
            EXPECT_PRED3(near, at(small, small.size.width - 1, small.size.height - 1),
                         (Rgba8{0x33, 0x66, 0x99, 255}), 3);
        }
    }
}

PictureError::Kind refusal(const OpenedPicture& result) {
    return std::get<PictureError>(result).kind;
}

TEST(Pictures, WhatClaimsTooMuchIsRefusedBeforeMemoryIsTaken) {
    const auto png = test::ByteBuilder()
                         .text("\x89PNG\r\n\x1a\n")
                         .u32(13)
                         .text("IHDR")
                         .u32(60000)
                         .u32(60000)
                         .u8(1)
                         .u8(0)
                         .u8(0)
                         .u8(0)
                         .u8(0)
                         .u32(0xA8A948EF) // CRC-32 of the chunk
                         .u32(1000)
                         .text("IDAT")
                         .built();
    EXPECT_EQ(refusal(openPicture(ByteView(png))), PictureError::Kind::tooLarge);
    const auto drawing = svg(kSvgHalves, R"(width="60000" height="60000")");
    EXPECT_EQ(refusal(openPicture(ByteView(drawing))), PictureError::Kind::tooLarge);
    const auto small = encoded(halves(), "png");
    EXPECT_EQ(refusal(openPicture(ByteView(small), {8191})), PictureError::Kind::tooLarge);
    EXPECT_NE(opened(small, {8192}), nullptr);
}

TEST(Pictures, WhatIsNoPictureIsRefused) {
    const auto png = encoded(halves(), "png");
    for (const std::string_view text :
         {"", "x", "plain text", "<", "<html><body/></html>", "<svg", "\xff\xd8\xff", "GIF8", "BM",
          "RIFF1234WEBP", "\x89PNG\r\n\x1a\n", "    ftypavif", "<svg xmlns='x'><g></svg>"})
        EXPECT_EQ(refusal(openPicture(asBytes(text))), PictureError::Kind::content) << text;
    EXPECT_EQ(refusal(openPicture(std::filesystem::path("/no/such/file"))),
              PictureError::Kind::file);
    EXPECT_EQ(refusal(openPicture(std::filesystem::path("/"))), PictureError::Kind::file);
}

TEST(Pictures, MutatedFilesGiveAPictureOrAnError) {
    std::mt19937 random(20240229); // NOLINT(cert-msc*): the same faults every time
    for (const auto& [name, content, tolerance] : filesOfHalves()) {
        for (int round = 0; round < 60; ++round) {
            auto mutated = content;
            for (unsigned change = 0; change <= random() % 4; ++change)
                mutated[random() % mutated.size()] = static_cast<std::byte>(random());
            if (round % 3 == 0) mutated.resize(random() % mutated.size());
            const auto picture = opened(mutated, {std::uint64_t{16} << 20U});
            if (picture == nullptr) continue;
            const auto result = picture->reduced(20, AlphaForm::premultiplied);
            if (const auto* pixels = std::get_if<PixelBuffer>(&result)) {
                EXPECT_EQ(pixels->size, reducedSize(picture->size(), 20)) << name;
                EXPECT_EQ(pixels->rgba.size(),
                          4U * static_cast<unsigned>(pixels->size.width * pixels->size.height));
            }
        }
    }
}

} // namespace
} // namespace tintra
