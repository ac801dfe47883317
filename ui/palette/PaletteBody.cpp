#include "ui/palette/PaletteBody.h"

#include "state/Models.h"
#include "ui/editor/EditorPanel.h"
#include "ui/palette/BandsCanvas.h"
#include "ui/palette/EmptyState.h"
#include "ui/palette/PaneDivider.h"
#include "ui/picture/PicturePane.h"
#include "ui/picture/PictureSplit.h"
#include "ui/shared/CanvasScroll.h"
#include "ui/shared/DropRing.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QApplication>
#include <QPainter>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kMargin = 12;

/// Hides or shows a panel; the keyboard goes from one that is hidden to `then`, not to whatever
/// comes next in the window.
void setShown(QWidget& panel, bool shows, QWidget& then) {
    if (!shows && panel.isAncestorOf(QApplication::focusWidget()))
        then.setFocus(Qt::OtherFocusReason);
    panel.setVisible(shows);
}

} // namespace

PaletteBody::PaletteBody(Ui& ui, AppState& state, QWidget* parent)
    : QWidget(parent), ui_(ui), state_(state), picture_(new PicturePane(ui, state, this)),
      divider_(new PaneDivider(ui, this)), swatchScroll_(new CanvasScroll(this)),
      bandScroll_(new CanvasScroll(this)),
      swatches_(new PaletteCanvas(ui, state, swatchScroll_->viewport())),
      bands_(new BandsCanvas(ui, state, bandScroll_->viewport())),
      empty_(new EmptyState(ui, state, this)), editor_(new EditorPanel(ui, state, this)),
      ring_(new DropRing(ui.theme, this)) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    swatchScroll_->hold(*swatches_);
    bandScroll_->hold(*bands_);
    swatches_->reveal = [this](const QRect& what) { swatchScroll_->reveal(what); };
    bands_->reveal = [this](const QRect& what) { bandScroll_->reveal(what); };
    bands_->changed = [this] {
        if (targetChanged) targetChanged();
    };
    subscribe();
    layOut();
}

QWidget* PaletteBody::picture() const {
    return picture_;
}

QWidget* PaletteBody::editor() const {
    return editor_;
}

void PaletteBody::subscribe() {
    const auto again = [this] { layOut(); };
    subscriptions_.add(state_.mode, again);
    subscriptions_.add(state_.customPalette(), again);
    subscriptions_.add(state_.isPictureWindowOpen, again);
    subscriptions_.add(state_.editorBuffer, [this] {
        // Every step of a slider comes here; only opening and closing moves anything.
        const bool edits = state_.editorBuffer.value().has_value();
        if (edits == editor_->isHidden())
            layOut();
        else if (targetChanged)
            targetChanged();
    });
    subscriptions_.add(ui_.models.preferences().pictureShare, again);
    subscriptions_.add(ui_.theme.version(), again);
    subscriptions_.add(state_.fileIsOver, [this] { ring_->setShown(state_.fileIsOver); });
}

Canvas* PaletteBody::main() const {
    if (state_.mode.value() != HarmonyMode::paletteBuilder) return bands_;
    if (state_.swatches().empty() && !state_.isPictureWindowOpen.value()) return empty_;
    return swatches_;
}

int PaletteBody::editorWidth() const {
    return ui_.theme.scaled(EditorPanel::kWidth);
}

QRect PaletteBody::layOutPicture(QRect room) {
    const bool open = state_.isPictureWindowOpen.value();
    setShown(*picture_, open, *main());
    divider_->setVisible(open);
    if (!open) return room;
    const auto share = ui_.models.preferences().pictureShare.value();
    const auto width = PictureSplit::pictureWidth(share, room.width());
    // The swatches bring the margin between with them; there the divider lies.
    picture_->setGeometry(room.adjusted(kMargin, kMargin, width - room.width(), -kMargin));
    divider_->setGeometry(room.left() + width, room.top(), PaneDivider::kWidth, room.height());
    divider_->raise();
    return room.adjusted(width, 0, 0, 0);
}

void PaletteBody::layOut() {
    auto room = rect();
    // Also while another window is in front.
    const auto* focus = window()->focusWidget();
    const bool wasInEditor = editor_->isAncestorOf(focus);
    const bool wasInPicture = picture_->isAncestorOf(focus) || focus == picture_;
    const bool edits = state_.editorBuffer.value().has_value();
    const auto editorPlace =
        QRect(std::max(0, width() - editorWidth()), 0, std::min(editorWidth(), width()), height());
    const bool overlays = window()->width() < kOverlayBelow;
    if (edits && !overlays) room.setRight(editorPlace.left() - 1);
    layOutMain(layOutPicture(room));
    setShown(*editor_, edits, *main());
    editor_->setGeometry(editorPlace);
    editor_->raise();
    ring_->setGeometry(rect());
    // What goes with the focus leaves it to the canvas, which shows it if it did before.
    if ((wasInEditor && editor_->isHidden()) || (wasInPicture && picture_->isHidden()))
        main()->setFocus(Qt::PopupFocusReason);
    update();
    if (targetChanged) targetChanged();
}

void PaletteBody::layOutMain(QRect room) {
    auto* shown = main();
    // Also while another window is in front.
    const auto* focus = window()->focusWidget();
    const auto* canvas = dynamic_cast<const Canvas*>(focus);
    const bool goesOn =
        focus != shown && canvas && (focus == swatches_ || focus == bands_ || focus == empty_);
    // A ring appears for those alone who use the keyboard.
    const bool showsFocus = goesOn && canvas->showsFocus();
    swatches_->setRows(state_.isPictureWindowOpen.value());
    QWidget* const places[] = {swatchScroll_, bandScroll_, empty_};
    auto* const place = shown == empty_ ? places[2] : places[shown == bands_ ? 1 : 0];
    // Beside a picture an empty palette only says what will stand there.
    place->setVisible(shown != swatches_ || !state_.swatches().empty());
    place->setGeometry(room);
    // The keyboard goes on before what had it is hidden: it would pass to a tool on the way.
    if (goesOn && shown == empty_) empty_->setFocused(empty_->find(EmptyState::action, 0));
    if (goesOn) shown->setFocus(showsFocus ? Qt::OtherFocusReason : Qt::ActiveWindowFocusReason);
    for (auto* const other : places)
        if (other != place) other->hide();
}

void PaletteBody::resizeEvent(QResizeEvent*) {
    layOut();
}

void PaletteBody::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ui_.theme.color(Token::ground));
    if (!state_.isPictureWindowOpen.value() || !state_.swatches().empty()) return;
    painter.setFont(ui_.theme.font(TextStyle::body));
    painter.setPen(ui_.theme.color(Token::ink2));
    const auto left = divider_->geometry().right();
    painter.drawText(QRect(left, 0, width() - left, height()), Qt::AlignCenter | Qt::TextWordWrap,
                     worded("Its colours appear here"));
}

} // namespace tintra
