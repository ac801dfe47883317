#pragma once

#include "ui/library/LibraryLayout.h"
#include "ui/library/LibraryPainter.h"
#include "ui/shared/Canvas.h"

#include <QPointF>
#include <functional>
#include <optional>

class QScrollBar;

namespace tintra {

/// The palettes of the Library by group, as rows or tiles. Its items are those in view and the one
/// with the focus, so that thousands of palettes cost no more than a screenful. The arrows walk
/// them as a tree: Right unfolds and enters, Left leaves and folds.
class LibraryCanvas final : public Canvas {
public:
    LibraryCanvas(Ui& ui, LibraryModel& model, QWidget* parent);

    enum Kind { panel, header, palette, swatch, action, noteAction };

    /// Is told what is asked of the current palette: a button of what is unfolded, Enter (`open`).
    std::function<void(LibraryPanel::Action)> act;
    /// Is told of the button of a note; `location` for one about a folder.
    std::function<void(LibraryNote::About, std::optional<Uuid> location)> answer;
    /// Is asked for a menu at a place of the screen: of the current palette, of a swatch of it, of
    /// a group, or of nothing.
    enum class MenuOf { nothing, palette, swatch, group };
    std::function<void(MenuOf, QPoint)> contextMenu;
    /// Is told when another palette, swatch or group has come into focus.
    std::function<void()> currentChanged;

    /// The swatch in focus; null for none.
    const PaletteFile::Swatch* currentSwatch() const;
    /// The group whose header is in focus; null for none.
    const LibraryGroup* currentGroup() const;
    /// Gives the keyboard to the current palette, or the first one.
    void takeKeyboard();
    /// Whether what is dragged over the window would be taken.
    void showDrop(bool isOver);

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void paintOverlay(QPainter& painter) override;
    int neighbour(int from, Qt::Key key) const override;
    void focusMoved(int item) override;
    void hoverMoved(int item, QPointF place) override;
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    /// What has the focus, in view or not: the kind and index of its item.
    struct Place {
        Kind kind = palette;
        std::size_t index = 0;
        bool operator==(const Place&) const = default;
    };

    // Items (LibraryCanvas.cpp)
    void subscribe();
    void rebuild();
    void followCurrent();
    void addLine(std::vector<CanvasItem>& items, std::size_t line) const;
    void addPanel(std::vector<CanvasItem>& items, const LibraryLine& line) const;
    CanvasItem headerItem(const LibraryLine& line) const;
    CanvasItem paletteItem(const LibraryLine& line, std::size_t find) const;
    LibraryPanel panelOf(std::size_t find) const;
    QRectF inView(const QRectF& rect) const;
    /// The line on which a place is; none while it is folded.
    std::optional<std::size_t> lineOf(const Place& place) const;
    /// The line of the keyboard; one beyond the last where it is nowhere.
    std::size_t focusedLine() const;
    std::optional<std::size_t> lineWith(std::size_t find) const { return layout_.lineOf(find); }
    std::vector<LibraryButton> buttonsOf(const CanvasItem& item) const;
    void paintButton(QPainter& painter, const CanvasItem& item, ItemState state) const;
    int buttonAt(int item, QPointF place) const;
    QString tip(QPoint at) const;
    void syncBar();
    void reveal(const Place& place);

    // Walking and acting (LibraryCanvasInput.cpp)
    void moveTo(const Place& place);
    bool walk(Qt::Key key);
    void walkLines(int by);
    void walkPage(int by);
    bool goRight();
    bool goLeft();
    bool walkPanel(Qt::Key key);
    std::optional<Place> beside(const Place& from, Qt::Key key) const;
    std::vector<Place> panelPlaces(std::size_t find) const;
    std::optional<Place> placeOnLine(std::size_t line, qreal column) const;
    void fold(bool folds);
    bool pressFocused();
    void press(LibraryButton::Does does, const CanvasItem& item);
    void click(const CanvasItem& item);
    void openMenu(const CanvasItem& item, QPoint at);
    void startDrag(const CanvasItem& item);

    Ui& ui_;
    LibraryModel& model_;
    LibraryPainter painter_;
    LibraryLayout layout_;
    QScrollBar* bar_;
    std::optional<Place> place_;
    bool isDropShown_ = false;
    int hoveredButton_ = -1, pressedButton_ = -1;
    std::optional<CanvasItem> pressed_;
    QPointF pressedAt_;
    Subscriptions subscriptions_;
};

} // namespace tintra
