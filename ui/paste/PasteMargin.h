#pragma once

#include "colour/Vision.h"
#include "ui/Ui.h"
#include "ui/paste/PasteReading.h"

#include <QWidget>

namespace tintra {

class PasteEditor;

/// Beside the lines of a field: the chip and the name of what is read in each, a dash where nothing
/// is. Main loop.
class PasteMargin final : public QWidget {
public:
    PasteMargin(Ui& ui, const PasteEditor& editor, QWidget* parent);

    const PasteReading& reading() const { return reading_; }
    void setReading(PasteReading reading);
    void setVision(Vision vision);
    /// What stands beside a line: a name, with the number of further colours; a dash; nothing.
    QString words(std::size_t line) const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void paintLine(QPainter& painter, const PasteReading::Line& line, const QRectF& beside) const;

    Ui& ui_;
    const PasteEditor& editor_;
    PasteReading reading_;
    Vision vision_ = Vision::typical;
};

} // namespace tintra
