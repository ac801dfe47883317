#include "ui/picture/PictureBar.h"

#include "platform/Services.h"
#include "state/Models.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kHeight = 48, kInset = 12, kGap = 12;
constexpr int kLeastName = 80;
/// Finding colours takes less than this as a rule; to say so for a moment would only flicker.
constexpr double kPatience = 0.3; ///< seconds

struct EmphasisRow {
    ImagePalette::Emphasis value;
    const char* title;
};
constexpr std::array kEmphases{
    EmphasisRow{ImagePalette::Emphasis::dominant, "Dominant"},
    EmphasisRow{ImagePalette::Emphasis::vibrant, "Vibrant"},
    EmphasisRow{ImagePalette::Emphasis::spread, "Spread"},
};

std::vector<Segmented::Choice> emphasisChoices() {
    std::vector<Segmented::Choice> choices;
    for (const auto& row : kEmphases)
        choices.push_back({worded(row.title), {}});
    return choices;
}

int placeOf(ImagePalette::Emphasis emphasis) {
    const auto row = std::ranges::find(kEmphases, emphasis, &EmphasisRow::value);
    return static_cast<int>(row - kEmphases.begin());
}

} // namespace

PictureBar::PictureBar(Ui& ui, AppState& state, QWidget* parent)
    : QWidget(parent), ui_(ui), state_(state), count_(ui.theme, worded("Colours"), this),
      emphases_(ui.theme, emphasisChoices(), this),
      emphasis_(ui.theme, PopUpButton::Border::yes, this), add_(worded("Add All to Palette"), this),
      plus_(ui.theme, "add", 28, this), close_(ui.theme, "close", 24, this) {
    assemble();
    const auto subscribe = [this](const auto& property) {
        subscriptions_.emplace_back(property, [this] { follow(); });
    };
    subscribe(state.imageSource);
    subscribe(ui.theme.version());
    follow();
}

PictureBar::~PictureBar() = default;

void PictureBar::assemble() {
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    setAccessibleName(worded("Colours of the picture"));
    emphases_.setAccessibleName(worded("Which colours"));
    emphasis_.setAccessibleName(worded("Which colours"));
    plus_.setTitle(add_.text(), {});
    close_.setTitle(worded("Close the Picture"), {});
    count_.changed = [this](int count) {
        state_.reextract(count, state_.imageSource.value().emphasis);
    };
    emphases_.chosen = [this](int emphasis) { choose(emphasis); };
    emphasis_.fill = [this](QMenu& menu) {
        for (int i = 0; i < static_cast<int>(kEmphases.size()); ++i) {
            auto* action = menu.addAction(worded(kEmphases[static_cast<std::size_t>(i)].title),
                                          this, [this, i] { choose(i); });
            action->setCheckable(true);
            action->setChecked(i == emphases_.current());
        }
    };
    connect(&add_, &QPushButton::clicked, this, [this] { state_.applyExtraction(); });
    connect(&plus_, &QAbstractButton::clicked, this, [this] { state_.applyExtraction(); });
    connect(&close_, &QAbstractButton::clicked, this, [this] { state_.closePicture(); });
}

void PictureBar::choose(int emphasis) {
    const auto& source = state_.imageSource.value();
    state_.reextract(source.count, kEmphases[static_cast<std::size_t>(emphasis)].value);
}

void PictureBar::follow() {
    const auto& source = state_.imageSource.value();
    setVisible(source.picture != nullptr);
    // What there is no more of cannot be asked for.
    count_.setRange(1, std::max(1, source.most));
    count_.setValue(source.count);
    const auto at = placeOf(source.emphasis);
    emphases_.setCurrent(at);
    emphasis_.setText(worded(kEmphases[static_cast<std::size_t>(at)].title));
    add_.setFont(ui_.theme.font(TextStyle::control));
    const auto canAdd = !source.found.empty();
    add_.setEnabled(canAdd);
    plus_.setEnabled(canAdd);
    followExtracting();
    updateGeometry();
    arrange();
    update();
}

