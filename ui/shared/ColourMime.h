#pragma once

#include "palettes/Swatch.h"
#include "state/Drag.h"

#include <QMimeData>
#include <QString>
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

namespace tintra {

inline constexpr auto kColourMimeType = "application/x-tintra-colour";

/// A dragged colour for this program (with its name and origin) and for others (as a colour and as
/// text, its code).
std::unique_ptr<QMimeData> mimeOf(const Drag& drag, const QString& code);

/// A palette as a file for other programs, which has been written already.
std::unique_ptr<QMimeData> mimeOfPalette(const std::filesystem::path& file);

/// What a drop or the clipboard holds, in the order in which it is understood.
struct Dropped {
    std::optional<Drag> colour;               ///< a colour of this program or another
    std::vector<std::filesystem::path> files; ///< local files, at most 1,000
    std::optional<QString> text;              ///< at most 4 MB
    std::optional<QByteArray> picture;        ///< encoded picture data
    bool isEmpty() const;
};
Dropped dropped(const QMimeData& data);
/// The same without taking the data out: whether anything of it is understood.
bool isUnderstood(const QMimeData& data);

} // namespace tintra
