#include "ui/palette/PaletteFoot.h"

#include "colour/ColorNames.h"
#include "palettes/FileNames.h"
#include "palettes/PaletteExport.h"
#include "platform/File.h"
#include "state/Models.h"
#include "ui/frame/ToolLine.h"
#include "ui/palette/DragHandle.h"
#include "ui/shared/ColourDrag.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QDrag>
#include <QFontMetrics>
#include <QPainter>
#include <QPointer>
#include <QTemporaryDir>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kHeight = 40, kSide = 12, kChip = 20, kGap = 8, kCodeGap = 12, kGroupGap = 20;
constexpr int kLeastName = 72;

QString countOfPalette(const AppState& state) {
    auto text = worded("%n swatch", "%n swatches", static_cast<qsizetype>(state.swatches().size()));
    if (!state.isPictureWindowOpen.value()) return text;
    const auto& found = state.imageSource.value().found;
    const auto own = std::ranges::count_if(found, &ImagePalette::Extracted::isOwn);
    if (own > 0) text += worded(" · ") + worded("%n own pin", "%n own pins", own);
    return text;
}

QString countOfBands(const AppState& state) {
    const auto& bands = state.bands();
    const auto colours = bands.empty() ? 0 : static_cast<qsizetype>(bands.front().size());
    if (state.mode.value() == HarmonyMode::ramp) return worded("%n step", "%n steps", colours);
    if (bands.size() == 1) return worded("%n colour", "%n colours", colours);
    return worded("%n band of %1", "%n bands of %1", static_cast<qsizetype>(bands.size()))
        .arg(colours);
}

} // namespace

PaletteFoot::PaletteFoot(Ui& ui, AppState& state, ContextOf context, QWidget* parent)
    : QWidget(parent), ui_(ui), state_(state), context_(std::move(context)),
      chip_(new DragHandle(this)), count_(new DragHandle(this)),
      copy_(new ToolButton(ui.theme, "copy", 24, this)),
      add_(new ToolButton(ui.theme, "add", 32, this)), more_(makeMoreButton(ui, context_, this)),
      choices_(ui, &state.vision, this) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(worded("Facts"));
    chip_->paint = [this](QPainter& painter, const QRect& in) {
        if (target_) ui_.painter.chip(painter, in, target_->color, state_.vision);
    };
    chip_->drag = [this] { dragColour(); };
    count_->paint = [this](QPainter& painter, const QRect& in) {
        painter.setFont(ui_.theme.font(TextStyle::body));
        painter.setPen(ui_.theme.color(Token::ink3));
        drawFigures(painter, in, Qt::AlignVCenter | Qt::AlignRight, countText());
    };
    count_->drag = [this] { dragPalette(); };
    count_->setToolTip(worded("Drag the palette out as a file"));
    connectTools();
    choices_.changed = [this] { layOut(); };
    subscribe();
    sync();
}

PaletteFoot::~PaletteFoot() = default;

void PaletteFoot::connectTools() {
    const auto connectTool = [this](ToolButton& button, ActionId action) {
        const auto& row = actionRow(action);
        button.setTitle(worded(row.text), keyText(row));
        connect(&button, &QAbstractButton::clicked, this,
                [this, action] { perform(action, context_()); });
    };
    connectTool(*copy_, ActionId::copy);
    connectTool(*add_, ActionId::addBlankSwatch);
}

void PaletteFoot::subscribe() {
    auto& preferences = ui_.models.preferences();
    const auto again = [this] { sync(); };
    subscriptions_.add(state_.customPaletteVersion(), again);
    subscriptions_.add(state_.selectedSwatch, again);
    subscriptions_.add(state_.mode, again);
    subscriptions_.add(state_.seeds(), again);
    subscriptions_.add(state_.steps, again);
    subscriptions_.add(state_.shadesPerAnchor, again);
    subscriptions_.add(state_.vision, again);
    subscriptions_.add(state_.editorBuffer, again);
    subscriptions_.add(state_.imageSource, again);
    subscriptions_.add(state_.isPictureWindowOpen, again);
    subscriptions_.add(preferences.format, again);
    subscriptions_.add(preferences.formatOptions, again);
    subscriptions_.add(preferences.profilesVersion, again);
    subscriptions_.add(ui_.theme.version(), again);
}

