#pragma once

#include "ui/exporting/ExportSample.h"
#include "ui/shared/Canvas.h"

#include <functional>

namespace tintra {

struct Ui;

/// Shows a palette as the file that it becomes: text with numbered lines and a chip before each
/// code, a picture, or the entries. As high as what it shows; stands in a scroll area.
class ExportPreview final : public Canvas {
public:
    explicit ExportPreview(Ui& ui, QWidget* parent = nullptr);

    void setSample(ExportSample sample);
    const ExportSample& sample() const { return sample_; }
    /// Is told where the keyboard has come, to scroll there.
    std::function<void(const QRect&)> wantsVisible;

    QSize sizeHint() const override;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    int neighbour(int from, Qt::Key key) const override;
    void focusMoved(int item) override;
    bool activates(const CanvasItem&) const override { return false; }

private:
    enum Kind { line, row, picture, rest };

    void paintLine(QPainter& painter, const CanvasItem& item) const;
    void paintRow(QPainter& painter, const CanvasItem& item) const;
    void paintPicture(QPainter& painter, const QRectF& in) const;
    int lineHeight() const;
    int rowHeight() const;
    /// The column of line numbers.
    int margin() const;
    CanvasItem pictureItem(QSizeF size) const;

    Ui& ui_;
    ExportSample sample_;
};

} // namespace tintra
