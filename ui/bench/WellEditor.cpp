#include "ui/bench/WellEditor.h"

#include "colour/ColorNames.h"
#include "state/Models.h"
#include "ui/bench/RampStrip.h"
#include "ui/editor/ChannelRow.h"
#include "ui/editor/EditorSpaces.h"
#include "ui/shared/StyleParts.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kSide = 16, kGroupGap = 24, kChipWidth = 132, kChipHeight = 96;
constexpr int kWords = 52, kRowStep = 34, kRampTop = 126, kRampHeight = 40;
constexpr int kButtonsWidth = 196, kButton = 28, kButtonGap = 8, kFieldAndGap = 66;
constexpr int kChipFrom = 760; ///< width of the panel
constexpr std::size_t kStops = 16;

/// In the order of WellField. The ratio is shown as the share of the second colour.
constexpr std::array kChannels{
    EditorChannel{"Ratio", "Ratio", 0, 100, 1, 0, "%", false},
    EditorChannel{"White", "White", 0, 1, 0.01, 2, "", false},
    EditorChannel{"Black", "Black", 0, 1, 0.01, 2, "", false},
};
constexpr std::array<double BenchWell::*, 3> kAmounts{&BenchWell::ratio, &BenchWell::white,
                                                      &BenchWell::black};

} // namespace

WellEditor::WellEditor(Ui& ui, ContextOf context, QWidget* parent)
    : QWidget(parent), ui_(ui), bench_(ui.models.bench()), rows_{}, ramp_(nullptr),
      keep_(new QPushButton(worded("Keep the Mix as a Colour"), this)),
      copy_(new QPushButton(this)), remove_(new QPushButton(worded("Remove the Well"), this)) {
    setAccessibleName(worded("Mix"));
    for (std::size_t i = 0; i < kFields; ++i) {
        rows_[i] = new ChannelRow(ui.theme, this, kWords);
        rows_[i]->setChannel(kChannels[i]);
        rows_[i]->changed = [this, i](double figure) {
            change(static_cast<Bench::WellField>(i), figure);
        };
    }
    ramp_ = new RampStrip(ui, this);
    ramp_->chosen = [this](double ratio) { change(Bench::WellField::ratio, ratio * 100); };
    keep_->setDefault(true);
    const auto performs = [&](QPushButton* button, ActionId action) {
        button->setAutoDefault(true);
        connect(button, &QPushButton::clicked, this,
                [context, action] { perform(action, context()); });
        button->raise();
        setTabOrder(ramp_, button);
    };
    performs(remove_, ActionId::benchTakeOff);
    performs(copy_, ActionId::copy);
    performs(keep_, ActionId::benchKeep);
    subscribe();
    restyle();
    sync();
}

void WellEditor::subscribe() {
    auto& preferences = ui_.models.preferences();
    const auto again = [this] { sync(); };
    subscriptions_.add(bench_.content(), again);
    subscriptions_.add(bench_.benchActive, again);
    subscriptions_.add(bench_.vision, again);
    subscriptions_.add(preferences.format, again);
    subscriptions_.add(preferences.formatOptions, again);
    subscriptions_.add(preferences.profilesVersion, again);
    subscriptions_.add(ui_.theme.version(), [this] { restyle(); });
}

void WellEditor::restyle() {
    for (auto* row : rows_)
        row->restyle();
    for (auto* button : {keep_, copy_, remove_})
        button->setFont(ui_.theme.font(TextStyle::control));
    updateGeometry();
    resizeEvent(nullptr);
    update();
}

QSize WellEditor::sizeHint() const {
    return {0, ui_.theme.scaled(isLow_ ? kLowHeight : kHeight)};
}

void WellEditor::setLow(bool low) {
    if (low == isLow_) return;
    isLow_ = low;
    ramp_->setVisible(!low);
    updateGeometry();
    update();
}

const BenchWell* WellEditor::activeWell() const {
    const auto active = bench_.benchActive.value();
    return active && active->kind == BenchSelection::Of::well ? bench_.well(active->id) : nullptr;
}

void WellEditor::change(Bench::WellField field, double figure) {
    const auto* well = activeWell();
    if (!well) return;
    const bool isRatio = field == Bench::WellField::ratio;
    bench_.updateWell(Uuid(well->id), field, isRatio ? figure / 100 : figure);
}

void WellEditor::focusRatio() {
    rows_.front()->focusTrack();
}

QString WellEditor::code(const WashColor& color) const {
    const auto& preferences = ui_.models.preferences();
    return fromUtf8(preferences.format.value().string(color, ColorNames::shared().name(color),
                                                      preferences.formatOptions.value()));
}

// The active well

