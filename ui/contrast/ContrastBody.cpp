#include "ui/contrast/ContrastBody.h"

#include "state/Models.h"
#include "ui/contrast/ContrastDrops.h"
#include "ui/contrast/EntryList.h"
#include "ui/contrast/LadderCanvas.h"
#include "ui/contrast/LadderPage.h"
#include "ui/contrast/MatrixCanvas.h"
#include "ui/contrast/MatrixPage.h"
#include "ui/contrast/PairHalves.h"
#include "ui/contrast/ResultPanel.h"
#include "ui/contrast/SpecimenBar.h"
#include "ui/contrast/SpecimenCanvas.h"
#include "ui/contrast/VerdictCanvas.h"
#include "ui/shared/CanvasScroll.h"
#include "ui/shared/DropRing.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QDropEvent>
#include <QMenu>
#include <QPainter>
#include <algorithm>
#include <utility>

namespace tintra {
namespace {

constexpr int kGap = 12;
/// Narrower, the list shows its chips alone.
constexpr int kCompactBelow = 880;

} // namespace

ContrastBody::ContrastBody(Ui& ui, QWidget* parent)
    : QWidget(parent), ui_(ui), board_(ui.models.contrast()), listScroll_(new CanvasScroll(this)),
      list_(new EntryList(ui, nullptr)), halves_(new PairHalves(ui, this)),
      specimen_(new SpecimenCanvas(ui, this)), bar_(new SpecimenBar(ui, this)),
      result_(new ResultPanel(ui, this)), matrix_(new MatrixPage(ui, this)),
      ladder_(new LadderPage(ui, this)), ring_(new DropRing(ui.theme, this)) {
    setAcceptDrops(true);
    listScroll_->hold(*list_);
    connectParts();
    const auto again = [this] { sync(); };
    subscriptions_.add(board_.content(), again);
    subscriptions_.add(board_.mode, again);
    subscriptions_.add(ui.theme.version(), [this] {
        layOut();
        update();
    });
    sync();
}

void ContrastBody::connectParts() {
    const auto menu = [this](QMenu& of) {
        if (fillMenu) fillMenu(of);
    };
    list_->reveal = [this](const QRect& what) { listScroll_->reveal(what); };
    list_->fillMenu = menu;
    list_->addColour = [this] {
        if (addColour) addColour(std::nullopt);
    };
    matrix_->matrix().fillMenu = menu;
    ladder_->ladder().fillMenu = menu;
    halves_->choose = [this](ContrastBoard::Role role, QPoint at) { chooseFor(role, at); };
}

void ContrastBody::chooseFor(ContrastBoard::Role role, QPoint at) {
    const auto add = [this, role] {
        if (addColour) addColour(role);
    };
    if (board_.entries().empty()) {
        add();
        return;
    }
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const auto& held : board_.entries())
        menu->addAction(oneLine(board_.name(held), 60), menu,
                        [this, role, id = held.id] { board_.setRole(role, id); });
    menu->addSeparator();
    menu->addAction(worded("Add a colour"), menu, add);
    menu->popup(at);
}

// What has the focus

QWidget* ContrastBody::main() const {
    if (board_.entries().empty()) return halves_;
    switch (board_.mode.value()) {
    case ContrastBoard::Mode::pair:
        return list_;
    case ContrastBoard::Mode::matrix:
        return &matrix_->matrix();
    case ContrastBoard::Mode::ladder:
        return &ladder_->ladder();
    }
    return list_;
}

std::optional<Uuid> ContrastBody::target() const {
    if (matrix_->isVisibleTo(this)) return matrix_->matrix().target();
    if (ladder_->isVisibleTo(this)) return ladder_->ladder().target();
    // While another canvas has the keyboard, keys are not for the list.
    const auto* canvas = dynamic_cast<const Canvas*>(focusWidget());
    const bool isElsewhere = canvas && canvas != list_ && canvas->hasFocus();
    return list_->isVisibleTo(this) && !isElsewhere ? list_->target() : std::nullopt;
}

void ContrastBody::focusEntry(std::size_t at) {
    auto& matrix = matrix_->matrix();
    if (matrix_->isVisibleTo(this) && matrix.focused() >= 0)
        matrix.setFocused(
            matrix.find(matrix.items()[static_cast<std::size_t>(matrix.focused())].kind, at));
    list_->setFocused(list_->find(EntryList::entry, at));
}

