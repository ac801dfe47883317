#include "ui/palette/SeedRow.h"

#include "state/Models.h"
#include "ui/actions/ActionTable.h"
#include "ui/palette/SeedChip.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QEvent>
#include <QFontMetrics>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <algorithm>
#include <array>
#include <initializer_list>
#include <limits>
#include <numeric>
#include <utility>

namespace tintra {
namespace {

constexpr int kHeight = 56, kLine = 40, kFoot = 8; ///< a line, and what is left below the last
constexpr int kSide = 12, kGap = 24, kInner = 12;
constexpr int kLabelGap = 8, kLeastChoice = 84;

bool hasSteps(HarmonyMode mode) {
    return mode == HarmonyMode::ramp || mode == HarmonyMode::analogous ||
           mode == HarmonyMode::monochromatic;
}

bool hasShades(HarmonyMode mode) {
    return mode != HarmonyMode::ramp && mode != HarmonyMode::monochromatic;
}

} // namespace

SeedRow::SeedRow(Ui& ui, AppState& state, QWidget* parent)
    : QWidget(parent), ui_(ui), state_(state),
      first_(new SeedChip(ui, state, AppState::SeedRole::first, this)),
      last_(new SeedChip(ui, state, AppState::SeedRole::last, this)),
      swap_(new ToolButton(ui.theme, "swap", 32, this)),
      steps_(new Stepper(ui.theme, worded("Steps"), this)),
      shades_(new Stepper(ui.theme, worded("Shades"), this)),
      space_(new PopUpButton(ui.theme, PopUpButton::Border::yes, this)),
      add_(new QPushButton(worded("Add Harmony to Palette"), this)) {
    setAccessibleName(worded("Seeds"));
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    swap_->setTitle(worded("Swap the Seeds"), {});
    connect(swap_, &QAbstractButton::clicked, this, [this] { state_.swapSeeds(); });
    makeSteppers();
    space_->setToolTip(shown("How steps are blended, and how harmony hues are rotated"));
    space_->fill = [this](QMenu& menu) {
        for (const auto space : allBlendSpaces()) {
            auto* action = menu.addAction(shown(title(space)));
            action->setCheckable(true);
            action->setChecked(state_.blendSpace.value() == space);
            connect(action, &QAction::triggered, this,
                    [this, space] { state_.blendSpace = space; });
        }
    };
    add_->setDefault(true);
    add_->setToolTip(
        QStringLiteral("%1 (%2)").arg(add_->text(), keyText(actionRow(ActionId::addHarmony))));
    connect(add_, &QAbstractButton::clicked, this, [this] { state_.addHarmonyToPalette(); });
    // The order of the Tab key.
    const std::array<QWidget*, 7> inOrder{first_, swap_, last_, steps_, shades_, space_, add_};
    for (std::size_t i = 1; i < inOrder.size(); ++i)
        setTabOrder(inOrder[i - 1], inOrder[i]);
    subscribe();
    sync();
}

SeedRow::~SeedRow() = default;

void SeedRow::makeSteppers() {
    steps_->setRange(AppState::kFewestSteps, AppState::kMostSteps);
    steps_->changed = [this](int value) { state_.steps = value; };
    shades_->setRange(AppState::kFewestShades, AppState::kMostShades);
    shades_->changed = [this](int value) { state_.shadesPerAnchor = value; };
}

void SeedRow::subscribe() {
    auto& preferences = ui_.models.preferences();
    const auto again = [this] { sync(); };
    subscriptions_.add(state_.seeds(), again);
    subscriptions_.add(state_.mode, again);
    subscriptions_.add(state_.steps, again);
    subscriptions_.add(state_.shadesPerAnchor, again);
    subscriptions_.add(state_.blendSpace, again);
    subscriptions_.add(state_.vision, again);
    subscriptions_.add(preferences.format, again);
    subscriptions_.add(preferences.formatOptions, again);
    subscriptions_.add(preferences.swatchBackdrop, again);
    subscriptions_.add(preferences.backdropColour, again);
    subscriptions_.add(preferences.profilesVersion, again);
    subscriptions_.add(ui_.theme.version(), again);
}

void SeedRow::sync() {
    first_->sync();
    last_->sync();
    steps_->setValue(state_.steps);
    shades_->setValue(state_.shadesPerAnchor);
    space_->setText(shown(title(state_.blendSpace.value())));
    space_->setAccessibleName(worded("Blend space: %1").arg(space_->text()));
    layOut();
}

// Layout

SeedRow::Group SeedRow::seeds() const {
    return {{first_, 0}, {swap_, kInner - 4}, {last_, kInner - 4}};
}

SeedRow::Group SeedRow::makings() const {
    return {{space_, 0}, {add_, kGap}};
}

int SeedRow::labelWidth(const Part& part) const {
    if (part.label.isEmpty()) return 0;
    return QFontMetrics(ui_.theme.font(TextStyle::body)).horizontalAdvance(part.label) + kLabelGap;
}

int SeedRow::widthOf(const Part& part) const {
    if (part.widget->isHidden()) return 0;
    return part.before + labelWidth(part) + part.widget->sizeHint().width();
}

int SeedRow::widthOf(const Group& group) const {
    return std::accumulate(group.begin(), group.end(), 0,
                           [this](int sum, const Part& part) { return sum + widthOf(part); });
}

int SeedRow::place(const Group& group, int left, int line) {
    const auto lineHeight = ui_.theme.scaled(kLine);
    const auto top = ui_.theme.scaled(kFoot) / 2 + line * lineHeight;
    for (const auto& part : group) {
        if (part.widget->isHidden()) continue;
        left += part.before;
        if (const auto label = labelWidth(part); label > 0) {
            labels_.push_back({QRect(left, top, label, lineHeight), part.label});
            left += label;
        }
        const auto size = part.widget->sizeHint();
        const auto width = std::max(1, std::min(size.width(), this->width() - kSide - left));
        part.widget->setGeometry(left, top + (lineHeight - size.height()) / 2, width,
                                 size.height());
        left += width;
    }
    return left;
}

int SeedRow::placeMakings(int left, int line) {
    const auto end = width() - kSide;
    const auto whole = widthOf(makings());
    if (left + kGap + whole <= end) {
        place(makings(), end - whole, line);
        return line;
    }
    ++line;
    // The button keeps its words; the choice beside it gives way, as far as it can be read.
    const auto button = add_->sizeHint().width();
    const auto choice = end - kSide - kInner - button;
    if (choice < ui_.theme.scaled(kLeastChoice)) {
        place({{space_, 0}}, kSide, line++);
        place({{add_, 0}}, kSide, line);
        return line;
    }
    place(makings(), kSide, line);
    space_->resize(std::min(choice, space_->sizeHint().width()), space_->height());
    const auto behind = space_->geometry().right() + 1;
    add_->setGeometry(std::min(behind + kGap, end - button), add_->y(), button, add_->height());
    return line;
}

void SeedRow::showWanted() {
    const auto mode = state_.mode.value();
    // A scale of one colour has no other end.
    const bool hasLast = mode != HarmonyMode::monochromatic;
    last_->setVisible(hasLast);
    swap_->setVisible(hasLast);
    steps_->setVisible(hasSteps(mode));
    shades_->setVisible(hasShades(mode));
    space_->show();
    add_->show();
}

void SeedRow::hideBelow(int height) {
    for (auto* part : std::initializer_list<QWidget*>{steps_, shades_, space_, add_})
        if (part->geometry().bottom() >= height) part->hide();
    std::erase_if(labels_, [height](const Label& label) { return label.in.bottom() >= height; });
}

int SeedRow::mostLines() const {
    if (isWindow()) return std::numeric_limits<int>::max();
    return std::max(1, window()->height() * 2 / 5 / ui_.theme.scaled(kLine));
}

void SeedRow::layOut() {
    if (std::exchange(layingOut_, true)) return;
    showWanted();
    labels_.clear();
    const auto end = width() - kSide;
    const std::array counts{Group{{steps_, kGap, worded("Steps")}},
                            Group{{shades_, kGap, worded("Shades")}}};
    for (const bool compact : {false, true}) {
        first_->setCompact(compact);
        last_->setCompact(compact);
        if (kSide + widthOf(seeds()) + widthOf(counts[0]) + widthOf(counts[1]) <= end) break;
    }
    int line = 0;
    auto left = place(seeds(), kSide, line);
    for (const auto& count : counts) {
        const bool fits = left + widthOf(count) <= end;
        left = place(count, fits ? left : kSide - kGap, fits ? line : ++line);
    }
    line = std::min(placeMakings(left, line), mostLines() - 1);
    const auto height = ui_.theme.scaled(kHeight) + line * ui_.theme.scaled(kLine);
    hideBelow(height);
    if (height != this->height() || minimumHeight() != height) setFixedHeight(height);
    update();
    layingOut_ = false;
}

QSize SeedRow::sizeHint() const {
    return {0, std::max(minimumHeight(), ui_.theme.scaled(kHeight))};
}

QSize SeedRow::minimumSizeHint() const {
    return sizeHint();
}

void SeedRow::resizeEvent(QResizeEvent*) {
    layOut();
}

void SeedRow::showEvent(QShowEvent*) {
    window()->installEventFilter(this);
    layOut();
}

bool SeedRow::eventFilter(QObject* watched, QEvent* event) {
    // The height of the window, which no event of its own tells a row of.
    if (watched == window() && event->type() == QEvent::Resize && isVisible()) layOut();
    return QWidget::eventFilter(watched, event);
}

void SeedRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ui_.theme.color(Token::panel));
    if (ui_.theme.isHighContrast())
        painter.fillRect(0, height() - 1, width(), 1, ui_.theme.color(Token::line));
    painter.setFont(ui_.theme.font(TextStyle::body));
    painter.setPen(ui_.theme.color(Token::ink2));
    for (const auto& label : labels_)
        painter.drawText(label.in, Qt::AlignLeft | Qt::AlignVCenter, label.text);
}

} // namespace tintra
