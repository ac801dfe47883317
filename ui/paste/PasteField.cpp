#include "ui/paste/PasteField.h"

#include "ui/shared/Theme.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>

namespace tintra {
namespace {

constexpr int kBorder = 3; ///< within it stand the editor and its margin
constexpr int kMargin = 148;

} // namespace

PasteField::PasteField(Ui& ui, QWidget* parent)
    : QWidget(parent), ui_(ui), editor_(new PasteEditor(ui.theme, this)),
      margin_(new PasteMargin(ui, *editor_, this)) {
    setFocusProxy(editor_);
    editor_->installEventFilter(this);
    connect(editor_, &QPlainTextEdit::updateRequest, margin_, [this](const QRect& part, int down) {
        // Not with every blink of the caret.
        if (down != 0 || part.contains(editor_->viewport()->rect())) margin_->update();
    });
    connect(editor_, &QPlainTextEdit::textChanged, margin_, [this] { margin_->update(); });
}

// The editor still tells of changes while it goes, when the field is gone already.
PasteField::~PasteField() {
    editor_->disconnect(margin_);
}

void PasteField::setRefused(bool refused) {
    refused_ = refused;
    update();
}

void PasteField::follow() {
    editor_->follow();
    resizeEvent(nullptr);
    update();
}

void PasteField::resizeEvent(QResizeEvent*) {
    const auto margin = std::min(ui_.theme.scaled(kMargin), width() * 2 / 5);
    const auto inside = rect().adjusted(kBorder, kBorder, -kBorder, -kBorder);
    editor_->setGeometry(inside.adjusted(0, 0, -margin, 0));
    margin_->setGeometry(inside.right() + 1 - margin, inside.top(), margin, inside.height());
}

bool PasteField::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) update();
    return QWidget::eventFilter(watched, event);
}

void PasteField::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const auto& theme = ui_.theme;
    const bool ringed = refused_ || editor_->hasFocus();
    const auto width = ringed ? 2.0 : 1.0;
    painter.setPen(QPen(theme.color(ringed ? Token::ink : Token::edge), width));
    painter.setBrush(theme.color(Token::raised));
    painter.drawRoundedRect(QRectF(rect()).adjusted(width / 2, width / 2, -width / 2, -width / 2),
                            metrics::kControlRadius, metrics::kControlRadius);
}

} // namespace tintra
