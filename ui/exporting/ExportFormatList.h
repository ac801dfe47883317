#pragma once

#include "palettes/PaletteExport.h"
#include "ui/shared/Canvas.h"

#include <functional>

namespace tintra {

/// The export formats, one chosen: arrows, Home, End, a first letter or a click choose.
class ExportFormatList final : public Canvas {
public:
    explicit ExportFormatList(Theme& theme, QWidget* parent = nullptr);

    ExportFormat chosen() const { return chosen_; }
    /// Does not call `changed`.
    void choose(ExportFormat format);
    /// Is told when the user chooses.
    std::function<void(ExportFormat)> changed;
    /// Is told where the choice has come, to scroll there.
    std::function<void(const QRect&)> wantsVisible;

    QSize sizeHint() const override;
    /// Leaves room for a scroll bar.
    QSize minimumSizeHint() const override { return sizeHint() - QSize(16, 0); }

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void focusMoved(int item) override;
    /// The focus chooses; the Enter key is the dialogue's.
    void activate(int) override {}
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    /// The next title after the chosen one that begins with a letter.
    int nextWith(const QString& letter) const;
    void chooseItem(int item);

    ExportFormat chosen_ = ExportFormat::ase;
};

} // namespace tintra
