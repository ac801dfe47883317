#include "ui/editor/ChannelTrack.h"

#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QPainter>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kTrack = 12, kThumb = 20;
constexpr int kCheck = 8; ///< a square of the checkerboard, px

bool isTranslucent(const GradientStops& stops) {
    return std::any_of(stops.begin(), stops.end(), [](QRgb stop) { return qAlpha(stop) < 255; });
}

void paintChecks(QPainter& painter, const Theme& theme, QSizeF size) {
    painter.fillRect(QRectF({}, size), theme.color(Token::checkLight));
    const auto dark = theme.color(Token::checkDark);
    for (int y = 0; y * kCheck < size.height(); ++y)
        for (int x = y % 2; x * kCheck < size.width(); x += 2)
            painter.fillRect(QRectF(x * kCheck, y * kCheck, kCheck, kCheck), dark);
}

} // namespace

ChannelTrack::ChannelTrack(Theme& theme, QWidget* parent) : PickerControl(theme, parent) {}

void ChannelTrack::setChannel(const EditorChannel& channel) {
    channel_ = &channel;
    setAccessibleName(worded(channel.name));
    picture_ = {};
    update();
}

void ChannelTrack::setValue(double value) {
    if (value == value_) return;
    update(thumbRect());
    value_ = value;
    update(thumbRect());
    announce();
}

void ChannelTrack::setColours(GradientStops stops, const QColor& thumb) {
    if (stops != stops_) {
        stops_ = std::move(stops);
        picture_ = {};
        update();
    }
    if (thumb == thumb_) return;
    thumb_ = thumb;
    update(thumbRect());
}

QString ChannelTrack::spokenValue() const {
    return channel_->spoken(value_);
}

std::optional<PickerControl::Scale> ChannelTrack::scale() const {
    return Scale{value_, channel_->from, channel_->to, channel_->step};
}

void ChannelTrack::choose(double value) {
    if (changed) changed(channel_->fitted(value));
}

QRectF ChannelTrack::track() const {
    const auto side = theme().scaled(kSide), high = theme().scaled(kTrack);
    return {qreal(side), (height() - high) / 2.0, qreal(width() - 2 * side), qreal(high)};
}

std::pair<qreal, qreal> ChannelTrack::way() const {
    const auto in = track();
    const auto half = theme().scaled(kThumb) / 2.0;
    return {in.left() + half, in.right() - half};
}

qreal ChannelTrack::placeOf(double value) const {
    const auto [from, to] = way();
    return from + channel_->share(value) * (to - from);
}

QPointF ChannelTrack::thumbPlace() const {
    return {placeOf(value_), height() / 2.0};
}

QRect ChannelTrack::thumbRect() const {
    const qreal reach = theme().scaled(kHalo);
    const auto centre = thumbPlace();
    return QRectF(centre.x() - reach, centre.y() - reach, 2 * reach, 2 * reach).toAlignedRect();
}

const QImage& ChannelTrack::picture() {
    const auto ratio = devicePixelRatioF();
    const auto size = (track().size() * ratio).toSize();
    if (picture_.size() == size && picture_.devicePixelRatio() == ratio) return picture_;
    picture_ = QImage(size, QImage::Format_ARGB32_Premultiplied);
    picture_.fill(Qt::transparent);
    QPainter painter(&picture_);
    if (isTranslucent(stops_)) {
        painter.scale(ratio, ratio);
        paintChecks(painter, theme(), track().size());
        painter.resetTransform();
    }
    painter.drawImage(picture_.rect(), gradientRow(stops_, size.width()));
    painter.end();
    roundCorners(picture_, size.height() / 2.0);
    picture_.setDevicePixelRatio(ratio);
    return picture_;
}

void ChannelTrack::paintEvent(QPaintEvent*) {
    const auto in = track();
    if (in.width() < 1) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.drawImage(in.topLeft(), picture());
    const auto round = in.height() / 2;
    painter.setPen(QPen(QColor(127, 127, 127, 89), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(in.adjusted(0.5, 0.5, -0.5, -0.5), round, round);
    if (showsFocus()) {
        const auto around = in.adjusted(-7, -6, 7, 6);
        paintFocusRing(painter, theme(), around, static_cast<int>(around.height() / 2 + 1));
    }
    paintThumb(painter, thumbPlace(), thumb_);
}

void ChannelTrack::resizeEvent(QResizeEvent*) {
    picture_ = {};
}

void ChannelTrack::dragTo(QPointF place) {
    const auto [from, to] = way();
    const auto share = std::clamp((place.x() - from) / (to - from), 0.0, 1.0);
    choose(channel_->from + share * (channel_->to - channel_->from));
}

void ChannelTrack::stepBy(int right, int up) {
    choose(value_ + (right + up) * channel_->step);
}

void ChannelTrack::goToEnd(bool last) {
    choose(last ? channel_->to : channel_->from);
}

} // namespace tintra
