#pragma once

#include "colour/Contrast.h"
#include "platform/Uuid.h"
#include "ui/frame/MainWindow.h"
#include "ui/shared/Subscriptions.h"

#include <QString>
#include <cstddef>
#include <optional>
#include <tuple>

class QMenu;

namespace tintra {

class ContrastBoard;
class ContrastBody;
class FactsLine;
class PasteSheet;
class PopUpButton;
class Segmented;
class ToolLine;

/// The contrast window: a pair, the matrix of the first ten colours, or every colour against one.
/// Main loop.
class ContrastWindow final : public MainWindow {
public:
    explicit ContrastWindow(Ui& ui);

    ActionContext context() override;
    std::optional<ActionTarget> target() const override;
    bool canCopy() const override;
    /// The colour that has the focus, else the figure.
    void copy(std::optional<ColorFormat> as = {}) override;
    QProperty<Vision>* vision() const override;
    std::optional<FrontCapabilities::Clears> clears() const override;
    void clear() override;
    void pasteColours() override;
    void showPasteSheet() override;

    /// The colour that has the focus.
    std::optional<Uuid> entry() const;
    /// "3.90:1" or "Lc 61": of what has the focus, else of the pair; empty for none.
    QString figureText() const;
    void beginRename();
    /// Moves a colour in the list; the focus goes with it.
    void moveEntry(const Uuid& id, std::size_t to);

protected:
    std::vector<QWidget*> regions() const override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    void makeTools();
    void subscribe();
    void sync();
    QString factsText() const;
    /// For the colour of a role, or for none.
    void presentPasteSheet(std::optional<Contrast::Role> as);

    ContrastBoard& board_;
    ToolLine* tools_;
    Segmented *mode_, *measure_;
    PopUpButton* target_;
    ContrastBody* body_;
    FactsLine* facts_;
    PasteSheet* pasteSheet_ = nullptr; ///< made when it is first asked for
    std::optional<Contrast::Role> pasteAs_;
    /// Colours, a text, a ground, as the tools and the facts last told of them.
    std::optional<std::tuple<std::size_t, bool, bool>> told_;
    Subscriptions subscriptions_;
};

/// The levels that a pair can be worked towards.
void fillContrastTargets(QMenu& menu, ContrastBoard& board);

} // namespace tintra
