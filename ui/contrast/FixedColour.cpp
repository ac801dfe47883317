#include "ui/contrast/FixedColour.h"

#include "state/Models.h"
#include "ui/contrast/ContrastDrops.h"
#include "ui/contrast/EntryList.h"
#include "ui/shared/Controls.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QDropEvent>
#include <QFontMetrics>
#include <QMenu>
#include <QPainter>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kRing = 4, kChipWide = 44, kChipHigh = 32, kGap = 12, kMostWords = 260;
constexpr int kRadius = metrics::kChipRadius;

} // namespace

FixedColour::FixedColour(Ui& ui, QWidget* parent)
    : QAbstractButton(parent), ui_(ui), board_(ui.models.contrast()) {
    setFocusPolicy(Qt::StrongFocus);
    setAcceptDrops(true);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::clicked, this, [this] { choose(); });
    const auto again = [this] { sync(); };
    subscriptions_.add(board_.content(), again);
    subscriptions_.add(board_.ladderFixesGround, again);
    subscriptions_.add(board_.vision, again);
    subscriptions_.add(ui.models.preferences().format, again);
    subscriptions_.add(ui.models.preferences().formatOptions, again);
    subscriptions_.add(ui.theme.version(), again);
    sync();
}

ContrastBoard::Role FixedColour::role() const {
    return board_.ladderFixesGround ? ContrastBoard::Role::ground : ContrastBoard::Role::text;
}

const ContrastBoard::Entry* FixedColour::entry() const {
    return board_.ladderFixesGround ? board_.ground() : board_.text();
}

void FixedColour::sync() {
    name_ = worded("Choose a colour");
    code_ = worded("to read the others against");
    if (const auto* held = entry()) {
        const auto& preferences = ui_.models.preferences();
        const auto name = board_.name(*held);
        name_ = oneLine(name);
        code_ = fromUtf8(preferences.format.value().string(held->color, name,
                                                           preferences.formatOptions.value()));
    }
    setAccessibleName(worded("Fixed colour: %1").arg(name_));
    setAccessibleDescription(code_);
    updateGeometry();
    update();
}

QSize FixedColour::sizeHint() const {
    const auto& theme = ui_.theme;
    const auto words =
        std::max(QFontMetrics(theme.font(TextStyle::name)).horizontalAdvance(name_),
                 QFontMetrics(theme.font(TextStyle::codeOnSide)).horizontalAdvance(code_));
    return {2 * kRing + theme.scaled(kChipWide) + kGap +
                std::min(words + 2, theme.scaled(kMostWords)),
            theme.scaled(kChipHigh) + 2 * kRing};
}

void FixedColour::paintEvent(QPaintEvent*) {
    const auto& theme = ui_.theme;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF chip(kRing, kRing, theme.scaled(kChipWide), theme.scaled(kChipHigh));
    if (const auto* held = entry()) {
        ui_.painter.fill(painter, chip, held->color, board_.vision,
                         {kRadius, kRadius, kRadius, kRadius});
        ui_.painter.hairline(painter, chip, kRadius);
    } else {
        painter.setPen(QPen(theme.color(Token::edge), 1.5, Qt::DashLine));
        painter.drawRoundedRect(chip.adjusted(1, 1, -1, -1), kRadius, kRadius);
    }
    if (hasFocus() || over_)
        paintFocusRing(painter, theme, chip.adjusted(-2, -2, 2, 2), kRadius + 2);
    const qreal nameLine = theme.scaled(EntryList::kNameLine);
    const qreal codeLine = theme.scaled(EntryList::kCodeLine);
    const auto write = [&](qreal top, qreal high, TextStyle style, Token ink,
                           const QString& words) {
        const auto font = theme.font(style);
        const QRectF in(chip.right() + kGap, top, width() - chip.right() - kGap, high);
        painter.setFont(font);
        painter.setPen(theme.color(ink));
        painter.drawText(in, Qt::AlignLeft | Qt::AlignVCenter,
                         QFontMetricsF(font).elidedText(words, Qt::ElideRight, in.width()));
    };
    const auto top = (height() - nameLine - codeLine) / 2.0 + 1;
    write(top, nameLine, TextStyle::name, Token::ink, name_);
    write(top + nameLine, codeLine, TextStyle::codeOnSide, Token::ink3, code_);
}

void FixedColour::choose() {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (const auto& held : board_.entries()) {
        auto* action = menu->addAction(oneLine(board_.name(held), 60), menu,
                                       [this, id = held.id] { board_.setRole(role(), id); });
        action->setCheckable(true);
        action->setChecked(entry() && entry()->id == held.id);
    }
    menu->popup(mapToGlobal(QPoint(kRing, height() + 2)));
}

void FixedColour::setOver(bool over) {
    over_ = over;
    update();
}

void FixedColour::dragEnterEvent(QDragEnterEvent* event) {
    if (!isForContrast(*event->mimeData())) return;
    event->acceptProposedAction();
    setOver(true);
}

void FixedColour::dragLeaveEvent(QDragLeaveEvent*) {
    setOver(false);
}

void FixedColour::dropEvent(QDropEvent* event) {
    setOver(false);
    event->acceptProposedAction();
    receiveInContrast(ui_, dropped(*event->mimeData()), role());
}

} // namespace tintra
