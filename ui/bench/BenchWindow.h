#pragma once

#include "ui/frame/MainWindow.h"
#include "ui/shared/Subscriptions.h"

namespace tintra {

class BenchCanvas;
class CanvasScroll;
class FactsLine;
class PasteSheet;
class ToolLine;
class WellEditor;

/// The Bench: columns of colour, and beneath them the well that is active. Main loop.
class BenchWindow final : public MainWindow {
public:
    explicit BenchWindow(Ui& ui);

    ActionContext context() override;
    /// The active column, or the mix of the active well.
    std::optional<ActionTarget> target() const override;
    void copy(std::optional<ColorFormat> as = {}) override;
    QProperty<Vision>* vision() const override;
    std::optional<FrontCapabilities::Clears> clears() const override;
    void clear() override;
    void pasteColours() override;
    void showPasteSheet() override;

    void beginRename();
    /// Gives the keyboard to the ratio of the active well.
    void adjustMix();

protected:
    std::vector<QWidget*> regions() const override;
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void makeTools();
    void makeBody();
    void connectCanvas();
    void subscribe();
    void syncFacts();
    void syncEditor();
    void syncHeights();

    ToolLine* tools_;
    QWidget* body_;
    CanvasScroll* scroll_;
    BenchCanvas* canvas_;
    WellEditor* editor_;
    FactsLine* facts_;
    PasteSheet* pasteSheet_ = nullptr; ///< made when it is first opened
    Subscriptions subscriptions_;
};

} // namespace tintra
