#include "ui/contrast/FacePicker.h"

#include "state/Models.h"
#include "ui/contrast/SpecimenFace.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QVBoxLayout>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kWidth = 264, kHeight = 336, kInset = 8, kGap = 8, kRow = 28, kRowInset = 8;
constexpr int kFromButton = 2;

/// A face among the others, as the rows of menus are.
class FaceRows final : public QStyledItemDelegate {
public:
    FaceRows(const Theme& theme, QObject* parent) : QStyledItemDelegate(parent), theme_(theme) {}

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override {
        return {0, theme_.scaled(kRow)};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        const bool isChosen = option.state.testFlag(QStyle::State_Selected);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        if (isChosen || option.state.testFlag(QStyle::State_MouseOver)) {
            painter->setPen(Qt::NoPen);
            painter->setBrush(theme_.color(isChosen ? Token::sel : Token::hover));
            painter->drawRoundedRect(option.rect, metrics::kControlRadius, metrics::kControlRadius);
        }
        const auto ink = theme_.color(isChosen ? Token::onsel : Token::ink);
        const auto font = theme_.font(TextStyle::body, ink);
        const auto words = option.rect.adjusted(kRowInset, 0, -kRowInset, 0);
        painter->setFont(font);
        painter->setPen(ink);
        painter->drawText(
            words, Qt::AlignLeft | Qt::AlignVCenter,
            QFontMetrics(font).elidedText(index.data().toString(), Qt::ElideRight, words.width()));
        painter->restore();
    }

private:
    const Theme& theme_;
};

} // namespace

FacePicker::FacePicker(Ui& ui, QWidget* button)
    : QWidget(button, Qt::Popup), ui_(ui), before_(ui.models.contrast().family.value()),
      field_(new QLineEdit(this)), list_(new QListWidget(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAccessibleName(worded("Face of the specimen"));
    field_->setPlaceholderText(worded("Part of its name"));
    field_->setAccessibleName(worded("Find a face"));
    field_->setFont(ui.theme.font(TextStyle::body));
    field_->installEventFilter(this);
    list_->setAccessibleName(worded("Faces"));
    list_->setItemDelegate(new FaceRows(ui.theme, list_));
    list_->setFrameShape(QFrame::NoFrame);
    list_->setMouseTracking(true);
    list_->setUniformItemSizes(true);
    list_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list_->setFocusPolicy(Qt::NoFocus);
    list_->addItem(worded("The system face"));
    list_->addItems(specimenFamilies());
    const auto& now = before_;
    const auto found = now ? list_->findItems(fromUtf8(*now), Qt::MatchExactly)
                           : QList<QListWidgetItem*>{list_->item(0)};
    if (!found.isEmpty()) list_->setCurrentItem(found.first());
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kInset, kInset, kInset, kInset);
    column->setSpacing(kGap);
    column->addWidget(field_);
    column->addWidget(list_, 1);
    connect(field_, &QLineEdit::textEdited, this, [this](const QString& part) { filter(part); });
    connect(list_, &QListWidget::currentRowChanged, this, [this](int row) { take(row); });
    connect(list_, &QListWidget::itemClicked, this, [this] { close(); });
    setFixedSize(ui.theme.scaled(kWidth), ui.theme.scaled(kHeight));
    setFocusProxy(field_);
}

void FacePicker::popUp() {
    const auto* button = parentWidget();
    const auto room = button->screen()->availableGeometry();
    auto at = button->mapToGlobal(QPoint(0, button->height() + kFromButton));
    at.setX(std::max(room.left(), std::min(at.x(), room.right() + 1 - width())));
    // Above where there is no room below.
    if (at.y() + height() > room.bottom() + 1)
        at.setY(button->mapToGlobal(QPoint(0, -kFromButton - height())).y());
    move(at.x(), std::max(room.top(), at.y()));
    show();
    list_->scrollToItem(list_->currentItem(), QAbstractItemView::PositionAtCenter);
    field_->setFocus(Qt::PopupFocusReason);
}

void FacePicker::filter(const QString& part) {
    int first = -1;
    for (int row = 0; row < list_->count(); ++row) {
        const bool fits = list_->item(row)->text().contains(part.trimmed(), Qt::CaseInsensitive);
        list_->setRowHidden(row, !fits);
        if (fits && first < 0) first = row;
    }
    const auto* now = list_->currentItem();
    if (first >= 0 && (!now || now->isHidden())) list_->setCurrentRow(first);
}

void FacePicker::take(int row) {
    if (row < 0) return;
    ui_.models.contrast().family =
        row == 0 ? std::nullopt : std::optional(toUtf8(list_->item(row)->text()));
}

bool FacePicker::eventFilter(QObject* watched, QEvent* event) {
    if (watched != field_ || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        QApplication::sendEvent(list_, event);
        return true;
    case Qt::Key_Escape:
        ui_.models.contrast().family = before_;
        close();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        close();
        return true;
    default:
        return false;
    }
}

void FacePicker::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(ui_.theme.color(Token::edge));
    painter.setBrush(ui_.theme.color(Token::raised));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

} // namespace tintra
