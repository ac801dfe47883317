#include "ui/palette/PaletteBody.h"

#include "state/Models.h"
#include "ui/palette/PaneDivider.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollArea>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kEditor = 312, kMargin = 12;

/// Scrolls with the wheel and the bar alone: the keys are the canvas's and the window's.
class CanvasScroll final : public QScrollArea {
public:
    using QScrollArea::QScrollArea;

protected:
    void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
};

/// Shows where a drop would go that goes to the window as a whole.
class DropRing final : public QWidget {
public:
    DropRing(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        constexpr qreal kRing = 3;
        QPainter painter(this);
        painter.setPen(QPen(theme_.color(Token::ink), kRing));
        painter.drawRect(QRectF(rect()).adjusted(kRing / 2, kRing / 2, -kRing / 2, -kRing / 2));
    }

private:
    const Theme& theme_;
};

QScrollArea* scrolled(PaletteCanvas*& canvas, Ui& ui, AppState& state, QWidget* parent) {
    auto* scroll = new CanvasScroll(parent);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    canvas = new PaletteCanvas(ui, state, scroll->viewport());
    scroll->setWidget(canvas);
    canvas->reveal = [scroll](const QRect& what) {
        const auto middle = what.center();
        scroll->ensureVisible(middle.x(), middle.y(), what.width() / 2 + kMargin,
                              what.height() / 2 + kMargin);
    };
    return scroll;
}

} // namespace

PaletteBody::PaletteBody(Ui& ui, AppState& state, QWidget* parent)
    : QWidget(parent), ui_(ui), state_(state),
      picture_(palettePanels::picturePane(ui, state, this)), divider_(new PaneDivider(ui, this)),
      editor_(nullptr), ring_(nullptr) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    scroll_ = scrolled(swatches_, ui, state, this);
    empty_ = palettePanels::emptyState(ui, state, this);
    bands_ = palettePanels::bands(
        ui, state,
        [this] {
            if (targetChanged) targetChanged();
        },
        this);
    editor_ = palettePanels::editor(ui, state, this);
    ring_ = new DropRing(ui.theme, this);
    subscribe();
    layOut();
}

void PaletteBody::subscribe() {
    const auto again = [this] { layOut(); };
    subscriptions_.add(state_.mode, again);
    subscriptions_.add(state_.customPalette(), again);
    subscriptions_.add(state_.isPictureWindowOpen, again);
    subscriptions_.add(state_.editorBuffer, again);
    subscriptions_.add(ui_.models.preferences().pictureShare, again);
    subscriptions_.add(ui_.theme.version(), again);
    subscriptions_.add(state_.fileIsOver, [this] {
        ring_->setVisible(state_.fileIsOver);
        ring_->raise();
    });
}

QWidget* PaletteBody::main() const {
    if (state_.mode.value() != HarmonyMode::paletteBuilder) return bands_.widget;
    if (state_.swatches().empty() && !state_.isPictureWindowOpen.value()) return empty_;
    return swatches_;
}

int PaletteBody::editorWidth() const {
    return ui_.theme.scaled(kEditor);
}

QRect PaletteBody::layOutPicture(QRect room) {
    const bool open = state_.isPictureWindowOpen.value();
    picture_->setVisible(open);
    divider_->setVisible(open);
    if (!open) return room;
    const auto width = static_cast<int>(room.width() * fractionOf(ui_)) - kMargin / 2;
    picture_->setGeometry(room.left(), room.top(), width, room.height());
    divider_->setGeometry(room.left() + width - PaneDivider::kWidth / 2, room.top(),
                          PaneDivider::kWidth, room.height());
    divider_->raise();
    return room.adjusted(width, 0, 0, 0);
}

void PaletteBody::layOut() {
    auto room = rect();
    const bool edits = state_.editorBuffer.value().has_value();
    const auto editorPlace =
        QRect(std::max(0, width() - editorWidth()), 0, std::min(editorWidth(), width()), height());
    const bool overlays = window()->width() < kOverlayBelow;
    if (edits && !overlays) room.setRight(editorPlace.left() - 1);
    room = layOutPicture(room);
    auto* shown = main();
    const auto* focus = QApplication::focusWidget();
    const bool hadKeyboard =
        focus &&
        std::ranges::any_of(std::initializer_list<QWidget*>{swatches_, empty_, bands_.widget},
                            [&](const QWidget* of) {
                                return of != shown && (of == focus || of->isAncestorOf(focus));
                            });
    // An empty palette beside a picture says what will stand there.
    const bool isWaiting = shown == swatches_ && state_.swatches().empty();
    swatches_->setRows(state_.isPictureWindowOpen.value());
    scroll_->setVisible(shown == swatches_ && !isWaiting);
    empty_->setVisible(shown == empty_);
    bands_.widget->setVisible(shown == bands_.widget);
    (shown == swatches_ ? scroll_ : shown)->setGeometry(room);
    if (hadKeyboard) shown->setFocus(Qt::OtherFocusReason);
    editor_->setVisible(edits);
    editor_->setGeometry(editorPlace);
    editor_->raise();
    ring_->setGeometry(rect());
    update();
    if (targetChanged) targetChanged();
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
