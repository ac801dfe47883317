#include "ui/palette/SeedEditor.h"

#include "colour/ColorNames.h"
#include "palettes/PasteColours.h"
#include "state/CoalescingKeys.h"
#include "state/Models.h"
#include "ui/palette/RecentColours.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kWidth = 264, kInset = 12, kGap = 8;
constexpr int kLongestCode = 1000;

QLabel* caption(const Theme& theme, const QString& text, Token ink, QWidget* parent) {
    auto* label = new QLabel(text, parent);
    label->setFont(theme.font(TextStyle::caption));
    label->setWordWrap(true);
    auto palette = label->palette();
    palette.setColor(QPalette::WindowText, theme.color(ink));
    label->setPalette(palette);
    return label;
}

} // namespace

SeedEditor::SeedEditor(Ui& ui, AppState& state, AppState::SeedRole role, QWidget* parent)
    : QWidget(parent, Qt::Popup), ui_(ui), state_(state), role_(role), field_(new QLineEdit(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    const bool isFirst = role == AppState::SeedRole::first;
    const auto title = worded(isFirst ? "First seed" : "Last seed");
    setAccessibleName(title);
    const auto& seed = isFirst ? state.first() : state.last();
    const auto& preferences = ui.models.preferences();
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kInset, kInset, kInset, kInset);
    column->setSpacing(kGap);
    column->addWidget(caption(ui.theme, title, Token::ink3, this));
    field_->setAccessibleName(worded("Code of the colour"));
    field_->setPlaceholderText(worded("Any code or colour name"));
    field_->setFont(ui.theme.font(TextStyle::code));
    field_->setMaxLength(kLongestCode);
    field_->setText(fromUtf8(preferences.format.value().string(
        seed, ColorNames::shared().name(seed), preferences.formatOptions.value())));
    field_->selectAll();
    column->addWidget(field_);
    sentence_ = caption(ui.theme, shown("Nothing there that reads as a colour"), Token::ink, this);
    sentence_->hide();
    column->addWidget(sentence_);
    if (!preferences.recents.value().empty()) {
        column->addWidget(caption(ui.theme, worded("Recent colours"), Token::ink3, this));
        auto* recents = new RecentColours(ui, state.vision, this);
        recents->chosen = [this](const WashColor& colour) { take(colour); };
        column->addWidget(recents);
    }
    connect(field_, &QLineEdit::textEdited, this, [this](const QString& text) { read(text); });
    setFixedWidth(ui.theme.scaled(kWidth));
    setFocusProxy(field_);
}

void SeedEditor::popUp(QPoint at) {
    adjustSize();
    const auto* screen = QGuiApplication::screenAt(at);
    if (screen) {
        const auto room = screen->availableGeometry();
        at.setX(std::max(room.left(), std::min(at.x(), room.right() + 1 - width())));
        at.setY(std::max(room.top(), std::min(at.y(), room.bottom() + 1 - height())));
    }
    move(at);
    show();
    field_->setFocus(Qt::PopupFocusReason);
}

void SeedEditor::take(const WashColor& colour) {
    const bool isFirst = role_ == AppState::SeedRole::first;
    state_.setSeed(role_, colour, coalescing::seed(isFirst ? "first" : "last"));
}

void SeedEditor::read(const QString& text) {
    const auto colour = PasteColours::colour(toUtf8(text));
    if (colour) take(*colour);
    // An empty field is not wrong yet.
    refuse(!colour && !text.trimmed().isEmpty());
}

void SeedEditor::refuse(bool refused) {
    if (refused != sentence_->isHidden()) return;
    sentence_->setVisible(refused);
    field_->setAccessibleDescription(refused ? sentence_->text() : QString());
    adjustSize();
}

void SeedEditor::keyPressEvent(QKeyEvent* event) {
    const bool enters = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (enters && !sentence_->isHidden()) return;
    if (enters || event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void SeedEditor::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(ui_.theme.color(Token::edge));
    painter.setBrush(ui_.theme.color(Token::raised));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

std::optional<Drag> seedOf(const Dropped& drop) {
    if (drop.colour) return drop.colour;
    if (!drop.text) return std::nullopt;
    const auto colours = PasteColours::parse(toUtf8(*drop.text));
    if (colours.empty()) return std::nullopt;
    return Drag{colours.front(), std::nullopt, DragOfForeignColour{}};
}

} // namespace tintra
