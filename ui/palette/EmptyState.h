#pragma once

#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/shared/Canvas.h"
#include "ui/shared/Subscriptions.h"

#include <QStringList>
#include <array>
#include <functional>

namespace tintra {

/// What an empty palette shows: a quotation about colour and what to begin with. The quotation
/// gives way where there is little room, the actions never.
class EmptyState final : public Canvas {
public:
    enum Kind { quotation, author, action };

    EmptyState(Ui& ui, AppState& state, QWidget* parent);

    /// What the actions do. All but the first are the program's own unless set.
    std::function<void()> typeOrPaste, openPicture, openLibrary, openPalette;

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    /// A way to set the quotation: its face, its lines, its height.
    struct Setting {
        QFont font;
        int line = 0;
        QStringList lines;
        int height() const { return line * static_cast<int>(lines.size()); }
    };
    Setting setting(qreal width, qreal height) const;
    CanvasItem actionItem(std::size_t at, const QRectF& rect) const;
    void perform(int item);

    AppState& state_;
    mutable Setting quote_; ///< what the items were made from
    int pressed_ = -1;
    Subscriptions subscriptions_;
};

} // namespace tintra
