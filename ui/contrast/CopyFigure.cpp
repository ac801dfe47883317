#include "ui/contrast/CopyFigure.h"

#include "platform/Clipboard.h"
#include "platform/Services.h"
#include "state/Models.h"
#include "state/NoticeTexts.h"
#include "ui/shared/Text.h"

#include <QMenu>

namespace tintra {
namespace {

constexpr ToastPlace kPlace{ToastWindow::contrast, {}};

} // namespace

QString figureToCopy(const ContrastReading& reading, ContrastBoard::Measure measure) {
    const auto figure = fromUtf8(reading.figure);
    return measure == ContrastBoard::Measure::wcag ? figure + QStringLiteral(":1")
                                                   : QStringLiteral("Lc ") + figure;
}

QString spokenFigure(const ContrastReading& reading, ContrastBoard::Measure measure) {
    const auto figure = fromUtf8(reading.figure);
    const auto read = measure == ContrastBoard::Measure::wcag ? worded("%1 to 1").arg(figure)
                                                              : worded("Lc %1").arg(figure);
    return read + QStringLiteral(", ") + shown(Contrast::spoken(reading.grade));
}

void copyFigure(Ui& ui, const QString& figure) {
    if (figure.isEmpty()) return;
    ui.services.clipboard.set({toUtf8(figure), {}, {}});
    ui.services.toasts.show("Copied " + toUtf8(figure), kBriefly, {}, kPlace);
}

void copyMatrix(Ui& ui) {
    const auto& board = ui.models.contrast();
    ui.services.clipboard.set({contrastMatrixTable(board), {}, {}, contrastMatrixHtml(board)});
    ui.services.toasts.show("Copied the matrix as a table", kBriefly, {}, kPlace);
}

void popUpFigureMenu(Ui& ui, QWidget& over, QPoint at, const QString& figure) {
    auto* menu = new QMenu(&over);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(worded("Copy Figure"), menu, [&ui, figure] { copyFigure(ui, figure); });
    menu->popup(at);
}

} // namespace tintra
