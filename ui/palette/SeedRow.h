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
/// window.
class SeedRow final : public QWidget {
public:
    SeedRow(Ui& ui, AppState& state, QWidget* parent);
    ~SeedRow() override;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// A run of parts that stays together on a line.
    struct Part {
        QWidget* widget;
        int before = 0;     ///< px from what stands before it on the line
        QString label = {}; ///< painted before it
    };
    using Group = std::vector<Part>;

    void makeSteppers();
    void subscribe();
    void sync();
    Group seeds() const;
    Group counts() const;
    Group makings() const;
    int widthOf(const Part& part) const;
    int widthOf(const Group& group) const;
    int labelWidth(const Part& part) const;
    void layOut();
    void place(const Group& group, int left, int line);

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
