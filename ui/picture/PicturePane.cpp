#include "ui/picture/PicturePane.h"

#include "palettes/PaletteFile.h"
#include "state/Models.h"
#include "ui/picture/PictureCanvas.h"
#include "ui/shared/ColourMime.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace tintra {
namespace {

/// The file of a drop that may be a picture; none when all of them are palettes.
std::optional<std::filesystem::path> pictureFile(const Dropped& drop) {
    const auto file = std::ranges::find_if(
        drop.files, [](const auto& one) { return !PaletteFile::kindOf(one).has_value(); });
    return file == drop.files.end() ? std::nullopt : std::optional(*file);
}

/// Without taking large data out.
bool mayHoldPicture(const QMimeData& data) {
    return (data.hasImage() || data.hasUrls()) && !data.hasColor() &&
           !data.hasFormat(QString::fromLatin1(kColourMimeType));
}

/// Colours and text are none of a picture's. The pane has them end here: the window behind it
/// would take them.
void refuse(QDragMoveEvent& event) {
    event.setDropAction(Qt::IgnoreAction);
    event.accept();
}

} // namespace

/// Shows that a drop would be taken, over everything.
class PicturePane::Ring final : public QWidget {
public:
    Ring(const Theme& theme, QWidget* parent) : QWidget(parent), theme_(theme) {
        setAttribute(Qt::WA_TransparentForMouseEvents);
        hide();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(theme_.color(Token::ink), 3));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5),
                                metrics::kGroupRadius, metrics::kGroupRadius);
    }

private:
    const Theme& theme_;
};

PicturePane::PicturePane(Ui& ui, AppState& state, QWidget* parent)
    : QWidget(parent), ui_(ui), state_(state), canvas_(new PictureCanvas(ui, state, this)),
      place_(new QWidget(this)), icon_(new QLabel(place_)),
      words_(new QLabel(worded("Drop a picture"), place_)),
      choose_(new QPushButton(worded("Choose a Picture…"), place_)),
      ring_(new Ring(ui.theme, this)) {
    setAcceptDrops(true);
    assemble();
    subscriptions_.emplace_back(state.imageSource, [this] { follow(); });
    subscriptions_.emplace_back(ui.theme.version(), [this] { follow(); });
    follow();
}

PicturePane::~PicturePane() = default;

void PicturePane::assemble() {
    auto* column = new QVBoxLayout(place_);
    column->setSpacing(8);
    column->addStretch();
    for (QWidget* one : {static_cast<QWidget*>(icon_), static_cast<QWidget*>(words_),
                         static_cast<QWidget*>(choose_)})
        column->addWidget(one, 0, Qt::AlignHCenter);
    column->addStretch();
    connect(choose_, &QPushButton::clicked, this, [this] { state_.chooseImage(); });
}

void PicturePane::follow() {
    const auto& theme = ui_.theme;
    const bool has = state_.imageSource.value().picture != nullptr;
    // The keyboard stays in the pane when one takes the other's place.
    const bool hadKeyboard = has ? choose_->hasFocus() : canvas_->hasFocus();
    canvas_->setVisible(has);
    place_->setVisible(!has);
    if (hadKeyboard && has) canvas_->setFocus(Qt::OtherFocusReason);
    if (hadKeyboard && !has) choose_->setFocus(Qt::OtherFocusReason);
    icon_->setPixmap(theme.icon("picture", 20, theme.color(Token::ink2), devicePixelRatioF()));
    words_->setFont(theme.font(TextStyle::name));
    auto colours = words_->palette();
    colours.setColor(QPalette::WindowText, theme.color(Token::ink2));
    words_->setPalette(colours);
    choose_->setFont(theme.font(TextStyle::control));
    update();
}

void PicturePane::resizeEvent(QResizeEvent*) {
    canvas_->setGeometry(rect());
    place_->setGeometry(rect());
    ring_->setGeometry(rect());
}

void PicturePane::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), ui_.theme.color(Token::ground));
    if (canvas_->isVisible()) return;
    painter.setPen(QPen(ui_.theme.color(Token::edge), 1, Qt::DashLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), metrics::kGroupRadius,
                            metrics::kGroupRadius);
}

// Drops

void PicturePane::setTarget(bool isTarget) {
    ring_->setVisible(isTarget);
    ring_->raise();
    state_.fileIsOver = isTarget;
}

void PicturePane::dragEnterEvent(QDragEnterEvent* event) {
    const bool takes = mayHoldPicture(*event->mimeData());
    if (takes)
        event->acceptProposedAction();
    else
        refuse(*event);
    setTarget(takes);
}

void PicturePane::dragMoveEvent(QDragMoveEvent* event) {
    if (mayHoldPicture(*event->mimeData()))
        event->acceptProposedAction();
    else
        refuse(*event);
}

void PicturePane::dragLeaveEvent(QDragLeaveEvent*) {
    setTarget(false);
}

void PicturePane::dropEvent(QDropEvent* event) {
    setTarget(false);
    const auto drop = dropped(*event->mimeData());
    if (const auto file = pictureFile(drop)) {
        event->acceptProposedAction();
        state_.loadImage(*file);
    } else if (drop.picture) {
        event->acceptProposedAction();
        const auto* begin = reinterpret_cast<const Bytes::value_type*>(drop.picture->constData());
        state_.loadImage(Bytes(begin, begin + drop.picture->size()), toUtf8(worded("Picture")));
    }
}

} // namespace tintra