void PictureBar::followExtracting() {
    if (!state_.imageSource.value().extracting) {
        wait_.reset();
        saysFinding_ = false;
    } else if (!wait_ && !saysFinding_) {
        wait_ = ui_.services.mainLoop.after(kPatience, [this] {
            wait_.reset();
            saysFinding_ = true;
            update();
        });
    }
}

QSize PictureBar::sizeHint() const {
    return {560, ui_.theme.scaled(kHeight)};
}

QSize PictureBar::minimumSizeHint() const {
    return {0, ui_.theme.scaled(kHeight)};
}

bool PictureBar::event(QEvent* event) {
    if (event->type() == QEvent::StyleChange) arrange();
    return QWidget::event(event);
}

void PictureBar::resizeEvent(QResizeEvent*) {
    arrange();
}

/// From the right: close, add, emphasis, count; what is left is for words.
void PictureBar::arrange() {
    const auto& theme = ui_.theme;
    const auto caption =
        QFontMetrics(theme.font(TextStyle::body)).horizontalAdvance(count_.accessibleName());
    const auto wide = [](const QWidget& widget) { return widget.sizeHint().width(); };
    const auto controls = wide(count_) + wide(add_) + wide(close_) + 2 * kInset + 3 * kGap;
    const bool hasSegments = width() >= controls + wide(emphases_);
    const bool hasWords = width() >= controls + wide(emphasis_);
    // In the narrowest window the Picture command still closes the picture.
    const auto tight = wide(count_) + wide(emphasis_) + wide(plus_) + kInset + kGap;
    const bool hasClose = hasWords || width() >= tight + wide(close_) + kGap / 2;
    const bool hasEmphasis = hasWords || width() >= tight;
    const auto gap = hasWords ? kGap : kGap / 2;
    const auto inset = hasWords ? kInset : kInset / 2;
    auto right = width() - inset;
    const auto stand = [&](QWidget& widget, bool isShown) {
        widget.setVisible(isShown);
        if (!isShown) return;
        const auto size = widget.sizeHint();
        widget.setGeometry(right - size.width(), (height() - size.height()) / 2, size.width(),
                           size.height());
        right -= size.width() + gap;
    };
    stand(close_, hasClose);
    stand(add_, hasWords);
    stand(plus_, !hasWords);
    stand(emphases_, hasSegments);
    stand(emphasis_, !hasSegments && hasEmphasis);
    stand(count_, true);
    captionRoom_ = nameRoom_ = {};
    if (right - kInset < caption) return;
    captionRoom_ = {right - caption, 0, caption, height()};
    right -= caption + 2 * kGap;
    if (right - kInset >= kLeastName) nameRoom_ = {kInset, 0, right - kInset, height()};
}

void PictureBar::paintEvent(QPaintEvent*) {
    const auto& theme = ui_.theme;
    QPainter painter(this);
    painter.fillRect(rect(), theme.color(Token::panel));
    if (theme.isHighContrast()) painter.fillRect(0, 0, width(), 1, theme.color(Token::line));
    painter.setPen(theme.color(Token::ink2));
    painter.setFont(theme.font(TextStyle::body));
    if (!captionRoom_.isEmpty())
        painter.drawText(captionRoom_, Qt::AlignLeft | Qt::AlignVCenter, count_.accessibleName());
    if (nameRoom_.isEmpty()) return;
    if (saysFinding_) {
        painter.drawText(nameRoom_, Qt::AlignLeft | Qt::AlignVCenter, worded("Finding colours…"));
        return;
    }
    painter.setFont(theme.font(TextStyle::name));
    painter.setPen(theme.color(Token::ink));
    painter.drawText(nameRoom_, Qt::AlignLeft | Qt::AlignVCenter,
                     QFontMetrics(painter.font())
                         .elidedText(oneLine(state_.imageSource.value().name), Qt::ElideMiddle,
                                     nameRoom_.width()));
}

} // namespace tintra
