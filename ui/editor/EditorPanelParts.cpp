// How the colour editor is put together and laid out.

#include "state/Models.h"
#include "ui/editor/BeforeNow.h"
#include "ui/editor/ChannelRow.h"
#include "ui/editor/CodeField.h"
#include "ui/editor/EditorPanel.h"
#include "ui/editor/EditorPicker.h"
#include "ui/editor/GamutSentence.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <algorithm>

namespace tintra {
namespace {

// px at regular text size
constexpr int kMargin = 16, kTop = 14, kGap = 8, kLine = 12, kRowGap = 4;
constexpr int kControl = 28, kTool = 32, kContent = 280;

std::string channelKey(EditorSpace space, std::string_view letter) {
    return std::string(rawValue(space)) + ' ' + std::string(letter);
}

} // namespace

struct EditorPanel::Subscriptions {
    std::vector<QPropertyNotifier> all;
    template <class Property>
    void add(const Property& property, std::function<void()> changed) {
        all.emplace_back(property, std::move(changed));
    }
};

EditorPanel::EditorPanel(Ui& ui, AppState& state, QWidget* parent)
    : QWidget(parent), ui_(ui), state_(state),
      edited_(ui.models.preferences().editorSpace.value(), EditorProfiles::current()),
      subscriptions_(std::make_unique<Subscriptions>()) {
    setAccessibleName(worded("Colour editor"));
    makeHead();
    makeSliders();
    makeFoot();
    connectEdits();
    connectCommands();
    subscribe();
    setFocusProxy(name_);
    restyle();
    setSpace();
}

EditorPanel::~EditorPanel() = default;

// Parts, in the order of the Tab key

void EditorPanel::makeHead() {
    area_ = new QScrollArea(this);
    area_->setFrameShape(QFrame::NoFrame);
    area_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area_->setFocusPolicy(Qt::NoFocus);
    body_ = new QWidget;
    area_->setWidget(body_);
    body_->setAutoFillBackground(false);
    area_->viewport()->setAutoFillBackground(false);
    // The bar stands on the margin: nothing is to be had sideways.
    auto* const sideways = area_->horizontalScrollBar();
    connect(sideways, &QAbstractSlider::valueChanged, sideways,
            [sideways] { sideways->setValue(0); });
    // However the keyboard comes to a control, it is seen.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (now && body_->isAncestorOf(now)) area_->ensureWidgetVisible(now);
    });

    name_ = new QLineEdit(body_);
    name_->setAccessibleName(worded("Name of the swatch"));
    name_->installEventFilter(this);
    name_->setToolTip(worded("The swatch’s name. Empty, the nearest name from the list stands in"));
    close_ = new ToolButton(ui_.theme, "close", kTool, body_);
    close_->setTitle(worded("Close the editor"), worded("Esc"));
    beforeNow_ = new BeforeNow(ui_.theme, ui_.painter, body_);
    picker_ = new Segmented(ui_.theme, {{worded("Plane"), {}}, {worded("Wheel"), {}}}, body_);
    picker_->setAccessibleName(worded("Picker"));
    space_ = new PopUpButton(ui_.theme, PopUpButton::Border::yes, body_);
    space_->setAccessibleName(worded("Colour space"));
    plane_ = new EditorPicker(ui_.theme, body_);
}

void EditorPanel::makeSliders() {
    for (auto*& row : rows_)
        row = new ChannelRow(ui_.theme, body_);
    alpha_ = new ChannelRow(ui_.theme, body_);
    alpha_->setChannel(kAlphaChannel);
    gamut_ = new GamutSentence(ui_.theme, body_);
    gamut_->hide();
}

void EditorPanel::makeFoot() {
    foot_ = new QWidget(this);
    code_ = new CodeField(ui_.theme, foot_);
    apply_ = new QPushButton(worded("Apply"), foot_);
    apply_->setDefault(true);
    revert_ = new QPushButton(worded("Revert"), foot_);
    refusal_ = new QLabel(shown("Nothing there that reads as a colour"), foot_);
    refusal_->setWordWrap(true);
    refusal_->hide();
    auto* const line = new QHBoxLayout;
    line->addWidget(code_, 1);
    line->addWidget(apply_);
    line->addWidget(revert_);
    auto* const lines = new QVBoxLayout(foot_);
    lines->addLayout(line);
    lines->addWidget(refusal_);
}

// Connections

void EditorPanel::connectEdits() {
    const auto settled = [this] { settle(); };
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_[i]->changed = [this, i](double value) {
            const auto& space = edited_.sliders().space();
            put(edited_.setChannel(i, value), channelKey(space.value, space.channels[i].letter));
        };
        rows_[i]->settled = settled;
    }
    alpha_->changed = [this](double percent) { put(edited_.setAlpha(percent), "alpha"); };
    plane_->planeChanged = [this](double saturation, double brightness) {
        put(edited_.setPlane(saturation, brightness), "plane");
    };
    plane_->hueChanged = [this](double degrees) { put(edited_.setHue(degrees), "hue"); };
    plane_->settled = settled;
    code_->read = [this](const WashColor& color) { put(asWritten(color), "code"); };
    code_->refused = [this](bool is) {
        refusal_->setVisible(is);
        place();
        if (!is) return;
        QAccessibleEvent event(refusal_, QAccessible::Alert);
        QAccessible::updateAccessibility(&event);
    };
}

