#include "state/ContrastReadings.h"

#include "colour/CaseTable.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <utility>

namespace tintra {

namespace {

using Contrast::Grade;
using Measure = ContrastBoard::Measure;

struct GradeRow {
    Grade value;
    double ratio, lc; ///< from which on it is given to normal text; 0 for the lowest
    std::string_view ratioMark, lcMark;
    std::string_view ratioTitle, lcTitle;
};

constexpr std::array kGrades{
    GradeRow{Grade::below, 0, 0, "", "", "", ""},
    GradeRow{Grade::large, 3, 45, "3:1", "45", "3:1", "Lc 45"},
    GradeRow{Grade::body, 4.5, 60, "AA", "60", "4.5:1", "Lc 60"},
    GradeRow{Grade::enhanced, 7, 75, "AAA", "75", "7:1", "Lc 75"},
};
static_assert(inCaseOrder(kGrades));

ContrastReading wcagReading(double ratio, const ContrastTerms& terms) {
    return {ratio, Contrast::ratioText(ratio), Contrast::wcagGrade(ratio, terms.large),
            Contrast::reaches(ratio, Contrast::need(terms.target, terms.large))};
}

ContrastReading apcaReading(double lc, const ContrastTerms& terms) {
    const double amount = std::abs(lc);
    const auto grade = Contrast::apcaGrade(amount);
    const double need = Contrast::need(terms.target, terms.large);
    return {amount, Contrast::lcText(amount), grade, rowOf(kGrades, grade).ratio >= need};
}

std::string cell(const ContrastReading& reading, Measure measure) {
    const auto mark = gradeMark(reading.grade, measure);
    return mark.empty() ? reading.figure : reading.figure + " " + std::string(mark);
}

std::vector<ContrastLadder::Rung> rungsOf(const std::vector<ContrastLadder::Row>& rows,
                                          Measure measure) {
    std::vector<ContrastLadder::Rung> rungs;
    for (const auto& grade : kGrades) {
        if (grade.value == Grade::below) continue;
        const bool isWcag = measure == Measure::wcag;
        const double level = isWcag ? grade.ratio : grade.lc;
        const auto above = std::ranges::count_if(
            rows, [level](const auto& row) { return Contrast::reaches(row.reading.value, level); });
        rungs.insert(rungs.begin(), {level, isWcag ? grade.ratioTitle : grade.lcTitle,
                                     static_cast<std::size_t>(above)});
    }
    return rungs;
}

/// The names of the colours before rows and above columns, and the figures between.
std::vector<std::vector<std::string>> matrixCells(const ContrastBoard& board) {
    const auto terms = contrastTerms(board);
    const auto entries = board.matrixEntries();
    const bool rowsAreText = board.matrixRowsAreText;
    std::vector<std::vector<std::string>> rows(1, {""});
    for (const auto& column : entries)
        rows.front().push_back(board.name(column));
    for (const auto& row : entries) {
        auto& cells = rows.emplace_back(1, board.name(row));
        for (const auto& column : entries) {
            const auto& text = rowsAreText ? row : column;
            const auto& ground = rowsAreText ? column : row;
            cells.push_back(
                row.id == column.id
                    ? ""
                    : cell(contrastReading(text.color, ground.color, terms), terms.measure));
        }
    }
    return rows;
}

std::string escaped(std::string_view text) {
    std::string html;
    for (const char c : text) {
        switch (c) {
        case '&':
            html += "&amp;";
            break;
        case '<':
            html += "&lt;";
            break;
        case '>':
            html += "&gt;";
            break;
        default:
            html += c;
        }
    }
    return html;
}

} // namespace

ContrastTerms contrastTerms(const ContrastBoard& board) {
    return {board.measure, board.isLargeText(), board.target};
}

ContrastReading contrastReading(const WashColor& text, const WashColor& ground,
                                const ContrastTerms& terms) {
    return terms.measure == Measure::wcag ? wcagReading(Contrast::wcagRatio(text, ground), terms)
                                          : apcaReading(Contrast::apcaLc(text, ground), terms);
}

std::string_view gradeMark(Grade grade, Measure measure) {
    const auto& row = rowOf(kGrades, grade);
    return measure == Measure::wcag ? row.ratioMark : row.lcMark;
}

ContrastLadder contrastLadder(const ContrastBoard& board) {
    const bool fixesGround = board.ladderFixesGround;
    const auto* fixed = fixesGround ? board.ground() : board.text();
    if (fixed == nullptr) return {};
    const auto terms = contrastTerms(board);
    ContrastLadder ladder;
    for (const auto& entry : board.entries()) {
        if (entry.id == fixed->id) continue;
        ladder.rows.push_back({entry, fixesGround
                                          ? contrastReading(entry.color, fixed->color, terms)
                                          : contrastReading(fixed->color, entry.color, terms)});
    }
    std::ranges::stable_sort(ladder.rows, std::greater{},
                             [](const auto& row) { return row.reading.value; });
    ladder.rungs = rungsOf(ladder.rows, terms.measure);
    return ladder;
}

std::string contrastMatrixTable(const ContrastBoard& board) {
    std::string table;
    for (const auto& row : matrixCells(board)) {
        for (std::size_t i = 0; i < row.size(); ++i)
            table += (i > 0 ? "\t" : "") + row[i];
        table += '\n';
    }
    return table;
}

std::string contrastMatrixHtml(const ContrastBoard& board) {
    std::string table = "<table>\n";
    const auto rows = matrixCells(board);
    for (std::size_t r = 0; r < rows.size(); ++r) {
        table += "<tr>";
        for (std::size_t c = 0; c < rows[r].size(); ++c) {
            const std::string_view tag = r == 0 || c == 0 ? "th>" : "td>";
            ((table += '<') += tag) += escaped(rows[r][c]);
            (table += "</") += tag;
        }
        table += "</tr>\n";
    }
    return table + "</table>\n";
}

} // namespace tintra
