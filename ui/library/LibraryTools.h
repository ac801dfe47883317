#pragma once

#include "ui/actions/Menus.h"
#include "ui/library/LibraryModel.h"
#include "ui/shared/Subscriptions.h"

#include <QWidget>
#include <functional>

class QAction;
class QLineEdit;

namespace tintra {

class PopUpButton;
class Segmented;
class ToolButton;

/// The line of tools at the top of the Library: the search field, the match of a search for a
/// colour, with its explanation beneath, how palettes are shown and sorted.
class LibraryTools final : public QWidget {
public:
    LibraryTools(Ui& ui, LibraryModel& model, const ContextOf& context, QWidget* parent);

    /// Gives the keyboard to the field, its text selected.
    void find();
    /// Is told that the keyboard is to go on to the palettes, and that Enter was pressed.
    std::function<void()> leave, open;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeField();
    void makeTools(const ContextOf& context);
    ToolButton* tool(std::string_view icon, ActionId action, const ContextOf& context);
    void subscribe();
    /// What is read in the field.
    void syncField();
    void syncTools();
    void layOut();
    int lineHeight() const;
    void syncPlaceholder();
    void paintExplanation(QPainter& painter) const;

    Ui& ui_;
    LibraryModel& model_;
    QLineEdit* field_;
    QAction *mark_ = nullptr, *chip_ = nullptr, *clear_ = nullptr;
    Segmented *match_, *display_;
    PopUpButton* sort_;
    ToolButton *direction_ = nullptr, *rescan_ = nullptr, *settings_ = nullptr, *more_ = nullptr;
    bool readsColour_ = false;
    bool isNarrow_ = false; ///< the match stands in the second line
    int linesBelow_ = 0;    ///< the first
    Subscriptions subscriptions_;
};

} // namespace tintra
