#pragma once

#include "state/ContrastReadings.h"
#include "ui/Ui.h"

#include <QPoint>
#include <QString>

class QWidget;

namespace tintra {

/// A figure as it is put on the clipboard: "3.90:1", "Lc 61".
QString figureToCopy(const ContrastReading& reading, ContrastBoard::Measure measure);
/// As screen readers hear it, with its grade: "3.90 to 1, under 3 to 1".
QString spokenFigure(const ContrastReading& reading, ContrastBoard::Measure measure);
void copyFigure(Ui& ui, const QString& figure);
/// The matrix as a table: lines with tabs between the cells, and HTML for programs that take it.
void copyMatrix(Ui& ui);

/// "Copy Figure".
void popUpFigureMenu(Ui& ui, QWidget& over, QPoint at, const QString& figure);

} // namespace tintra
