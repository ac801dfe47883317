#include "ui/settings/Form.h"

#include "ui/shared/Text.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QIcon>
#include <QVBoxLayout>

namespace tintra {
namespace {

constexpr int kLabels = 136, kEdge = 24, kTop = 22, kGutter = 16;
constexpr int kRowGap = 14, kControlGap = 4;
constexpr int kLabelDrop = 4; ///< brings the first line of a label level with its control

} // namespace

Words::Words(Theme& theme, TextStyle style, Token ink, const QString& text, QWidget* parent)
    : QLabel(text, parent), theme_(theme), style_(style), ink_(ink),
      themeChanged_(theme.version(), [this] { dress(); }) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
    dress();
}

void Words::dress() {
    setFont(theme_.font(style_));
    auto colors = palette();
    colors.setColor(QPalette::WindowText, theme_.color(ink_));
    setPalette(colors);
}

IconButton::IconButton(Theme& theme, std::string_view icon, int size, const QString& text,
                       QWidget* parent)
    : QPushButton(text, parent) {
    const auto dress = [this, &theme, icon, size] {
        setIcon(theme.icon(icon, size, theme.color(Token::ink), devicePixelRatioF()));
    };
    dress();
    themeChanged_ = QPropertyNotifier(theme.version(), dress);
}

Form::Form(Theme& theme, QWidget* parent)
    : QWidget(parent), theme_(theme), grid_(new QGridLayout(this)) {
    grid_->setContentsMargins(kEdge, kTop, kEdge, kEdge);
    grid_->setHorizontalSpacing(kGutter);
    grid_->setVerticalSpacing(kRowGap);
    grid_->setColumnStretch(1, 1);
    const auto measure = [this] { grid_->setColumnMinimumWidth(0, theme_.scaled(kLabels)); };
    measure();
    themeChanged_ = QPropertyNotifier(theme.version(), measure);
}

void Form::addCell(const QString& label, QWidget* named) {
    const auto row = grid_->rowCount();
    auto* words = new Words(theme_, TextStyle::body, Token::ink2, label, this);
    words->setAlignment(Qt::AlignRight | Qt::AlignTop);
    words->setContentsMargins(0, kLabelDrop, 0, 0);
    words->setBuddy(named);
    grid_->addWidget(words, row, 0, Qt::AlignTop);
    last_ = new QVBoxLayout;
    last_->setSpacing(kControlGap);
    grid_->addLayout(last_, row, 1);
}

void Form::add(const QString& label, QWidget* control) {
    add(label, std::vector{control});
}

void Form::add(const QString& label, const std::vector<QWidget*>& controls) {
    addCell(label, controls.front());
    for (auto* control : controls) {
        const bool speaksForItself = qobject_cast<QCheckBox*>(control) != nullptr ||
                                     qobject_cast<QPushButton*>(control) != nullptr;
        if (!speaksForItself && control->accessibleName().isEmpty())
            control->setAccessibleName(label);
        append(control);
    }
}

void Form::append(QWidget* control) {
    const bool wide = control->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding;
    last_->addWidget(control, 0, wide ? Qt::Alignment() : Qt::AlignLeft);
}

Words* Form::addCaption(const QString& text) {
    auto* caption = new Words(theme_, TextStyle::small, Token::ink3, text, this);
    last_->addWidget(caption);
    return caption;
}

void Form::finish(QWidget* control) {
    const auto row = grid_->rowCount();
    grid_->setRowStretch(row, 1);
    if (control) grid_->addWidget(control, row + 1, 0, 1, 2, Qt::AlignRight);
}

} // namespace tintra
