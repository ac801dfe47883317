#pragma once

#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/shared/Subscriptions.h"

#include <QWidget>
#include <vector>

class QPushButton;

namespace tintra {

class PopUpButton;
class SeedChip;
class Stepper;
class ToolButton;

/// The seeds of a harmony and what it is made with: one line of 56 px, more lines in a narrow
/// window. In a window that is low as well the seeds stay and the rest gives way.
class SeedRow final : public QWidget {
public:
    SeedRow(Ui& ui, AppState& state, QWidget* parent);
    ~SeedRow() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A run of parts that stays together on a line.
    struct Part {
        QWidget* widget;
        int before = 0;     ///< px from what stands before it in its group
        QString label = {}; ///< painted before it
    };
    using Group = std::vector<Part>;

    void makeSteppers();
    void subscribe();
    void sync();
    Group seeds() const;
    Group makings() const;
    int labelWidth(const Part& part) const;
    int widthOf(const Part& part) const;
    int widthOf(const Group& group) const;
    void layOut();
    void showWanted();
    void hideBelow(int height);
    /// Lines that leave the colours the greater part of the window.
    int mostLines() const;
    /// Places a group and answers where it ends; what stands at the end of a line gives way.
    int place(const Group& group, int left, int line);
    /// The choice and the button at the end, behind `left` where they fit; answers the last line.
    int placeMakings(int left, int line);

    Ui& ui_;
    AppState& state_;
    SeedChip *first_, *last_;
    ToolButton* swap_;
    Stepper *steps_, *shades_;
    PopUpButton* space_;
    QPushButton* add_;
    struct Label {
        QRect in;
        QString text;
    };
    std::vector<Label> labels_; ///< where they were laid out
    bool layingOut_ = false;
    Subscriptions subscriptions_;
};

} // namespace tintra
