#include "ui/picture/PictureCanvas.h"

#include "colour/ColorNames.h"
#include "state/Models.h"
#include "ui/picture/Magnifier.h"
#include "ui/shared/Figures.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

namespace tintra {
namespace {

constexpr int kPin = 28;
constexpr qreal kWhite = 2, kBlack = 1.5; ///< rings round a pin
constexpr qreal kSquare = 6;              ///< radius of a pin of the user's own
constexpr qreal kCross = 14, kCrossGap = 4;

/// A pin with its rings, grown by some px.
void drawPin(QPainter& painter, const QRectF& disc, qreal grown, bool isSquare) {
    const auto shape = disc.adjusted(-grown, -grown, grown, grown);
    if (isSquare)
        painter.drawRoundedRect(shape, kSquare + grown, kSquare + grown);
    else
        painter.drawEllipse(shape);
}

} // namespace

PictureCanvas::PictureCanvas(Ui& ui, AppState& state, QWidget* parent)
    : Canvas(ui.theme, parent), ui_(ui), state_(state), copy_(ui.services) {
    containerRole = QAccessible::Graphic;
    copy_.changed = [this] { update(); };
    const auto follow = [this](const auto& property) {
        subscriptions_.emplace_back(property, [this] { followPicture(); });
    };
    follow(state.imageSource);
    follow(state.customPalette());
    follow(state.selectedSwatch);
    follow(state.vision);
    follow(ui.theme.version());
    follow(ui.models.preferences().format);
    follow(ui.models.preferences().formatOptions);
    followPicture();
}

PictureCanvas::~PictureCanvas() = default;

void PictureCanvas::followPicture() {
    const auto& source = state_.imageSource.value();
    const bool isOther = source.picture.get() != picture_;
    const bool hasNewPins = wasExtracting_ && !source.extracting;
    picture_ = source.picture.get();
    wasExtracting_ = source.extracting;
    if (isOther) {
        const auto full = picture_ ? picture_->size() : PictureSize{};
        crosshair_ = {full.width / 2.0, full.height / 2.0};
        setAccessibleName(worded("Picture, %1").arg(oneLine(source.name)));
        setFocused(-1);
    }
    if (isOther || hasNewPins) pressed_.reset();
    const bool isGone = moving_ && moving_->pin >= source.found.size();
    if (isOther || hasNewPins || isGone) moving_.reset();
    marks_ = pinMarks(state_);
    letGo();
    copy_.setSource(source);
    followSize();
    relayout();
}

void PictureCanvas::followSize() {
    const auto shown = pictureRect().size() * devicePixelRatioF();
    if (!shown.isEmpty()) copy_.setSize(shown.toSize());
}

void PictureCanvas::resizeEvent(QResizeEvent* event) {
    followSize();
    Canvas::resizeEvent(event);
    update();
}

// Places

QRectF PictureCanvas::pictureRect() const {
    if (!hasPicture() || width() < 1 || height() < 1) return {};
    const auto full = state_.imageSource.value().picture->size();
    const auto times = std::min(width() / static_cast<double>(full.width),
                                height() / static_cast<double>(full.height));
    const auto wide = std::max(1.0, std::round(full.width * times));
    const auto high = std::max(1.0, std::round(full.height * times));
    return {std::floor((width() - wide) / 2), std::floor((height() - high) / 2), wide, high};
}

QPointF PictureCanvas::toView(ImagePalette::Point point) const {
    const auto in = pictureRect();
    const auto full = state_.imageSource.value().picture->size();
    return {in.left() + point.x * in.width() / full.width,
            in.top() + point.y * in.height() / full.height};
}

ImagePalette::Point PictureCanvas::toPicture(QPointF place) const {
    const auto in = pictureRect();
    const auto full = state_.imageSource.value().picture->size();
    const auto within = [](double at, int side) { return std::clamp(at, 0.5, side - 0.5); };
    return {within((place.x() - in.left()) * full.width / in.width(), full.width),
            within((place.y() - in.top()) * full.height / in.height(), full.height)};
}

ImagePalette::Point PictureCanvas::pointOf(std::size_t at) const {
    return moving_ && moving_->pin == at ? moving_->to : state_.imageSource.value().found[at].point;
}

QString PictureCanvas::wordsOf(std::size_t at) const {
    const auto& mark = marks_[at];
    const auto& found = state_.imageSource.value().found[at];
    return oneLine(mark.swatch ? state_.swatchName(*mark.swatch)
                               : ColorNames::shared().name(found.color));
}

std::vector<CanvasItem> PictureCanvas::layoutItems(QSizeF) const {
    std::vector<CanvasItem> items;
    const auto& found = state_.imageSource.value().found;
    if (pictureRect().isEmpty() || marks_.size() != found.size()) return items;
    const auto& preferences = ui_.models.preferences();
    const auto reach = theme().scaled(kPin) / 2.0 + kWhite + kBlack;
    for (std::size_t i = 0; i < found.size(); ++i) {
        CanvasItem item;
        item.rect = QRectF(-reach, -reach, 2 * reach, 2 * reach).translated(toView(pointOf(i)));
        item.kind = pin;
        item.index = i;
        item.role = QAccessible::Button;
        const auto name = wordsOf(i);
        item.name = worded("Pin %1, %2").arg(QString::number(marks_[i].number), name);
        item.value = fromUtf8(preferences.format.value().string(found[i].color, toUtf8(name),
                                                                preferences.formatOptions.value()));
        item.selected = marks_[i].swatch && state_.selectedSwatch.value() == marks_[i].swatch;
        items.push_back(std::move(item));
    }
    return items;
}

// Painting

void PictureCanvas::paintGround(QPainter& painter, const QRect& dirty) {
    Canvas::paintGround(painter, dirty);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto in = pictureRect();
    if (in.isEmpty()) return;
    if (copy_.scaled().isNull()) {
        painter.setPen(QPen(theme().color(Token::line), 1));
        painter.setBrush(theme().color(Token::raised));
        painter.drawRoundedRect(in.adjusted(0.5, 0.5, -0.5, -0.5), metrics::kGroupRadius,
                                metrics::kGroupRadius);
        if (!copy_.hasFailed()) return;
        painter.setPen(theme().color(Token::ink2));
        painter.setFont(theme().font(TextStyle::body));
        painter.drawText(in, Qt::AlignCenter | Qt::TextWordWrap,
                         worded("The picture cannot be shown"));
        return;
    }
    if (copy_.scaled().hasAlphaChannel())
        ui_.painter.fill(painter, in, WashColor{0, 0, 0, 0}, state_.vision);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(in, copy_.scaled());
    paintCorners(painter, in);
}

void PictureCanvas::paintCorners(QPainter& painter, const QRectF& picture) const {
    QPainterPath corners;
    corners.addRect(picture);
    QPainterPath kept;
    kept.addRoundedRect(picture, metrics::kGroupRadius, metrics::kGroupRadius);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme().color(Token::ground));
    painter.drawPath(corners - kept);
    ui_.painter.hairline(painter, picture, metrics::kGroupRadius);
}

