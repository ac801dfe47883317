#pragma once

#include "palettes/PaletteLocation.h"
#include "state/PaletteLocations.h"
#include "ui/Ui.h"
#include "ui/shared/Canvas.h"

#include <QProperty>
#include <functional>
#include <vector>

namespace tintra {

/// The folders that the Library watches: a check, nickname and path, tag, OFFLINE, and a chevron
/// with a menu of what can be done. Space checks, Enter opens the menu.
class LocationsList final : public Canvas {
public:
    LocationsList(Ui& ui, PaletteLocations& locations, QWidget* parent = nullptr);

    enum Kind { row, chevron };
    /// Is told of the part that the keyboard has come to.
    std::function<void(const QRectF&)> reveal;
    int heightWanted() const;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void focusMoved(int item) override;
    void mousePressEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void activate(int item) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    const std::vector<PaletteLocation>& all() const;
    bool isOnline(const PaletteLocation& location) const;
    CanvasItem rowItem(std::size_t index, const QRectF& rect) const;
    void paintRow(QPainter& painter, const PaletteLocation& location, const QRectF& rect) const;
    qreal paintBadges(QPainter& painter, const PaletteLocation& location, const QRectF& rect) const;
    void toggle(std::size_t index);
    void openMenu(std::size_t index);
    void takeLocations();

    Ui& ui_;
    PaletteLocations& locations_;
    QPropertyNotifier changed_, scanned_, themeChanged_;
};

} // namespace tintra
