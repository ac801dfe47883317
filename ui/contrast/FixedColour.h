#pragma once

#include "state/ContrastBoard.h"
#include "ui/Ui.h"
#include "ui/shared/Subscriptions.h"

#include <QAbstractButton>

namespace tintra {

/// The colour that the ladder sets every other against, with its name and code. A click chooses
/// another; one can be dropped on it.
class FixedColour final : public QAbstractButton {
public:
    FixedColour(Ui& ui, QWidget* parent);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    ContrastBoard::Role role() const;
    const ContrastBoard::Entry* entry() const;
    void sync();
    void choose();
    void setOver(bool over);

    Ui& ui_;
    ContrastBoard& board_;
    QString name_, code_;
    bool over_ = false; ///< a colour is dragged over it
    Subscriptions subscriptions_;
};

} // namespace tintra