void PictureCanvas::paintItem(QPainter& painter, const CanvasItem& item, ItemState state) {
    const auto& found = state_.imageSource.value().found[item.index];
    const auto& mark = marks_[item.index];
    const auto rings = kWhite + kBlack;
    const auto disc = item.rect.adjusted(rings, rings, -rings, -rings);
    painter.setPen(Qt::NoPen);
    const auto ring = [&](qreal grown, const QColor& color) {
        painter.setBrush(color);
        drawPin(painter, disc, grown, mark.isOwn);
    };
    if (state.focused) {
        // In two tones, so that it is seen on whatever the picture shows there.
        painter.setBrush(Qt::NoBrush);
        for (const auto& [color, width] : {std::pair{Qt::black, 4.0}, std::pair{Qt::white, 2.0}}) {
            painter.setPen(QPen(QColor(color), width));
            drawPin(painter, disc, rings + 4, mark.isOwn);
        }
        painter.setPen(Qt::NoPen);
    }
    ring(rings, Qt::black);
    ring(kWhite, Qt::white);
    ring(0, toQColor(ui_.painter.flat(found.color, state_.vision)));
    auto font = theme().font(TextStyle::caption);
    font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(ui_.painter.foreground(found.color, state_.vision));
    drawFigures(painter, disc, Qt::AlignCenter, QString::number(mark.number));
}

void PictureCanvas::paintOverlay(QPainter& painter) {
    if (pictureRect().isEmpty()) return;
    // Whatever has come to lie on it, the pin that is being worked is seen.
    const auto worked = focused();
    if (worked >= 0) {
        painter.save();
        paintItem(painter, items()[static_cast<std::size_t>(worked)], {.focused = showsFocus()});
        painter.restore();
    }
    const bool aims = pressed_ && pressed_->moves && !pressed_->pin;
    if (aims)
        paintCrosshair(painter, pressed_->at);
    else if (showsFocus() && focused() < 0)
        paintCrosshair(painter, toView(crosshair_));
    const auto place = glassPlace();
    if (!place) return;
    Magnifier glass{*place, pictureRect(), &copy_.detail(), theme().color(Token::ground)};
    if (!copy_.detail().isNull()) {
        const auto times = copy_.detail().width() / glass.picture.width();
        const auto at = ((*place - glass.picture.topLeft()) * times).toPoint();
        if (copy_.detail().valid(at)) glass.color = copy_.detail().pixelColor(at);
    }
    glass.paint(painter);
}

void PictureCanvas::paintCrosshair(QPainter& painter, QPointF at) const {
    for (const auto& [color, width] : {std::pair{Qt::black, 4.0}, std::pair{Qt::white, 2.0}}) {
        painter.setPen(QPen(QColor(color), width, Qt::SolidLine, Qt::RoundCap));
        for (const auto& way : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
            painter.drawLine(at + way * kCrossGap, at + way * kCross);
    }
}

/// Where a glass is held: over a pin or the crosshair that is on its way.
std::optional<QPointF> PictureCanvas::glassPlace() const {
    if (pressed_ && pressed_->moves && !pressed_->pin) return pressed_->at;
    if (moving_ && moving_->isHeld) return toView(moving_->to);
    if (!glass_ || !hasFocus()) return std::nullopt;
    return toView(focused() < 0 ? crosshair_
                                : pointOf(items()[static_cast<std::size_t>(focused())].index));
}

} // namespace tintra
