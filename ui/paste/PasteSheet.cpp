#include "ui/paste/PasteSheet.h"

#include "ui/paste/PasteField.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QAccessible>
#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPropertyAnimation>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>
#include <array>

namespace tintra {
namespace {

constexpr int kWidth = 560, kHeight = 400, kInset = 24, kLeastAround = 12;
constexpr int kShadow = 16; ///< beneath the sheet and beside it
constexpr int kMotion = 120;

bool isAccepting(const QKeyEvent& event) {
    return (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) &&
           event.modifiers().testFlag(Qt::ControlModifier);
}

} // namespace

/// The sheet itself, on the scrim.
struct PasteSheet::Panel final : QWidget {
    Panel(const Theme& of, QWidget* parent) : QWidget(parent), theme(of) {
        setContentsMargins(kShadow, 0, kShadow, kShadow);
    }
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        // Above its top edge it has no corners.
        const auto body =
            QRectF(rect()).adjusted(kShadow, -metrics::kGroupRadius, -kShadow, -kShadow);
        painter.setPen(Qt::NoPen);
        if (!theme.isHighContrast())
            for (int i = kShadow; i > 0; i -= 2) {
                painter.setBrush(QColor(0, 0, 0, 3));
                painter.drawRoundedRect(body.adjusted(-i, 0, i, i), i + metrics::kGroupRadius,
                                        i + metrics::kGroupRadius);
            }
        else
            painter.setPen(QPen(theme.color(Token::edge), 1));
        painter.setBrush(theme.color(Token::panel));
        painter.drawRoundedRect(body, metrics::kGroupRadius, metrics::kGroupRadius);
    }
    const Theme& theme;
};

PasteSheet::PasteSheet(Ui& ui, PasteTarget target, QWidget* window)
    : QWidget(window), ui_(ui), target_(std::move(target)), reader_(ui.services),
      panel_(new Panel(ui.theme, this)), title_(new QLabel(worded("Type or paste values"), panel_)),
      explanation_(new QLabel(panel_)), field_(new PasteField(ui, panel_)),
      warning_(new QLabel(panel_)), status_(new QLabel(panel_)), accept_(new QPushButton(panel_)),
      cancel_(new QPushButton(worded("Cancel"), panel_)) {
    hide();
    setAccessibleName(title_->text());
    assemble();
    follow();
    subscriptions_.add(ui.theme.version(), [this] { follow(); });
    subscriptions_.add(target_.vision, [this] { field_->margin().setVision(target_.vision); });
    if (target_.wordsChanged) wordsChanged_ = target_.wordsChanged([this] { followWords(); });
    window->installEventFilter(this);
}

PasteSheet::~PasteSheet() = default;

void PasteSheet::assemble() {
    explanation_->setWordWrap(true);
    accept_->setDefault(true);
    cancel_->setAutoDefault(true);
    auto* foot = new QHBoxLayout;
    foot->setSpacing(8);
    foot->addWidget(warning_);
    foot->addWidget(status_, 1);
    foot->addWidget(accept_);
    foot->addWidget(cancel_);
    auto* column = new QVBoxLayout(panel_);
    column->setContentsMargins(kInset, 20, kInset, 20);
    column->setSpacing(12);
    column->addWidget(title_);
    column->addWidget(explanation_);
    column->addWidget(field_, 1);
    column->addLayout(foot);
    connect(accept_, &QPushButton::clicked, this, [this] { accept(); });
    connect(cancel_, &QPushButton::clicked, this, [this] { dismiss(); });
    auto& editor = field_->editor();
    connect(&editor, &QPlainTextEdit::textChanged, this, [this] { read(); });
    editor.refused = [this] { refuse(worded("That is more text than can be read at once")); };
    reader_.done = [this](PasteReading reading) { take(std::move(reading)); };
}

void PasteSheet::follow() {
    const auto& theme = ui_.theme;
    const auto dress = [&theme](QLabel& label, TextStyle style, Token ink) {
        label.setFont(theme.font(style));
        auto colours = label.palette();
        colours.setColor(QPalette::WindowText, theme.color(ink));
        label.setPalette(colours);
    };
    dress(*title_, TextStyle::title, Token::ink);
    dress(*explanation_, TextStyle::body, Token::ink2);
    dress(*status_, TextStyle::body, Token::ink2);
    accept_->setFont(theme.font(TextStyle::control));
    cancel_->setFont(theme.font(TextStyle::control));
    warning_->setPixmap(theme.icon("warning", 16, theme.color(Token::ink), devicePixelRatioF()));
    field_->follow();
    place();
    update();
}

void PasteSheet::followWords() {
    const auto words = target_.words();
    explanation_->setText(words.explanation);
    field_->editor().setAccessibleDescription(words.explanation);
    accept_->setText(words.button);
}