void WellEditor::sync() {
    const auto* well = activeWell();
    color_ = well ? bench_.wellColor(*well) : std::nullopt;
    if (!color_) return;
    const auto* a = bench_.column(well->parentA);
    const auto* b = bench_.column(well->parentB);
    parents_ = worded("%1 + %2").arg(oneLine(bench_.name(*a)), oneLine(bench_.name(*b)));
    name_ = oneLine(ColorNames::shared().name(*color_));
    code_ = code(*color_);
    copy_->setText(worded("Copy %1").arg(oneLine(toUtf8(code_), 16)));
    copy_->setToolTip(code_);
    rows_[0]->setValue(well->ratio * 100);
    rows_[1]->setValue(well->white);
    rows_[2]->setValue(well->black);
    syncTracks(*well, *color_);
    syncRamp(*well);
    update(chipPlace().adjusted(0, 0, 0, 40));
}

GradientStops WellEditor::stops(BenchWell well, double BenchWell::*amount) const {
    GradientStops along;
    for (std::size_t i = 0; i <= kStops; ++i) {
        well.*amount = static_cast<double>(i) / kStops;
        const auto color = bench_.wellColor(well).value_or(WashColor());
        along.push_back(toQColor(simulate(bench_.vision, color)).rgb());
    }
    return along;
}

void WellEditor::syncTracks(const BenchWell& well, const WashColor& color) {
    const auto thumb = toQColor(simulate(bench_.vision, color));
    for (std::size_t i = 0; i < kFields; ++i)
        rows_[i]->setColours(stops(well, kAmounts[i]), thumb);
}

void WellEditor::syncRamp(const BenchWell& well) {
    std::vector<RampStrip::Step> steps;
    for (const auto& color : bench_.wellRamp(well, RampStrip::kSteps))
        steps.push_back({color, code(color)});
    ramp_->setRamp(std::move(steps), well.ratio, bench_.vision);
}

// Where everything stands

bool WellEditor::hasChip() const {
    return width() >= kChipFrom;
}

QRect WellEditor::chipPlace() const {
    const auto& theme = ui_.theme;
    return {kSide, kSide, theme.scaled(kChipWidth), theme.scaled(kChipHeight)};
}

void WellEditor::resizeEvent(QResizeEvent*) {
    const auto& theme = ui_.theme;
    const auto left = hasChip() ? chipPlace().right() + 1 + kGroupGap : kSide;
    const auto buttons = width() - kSide - theme.scaled(kButtonsWidth);
    const auto wide = std::max(0, buttons - kGroupGap - left);
    for (std::size_t i = 0; i < kFields; ++i)
        rows_[i]->setGeometry(left, kSide + static_cast<int>(i) * theme.scaled(kRowStep), wide,
                              theme.scaled(ChannelRow::kHeight));
    const auto words = theme.scaled(kWords);
    const auto rampTop = kSide + theme.scaled(kRampTop - 18);
    rampWords_ = {left, rampTop, words, theme.scaled(kRampHeight)};
    ramp_->setGeometry(left + words, rampTop,
                       std::max(0, wide - words - theme.scaled(kFieldAndGap)),
                       theme.scaled(kRampHeight));
    auto top = kSide;
    for (auto* button : {keep_, copy_, remove_}) {
        // A button keeps room for its ring around what is painted of it.
        button->setGeometry(QRect(buttons, top, theme.scaled(kButtonsWidth), theme.scaled(kButton))
                                .marginsAdded(StyleParts::kRingRoom));
        top += theme.scaled(kButton) + kButtonGap;
    }
}

void WellEditor::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
    for (auto* row : rows_)
        row->dropTyped();
    if (done) done();
}

void WellEditor::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto& theme = ui_.theme;
    painter.fillRect(rect(), theme.color(Token::panel));
    painter.fillRect(0, 0, width(), 1, theme.color(Token::line));
    painter.setFont(theme.font(TextStyle::body));
    painter.setPen(theme.color(Token::ink2));
    if (!isLow_) painter.drawText(rampWords_, Qt::AlignLeft | Qt::AlignVCenter, worded("Ramp"));
    if (!color_ || !hasChip()) return;
    SwatchLook look;
    look.color = *color_;
    look.vision = bench_.vision;
    look.shape = SwatchShape::tile;
    look.name = name_;
    look.code = code_;
    look.radii.fill(metrics::kGroupRadius);
    const QRectF chip(chipPlace());
    ui_.painter.paint(painter, chip, look);
    ui_.painter.hairline(painter, chip, metrics::kGroupRadius);
    const auto font = theme.font(TextStyle::caption);
    painter.setFont(font);
    painter.setPen(theme.color(Token::ink3));
    const QRectF under(chip.left(), chip.bottom() + 8, chip.width(),
                       theme.lineHeight(TextStyle::caption));
    painter.drawText(
        under, Qt::AlignLeft | Qt::AlignVCenter,
        QFontMetrics(font).elidedText(parents_, Qt::ElideRight, static_cast<int>(under.width())));
}

} // namespace tintra
