#pragma once

#include "colour/ColorFormat.h"
#include "state/Preferences.h"
#include "ui/shared/Canvas.h"

#include <QProperty>
#include <functional>
#include <vector>

namespace tintra {

/// Every format of code under its family, with a star for the favourites. A click or Enter makes
/// one current; Space or a click on its star makes it a favourite or no longer one.
class FormatList final : public Canvas {
public:
    FormatList(Theme& theme, Preferences& preferences, QWidget* parent = nullptr);

    /// The index of a heading is its family's place, that of the others their format's raw case.
    enum Kind { heading, format, star };
    /// Is told of the part that the keyboard has come to.
    std::function<void(const QRectF&)> reveal;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    int neighbour(int from, Qt::Key key) const override;
    void focusMoved(int item) override;
    void mousePressEvent(QMouseEvent* event) override;
    void activate(int item) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    bool isFavourite(ColorFormat of) const;
    void toggleFavourite(ColorFormat of);
    void measure();
    void addFamily(std::vector<CanvasItem>& items, std::size_t family, qreal width) const;
    void paintStar(QPainter& painter, const CanvasItem& item, ItemState state) const;

    Preferences& preferences_;
    QPropertyNotifier formatChanged_, favouritesChanged_, themeChanged_;
};

} // namespace tintra
