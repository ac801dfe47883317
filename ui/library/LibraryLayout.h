#pragma once

#include "ui/library/LibraryModel.h"

#include <QRectF>
#include <QSizeF>
#include <QString>
#include <cstddef>
#include <optional>
#include <vector>

namespace tintra {

class Theme;

/// A line of the Library, across its whole width.
struct LibraryLine {
    enum class Kind {
        header,  ///< of a group
        palette, ///< a row and, unfolded, what stands beneath it
        tiles,   ///< some palettes side by side
        note,    ///< what is said where there is no palette
    };
    Kind kind = Kind::header;
    std::size_t section = 0;          ///< in the listing; 0 for a note about everything
    std::size_t first = 0, count = 0; ///< its palettes among the finds
    qreal top = 0, height = 0;        ///< px from the top of everything
    bool isUnfolded = false;
};

/// Where everything of the Library stands, line by line: computed for all lines at once, in time
/// linear in their number, and asked for those in view. Lengths are px of the whole, of which the
/// window shows a part.
class LibraryLayout {
public:
    LibraryLayout() = default;
    LibraryLayout(const Theme& theme, const LibraryModel& model, bool tiles, QSizeF view);

    const std::vector<LibraryLine>& lines() const { return lines_; }
    qreal height() const { return height_; }
    /// The first line that reaches beneath y; the count for none.
    std::size_t lineAt(qreal y) const;
    /// None while its group is folded.
    std::optional<std::size_t> lineOf(std::size_t find) const;
    std::size_t lineOfSection(std::size_t section) const { return firstLines_[section].header; }
    int columns() const { return columns_; }

    /// Of a line's palettes, one by its place among the finds; a row without what is unfolded.
    QRectF paletteRect(const LibraryLine& line, std::size_t find) const;
    QRectF panelRect(const LibraryLine& line) const;
    QRectF headerRect(const LibraryLine& line) const;

    /// The sides of what is in a row, px from the left.
    struct Sides {
        qreal left = 0, strip = 0, stripEnd = 0, valueEnd = 0, right = 0;
        bool isWide = false; ///< there is room for buttons behind the value
    };
    const Sides& sides() const { return sides_; }

private:
    struct FirstLines {
        std::size_t header = 0, palettes = 0;
        std::size_t find = 0, count = 0; ///< its finds; no count while it is folded
    };
    void addSection(const LibraryModel& model, std::size_t section);
    void addPalettes(const LibraryModel& model, std::size_t section);
    void add(LibraryLine line);

    const Theme* theme_ = nullptr;
    QSizeF view_;
    bool tiles_ = false, isColour_ = false;
    int columns_ = 1;
    Sides sides_;
    std::vector<LibraryLine> lines_;
    std::vector<FirstLines> firstLines_;
    qreal height_ = 0;
};

} // namespace tintra
