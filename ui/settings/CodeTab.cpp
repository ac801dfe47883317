#include "ui/settings/CodeTab.h"

#include "state/Models.h"
#include "ui/settings/Form.h"
#include "ui/settings/FormatList.h"
#include "ui/settings/ListFrame.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace tintra {
namespace {

constexpr int kEdge = 24, kTop = 22, kGap = 20, kList = 228, kRowGap = 6, kSampleEdge = 12;
constexpr WashColor kSample{228 / 255.0, 87 / 255.0, 46 / 255.0, 1};

/// The formats of the samples: together they show what every option does.
std::array<ColorFormat, 3> sampleFormats(ColorFormat current) {
    constexpr std::array<ColorFormat, 3> usual{ColorFormat::cssHex, ColorFormat::cssRGB,
                                               ColorFormat::swiftUIColor};
    if (std::ranges::find(usual, current) != usual.end()) return usual;
    return {current, ColorFormat::cssHex, ColorFormat::swiftUIColor};
}

/// What samples lie on.
class SampleGround final : public QWidget {
public:
    SampleGround(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {}

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(theme_.color(Token::ground));
        painter.drawRoundedRect(rect(), metrics::kControlRadius, metrics::kControlRadius);
    }

private:
    const Theme& theme_;
};

} // namespace

CodeTab::CodeTab(Ui& ui, QWidget* parent) : QWidget(parent), ui_(ui), column_(new QVBoxLayout) {
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(kEdge, kTop, kEdge, kEdge);
    layout->setSpacing(kGap);
    addList();
    layout->addLayout(column_, 1);
    column_->setSpacing(kRowGap);
    addOptions();
    column_->addStretch(1);
    addSamples();
}

void CodeTab::addList() {
    auto* list = new FormatList(ui_.theme, ui_.models.preferences());
    auto* frame = new ListFrame(ui_.theme, list, this);
    list->reveal = [frame](const QRectF& part) { frame->reveal(part); };
    bindings_.follow(ui_.theme.version(),
                     [this, frame] { frame->setFixedWidth(ui_.theme.scaled(kList)); });
    layout()->addWidget(frame);
}

void CodeTab::addOptions() {
    auto& options = ui_.models.preferences().formatOptions;
    const auto title = worded("Decimals");
    auto* label = new Words(ui_.theme, TextStyle::body, Token::ink2, title, this);
    auto* decimals = new Stepper(ui_.theme, title, this);
    decimals->setRange(1, 5);
    label->setBuddy(decimals);
    bindings_.bind(Part{options, &FormatOptions::decimals}, *decimals);
    column_->addWidget(label);
    column_->addWidget(decimals, 0, Qt::AlignLeft);
    column_->addSpacing(kRowGap);

    const std::array<std::pair<const char*, bool FormatOptions::*>, 4> switches{{
        {"Fractions of 255", &FormatOptions::useFractions},
        {"Remove white space", &FormatOptions::removeWhitespace},
        {"Upper-case CSS", &FormatOptions::cssUppercase},
        {"# before a CSS hex code", &FormatOptions::cssPrefixHash},
    }};
    for (const auto& [text, field] : switches) {
        auto* check = new QCheckBox(worded(text), this);
        bindings_.bind(Part{options, field}, *check);
        column_->addWidget(check);
    }
}

void CodeTab::addSamples() {
    column_->addWidget(
        new Words(ui_.theme, TextStyle::body, Token::ink2, worded("Reads as"), this));
    auto* ground = new SampleGround(ui_.theme, this);
    auto* lines = new QVBoxLayout(ground);
    lines->setContentsMargins(kSampleEdge, kSampleEdge, kSampleEdge, kSampleEdge);
    for (auto*& sample : samples_) {
        sample = new Words(ui_.theme, TextStyle::code, Token::ink, {}, ground);
        lines->addWidget(sample);
    }
    column_->addWidget(ground);
    auto& preferences = ui_.models.preferences();
    bindings_.follow(preferences.format, [this] { showSamples(); });
    bindings_.follow(preferences.formatOptions, [this] { showSamples(); });
    bindings_.follow(preferences.profilesVersion, [this] { showSamples(); });
}

void CodeTab::showSamples() {
    const auto& preferences = ui_.models.preferences();
    const auto formats = sampleFormats(preferences.format);
    for (std::size_t i = 0; i < formats.size(); ++i)
        samples_[i]->setText(
            fromUtf8(formats[i].string(kSample, "Flame", preferences.formatOptions.value())));
}

} // namespace tintra
