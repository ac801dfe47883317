#include "ui/contrast/SpecimenBar.h"

#include "platform/Number.h"
#include "state/Models.h"
#include "ui/contrast/FacePicker.h"
#include "ui/contrast/SpecimenFace.h"
#include "ui/shared/Controls.h"
#include "ui/shared/StyleParts.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <array>

namespace tintra {
namespace {

constexpr int kInset = 8, kGap = 8, kSizeField = 76, kWidestFace = 180, kIcon = 20;
constexpr int kNoteRoom = 200; ///< for two lines of the note

struct WeightRow {
    int weight;
    const char* name;
};
constexpr std::array kWeights{
    WeightRow{100, "Thin"},    WeightRow{200, "Extra Light"}, WeightRow{300, "Light"},
    WeightRow{400, "Regular"}, WeightRow{500, "Medium"},      WeightRow{600, "Semi Bold"},
    WeightRow{700, "Bold"},    WeightRow{800, "Extra Bold"},  WeightRow{900, "Black"},
};

QString sizeText(double size) {
    return worded("%1 px").arg(fromUtf8(shortest(size)));
}

} // namespace

SpecimenBar::SpecimenBar(Ui& ui, QWidget* parent)
    : QWidget(parent), ui_(ui), face_(new PopUpButton(ui.theme, PopUpButton::Border::yes, this)),
      weight_(new PopUpButton(ui.theme, PopUpButton::Border::yes, this)),
      size_(new QLineEdit(this)), swap_(new QPushButton(this)) {
    // The order of the Tab key.
    setTabOrder(face_, size_);
    setTabOrder(size_, weight_);
    setTabOrder(weight_, swap_);
    auto& board = ui.models.contrast();
    face_->open = [this] { openFaces(); };
    size_->setAccessibleName(worded("Size of the specimen"));
    size_->setAlignment(Qt::AlignRight);
    size_->setMaxLength(12);
    size_->installEventFilter(this);
    connect(size_, &QLineEdit::editingFinished, this, [this] { readSize(); });
    weight_->fill = [&board](QMenu& menu) {
        for (const auto& [weight, name] : kWeights) {
            auto* action = menu.addAction(QString::number(weight) + u' ' + worded(name), &menu,
                                          [&board, to = weight] { board.weight = to; });
            action->setCheckable(true);
            action->setChecked(board.weight == weight);
        }
    };
    swap_->setText(worded("Swap the text and the ground"));
    swap_->setAutoDefault(false);
    connect(swap_, &QPushButton::clicked, this, [&board] { board.exchangeRoles(); });
    const auto again = [this] { sync(); };
    subscriptions_.add(board.size, again);
    subscriptions_.add(board.weight, again);
    subscriptions_.add(board.family, again);
    subscriptions_.add(ui.theme.version(), again);
    sync();
}

QSize SpecimenBar::sizeHint() const {
    return {0, ui_.theme.scaled(kHeight)};
}

void SpecimenBar::sync() {
    const auto& board = ui_.models.contrast();
    const auto& theme = ui_.theme;
    const auto& family = board.family.value();
    face_->setText(family ? oneLine(*family, 40) : worded("The system face"));
    face_->setAccessibleName(worded("Face: %1").arg(face_->text()));
    if (!size_->isModified()) size_->setText(sizeText(board.size));
    size_->setFont(theme.font(TextStyle::code));
    weight_->setText(QString::number(board.weight));
    weight_->setAccessibleName(worded("Weight: %1").arg(weight_->text()));
    swap_->setFont(theme.font(TextStyle::control));
    swap_->setIcon(theme.icon("swap", kIcon, theme.color(Token::ink), devicePixelRatioF()));
    swap_->setIconSize(QSize(kIcon, kIcon));
    note_ = specimenFace(board, theme).note;
    setAccessibleDescription(note_);
    updateGeometry();
    layOut();
}

void SpecimenBar::layOut() {
    const auto& theme = ui_.theme;
    const auto high = theme.scaled(28), top = (height() - high) / 2;
    auto left = kInset;
    const auto place = [&](QWidget& widget, int width) {
        widget.setGeometry(left, top, width, high);
        left += width + kGap;
    };
    place(*face_, std::min(face_->sizeHint().width(), theme.scaled(kWidestFace)));
    place(*size_, theme.scaled(kSizeField));
    place(*weight_, weight_->sizeHint().width());
    // Where there is little room the swap is its sign alone: the note says more than its words.
    const auto words = worded("Swap the text and the ground");
    swap_->setText(words);
    swap_->setAccessibleName(words);
    swap_->setToolTip(words + QStringLiteral(" (X)"));
    auto swap = swap_->sizeHint().width();
    if (left + theme.scaled(kNoteRoom) + kGap + swap + kInset > width()) {
        swap_->setText({});
        swap = theme.scaled(36);
    }
    // A button keeps room for its ring around what is painted of it.
    const auto ring = StyleParts::kRingRoom.right();
    const auto button = swap_->sizeHint().height();
    swap_->setGeometry(width() - kInset + ring - swap, (height() - button) / 2, swap, button);
    notePlace_ = QRect(left, 0, std::max(0, swap_->x() - kGap - left), height());
    setToolTip(note_);
    update();
}

void SpecimenBar::resizeEvent(QResizeEvent*) {
    layOut();
}

void SpecimenBar::paintEvent(QPaintEvent*) {
    const auto& theme = ui_.theme;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.color(Token::panel));
    painter.drawRoundedRect(rect(), metrics::kGroupRadius, metrics::kGroupRadius);
    const auto font = theme.font(TextStyle::caption);
    painter.setPen(theme.color(Token::ink3));
    const auto lines = lines_.twoLines(font, note_, notePlace_.width());
    const qreal line = theme.lineHeight(TextStyle::caption);
    const auto count = static_cast<qreal>(lines.size());
    QRectF in(notePlace_.left(), (height() - count * line) / 2, notePlace_.width(), line);
    for (const auto& words : lines) {
        lines_.paint(painter, font, in, Qt::AlignLeft, words);
        in.translate(0, line);
    }
}

void SpecimenBar::openFaces() {
    auto* picker = new FacePicker(ui_, face_);
    picker->popUp();
}

// The size

void SpecimenBar::takeSize(double size) {
    ui_.models.contrast().size =
        std::clamp(size, ContrastBoard::kSmallestSize, ContrastBoard::kLargestSize);
    size_->setModified(false);
    size_->setText(sizeText(ui_.models.contrast().size));
}

void SpecimenBar::readSize() {
    auto text = size_->text().trimmed();
    if (text.endsWith(QStringLiteral("px"), Qt::CaseInsensitive)) text.chop(2);
    text.replace(u',', u'.');
    const auto size = number(toUtf8(text.trimmed()));
    takeSize(size.value_or(ui_.models.contrast().size));
}

bool SpecimenBar::eventFilter(QObject* watched, QEvent* event) {
    if (watched != size_ || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto& key = static_cast<QKeyEvent&>(*event);
    const auto by = key.modifiers().testFlag(Qt::ShiftModifier) ? 10 : 1;
    switch (key.key()) {
    case Qt::Key_Up:
        takeSize(ui_.models.contrast().size + by);
        return true;
    case Qt::Key_Down:
        takeSize(ui_.models.contrast().size - by);
        return true;
    case Qt::Key_Escape:
        takeSize(ui_.models.contrast().size);
        return false;
    default:
        return false;
    }
}

} // namespace tintra
