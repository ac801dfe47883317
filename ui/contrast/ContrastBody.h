#pragma once

#include "state/ContrastBoard.h"
#include "ui/Ui.h"
#include "ui/shared/Subscriptions.h"

#include <QWidget>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

class QMenu;

namespace tintra {

class CanvasScroll;
class DropRing;
class EntryList;
class LadderPage;
class MatrixPage;
class PairHalves;
class ResultPanel;
class SpecimenBar;
class SpecimenCanvas;

/// What lies between the tools and the facts of the contrast window: the colours and the pair, the
/// matrix, the ladder, or, while there is no colour, the places of a pair.
class ContrastBody final : public QWidget {
public:
    ContrastBody(Ui& ui, QWidget* parent);

    EntryList& list() const { return *list_; }
    SpecimenCanvas& specimen() const { return *specimen_; }

    /// The colour that has the focus, in whichever view; none where none has.
    std::optional<Uuid> target() const;
    /// Gives the focus within the views to the entry at a place of the list.
    void focusEntry(std::size_t at);
    /// The figure that has the focus; the pair's own where no colour has it.
    QString figureText() const;
    /// What F6 walks, in order, shown or not.
    std::vector<QWidget*> regions() const;
    /// Where the keyboard begins in the view that is shown.
    QWidget* main() const;

    /// Is asked for another colour, for a role or for none, and to fill the menu of the target.
    std::function<void(std::optional<ContrastBoard::Role>)> addColour;
    std::function<void(QMenu&)> fillMenu;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    // What is dropped beside the views that give roles is sent.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// What of it is shown.
    struct Shown {
        ContrastBoard::Mode mode;
        bool isEmpty, isWhole; ///< no colour; a text and a ground
        bool operator==(const Shown&) const = default;
    };

    void connectParts();
    void sync();
    void layOut();
    void layOutPair();
    /// Asks for the colour of a role: one of those that are there, or another.
    void chooseFor(ContrastBoard::Role role, QPoint at);

    Ui& ui_;
    ContrastBoard& board_;
    CanvasScroll* listScroll_;
    EntryList* list_;
    PairHalves* halves_;
    SpecimenCanvas* specimen_;
    SpecimenBar* bar_;
    ResultPanel* result_;
    MatrixPage* matrix_;
    LadderPage* ladder_;
    DropRing* ring_;
    std::optional<Shown> shown_;
    bool isRefused_ = false; ///< a colour that is there already is dragged over it
    Subscriptions subscriptions_;
};

} // namespace tintra