QString ContrastBody::figureText() const {
    if (matrix_->isVisibleTo(this)) return matrix_->matrix().figureText();
    if (ladder_->isVisibleTo(this)) return ladder_->ladder().figureText();
    return result_->isVisibleTo(this) ? result_->verdict().figureText() : QString();
}

std::vector<QWidget*> ContrastBody::regions() const {
    return {list_, halves_, specimen_, bar_, result_, matrix_, ladder_};
}

// Layout

void ContrastBody::sync() {
    const Shown now{board_.mode, board_.entries().empty(), board_.text() && board_.ground()};
    // Most changes are of a colour that is shown already.
    if (std::exchange(shown_, now) == now) return;
    const auto [mode, isEmpty, isWhole] = now;
    const bool isPair = !isEmpty && mode == ContrastBoard::Mode::pair;
    const auto* focus = focusWidget();
    const bool had = focus && focus->hasFocus() && isAncestorOf(focus);
    listScroll_->setVisible(isPair);
    halves_->setVisible(isEmpty || (isPair && !isWhole));
    specimen_->setVisible(isPair && isWhole);
    bar_->setVisible(isPair && isWhole);
    result_->setVisible(isPair && isWhole);
    matrix_->setVisible(!isEmpty && mode == ContrastBoard::Mode::matrix);
    ladder_->setVisible(!isEmpty && mode == ContrastBoard::Mode::ladder);
    layOut();
    update();
    // The keyboard stays in the body when what had it goes.
    if (had && !focus->isVisibleTo(this)) main()->setFocus(Qt::OtherFocusReason);
}

void ContrastBody::layOut() {
    ring_->setGeometry(rect());
    matrix_->setGeometry(rect());
    ladder_->setGeometry(rect());
    if (board_.entries().empty())
        halves_->setGeometry(rect().adjusted(kGap, kGap, -kGap, -kGap));
    else
        layOutPair();
}

void ContrastBody::layOutPair() {
    const bool compact = width() < ui_.theme.scaled(kCompactBelow);
    const auto list = ui_.theme.scaled(compact ? EntryList::kCompactWidth : EntryList::kWidth);
    listScroll_->setGeometry(0, 0, list - 1, height()); // and a line
    const auto left = list + kGap, wide = width() - left - kGap;
    const auto result = result_->sizeHint().height(), bar = bar_->sizeHint().height();
    const auto resultTop = height() - kGap - result;
    const auto barTop = resultTop - kGap - bar;
    result_->setGeometry(left, resultTop, wide, result);
    bar_->setGeometry(left, barTop, wide, bar);
    specimen_->setGeometry(left, kGap, wide, std::max(0, barTop - 2 * kGap));
    halves_->setGeometry(left, kGap, wide, height() - 2 * kGap);
}

void ContrastBody::resizeEvent(QResizeEvent*) {
    layOut();
}

// Drops

void ContrastBody::dragEnterEvent(QDragEnterEvent* event) {
    // Its own colours are there already.
    if (board_.draggingEntry.value() || !isForContrast(*event->mimeData())) return;
    event->acceptProposedAction();
    const auto colour = dropped(*event->mimeData()).colour;
    isRefused_ = colour && isRefusedByContrast(ui_, *colour);
    ring_->setShown(!isRefused_);
}

void ContrastBody::dragMoveEvent(QDragMoveEvent* event) {
    event->acceptProposedAction();
    if (!isRefused_) return;
    // The cursor says no, but the drop is let come, to be told why.
    event->setDropAction(Qt::IgnoreAction);
    event->accept();
}

void ContrastBody::dragLeaveEvent(QDragLeaveEvent*) {
    isRefused_ = false;
    ring_->setShown(false);
}

void ContrastBody::dropEvent(QDropEvent* event) {
    if (!isRefused_) event->acceptProposedAction();
    dragLeaveEvent(nullptr);
    receiveInContrast(ui_, dropped(*event->mimeData()), std::nullopt);
}

void ContrastBody::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ui_.theme.color(Token::ground));
    if (listScroll_->isVisible())
        painter.fillRect(listScroll_->geometry().right() + 1, 0, 1, height(),
                         ui_.theme.color(Token::line));
}

} // namespace tintra
