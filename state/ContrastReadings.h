#pragma once

#include "state/ContrastBoard.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// What the contrast window's views say of pairs. Pure.

namespace tintra {

/// How pairs are read.
struct ContrastTerms {
    ContrastBoard::Measure measure = ContrastBoard::Measure::wcag;
    Contrast::LargeText large = Contrast::LargeText::no;
    Contrast::Target target = Contrast::Target::aa;
};

/// As the board stands now.
ContrastTerms contrastTerms(const ContrastBoard& board);

struct ContrastReading {
    double value = 1;   ///< the ratio, or the amount of Lc
    std::string figure; ///< "4.49", "62": cut off
    Contrast::Grade grade = Contrast::Grade::below;
    /// Reaches the ratio that the target asks; of APCA the Lc of that ratio's grade: 45 for 3:1, 60
    /// for 4.5:1, 75 for 7:1.
    bool reachesTarget = false;
};

ContrastReading contrastReading(const WashColor& text, const WashColor& ground,
                                const ContrastTerms& terms);

/// What stands behind a figure of that grade: "AAA", "AA", "3:1" or "75", "60", "45"; empty for
/// the lowest.
std::string_view gradeMark(Contrast::Grade grade, ContrastBoard::Measure measure);

/// Every colour against the fixed one, the strongest first.
struct ContrastLadder {
    struct Row {
        ContrastBoard::Entry entry;
        ContrastReading reading;
    };
    /// A level of the measure, from the highest down.
    struct Rung {
        double level;
        std::string_view title; ///< "7:1", "Lc 75"
        std::size_t above;      ///< rows that reach it
    };
    std::vector<Row> rows;
    std::vector<Rung> rungs;
};

/// Without rows while the board has no entry in the role that the ladder fixes.
ContrastLadder contrastLadder(const ContrastBoard& board);

/// The matrix as tab-separated lines, with the names of the colours before rows and above columns;
/// a cell is the figure and the mark of its grade, and empty for a colour on itself.
std::string contrastMatrixTable(const ContrastBoard& board);
/// The same as an HTML table.
std::string contrastMatrixHtml(const ContrastBoard& board);

} // namespace tintra
