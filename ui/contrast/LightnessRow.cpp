#include "ui/contrast/LightnessRow.h"

#include "colour/ContrastLightness.h"
#include "platform/Number.h"
#include "state/ContrastReadings.h"
#include "state/Models.h"
#include "ui/editor/ChannelRow.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStringList>
#include <algorithm>
#include <array>
#include <cmath>

namespace tintra {
namespace {

constexpr int kLabel = 64, kTick = 8, kTickGap = 4;
constexpr std::array kRatios{3.0, 4.5, 7.0};
/// Between two stops lightness runs as linearly as the eye can tell.
constexpr int kStops = 40;

constexpr EditorChannel kText{"Text", "Lightness of the text", 0, 100, 1, 1, "", false};
constexpr EditorChannel kGround{"Ground", "Lightness of the ground", 0, 100, 1, 1, "", false};

GradientStops stopsOf(const WashColor& color, Vision vision) {
    GradientStops stops;
    for (int i = 0; i <= kStops; ++i) {
        auto at = Contrast::atLightness(color, static_cast<double>(i) / kStops);
        at.a = 1;
        stops.push_back(toQColor(simulate(vision, at)).rgba());
    }
    return stops;
}

} // namespace

LightnessRow::LightnessRow(Ui& ui, ContrastBoard::Role role, QWidget* parent)
    : QWidget(parent), ui_(ui), board_(ui.models.contrast()), role_(role),
      row_(new ChannelRow(ui.theme, this, kLabel)) {
    row_->setChannel(role == ContrastBoard::Role::text ? kText : kGround);
    row_->changed = [this](double lightness) { move(lightness); };
    const auto again = [this] { upkeep_.due(); };
    subscriptions_.add(board_.content(), again);
    subscriptions_.add(board_.vision, again);
    subscriptions_.add(board_.target, [this] { update(); });
    subscriptions_.add(board_.size, [this] { update(); });
    subscriptions_.add(board_.weight, [this] { update(); });
    subscriptions_.add(ui.theme.version(), [this] {
        row_->restyle();
        updateGeometry();
        upkeep_.due();
    });
    upkeep_.due();
}

QSize LightnessRow::sizeHint() const {
    return {0, ui_.theme.scaled(kHeight)};
}

const ContrastBoard::Entry* LightnessRow::moving() const {
    return role_ == ContrastBoard::Role::text ? board_.text() : board_.ground();
}

const ContrastBoard::Entry* LightnessRow::fixed() const {
    return role_ == ContrastBoard::Role::text ? board_.ground() : board_.text();
}

void LightnessRow::sync() {
    const auto* one = moving();
    const auto* other = fixed();
    if (!one || !other) return;
    // Whatever else changes the colour makes it another one.
    if (origin_ && (origin_->entry != one->id || origin_->became != one->color)) origin_.reset();
    const auto& from = origin_ ? origin_->color : one->color;
    auto opaque = one->color;
    opaque.a = 1;
    row_->setValue(origin_ ? origin_->asked : Contrast::lightness(one->color) * 100);
    row_->setColours(stopsOf(from, board_.vision), toQColor(simulate(board_.vision, opaque)));
    findMarks(from, other->color);
    update();
}

void LightnessRow::findMarks(const WashColor& from, const WashColor& against) {
    if (marksOf_ == MarksOf{from, against}) return;
    marksOf_ = MarksOf{from, against};
    marks_.clear();
    QStringList spoken;
    for (const auto ratio : kRatios)
        for (const auto at :
             Contrast::thresholdLightnesses(from, against, role_, std::array{ratio})) {
            marks_.push_back({at * 100, ratio});
            spoken << worded("%1:1 at %2")
                          .arg(fromUtf8(shortest(ratio)), fromUtf8(tintra::fixed(at * 100, 1)));
        }
    row_->setDescription(spoken.join(QStringLiteral(", ")));
}

void LightnessRow::move(double lightness) {
    const auto* one = moving();
    if (!one) return;
    if (!origin_) origin_ = Origin{one->id, one->color, lightness, one->color};
    const auto to = Contrast::atLightness(origin_->color, lightness / 100);
    const auto* holder = board_.held(to);
    // A colour that another entry is cannot be taken; the next step can.
    if (holder && holder->id != one->id) return;
    origin_->asked = lightness;
    origin_->became = to;
    if (to == one->color)
        sync();
    else
        board_.replace(Uuid(one->id), to);
}

void LightnessRow::paintEvent(QPaintEvent*) {
    const auto& theme = ui_.theme;
    QPainter painter(this);
    const auto need = Contrast::need(board_.target, board_.isLargeText());
    const auto font = theme.font(TextStyle::caption);
    const QFontMetricsF measure(font);
    painter.setFont(font);
    const qreal top = row_->geometry().bottom() - theme.scaled(5);
    // The one that is worked towards is drawn first: where marks crowd, it keeps its figure.
    auto marks = marks_;
    std::ranges::stable_partition(marks, [need](const Mark& mark) { return mark.ratio == need; });
    std::vector<QRectF> taken;
    for (const auto& mark : marks) {
        const bool isNeed = mark.ratio == need;
        const auto x = row_->placeOf(mark.lightness);
        const qreal thick = isNeed ? 2 : 1;
        const auto ink = theme.color(isNeed ? Token::ink : Token::ink3);
        painter.fillRect(QRectF(std::round(x - thick / 2), top, thick, kTick), ink);
        const auto text = fromUtf8(shortest(mark.ratio));
        const auto wide = measure.horizontalAdvance(text);
        const QRectF in(x - wide / 2, top + kTick + 1, wide + 1, measure.height());
        if (std::ranges::any_of(taken, [&](const QRectF& other) {
                return other.intersects(in.adjusted(-kTickGap, 0, kTickGap, 0));
            }))
            continue;
        taken.push_back(in);
        painter.setPen(ink);
        painter.drawText(in, Qt::AlignLeft | Qt::AlignTop, text);
    }
}

void LightnessRow::resizeEvent(QResizeEvent*) {
    row_->setGeometry(0, 0, width(), ui_.theme.scaled(ChannelRow::kHeight));
}

} // namespace tintra
