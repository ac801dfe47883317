#include "ui/bench/BenchWindow.h"

#include "palettes/PastedText.h"
#include "platform/Clipboard.h"
#include "platform/Services.h"
#include "state/Models.h"
#include "ui/actions/Menus.h"
#include "ui/bench/BenchCanvas.h"
#include "ui/bench/WellEditor.h"
#include "ui/frame/FactsLine.h"
#include "ui/frame/ToolLine.h"
#include "ui/paste/PasteSheet.h"
#include "ui/shared/CanvasScroll.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QCloseEvent>
#include <QMenu>
#include <QVBoxLayout>
#include <array>

namespace tintra {

BenchWindow::BenchWindow(Ui& ui)
    : MainWindow(ui, WindowKind::bench, {ToastWindow::bench, {}}),
      tools_(new ToolLine(
          ui, [this] { return context(); }, this)),
      body_(new QWidget(this)), scroll_(new CanvasScroll(body_, Qt::Horizontal)),
      canvas_(new BenchCanvas(ui, scroll_->viewport())),
      editor_(new WellEditor(
          ui, [this] { return context(); }, body_)),
      facts_(new FactsLine(ui, &ui.models.bench().vision, this)) {
    setWindowTitle(worded("Bench — Tintra"));
    setMinimumSize(560, 400);
    makeTools();
    makeBody();
    assemble(tools_, body_, facts_);
    connectCanvas();
    subscribe();
    syncFacts();
    syncEditor();
    auto& bench = ui.models.bench();
    keepFrame(bench.frame.value(), {1040, 640},
              [&bench](const StoredFrame& frame) { bench.frame = frame; });
    canvas_->setFocus();
}

ActionContext BenchWindow::context() {
    return {.ui = ui(), .window = this, .bench = this};
}

void BenchWindow::makeTools() {
    auto& paste = tools_->addTool(ActionId::typeOrPaste, "paste");
    auto& mix = tools_->addTool(ActionId::benchMix, "mix");
    auto& undo = tools_->addTool(ActionId::undo, "undo", true);
    auto& redo = tools_->addTool(ActionId::redo, "redo");
    tools_->setLeaving({&redo, &undo, &paste, &mix});
}

void BenchWindow::makeBody() {
    scroll_->hold(*canvas_);
    auto* column = new QVBoxLayout(body_);
    column->setContentsMargins({});
    column->setSpacing(0);
    column->addWidget(scroll_, 1);
    column->addWidget(editor_);
    editor_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void BenchWindow::connectCanvas() {
    canvas_->reveal = [this](const QRect& what) { scroll_->reveal(what); };
    canvas_->typeOrPaste = [this] { showPasteSheet(); };
    canvas_->adjustMix = [this] { adjustMix(); };
    editor_->done = [this] { canvas_->setFocus(Qt::OtherFocusReason); };
    canvas_->contextMenu = [this](QPoint at, bool onItem) {
        popUp(at, [this, onItem](QMenu& menu) { fillBenchMenu(menu, onItem, context()); });
    };
    canvas_->pressed = [this](int button) {
        constexpr std::array kActions{ActionId::copy, ActionId::sendToContrast,
                                      ActionId::benchTakeOff};
        perform(kActions.at(static_cast<std::size_t>(button)), context());
    };
}

void BenchWindow::subscribe() {
    auto& bench = ui().models.bench();
    subscriptions_.add(bench.content(), [this] {
        syncFacts();
        syncEditor();
    });
    subscriptions_.add(bench.benchActive, [this] { syncEditor(); });
    subscriptions_.add(ui().theme.version(), [this] { syncHeights(); });
    subscriptions_.add(ui().models.undo().version, [this] { tools_->sync(); });
}

void BenchWindow::syncFacts() {
    const auto& bench = ui().models.bench();
    const auto colours = static_cast<qsizetype>(bench.benchColumns().size());
    const auto mixes = static_cast<qsizetype>(bench.benchWells().size());
    auto words = colours == 0 ? worded("No colours") : worded("%n colour", "%n colours", colours);
    if (mixes > 0) words += worded(" · ") + worded("%n mix", "%n mixes", mixes);
    tools_->setWords(words);
    QStringList facts;
    if (colours > 1) facts << worded("Contrast between neighbours: WCAG 2.2 ratio");
    if (bench.isReorderingPaused())
        facts << worded("Reordering is paused while a well is on the Bench");
    facts_->setFacts(facts);
}

void BenchWindow::syncEditor() {
    const auto active = ui().models.bench().benchActive.value();
    const bool edits = active && active->kind == BenchSelection::Of::well;
    const bool hadKeyboard = editor_->isAncestorOf(focusWidget());
    editor_->setVisible(edits);
    if (!edits && hadKeyboard) canvas_->setFocus(Qt::OtherFocusReason);
    tools_->sync();
}

/// Columns come before the whole of the well editor.
void BenchWindow::syncHeights() {
    constexpr int kLines = 84; ///< the tools and the facts, px at regular text size
    constexpr int kLeastColumns = 200;
    const auto& theme = ui().theme;
    editor_->setLow(height() <
                    theme.scaled(kLines) + theme.scaled(WellEditor::kHeight) + kLeastColumns);
}

// What actions come to

std::optional<ActionTarget> BenchWindow::target() const {
    const auto& bench = ui().models.bench();
    const auto active = bench.benchActive.value();
    if (!active) return std::nullopt;
    if (const auto* column = bench.column(active->id))
        return ActionTarget{bench.currentColor(*column), column->keptName, std::nullopt};
    const auto* well = bench.well(active->id);
    const auto color = well ? bench.wellColor(*well) : std::nullopt;
    return color ? std::optional(ActionTarget{*color, std::nullopt, std::nullopt}) : std::nullopt;
}

void BenchWindow::copy(std::optional<ColorFormat> as) {
    MainWindow::copy(as);
    canvas_->flashCode();
}

QProperty<Vision>* BenchWindow::vision() const {
    return &ui().models.bench().vision;
}

std::optional<FrontCapabilities::Clears> BenchWindow::clears() const {
    return FrontCapabilities::Clears::bench;
}

void BenchWindow::clear() {
    ui().models.bench().clearBench(Bench::Asking::yes);
}

void BenchWindow::pasteColours() {
    const auto held = ui().services.clipboard.content();
    if (held.text.empty() && held.colour) {
        const auto& [r, g, b, a] = *held.colour;
        ui().models.bench().receive({{r, g, b, a}, {}, DragOfForeignColour{}}, std::nullopt);
        return;
    }
    canvas_->receiveText(held.text);
}

void BenchWindow::showPasteSheet() {
    auto& bench = ui().models.bench();
    if (!pasteSheet_)
        pasteSheet_ = new PasteSheet(
            ui(),
            {[] {
                 return PasteTarget::Words{
                     worded("One per line, or a whole stylesheet. Hex, rgb(), hsl(), oklch(), "
                            "lab() and CSS colour names are understood."),
                     worded("Put on the Bench")};
             },
             [&bench](std::span<const PaletteFile::Swatch> found) { bench.receiveAll(found); },
             bench.vision},
            this);
    pasteSheet_->present();
}

void BenchWindow::beginRename() {
    canvas_->beginRename();
}

void BenchWindow::adjustMix() {
    if (editor_->isVisible()) editor_->focusRatio();
}

// The window

std::vector<QWidget*> BenchWindow::regions() const {
    return {tools_, canvas_, editor_, facts_};
}

void BenchWindow::showEvent(QShowEvent* event) {
    ui().models.bench().isWindowOpen = true;
    MainWindow::showEvent(event);
}

void BenchWindow::closeEvent(QCloseEvent* event) {
    ui().models.bench().isWindowOpen = false;
    MainWindow::closeEvent(event);
}

void BenchWindow::resizeEvent(QResizeEvent* event) {
    MainWindow::resizeEvent(event);
    syncHeights();
}

} // namespace tintra
