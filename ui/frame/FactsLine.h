#pragma once

#include "ui/frame/FootChoices.h"

#include <QString>
#include <QWidget>

namespace tintra {

/// The foot of a main window: what there is to say, and the choices at the right.
class FactsLine final : public QWidget {
public:
    /// `vision` null for a window without.
    FactsLine(Ui& ui, QProperty<Vision>* vision, QWidget* parent);

    void setFacts(const QString& facts);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();

    Ui& ui_;
    FootChoices choices_;
    QString facts_;
    int factsEnd_ = 0; ///< px
    Subscriptions subscriptions_;
};

} // namespace tintra
