#pragma once

#include "colour/FormatOptions.h"
#include "palettes/PaletteExport.h"
#include "platform/Bytes.h"

#include <QImage>
#include <QString>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tintra {

/// A palette that is to be shown as a file.
struct ExportJob {
    ExportFormat format = ExportFormat::ase;
    std::vector<WashColor> colors;
    std::vector<std::optional<std::string>> names; ///< in step with `colors`
    std::string name;                              ///< of the palette
    FormatOptions options;
};

/// A palette as the file that it becomes, and how that is shown: as lines, a picture or rows.
struct ExportSample {
    /// A colour that stands in a line, before the code at this character.
    struct Chip {
        std::size_t line = 0;
        qsizetype character = 0;
        WashColor color;
    };
    /// An entry of a file that is no text.
    struct Row {
        WashColor color; ///< as it is written
        QString name, code;
        QString lost; ///< what the format leaves out of it; empty for nothing
    };

    ExportFormat format = ExportFormat::ase;
    std::optional<Bytes> content; ///< nothing when there is nothing to write
    std::vector<QString> lines;
    std::size_t linesLeftOut = 0; ///< further ones, which are not shown
    std::vector<Chip> chips;      ///< by line
    QImage picture;               ///< reduced when it is large
    QSize pictureSize;            ///< its own
    std::vector<Row> rows;
};

/// Writes the file and reads it again for show. Any thread; takes a while for large palettes.
ExportSample sampleOf(const ExportJob& job);

} // namespace tintra
