#include "ui/library/LibraryFoot.h"

#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/StyleParts.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetrics>
#include <QIcon>
#include <QPainter>
#include <QPushButton>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kHeight = 40, kSide = 12, kGap = 16;

} // namespace

LibraryFoot::LibraryFoot(Ui& ui, LibraryModel& model, QWidget* parent)
    : QWidget(parent), ui_(ui), model_(model), add_(new QPushButton(worded("Add a Folder…"), this)),
      choices_(ui, nullptr, this) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(worded("Facts"));
    setTabOrder(&choices_.format(), add_);
    connect(add_, &QPushButton::clicked, this, [this] {
        if (addFolder) addFolder();
    });
    choices_.changed = [this] { layOut(); };
    subscriptions_.add(model.version(), [this] { sync(); });
    subscriptions_.add(ui.theme.version(), [this] {
        updateGeometry();
        sync();
    });
    sync();
}

QString LibraryFoot::facts(bool isShort) const {
    const auto& content = *model_.listing().content;
    if (model_.listing().isSearch && !model_.listing().finds.empty())
        return worded(isShort ? "Press Enter to open"
                              : "Press Enter to open · Alt+Enter opens in a new window");
    std::size_t palettes = 0;
    qsizetype folders = 0;
    for (const auto& group : content.groups) {
        if (group.kind != PaletteEntry::Group::location || !group.isOnline) continue;
        palettes += group.count;
        ++folders;
    }
    if (palettes == 0) return {};
    if (isShort) return worded("%n palette", "%n palettes", static_cast<qsizetype>(palettes));
    return worded("%n palette in ", "%n palettes in ", static_cast<qsizetype>(palettes)) +
           worded("%n folder · read, never changed", "%n folders · read, never changed", folders);
}

void LibraryFoot::sync() {
    add_->setIcon(ui_.theme.icon("plus", 16, ui_.theme.color(Token::ink), devicePixelRatioF()));
    setAccessibleDescription(facts(false));
    layOut();
}

QSize LibraryFoot::sizeHint() const {
    return {0, ui_.theme.scaled(kHeight)};
}

void LibraryFoot::layOut() {
    auto right = width() - kSide;
    // A button's ring of focus stands round it.
    const auto ring = StyleParts::kRingRoom;
    const auto button = add_->sizeHint();
    add_->setGeometry(QRect(
        QPoint(right - button.width() + ring.right(), (height() - button.height()) / 2), button));
    right -= button.width() + kGap;
    auto& format = choices_.format();
    const auto hint = format.sizeHint();
    format.setGeometry(QRect(QPoint(right - hint.width(), (height() - hint.height()) / 2), hint));
    factsEnd_ = right - hint.width() - kGap;
    update();
}

void LibraryFoot::resizeEvent(QResizeEvent*) {
    layOut();
}

void LibraryFoot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto& theme = ui_.theme;
    painter.fillRect(rect(), theme.color(Token::panel));
    painter.fillRect(0, 0, width(), 1, theme.color(Token::line));
    const auto font = theme.font(TextStyle::body);
    painter.setFont(font);
    painter.setPen(theme.color(Token::ink3));
    const QRect room(kSide, 0, factsEnd_ - kSide, height());
    const QFontMetrics metrics(font);
    const auto whole = facts(false);
    const auto said = metrics.horizontalAdvance(whole) <= room.width() ? whole : facts(true);
    drawFigures(painter, room, Qt::AlignVCenter | Qt::AlignLeft,
                metrics.elidedText(said, Qt::ElideRight, room.width()));
}

} // namespace tintra
