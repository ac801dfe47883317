#include "ui/exporting/ExportSample.h"

#include "colour/ColorFormat.h"
#include "ui/shared/Text.h"

#include <QPainter>
#include <QStringView>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

namespace tintra {
namespace {

constexpr std::size_t kMostLines = 5000;
constexpr qsizetype kLongestLine = 600;
constexpr int kWidestPicture = 4096;

/// Where the codes of a text format stand: in the lines after `start`, each behind `before`. Names
/// cannot hold either of them: the writers escape what they are made of.
struct CodePlace {
    ExportFormat format;
    std::string_view start, before;
};
constexpr std::array kCodePlaces{
    CodePlace{ExportFormat::json, "\"colors\": [\n", "\"hex\": \""},
    CodePlace{ExportFormat::xml, "\">\n", " hex=\""},
    CodePlace{ExportFormat::html, "<div class=\"palette\">\n", "<figure style=\"background:"},
    CodePlace{ExportFormat::markdown, "| --- | --- | --- | --- |\n", " | "},
    CodePlace{ExportFormat::css, ":root {\n", ": "},
    CodePlace{ExportFormat::scss, "\n", ": "},
    CodePlace{ExportFormat::sass, "\n", ": "},
    CodePlace{ExportFormat::less, "\n", ": "},
    CodePlace{ExportFormat::gpl, "\n#\n", ""},
};

using Entries = std::vector<PaletteExport::Entry>;

class LineReader {
public:
    LineReader(ExportSample& sample, const Entries& entries)
        : sample_(sample), entries_(entries),
          place_(std::ranges::find(kCodePlaces, sample.format, &CodePlace::format)) {}

    void read(std::string_view text) {
        const auto start = place_ == kCodePlaces.end() ? text.npos : text.find(place_->start);
        const auto codes = start == text.npos ? text.size() : start + place_->start.size();
        for (std::size_t at = 0; at < text.size();) {
            const auto end = std::min(text.find('\n', at), text.size());
            add(text.substr(at, end - at), at >= codes);
            at = end + 1;
        }
    }

private:
    void add(std::string_view line, bool mayHoldCode) {
        if (sample_.lines.size() == kMostLines) {
            ++sample_.linesLeftOut;
            return;
        }
        const auto code =
            mayHoldCode && entry_ < entries_.size() ? line.find(place_->before) : line.npos;
        if (code != line.npos) addChip(line.substr(0, code + place_->before.size()));
        auto shownLine = fromUtf8(line.substr(0, kLongestLine * 4));
        if (shownLine.size() > kLongestLine)
            shownLine = shownLine.left(kLongestLine) + QChar(0x2026);
        sample_.lines.push_back(std::move(shownLine));
    }

    void addChip(std::string_view before) {
        const auto character = fromUtf8(before).size();
        auto color = entries_[entry_].color;
        if (!holdsAlpha(sample_.format)) color.a = 1;
        if (character < kLongestLine)
            sample_.chips.push_back({sample_.lines.size(), character, color});
        ++entry_;
    }

    ExportSample& sample_;
    const Entries& entries_;
    const CodePlace* place_;
    std::size_t entry_ = 0;
};

QByteArray viewOf(const Bytes& content) {
    return QByteArray::fromRawData(reinterpret_cast<const char*>(content.data()),
                                   static_cast<qsizetype>(content.size()));
}

QSize bounded(QSize size) {
    return size.width() > kWidestPicture
               ? size.scaled(kWidestPicture, size.height(), Qt::KeepAspectRatio)
                     .expandedTo(QSize(1, 1))
               : size;
}

void drawSvg(ExportSample& sample) {
    QSvgRenderer drawing(viewOf(*sample.content));
    sample.pictureSize = drawing.defaultSize();
    sample.picture = QImage(bounded(sample.pictureSize), QImage::Format_ARGB32_Premultiplied);
    sample.picture.fill(Qt::transparent);
    QPainter painter(&sample.picture);
    drawing.render(&painter);
}

void drawPng(ExportSample& sample) {
    const auto whole = QImage::fromData(viewOf(*sample.content), "PNG");
    sample.pictureSize = whole.size();
    sample.picture =
        whole.scaled(bounded(whole.size()), Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QString percent(double alpha) {
    return QStringLiteral("%1%").arg(std::lround(std::clamp(alpha, 0.0, 1.0) * 100));
}

void listRows(ExportSample& sample, const Entries& entries, const FormatOptions& options) {
    const ColorFormat code(ColorFormat::cssHex);
    for (const auto& entry : entries) {
        auto written = entry.color;
        QString lost;
        if (!holdsAlpha(sample.format) && !written.isOpaque()) {
            lost = worded("alpha %1 is left out").arg(percent(written.a));
            written.a = 1;
        }
        sample.rows.push_back(
            {written, oneLine(entry.name), fromUtf8(code.string(written, {}, options)), lost});
    }
}

} // namespace

ExportSample sampleOf(const ExportJob& job) {
    ExportSample sample;
    sample.format = job.format;
    sample.content = PaletteExport::data(job.format, job.colors, job.names, job.name, job.options);
    if (!sample.content) return sample;
    if (job.format == ExportFormat::svg) {
        drawSvg(sample);
    } else if (job.format == ExportFormat::png) {
        drawPng(sample);
    } else {
        const auto entries = PaletteExport::entries(job.colors, job.names);
        if (isText(job.format))
            LineReader(sample, entries).read(asText(*sample.content));
        else
            listRows(sample, entries, job.options);
    }
    return sample;
}

} // namespace tintra
