#include "ui/editor/ChannelRow.h"

#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

namespace tintra {
namespace {

constexpr int kGap = 10, kField = 56;
constexpr int kPage = 10;

/// The steps that a key asks for in the field; 0 for keys of the text.
int stepsOf(const QKeyEvent& event) {
    const auto by = event.modifiers() & Qt::ShiftModifier ? kPage : 1;
    switch (event.key()) {
    case Qt::Key_Up:
        return by;
    case Qt::Key_Down:
        return -by;
    case Qt::Key_PageUp:
        return kPage;
    case Qt::Key_PageDown:
        return -kPage;
    default:
        return 0;
    }
}

} // namespace

ChannelRow::ChannelRow(Theme& theme, QWidget* parent, int words)
    : QWidget(parent), theme_(theme), words_(words), track_(new ChannelTrack(theme, this)),
      field_(new QLineEdit(this)) {
    field_->setAlignment(Qt::AlignRight);
    field_->setMaxLength(12);
    field_->installEventFilter(this);
    track_->changed = [this](double value) {
        dropTyped();
        if (changed) changed(value);
    };
    track_->settled = [this] {
        if (settled) settled();
    };
    connect(field_, &QLineEdit::textEdited, this, [this](const QString& typed) {
        const auto read = channel_->read(typed);
        if (read && changed) changed(*read);
    });
    connect(field_, &QLineEdit::editingFinished, this, [this] { leaveField(); });
    restyle();
}

void ChannelRow::setChannel(const EditorChannel& channel) {
    channel_ = &channel;
    track_->setChannel(channel);
    field_->setAccessibleName(worded(channel.name));
    dropTyped();
    update();
}

void ChannelRow::setValue(double value) {
    value_ = value;
    track_->setValue(value);
    if (!field_->isModified()) dropTyped();
}

void ChannelRow::setColours(GradientStops stops, const QColor& thumb) {
    track_->setColours(std::move(stops), thumb);
}

qreal ChannelRow::placeOf(double value) const {
    return track_->x() + track_->placeOf(value);
}

void ChannelRow::setDescription(const QString& text) {
    track_->setAccessibleDescription(text);
}

void ChannelRow::dropTyped() {
    const auto text = channel_->text(value_);
    if (field_->text() != text) field_->setText(text);
    field_->setModified(false);
}

void ChannelRow::leaveField() {
    if (!field_->isModified()) return;
    if (settled) settled();
    dropTyped();
}

void ChannelRow::step(int by) {
    field_->setModified(false);
    track_->choose(value_ + by * channel_->step);
    if (settled) settled();
    field_->selectAll();
}

void ChannelRow::restyle() {
    field_->setFont(theme_.font(TextStyle::code));
    // Room for "-112.0".
    field_->setTextMargins(-6, 0, 0, 0);
    setFixedHeight(theme_.scaled(kHeight));
    update();
}

void ChannelRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setFont(theme_.font(TextStyle::body));
    painter.setPen(theme_.color(Token::ink2));
    painter.drawText(QRect(0, 0, theme_.scaled(words_), height()), Qt::AlignLeft | Qt::AlignVCenter,
                     fromUtf8(channel_->letter));
}

void ChannelRow::resizeEvent(QResizeEvent*) {
    const auto side = theme_.scaled(ChannelTrack::kSide);
    const auto left = theme_.scaled(words_) - side;
    const auto field = width() - theme_.scaled(kField);
    track_->setGeometry(left, 0, field - theme_.scaled(kGap) + side - left, height());
    field_->setGeometry(field, 0, theme_.scaled(kField), height());
}

bool ChannelRow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == field_ && event->type() == QEvent::KeyPress) {
        const auto by = stepsOf(static_cast<QKeyEvent&>(*event));
        if (by != 0) {
            step(by);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace tintra
