#pragma once

#include "palettes/ImagePalette.h"
#include "platform/MainLoop.h"
#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/picture/PictureCopy.h"
#include "ui/picture/PinMarks.h"
#include "ui/shared/Canvas.h"

#include <QPropertyNotifier>
#include <memory>
#include <optional>
#include <vector>

namespace tintra {

/// The picture of a palette window with its pins. A click adds a pin; pins are dragged, or moved
/// with the arrow keys once the Tab key has come to them. While none has the focus, the arrow keys
/// move a crosshair.
class PictureCanvas final : public Canvas {
public:
    enum Kind { pin };

    PictureCanvas(Ui& ui, AppState& state, QWidget* parent);
    ~PictureCanvas() override;

    /// Where the picture is shown.
    QRectF pictureRect() const;
    QPointF toView(ImagePalette::Point point) const;
    /// Brought into the picture.
    ImagePalette::Point toPicture(QPointF place) const;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void paintOverlay(QPainter& painter) override;
    int neighbour(int from, Qt::Key key) const override;
    void focusMoved(int item) override;
    void hoverMoved(int item, QPointF place) override;

    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    /// A pin on its way: shown where it goes, before the model has read the colour there.
    struct Moving {
        std::size_t pin;
        ImagePalette::Point to;
        bool isHeld; ///< by the pointer
    };
    /// What the pointer has pressed.
    struct Pressed {
        std::optional<std::size_t> pin; ///< none: the picture itself
        QPointF at, offset;             ///< the latter from the middle of the pin
        bool moves = false;
    };

    bool hasPicture() const { return state_.imageSource.value().picture != nullptr; }
    void followPicture();
    void followSize();
    ImagePalette::Point pointOf(std::size_t at) const;
    void move(std::size_t at, ImagePalette::Point to, bool isHeld);
    void letGo();
    bool isOwnKey(const QKeyEvent& event) const;
    void nudge(QPointF by);
    void askFor(int more);
    void showGlassBriefly();
    std::optional<QPointF> glassPlace() const;
    void paintCorners(QPainter& painter, const QRectF& picture) const;
    void paintCrosshair(QPainter& painter, QPointF at) const;
    QString wordsOf(std::size_t at) const;

    Ui& ui_;
    AppState& state_;
    PictureCopy copy_;
    std::vector<PinMark> marks_;
    const Picture* picture_ = nullptr; ///< the one that was last shown; never read through this
    bool wasExtracting_ = false;
    std::optional<Moving> moving_;
    std::optional<Pressed> pressed_;
    ImagePalette::Point crosshair_;
    std::unique_ptr<DelayedTask> glass_; ///< while keys move something
    std::vector<QPropertyNotifier> subscriptions_;
};

} // namespace tintra
