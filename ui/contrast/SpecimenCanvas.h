#pragma once

#include "ui/contrast/PairCanvas.h"
#include "ui/contrast/PairColours.h"
#include "ui/contrast/SpecimenFace.h"
#include "ui/shared/Upkeep.h"

#include <QPointer>
#include <QTextLayout>
#include <memory>

class QTextEdit;

namespace tintra {

/// The pair at work: a heading, the words in the face that is chosen, sample buttons and an icon.
/// The words are edited where they stand.
class SpecimenCanvas final : public PairCanvas {
public:
    enum Kind { heading, words, filledButton, plainButton, icon };

    SpecimenCanvas(Ui& ui, QWidget* parent);
    ~SpecimenCanvas() override;

    void beginEdit();

protected:
    std::vector<CanvasItem> layoutItems(QSizeF size) const override;
    void paintGround(QPainter& painter, const QRect& dirty) override;
    void paintItem(QPainter& painter, const CanvasItem& item, ItemState state) override;
    QColor ringInk() const override { return colours_.text; }
    void hoverMoved(int item, QPointF place) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void sync();
    void syncFace();
    void layOutWords(qreal width) const;
    void dressEditor();
    void endEdit(bool keep);
    void paintHeading(QPainter& painter, const QRectF& in, const QString& text) const;
    void paintWords(QPainter& painter, const QRectF& in) const;
    void paintButton(QPainter& painter, const CanvasItem& item) const;

    Upkeep upkeep_{*this, [this] { sync(); }};
    PairColours colours_;
    QString heading_;
    SpecimenFace face_;
    mutable QTextLayout layout_; ///< of the words, as the items were laid out last
    mutable qreal layoutWidth_ = 0;
    QPointer<QTextEdit> editor_;
    std::string before_; ///< the words before they were edited
};

} // namespace tintra
