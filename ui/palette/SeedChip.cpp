#include "ui/palette/SeedChip.h"

#include "colour/ColorNames.h"
#include "state/Models.h"
#include "ui/palette/SeedEditor.h"
#include "ui/shared/ColourDrag.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/Controls.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFontMetrics>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kWidth = 56, kHeight = 32, kRing = 4, kGap = 8;
constexpr int kMostWords = 180; ///< a code may be a long line of a programming language

} // namespace

SeedChip::SeedChip(Ui& ui, AppState& state, AppState::SeedRole role, QWidget* parent)
    : QAbstractButton(parent), ui_(ui), state_(state), role_(role) {
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::clicked, this, [this] { edit(); });
    sync();
}

const WashColor& SeedChip::seed() const {
    return role_ == AppState::SeedRole::first ? state_.first() : state_.last();
}

void SeedChip::setCompact(bool compact) {
    compact_ = compact;
    update();
}

void SeedChip::sync() {
    const auto& preferences = ui_.models.preferences();
    label_ = worded(role_ == AppState::SeedRole::first ? "First seed" : "Last seed");
    const auto name = ColorNames::shared().name(seed());
    code_ = fromUtf8(
        preferences.format.value().string(seed(), name, preferences.formatOptions.value()));
    setAccessibleName(label_);
    setAccessibleDescription(oneLine(name) + QStringLiteral(", ") + code_);
    setToolTip(oneLine(name) + QLatin1Char('\n') + code_);
    update();
}

QSize SeedChip::sizeHint() const {
    const auto& theme = ui_.theme;
    const QSize chip(theme.scaled(kWidth) + 2 * kRing, theme.scaled(kHeight) + 2 * kRing);
    if (compact_) return chip;
    const auto words =
        std::max(QFontMetrics(theme.font(TextStyle::caption)).horizontalAdvance(label_),
                 std::min(theme.scaled(kMostWords),
                          QFontMetrics(theme.font(TextStyle::code)).horizontalAdvance(code_)));
    return chip + QSize(kGap + words + 1, 0);
}

QRect SeedChip::chipRect() const {
    const QSize size(ui_.theme.scaled(kWidth), ui_.theme.scaled(kHeight));
    return {QPoint(kRing, (height() - size.height()) / 2), size};
}

void SeedChip::paintEvent(QPaintEvent*) {
    const auto& theme = ui_.theme;
    constexpr auto kRadius = metrics::kControlRadius;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF chip = chipRect();
    ui_.painter.fill(painter, chip, seed(), state_.vision, {kRadius, kRadius, kRadius, kRadius});
    ui_.painter.hairline(painter, chip, kRadius);
    if (hasFocus() || isDown())
        paintFocusRing(painter, theme, chip.adjusted(-2, -2, 2, 2), kRadius + 2);
    if (dropTarget_) {
        painter.setPen(QPen(ui_.painter.foreground(seed(), state_.vision), 3));
        painter.drawRoundedRect(chip.adjusted(1.5, 1.5, -1.5, -1.5), kRadius, kRadius);
    }
    if (compact_) return;
    const auto left = chip.right() + kGap;
    const auto captionLine = theme.lineHeight(TextStyle::caption);
    const auto codeLine = theme.lineHeight(TextStyle::code);
    const auto top = (height() - captionLine - codeLine) / 2;
    painter.setFont(theme.font(TextStyle::caption));
    painter.setPen(theme.color(Token::ink3));
    painter.drawText(QRectF(left, top, width() - left, captionLine), Qt::AlignVCenter, label_);
    const auto codeFont = theme.font(TextStyle::code);
    painter.setFont(codeFont);
    painter.setPen(theme.color(Token::ink));
    painter.drawText(QRectF(left, top + captionLine, width() - left, codeLine), Qt::AlignVCenter,
                     QFontMetricsF(codeFont).elidedText(code_, Qt::ElideRight, width() - left + 1));
}

void SeedChip::edit() {
    auto* editor = new SeedEditor(ui_, state_, role_, this);
    editor->popUp(mapToGlobal(chipRect().bottomLeft() + QPoint(-kRing, kGap)));
}

void SeedChip::clear() {
    if (role_ == AppState::SeedRole::first)
        state_.setSeed(role_, AppState::defaultSeeds().first);
    else
        state_.restoreSeeds({state_.first(), AppState::defaultingLast(state_.first()), false});
}

void SeedChip::contextMenuEvent(QContextMenuEvent* event) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(worded("Copy"), this, [this] { state_.copy(WashColor(seed()), {}); });
    menu->addAction(worded("Edit…"), this, [this] { edit(); });
    menu->addAction(worded("Clear"), this, [this] { clear(); });
    menu->popup(event->reason() == QContextMenuEvent::Keyboard
                    ? mapToGlobal(chipRect().bottomLeft())
                    : event->globalPos());
}

// Drag and drop

void SeedChip::mousePressEvent(QMouseEvent* event) {
    pressedAt_ = event->pos();
    QAbstractButton::mousePressEvent(event);
}

void SeedChip::mouseMoveEvent(QMouseEvent* event) {
    const auto far = (event->pos() - pressedAt_).manhattanLength();
    if (isDown() && (event->buttons() & Qt::LeftButton) && far >= QApplication::startDragDistance())
        startDrag();
    else
        QAbstractButton::mouseMoveEvent(event);
}

void SeedChip::startDrag() {
    setDown(false);
    SwatchLook look;
    look.color = seed();
    look.vision = state_.vision;
    look.code = code_;
    dragColour(*this, ui_.painter, {seed(), std::nullopt, DragOfSeed{}}, look, kSmallDragCard);
}

void SeedChip::setDropTarget(bool isOne) {
    if (isOne == dropTarget_) return;
    dropTarget_ = isOne;
    state_.swatchIsOver = isOne;
    update();
}

void SeedChip::dragEnterEvent(QDragEnterEvent* event) {
    // Only a colour makes a seed; whatever else is dropped goes to the window.
    const auto drop = dropped(*event->mimeData());
    if (!drop.colour && !drop.text) return event->ignore();
    setDropTarget(true);
    event->acceptProposedAction();
}

void SeedChip::dragLeaveEvent(QDragLeaveEvent*) {
    setDropTarget(false);
}

void SeedChip::dropEvent(QDropEvent* event) {
    setDropTarget(false);
    const auto drag = seedOf(dropped(*event->mimeData()));
    if (!drag) return;
    event->acceptProposedAction();
    state_.receiveSeed(*drag, role_);
}

} // namespace tintra