void EditorPanel::connectCommands() {
    auto& preferences = ui_.models.preferences();
    connect(name_, &QLineEdit::editingFinished, this, [this] { commitName(); });
    connect(close_, &QAbstractButton::clicked, this, [this] { closeEditor(); });
    connect(beforeNow_, &QAbstractButton::clicked, this, [this] { revert(); });
    connect(apply_, &QAbstractButton::clicked, this, [this] { apply(); });
    connect(revert_, &QAbstractButton::clicked, this, [this] { revert(); });
    code_->copied = [this] { copy(); };
    picker_->chosen = [&preferences](int choice) {
        preferences.editorPicker = choice == 0 ? PickerStyle::plane : PickerStyle::wheel;
    };
    space_->fill = [this, &preferences](QMenu& menu) {
        for (const auto& row : allEditorSpaces()) {
            auto* const entry =
                menu.addAction(editorSpaceTitle(row.value, preferences.labIlluminant.value()));
            entry->setCheckable(true);
            entry->setChecked(row.value == preferences.editorSpace.value());
            connect(entry, &QAction::triggered, this,
                    [&preferences, space = row.value] { preferences.editorSpace = space; });
        }
    };
}

void EditorPanel::subscribe() {
    auto& preferences = ui_.models.preferences();
    const auto refreshed = [this] { refresh(); };
    subscriptions_->add(state_.editorBuffer, refreshed);
    subscriptions_->add(state_.customPalette(), refreshed);
    subscriptions_->add(state_.vision, refreshed);
    subscriptions_->add(state_.selectedSwatch, [this] { follow(); });
    subscriptions_->add(preferences.format, refreshed);
    subscriptions_->add(preferences.formatOptions, refreshed);
    subscriptions_->add(preferences.swatchBackdrop, [this] { beforeNow_->update(); });
    subscriptions_->add(preferences.backdropColour, [this] { beforeNow_->update(); });
    subscriptions_->add(preferences.editorSpace, [this] { setSpace(); });
    subscriptions_->add(preferences.editorPicker, [this] { restyle(); });
    subscriptions_->add(ui_.theme.version(), [this] { restyle(); });
    subscriptions_->add(preferences.profilesVersion, [this] { setSpace(); });
}

// Layout

void EditorPanel::restyle() {
    const auto style = ui_.models.preferences().editorPicker.value();
    picker_->setCurrent(style == PickerStyle::plane ? 0 : 1);
    plane_->setPicker(style);
    setFixedWidth(ui_.theme.scaled(kWidth));
    name_->setFont(ui_.theme.font(TextStyle::body));
    for (auto* const row : rows_)
        row->restyle();
    alpha_->restyle();
    gamut_->restyle();
    code_->restyle();
    refusal_->setFont(ui_.theme.font(TextStyle::small));
    const auto margin = ui_.theme.scaled(kMargin), gap = ui_.theme.scaled(kGap);
    foot_->layout()->setContentsMargins(margin, gap, margin, margin);
    foot_->layout()->setSpacing(gap);
    place();
    refresh();
    update();
}

void EditorPanel::resizeEvent(QResizeEvent*) {
    place();
}

void EditorPanel::place() {
    // The panel's line takes the first pixel.
    foot_->layout()->activate();
    const auto foot = std::max(foot_->heightForWidth(width()), foot_->sizeHint().height());
    foot_->setGeometry(0, height() - foot, width(), foot);
    area_->setGeometry(1, 0, width() - 1, height() - foot);
    auto high = placeBody();
    const auto lack = std::max(0, plane_->lack() + high - area_->height());
    if (lack != plane_->lack()) {
        plane_->setLack(lack);
        high = placeBody();
    }
    body_->resize(width() - 1, high);
}

int EditorPanel::placeBody() {
    const auto px = [this](int regular) { return ui_.theme.scaled(regular); };
    const auto left = px(kMargin) - 1, wide = px(kContent);
    auto y = px(kTop);
    name_->setGeometry(left, y, wide - px(kTool + kGap), px(kControl));
    close_->setGeometry(left + wide - px(kTool), y - px(kTool - kControl) / 2, px(kTool),
                        px(kTool));
    y += px(kControl) + px(kTop);
    beforeNow_->setGeometry(left, y, wide, px(BeforeNow::kHeight));
    y += px(BeforeNow::kHeight) + px(kLine);
    picker_->setGeometry(QRect({left, y}, picker_->sizeHint()));
    const auto space = space_->sizeHint();
    space_->setGeometry(left + wide - space.width(), y, space.width(), space.height());
    y += px(kControl);
    plane_->move(left - px(PickerControl::kHalo), y);
    y += plane_->height() + px(kRowGap);
    for (auto* const row : sliderRows()) {
        row->setGeometry(left, y, wide, row->height());
        y += row->height() + px(kRowGap);
    }
    if (gamut_->isVisibleTo(body_)) {
        y += px(kGap);
        gamut_->setGeometry(left, y, wide, gamut_->heightForWidth(wide));
        y += gamut_->height();
    }
    return y + px(kGap);
}

std::vector<ChannelRow*> EditorPanel::sliderRows() const {
    const auto count = static_cast<std::ptrdiff_t>(edited_.sliders().space().channels.size());
    std::vector<ChannelRow*> rows(rows_.begin(), rows_.begin() + count);
    rows.push_back(alpha_);
    return rows;
}

} // namespace tintra
