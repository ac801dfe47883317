#include "ui/contrast/ContrastWindow.h"

#include "platform/Clipboard.h"
#include "platform/Services.h"
#include "state/CopiedColour.h"
#include "state/Models.h"
#include "ui/actions/Menus.h"
#include "ui/contrast/ContrastBody.h"
#include "ui/contrast/ContrastDrops.h"
#include "ui/contrast/CopyFigure.h"
#include "ui/contrast/EntryList.h"
#include "ui/frame/FactsLine.h"
#include "ui/frame/ToolLine.h"
#include "ui/paste/PasteSheet.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenu>
#include <algorithm>
#include <utility>

namespace tintra {
namespace {

constexpr QSize kLeast(720, 520); ///< at regular text size

/// As the colour of a role, when there is one at the time.
PasteTarget pasteTarget(Ui& ui, const std::optional<ContrastBoard::Role>& as) {
    return {[] {
                return PasteTarget::Words{
                    worded("One per line, or a whole stylesheet. Hex, rgb(), hsl(), oklch(), lab() "
                           "and CSS colour names are understood; a variable’s name becomes the "
                           "colour’s."),
                    worded("Send to Contrast")};
            },
            [&ui, &as](std::span<const PaletteFile::Swatch> swatches) {
                takeInContrast(ui, swatches, as);
            },
            ui.models.contrast().vision};
}

} // namespace

ContrastWindow::ContrastWindow(Ui& ui)
    : MainWindow(ui, WindowKind::contrast, {ToastWindow::contrast, {}}),
      board_(ui.models.contrast()), tools_(new ToolLine(
                                        ui, [this] { return context(); }, this)),
      mode_(new Segmented(ui.theme,
                          {{worded("Pair"), {}}, {worded("Matrix"), {}}, {worded("Ladder"), {}}})),
      measure_(new Segmented(ui.theme, {{worded("WCAG"), {}}, {worded("APCA"), {}}})),
      target_(new PopUpButton(ui.theme, PopUpButton::Border::yes)),
      body_(new ContrastBody(ui, this)), facts_(new FactsLine(ui, &board_.vision, this)) {
    setWindowTitle(worded("Contrast — Tintra"));
    makeTools();
    assemble(tools_, body_, facts_);
    body_->fillMenu = [this](QMenu& menu) { fillContrastEntryMenu(menu, context()); };
    body_->addColour = [this](std::optional<ContrastBoard::Role> as) { presentPasteSheet(as); };
    subscribe();
    sync();
    body_->main()->setFocus();
    keepFrame("NSWindow Frame contrast", {1080, 760});
}

void ContrastWindow::makeTools() {
    tools_->addLeft(mode_);
    tools_->addLeft(measure_);
    tools_->addRight(target_);
    mode_->setAccessibleName(worded("Shown as"));
    mode_->chosen = [this](int choice) { board_.mode = static_cast<ContrastBoard::Mode>(choice); };
    measure_->setAccessibleName(worded("Measure"));
    measure_->chosen = [this](int choice) {
        board_.measure = static_cast<ContrastBoard::Measure>(choice);
    };
    target_->fill = [this](QMenu& menu) { fillContrastTargets(menu, board_); };
    tools_->addTool(ActionId::sortByLightness, "sort");
    tools_->addTool(ActionId::typeOrPaste, "paste");
}

void ContrastWindow::subscribe() {
    const auto again = [this] { sync(); };
    subscriptions_.add(board_.content(), [this] {
        // The tools and the facts tell how many colours there are and whether there is a pair, not
        // which: a colour that is dragged through many changes none of it.
        const auto now = std::tuple(board_.entries().size(), board_.text() != nullptr,
                                    board_.ground() != nullptr);
        if (std::exchange(told_, now) != now) sync();
    });
    subscriptions_.add(board_.mode, again);
    subscriptions_.add(board_.measure, again);
    subscriptions_.add(board_.target, again);
    subscriptions_.add(board_.size, again);
    subscriptions_.add(board_.weight, again);
    subscriptions_.add(board_.ladderFixesGround, again);
    const auto fit = [this] {
        const auto& theme = ui().theme;
        setMinimumSize(theme.scaled(kLeast.width()), theme.scaled(kLeast.height()));
    };
    subscriptions_.add(ui().theme.version(), fit);
    fit();
}

void ContrastWindow::sync() {
    const bool isEmpty = board_.entries().empty();
    mode_->setCurrent(static_cast<int>(board_.mode.value()));
    measure_->setCurrent(static_cast<int>(board_.measure.value()));
    target_->setText(shown(board_.title(board_.target)));
    target_->setAccessibleName(worded("Target: %1").arg(target_->text()));
    // An empty board has nothing to be sorted, graded or told of.
    target_->setVisible(!isEmpty);
    facts_->setVisible(!isEmpty);
    facts_->setFacts({factsText()});
    tools_->sync();
}

QString ContrastWindow::factsText() const {
    const auto count = static_cast<qsizetype>(board_.entries().size());
    const auto matrix = static_cast<qsizetype>(ContrastBoard::kMatrixSize);
    if (board_.mode.value() == ContrastBoard::Mode::matrix && count > matrix)
        return worded("The first ten of %1 colours").arg(count);
    const auto* fixed = board_.ladderFixesGround ? board_.ground() : board_.text();
    if (board_.mode.value() == ContrastBoard::Mode::ladder && fixed)
        return worded("%n colour against one", "%n colours against one", count - 1);
    return worded("%1 of %2 colours").arg(count).arg(ContrastBoard::kCapacity);
}

void fillContrastTargets(QMenu& menu, ContrastBoard& board) {
    for (const auto target : Contrast::allTargets()) {
        auto* action = menu.addAction(shown(board.title(target)), &menu,
                                      [&board, target] { board.target = target; });
        action->setCheckable(true);
        action->setChecked(board.target.value() == target);
    }
}

// What actions come to here

ActionContext ContrastWindow::context() {
    return {.ui = ui(), .window = this, .contrast = this};
}

std::optional<Uuid> ContrastWindow::entry() const {
    return body_->target();
}

std::optional<ActionTarget> ContrastWindow::target() const {
    const auto id = entry();
    const auto* held = id ? board_.entry(*id) : nullptr;
    if (!held) return std::nullopt;
    return ActionTarget{held->color, held->givenName, std::nullopt};
}

QString ContrastWindow::figureText() const {
    return body_->figureText();
}

bool ContrastWindow::canCopy() const {
    return target() || !figureText().isEmpty();
}

void ContrastWindow::copy(std::optional<ColorFormat> as) {
    if (target())
        MainWindow::copy(as);
    else
        copyFigure(ui(), figureText());
}

QProperty<Vision>* ContrastWindow::vision() const {
    return &board_.vision;
}

std::optional<FrontCapabilities::Clears> ContrastWindow::clears() const {
    return board_.entries().empty() ? std::nullopt
                                    : std::optional(FrontCapabilities::Clears::contrast);
}

void ContrastWindow::clear() {
    board_.clearAsking();
}

void ContrastWindow::pasteColours() {
    // Text and colours are the models' to read; only files are taken from the desktop's clipboard
    // itself.
    const auto held = ui().services.clipboard.content();
    if (!held.text.empty()) {
        receiveTextInContrast(ui(), held.text, std::nullopt);
        return;
    }
    if (held.colour) {
        const auto& [r, g, b, a] = *held.colour;
        Dropped pasted;
        pasted.colour = Drag{{r, g, b, a}, {}, DragOfForeignColour{}};
        receiveInContrast(ui(), pasted, std::nullopt);
        return;
    }
    const auto* mime = QGuiApplication::clipboard()->mimeData();
    if (mime) receiveInContrast(ui(), dropped(*mime), std::nullopt);
}

void ContrastWindow::showPasteSheet() {
    presentPasteSheet(std::nullopt);
}

void ContrastWindow::presentPasteSheet(std::optional<ContrastBoard::Role> as) {
    pasteAs_ = as;
    if (!pasteSheet_) pasteSheet_ = new PasteSheet(ui(), pasteTarget(ui(), pasteAs_), this);
    pasteSheet_->present();
}

void ContrastWindow::beginRename() {
    if (const auto id = entry()) {
        board_.mode = ContrastBoard::Mode::pair;
        body_->list().beginRename(*id);
    }
}

void ContrastWindow::moveEntry(const Uuid& id, std::size_t to) {
    board_.move(id, to);
    body_->focusEntry(to);
}

std::vector<QWidget*> ContrastWindow::regions() const {
    auto all = body_->regions();
    all.insert(all.begin(), tools_);
    all.push_back(facts_);
    return all;
}

void ContrastWindow::showEvent(QShowEvent* event) {
    board_.isWindowOpen = true;
    MainWindow::showEvent(event);
}

void ContrastWindow::closeEvent(QCloseEvent* event) {
    board_.isWindowOpen = false;
    MainWindow::closeEvent(event);
}

} // namespace tintra