void PaletteFoot::setCompact(bool compact) {
    if (compact == compact_) return;
    compact_ = compact;
    layOut();
}

void PaletteFoot::setMove(std::optional<std::pair<std::size_t, std::size_t>> move) {
    move_ = move;
    layOut();
}

QString PaletteFoot::hint() const {
    if (target_ || state_.mode.value() != HarmonyMode::paletteBuilder) return {};
    return state_.swatches().empty()
               ? worded("Drop colours, palette files or a picture anywhere in this window")
               : worded("No swatch selected");
}

QString PaletteFoot::countText() const {
    if (move_) return worded("Moving %1 to %2").arg(move_->first + 1).arg(move_->second + 1);
    return state_.mode.value() == HarmonyMode::paletteBuilder ? countOfPalette(state_)
                                                              : countOfBands(state_);
}

void PaletteFoot::sync() {
    auto& preferences = ui_.models.preferences();
    const auto context = context_();
    target_ = context.window ? context.window->target() : std::nullopt;
    name_.clear();
    code_.clear();
    if (target_) {
        const auto nearest =
            target_->swatch ? ColorNames::shared().name(target_->color) : std::string();
        const auto name = target_->name.value_or(nearest);
        name_ = oneLine(name);
        code_ = fromUtf8(preferences.format.value().string(target_->color, name,
                                                           preferences.formatOptions.value()));
    }
    chip_->setAccessibleName(name_.isEmpty() ? code_ : name_);
    chip_->setToolTip(worded("Drag the colour"));
    setAccessibleDescription(hint());
    layOut();
}

QSize PaletteFoot::sizeHint() const {
    return {0, ui_.theme.scaled(kHeight)};
}

QSize PaletteFoot::minimumSizeHint() const {
    return sizeHint();
}

void PaletteFoot::layOut() {
    add_->setVisible(compact_);
    more_->setVisible(compact_);
    for (QWidget* fact :
         std::initializer_list<QWidget*>{choices_.vision(), &choices_.format(), count_})
        fact->setVisible(!compact_);
    chip_->setVisible(!compact_ && target_);
    copy_->setVisible(!compact_ && target_);
    count_->setAccessibleName(countText());
    if (compact_) {
        layOutTools();
    } else {
        layOutColour(layOutFacts());
    }
    update();
    chip_->update();
    count_->update();
}

void PaletteFoot::layOutTools() {
    const auto size = add_->sizeHint();
    const auto top = (height() - size.height()) / 2;
    add_->setGeometry(QRect(QPoint(kGap, top), size));
    more_->setGeometry(QRect(QPoint(width() - kGap - size.width(), top), size));
}

int PaletteFoot::layOutFacts() {
    const QFontMetrics mono(ui_.theme.font(TextStyle::code));
    const auto colour = target_
                            ? kSide + kChip + kGap + kLeastName + kCodeGap +
                                  mono.horizontalAdvance(code_) + kGap + copy_->sizeHint().width()
                            : kSide;
    const auto countWidth =
        static_cast<int>(figuresWidth(ui_.theme.font(TextStyle::body), countText())) + 2;
    const auto place = [this](QWidget& widget, int right, int width) {
        const auto high = std::max(widget.sizeHint().height(), ui_.theme.scaled(28));
        widget.setGeometry(right - width, (height() - high) / 2, width, high);
        return right - width;
    };
    auto left = width() - kSide;
    const auto add = [&](QWidget& widget, int width, int gap) {
        const bool fits = left - width - gap >= colour;
        widget.setVisible(fits);
        if (fits) left = place(widget, left, width) - gap;
    };
    add(choices_.format(), choices_.format().sizeHint().width(), kGroupGap);
    add(*choices_.vision(), choices_.vision()->sizeHint().width(), kGap);
    if (state_.swatches().empty() && state_.mode.value() == HarmonyMode::paletteBuilder)
        count_->hide();
    else
        add(*count_, countWidth, kGap);
    return left;
}

