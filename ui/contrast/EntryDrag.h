#pragma once

#include "state/ContrastBoard.h"
#include "ui/Ui.h"

#include <QPointF>
#include <optional>

class QMouseEvent;
class QWidget;

namespace tintra {

/// Drags a colour of the contrast board out of a view of it; returns when it is dropped or let go,
/// and the view may be gone by then.
void dragEntry(Ui& ui, QWidget& from, const Uuid& entry);

/// Watches the pointer until it pulls a colour out of a view.
class EntryPull {
public:
    /// The pointer went down on that colour; none for what is no colour.
    void press(const QMouseEvent& event, std::optional<Uuid> entry);
    void release() { entry_.reset(); }
    /// The colour that is dragged from here on; answered once.
    std::optional<Uuid> pulled(const QMouseEvent& event);

private:
    std::optional<Uuid> entry_;
    QPointF at_;
};

} // namespace tintra
