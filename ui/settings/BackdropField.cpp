#include "ui/settings/BackdropField.h"

#include "palettes/PasteColours.h"
#include "state/Models.h"
#include "ui/settings/Form.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace tintra {
namespace {

constexpr int kChip = 48, kGap = 8, kField = 180, kHeight = 28;
/// Far more than any code of a colour.
constexpr int kLongestCode = 200;

} // namespace

BackdropField::BackdropField(Ui& ui, QWidget* parent)
    : QWidget(parent), ui_(ui), field_(new QLineEdit(this)),
      refusal_(new Words(ui.theme, TextStyle::small, Token::ink, {}, this)),
      colourChanged_(ui.models.preferences().backdropColour, [this] { showColour(); }),
      themeChanged_(ui.theme.version(), [this] { showColour(); }) {
    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(4);
    layout->addWidget(field_, 0, Qt::AlignLeft);
    layout->addWidget(refusal_);
    refusal_->setText(worded("That is no colour. Try #dedede or rgb(222, 222, 222)."));
    refusal_->hide();
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    setFocusProxy(field_);
    field_->setMaxLength(kLongestCode);
    field_->setAccessibleName(worded("Backdrop colour"));
    field_->installEventFilter(this);
    QObject::connect(field_, &QLineEdit::returnPressed, this, [this] { take(); });
    showColour();
}

QRectF BackdropField::chip() const {
    return {0, 0, static_cast<qreal>(ui_.theme.scaled(kChip)),
            static_cast<qreal>(ui_.theme.scaled(kHeight))};
}

void BackdropField::showColour() {
    const auto& theme = ui_.theme;
    layout()->setContentsMargins(theme.scaled(kChip) + kGap, 0, 0, 0);
    field_->setFont(theme.font(TextStyle::code));
    field_->setFixedWidth(theme.scaled(kField));
    field_->setText(fromUtf8(
        ColorFormat(ColorFormat::cssHex).string(ui_.models.preferences().backdropColour, {}, {})));
    refusal_->hide();
    update();
}

void BackdropField::take() {
    auto colour = PasteColours::colour(toUtf8(field_->text()));
    refusal_->setVisible(!colour);
    field_->setAccessibleDescription(colour ? QString() : refusal_->text());
    if (!colour) return;
    // What lies behind is never translucent itself.
    colour->a = 1;
    ui_.models.preferences().backdropColour = *colour;
    showColour();
}

bool BackdropField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut && field_->isModified()) {
        take();
        if (refusal_->isVisible()) showColour();
    }
    const bool isKey =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (isKey && field_->isModified() && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        if (event->type() == QEvent::KeyPress) showColour();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void BackdropField::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ui_.theme.color(Token::edge), 1));
    painter.setBrush(toQColor(ui_.models.preferences().backdropColour));
    painter.drawRoundedRect(chip().adjusted(0.5, 0.5, -0.5, -0.5), metrics::kControlRadius,
                            metrics::kControlRadius);
}

} // namespace tintra
