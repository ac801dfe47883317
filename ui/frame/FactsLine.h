#pragma once

#include "ui/frame/FootChoices.h"

#include <QStringList>
#include <QWidget>

namespace tintra {

/// The foot of a main window: what there is to say, and the choices at the right.
class FactsLine final : public QWidget {
public:
    /// `vision` null for a window without.
    FactsLine(Ui& ui, QProperty<Vision>* vision, QWidget* parent);

    /// Sentences, the last the one that is most needed: where there is no room for all, the first
    /// ones go. The tooltip has them all then.
    void setFacts(QStringList facts);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();
    void cutFacts();

    Ui& ui_;
    FootChoices choices_;
    QStringList facts_;
    QString shown_;    ///< as much of them as there is room for
    int factsEnd_ = 0; ///< px
    Subscriptions subscriptions_;
};

} // namespace tintra
