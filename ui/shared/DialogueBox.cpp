#include "ui/shared/DialogueBox.h"

#include "ui/shared/Prose.h"
#include "ui/shared/Text.h"
#include "ui/shared/WarningLine.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace tintra {
namespace {

constexpr std::string_view kCancel = "Cancel";
constexpr int kSide = 24, kEnds = 20, kGap = 8;
constexpr int kTitleLines = 4, kTextLines = 10, kNoteLines = 4;

QString label(const std::string& title) {
    auto text = shown(title);
    return text.replace(QLatin1Char('&'), QStringLiteral("&&"));
}

} // namespace

DialogueBox::DialogueBox(const Theme& theme, const std::string& title, QWidget* over)
    : QDialog(over, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowCloseButtonHint),
      column_(new QVBoxLayout(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    setWindowTitle(QStringLiteral("Tintra"));
    column_->setContentsMargins(kSide, kEnds, kSide, kEnds);
    column_->setSpacing(kGap);
    column_->setSizeConstraint(QLayout::SetFixedSize);
    auto* words = new Prose(theme, TextStyle::question, Token::ink, kInner, kTitleLines);
    words->setProse(shown(title));
    add(words);
    setAccessibleName(words->prose());
    connect(this, &QDialog::finished, this, [this](int result) {
        const auto tell = std::exchange(answered, {});
        if (tell) tell(result > 0 ? static_cast<std::size_t>(result - 1) : cancel_);
    });
}

DialogueBox::DialogueBox(const Theme& theme, const Question& question, QWidget* over)
    : DialogueBox(theme, question.title, over) {
    if (!question.text.empty()) {
        auto* words = new Prose(theme, TextStyle::body, Token::ink2, kInner, kTextLines);
        words->setProse(shown(question.text));
        setAccessibleDescription(words->prose());
        add(words);
    }
    setButtons(question.buttons);
    if (!buttons_.empty()) buttons_.front()->setFocus();
}

void DialogueBox::open() {
    if (const auto* over = parentWidget()) {
        adjustSize();
        const auto room = over->screen()->availableGeometry();
        auto place = rect();
        place.moveCenter(over->window()->geometry().center());
        move(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - width())),
             std::clamp(place.y(), room.top(), std::max(room.top(), room.bottom() - height())));
    }
    QDialog::open();
}

void DialogueBox::add(QWidget* part) {
    column_->addWidget(part);
}

void DialogueBox::setButtons(const std::vector<std::string>& titles) {
    if (!row_) {
        row_ = new QHBoxLayout;
        row_->setContentsMargins(0, kGap, 0, 0);
        row_->setSpacing(kGap);
        row_->addStretch(1);
        column_->addLayout(row_);
    }
    for (auto* old : std::exchange(buttons_, {})) {
        row_->removeWidget(old);
        // One of them may be what was just pressed.
        old->hide();
        old->deleteLater();
    }
    const auto cancel = std::ranges::find(titles, kCancel);
    cancel_ = cancel == titles.end() ? std::max<std::size_t>(titles.size(), 1) - 1
                                     : static_cast<std::size_t>(cancel - titles.begin());
    for (std::size_t i = 0; i < titles.size(); ++i) {
        auto* button = new QPushButton(label(titles[i]), this);
        connect(button, &QPushButton::clicked, this, [this, i] { done(static_cast<int>(i) + 1); });
        row_->addWidget(button);
        buttons_.push_back(button);
        button->show();
    }
    if (!buttons_.empty()) buttons_.front()->setDefault(true);
}

NameBox::NameBox(const Theme& theme, NameQuestion question, QWidget* over)
    : DialogueBox(theme, question.title, over), question_(std::move(question)),
      field_(new QLineEdit), against_(new WarningLine(theme, kInner)),
      note_(new Prose(theme, TextStyle::small, Token::ink3, kInner, kNoteLines)) {
    field_->setText(fromUtf8(question_.proposal));
    field_->setAccessibleName(accessibleName());
    add(field_);
    add(against_);
    add(note_);
    note_->setProse(shown(question_.note));
    connect(field_, &QLineEdit::textChanged, this, [this] { judge(); });
    answered = [this](std::size_t button) { tell(button); };
    judge();
    field_->selectAll();
    field_->setFocus();
}

std::string NameBox::name() const {
    return toUtf8(field_->text());
}

void NameBox::judge() {
    const bool empty = field_->text().trimmed().isEmpty();
    const auto refused = question_.refusal ? question_.refusal(name()) : std::nullopt;
    clash_ = !refused && !empty && question_.clash ? question_.clash(name()) : std::nullopt;
    against_->warn(shown(refused ? *refused : clash_ ? clash_->text : std::string()));
    field_->setAccessibleDescription(against_->sentence());
    note_->setVisible(!clash_ && !question_.note.empty());
    offer(clash_ ? clash_->buttons : std::vector{question_.button});
    buttons().front()->setEnabled(!refused && !empty);
}

void NameBox::offer(const std::vector<std::string>& titles) {
    if (titles == offered_) return;
    offered_ = titles;
    auto all = titles;
    all.emplace_back(kCancel);
    setButtons(all);
}

void NameBox::tell(std::size_t button) {
    const auto answer = std::exchange(named, {});
    if (!answer) return;
    if (button >= offered_.size())
        answer(std::nullopt);
    else
        answer(NameAnswer{name(), clash_ ? std::optional(button) : std::nullopt});
}

} // namespace tintra
