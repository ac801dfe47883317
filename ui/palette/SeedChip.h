#pragma once

#include "state/AppState.h"
#include "ui/Ui.h"

#include <QAbstractButton>

namespace tintra {

/// A seed of a harmony with its name and code. A click edits it; colours are dragged from here and
/// dropped here.
class SeedChip final : public QAbstractButton {
public:
    SeedChip(Ui& ui, AppState& state, AppState::SeedRole role, QWidget* parent);

    /// Without words where there is little room.
    void setCompact(bool compact);
    /// The seed, its code and the words beside it as they are now.
    void sync();
    void edit();
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    const WashColor& seed() const;
    QRect chipRect() const;
    void clear();
    void startDrag();
    void setDropTarget(bool isOne);

    Ui& ui_;
    AppState& state_;
    const AppState::SeedRole role_;
    QString label_, code_;
    bool compact_ = false, dropTarget_ = false;
    QPoint pressedAt_;
};

} // namespace tintra
