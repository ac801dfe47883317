#pragma once

#include "ui/shared/Canvas.h"
#include "ui/shared/Subscriptions.h"

#include <QString>
#include <vector>

namespace tintra {

/// Lines of a word at the left and a word at the right, under headings, in as many columns as fit.
class RowList final : public Canvas {
public:
    struct Row {
        QString text, value;
        bool isHeading = false; ///< of the rows that follow
    };
    /// Columns are at least `columnWidth` px wide, rows `rowHeight` px high.
    RowList(Theme& theme, int columnWidth, int rowHeight, QWidget* parent);

    void setRows(std::vector<Row> rows);
    const std::vector<Row>& rows() const { return rows_; }
    /// What stands there while there is no row.
    void setEmptyText(const QString& text);

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    bool activates(const CanvasItem&) const override { return false; }
    void resizeEvent(QResizeEvent* event) override;

private:
    int heightOf(std::size_t row) const;
    int columns(int width) const;
    /// Which column each row stands in: groups stay together.
    std::vector<int> columnOfRows(int columns) const;
    int heightNeeded(int width) const;

    std::vector<Row> rows_;
    QString empty_;
    int columnWidth_, rowHeight_;
    Subscriptions subscriptions_;
};

} // namespace tintra