void PaletteFoot::layOutColour(int right) {
    namePlace_ = codePlace_ = {};
    hintPlace_ = {kSide, 0, right - kSide, height()};
    if (!target_) return;
    const QFontMetrics words(ui_.theme.font(TextStyle::name)),
        mono(ui_.theme.font(TextStyle::code));
    chip_->setGeometry(kSide, (height() - kChip) / 2, kChip, kChip);
    const auto copySize = copy_->sizeHint();
    const auto codeWidth = mono.horizontalAdvance(code_) + 1;
    auto left = kSide + kChip + kGap;
    const auto room = right - left - kCodeGap - kGap - copySize.width();
    const auto nameWidth =
        std::max(0, std::min(words.horizontalAdvance(name_) + 1, room - codeWidth));
    namePlace_ = {left, 0, nameWidth, height()};
    // Alone in the foot, the code stands at its end.
    const bool alone =
        choices_.format().isHidden() && choices_.vision()->isHidden() && count_->isHidden();
    const auto shownCode = std::max(0, std::min(codeWidth, room));
    const auto codeLeft = alone ? width() - kSide - copySize.width() - kGap - shownCode
                                : left + nameWidth + (nameWidth > 0 ? kCodeGap : 0);
    codePlace_ = {codeLeft, 0, shownCode, height()};
    copy_->setGeometry(
        QRect(QPoint(codePlace_.right() + 1 + kGap, (height() - copySize.height()) / 2), copySize));
}

void PaletteFoot::resizeEvent(QResizeEvent*) {
    layOut();
}

void PaletteFoot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto& theme = ui_.theme;
    painter.fillRect(rect(), theme.color(Token::panel));
    // Where surfaces do not differ, and under the bar of a picture.
    const bool isBelowBar =
        state_.isPictureWindowOpen.value() && state_.imageSource.value().picture;
    if (theme.isHighContrast() || isBelowBar)
        painter.fillRect(0, 0, width(), 1, theme.color(Token::line));
    if (compact_) return;
    const auto write = [&](const QRect& in, TextStyle style, Token ink, const QString& text) {
        const auto font = theme.font(style);
        painter.setFont(font);
        painter.setPen(theme.color(ink));
        painter.drawText(in, Qt::AlignVCenter | Qt::AlignLeft,
                         QFontMetrics(font).elidedText(text, Qt::ElideRight, in.width()));
    };
    const auto words = QFontMetrics(theme.font(TextStyle::body)).horizontalAdvance(hint());
    // What to do with an empty palette is said as far as there is room, the other whole or not.
    if (state_.swatches().empty() || words <= hintPlace_.width())
        write(hintPlace_, TextStyle::body, Token::ink3, hint());
    write(namePlace_, TextStyle::name, Token::ink, name_);
    write(codePlace_, TextStyle::code, Token::ink2, code_);
    if (!choices_.format().isHidden() && !choices_.vision()->isHidden())
        painter.fillRect(choices_.format().x() - kGroupGap / 2, (height() - 20) / 2, 1, 20,
                         theme.color(Token::line));
}

void PaletteFoot::dragColour() {
    if (!target_) return;
    Drag dragged{target_->color, target_->name, DragOfBand{}};
    if (const auto at = target_->swatch)
        dragged.source = DragOfSwatch{
            {state_.currentPaletteName(), state_.id(), state_.swatches()[*at].id, *at}};
    SwatchLook look;
    look.color = target_->color;
    look.vision = state_.vision;
    look.name = name_;
    look.code = code_;
    tintra::dragColour(*chip_, ui_.painter, dragged, look, kDragCard);
}

void PaletteFoot::dragPalette() {
    const auto format = ui_.models.preferences().lastExport.value();
    const auto names = state_.names();
    const auto bytes = PaletteExport::data(format, state_.colors(), names, state_.title(),
                                           ui_.models.preferences().formatOptions.value());
    if (!bytes) return;
    if (!folder_) folder_ = std::make_unique<QTemporaryDir>();
    auto name = fitFileName(state_.title());
    if (name.empty()) name = state_.untitledName();
    const auto file = std::filesystem::path(toUtf8(folder_->path())) /
                      (name + "." + std::string(fileExtension(format)));
    if (writeFile(file, *bytes, Existing::replace)) return;
    auto* drag = new QDrag(count_);
    drag->setMimeData(mimeOfPalette(file).release());
    drag->exec(Qt::CopyAction);
}

} // namespace tintra
