#pragma once

#include "ui/library/LibraryModel.h"

#include <QMimeData>
#include <QString>
#include <cstddef>
#include <memory>

// What the Library says of palettes, groups and swatches, to the eye and to screen readers.

namespace tintra {

/// "12 · .ase"; without what is not known yet.
QString countAndType(const LibraryPalette& palette);
/// "18 Nov 2026"; empty for what has no file.
QString dateText(const LibraryPalette& palette);
/// "Old.aco could not be read".
QString unreadableText(const LibraryPalette& palette);

QString titleOf(const LibraryGroup& group);
/// The folder, as people write it; empty for the system.
QString pathOf(const LibraryGroup& group);
/// "5 palettes", "3 of 5" of them in a search, "Reading 3 of 5"; empty where there is none.
QString countText(const LibraryListing& listing, const LibraryListing::Section& section);

/// A swatch's own name, else the nearest one.
QString swatchName(const PaletteFile::Swatch& swatch);
/// In the format of the preferences.
QString swatchCode(const Ui& ui, const PaletteFile::Swatch& swatch);

/// Why a palette was found: the swatch, and its distance as "ΔE 0.7" or "4.2°" (empty for a match
/// of text). No swatch when nothing was searched for or the palette's own name matched.
struct LibraryMatchText {
    const PaletteFile::Swatch* swatch = nullptr;
    QString distance;
};
LibraryMatchText matchOf(const LibraryModel& model, std::size_t find);

/// A palette as a drag offers it: its file, or the codes of one that has none; null for neither.
std::unique_ptr<QMimeData> mimeOfListed(const Ui& ui, const LibraryPalette& palette);

} // namespace tintra
