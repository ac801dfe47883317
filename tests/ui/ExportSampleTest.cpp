#include "ui/exporting/ExportSample.h"

#include "ui/shared/Text.h"

#include <gtest/gtest.h>

namespace tintra {
namespace {

TEST(ExportSample, ChipsStandBeforeTheCodes) {
    ExportJob job;
    job.name = "\"colors\": [ #\n: x | y";
    job.colors = {{1, 0, 0, 1}, {0, 0, 1, 0.5}, {1, 1, 1, 1}, {0, 0, 0, 1}, {0, 1, 0, 1}};
    // Names that look like what stands before codes.
    job.names = {"\"hex\": \"#00ff00", "a | b | #00ff00", ": #00ff00; background:", "\n#\n", {}};
    const char* codes[] = {"#ff0000", "#0000ff", "#ffffff", "#000000", "#00ff00"};
    const char* numbers[] = {"255   0   0", "  0   0 255", "255 255 255", "  0   0   0",
                             "  0 255   0"};
    for (const auto format : allExportFormats()) {
        if (!isText(format) || format == ExportFormat::svg) continue;
        job.format = format;
        const auto sample = sampleOf(job);
        ASSERT_EQ(sample.chips.size(), job.colors.size()) << rawValue(format);
        for (std::size_t i = 0; i < sample.chips.size(); ++i) {
            const auto& chip = sample.chips[i];
            const auto behind = sample.lines[chip.line].mid(chip.character);
            const auto* code = format == ExportFormat::gpl ? numbers[i] : codes[i];
            EXPECT_TRUE(behind.startsWith(QLatin1String(code)))
                << rawValue(format) << " " << toUtf8(behind);
            EXPECT_EQ(chip.color.a, holdsAlpha(format) ? job.colors[i].a : 1);
        }
    }
}

TEST(ExportSample, AHugePaletteIsShownInPart) {
    ExportJob job;
    job.colors.assign(1000, {0.5, 0.5, 0.5, 1});
    for (const auto format : {ExportFormat::json, ExportFormat::svg, ExportFormat::png}) {
        job.format = format;
        const auto sample = sampleOf(job);
        ASSERT_TRUE(sample.content) << rawValue(format);
        EXPECT_LE(sample.lines.size(), 5000U);
        EXPECT_LE(sample.picture.width(), 4096);
        EXPECT_EQ(sample.linesLeftOut > 0, !sample.lines.empty()) << rawValue(format);
    }
    EXPECT_FALSE(sampleOf({}).content) << "nothing to write";
}

} // namespace
} // namespace tintra