// Opening and closing

void PasteSheet::present() {
    if (isVisible()) return;
    before_ = QApplication::focusWidget();
    followWords();
    field_->margin().setVision(target_.vision);
    say(summary(), false);
    place();
    show();
    raise();
    field_->editor().selectAll();
    field_->editor().setFocus(Qt::OtherFocusReason);
    slideIn();
}

void PasteSheet::slideIn() {
    const auto motion = ui_.theme.milliseconds(kMotion);
    if (motion == 0) return;
    auto* slide = new QPropertyAnimation(panel_, "pos", panel_);
    slide->setDuration(motion);
    slide->setEasingCurve(QEasingCurve::OutCubic);
    slide->setStartValue(panel_->pos() - QPoint(0, panel_->height() / 4));
    slide->setEndValue(panel_->pos());
    slide->start(QAbstractAnimation::DeleteWhenStopped);
}

void PasteSheet::dismiss() {
    hide();
}

void PasteSheet::hideEvent(QHideEvent* event) {
    acceptsOnceRead_ = false;
    QWidget::hideEvent(event);
    if (before_ && before_->isVisible())
        before_->setFocus(Qt::OtherFocusReason);
    else if (parentWidget()->isVisible())
        parentWidget()->setFocus(Qt::OtherFocusReason);
    before_ = nullptr;
}

void PasteSheet::place() {
    setGeometry(parentWidget()->rect());
    const auto width = std::min(ui_.theme.scaled(kWidth), this->width() - 2 * kLeastAround);
    const auto height = std::min(ui_.theme.scaled(kHeight), this->height() - kLeastAround);
    panel_->setGeometry((this->width() - width) / 2 - kShadow, 0, width + 2 * kShadow,
                        height + kShadow);
}

bool PasteSheet::eventFilter(QObject* watched, QEvent* event) {
    if (watched == parentWidget() && event->type() == QEvent::Resize) place();
    return QWidget::eventFilter(watched, event);
}

// What is read

void PasteSheet::read() {
    field_->setRefused(false);
    acceptsOnceRead_ = false;
    reader_.read(field_->editor().text());
}

void PasteSheet::take(PasteReading reading) {
    field_->margin().setReading(std::move(reading));
    if (acceptsOnceRead_ && reader_.isDone())
        accept();
    else
        say(summary(), false);
}

QString PasteSheet::summary() const {
    const auto count = field_->margin().reading().swatches.size();
    auto words = field_->editor().document()->isEmpty()
                     ? QString()
                     : worded("%n colour read", "%n colours read", static_cast<qsizetype>(count));
    if (field_->editor().isCut()) words += worded(" · only the beginning is shown");
    return words;
}

void PasteSheet::say(const QString& words, bool isRefusal) {
    warning_->setVisible(isRefusal);
    status_->setText(words);
    status_->setToolTip(words);
}

void PasteSheet::refuse(const QString& why) {
    field_->setRefused(true);
    say(why, true);
    field_->editor().setFocus(Qt::OtherFocusReason);
    QAccessibleEvent event(status_, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

void PasteSheet::accept() {
    if (!reader_.isDone()) {
        acceptsOnceRead_ = true;
        return;
    }
    if (field_->margin().reading().swatches.empty()) {
        refuse(worded("Nothing there that reads as a colour"));
        return;
    }
    const auto reading = field_->margin().reading();
    field_->editor().empty();
    dismiss();
    target_.take(reading.swatches);
}

// Keyboard and pointer

bool PasteSheet::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        const auto& key = *static_cast<QKeyEvent*>(event);
        if (key.key() == Qt::Key_Escape || isAccepting(key)) event->accept();
    }
    return QWidget::event(event);
}

void PasteSheet::keyPressEvent(QKeyEvent* event) {
    if (isAccepting(*event))
        accept();
    else if (event->key() == Qt::Key_Escape)
        dismiss();
    // Everything else ends here too: what lies beneath is not to be worked.
    event->accept();
}

bool PasteSheet::focusNextPrevChild(bool next) {
    const std::array<QWidget*, 3> stops{&field_->editor(), accept_, cancel_};
    const auto* now = QApplication::focusWidget();
    const auto at = std::find(stops.begin(), stops.end(), now) - stops.begin();
    const auto to = (at + (next ? 1 : 2)) % 3;
    stops[static_cast<std::size_t>(to)]->setFocus(next ? Qt::TabFocusReason
                                                       : Qt::BacktabFocusReason);
    return true;
}

void PasteSheet::mousePressEvent(QMouseEvent*) {
    // A click beside the sheet takes nothing away that was typed.
    if (field_->editor().document()->isEmpty()) dismiss();
}

void PasteSheet::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), QColor(0, 0, 0, ui_.theme.isHighContrast() ? 128 : 70));
}

} // namespace tintra
