#include "ui/help/AboutWindow.h"

#include "ui/help/LicencesWindow.h"
#include "ui/help/RowList.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QSvgRenderer>
#include <QVBoxLayout>
#include <array>

namespace tintra {
namespace {

constexpr int kSide = 32, kIcon = 98;

struct Thanks {
    const char* what;
    const char* whom;
};
constexpr std::array kThanks{
    Thanks{"The names given to colours", "color-name-list"},
    Thanks{"The face of the interface", "Inter · SIL OFL 1.1"},
    Thanks{"The face of the code", "JetBrains Mono · SIL OFL 1.1"},
    Thanks{"Windows and drawing", "Qt · LGPL 3"},
    Thanks{"Colour management", "Little CMS · MIT"},
    Thanks{"Text of every language", "ICU · Unicode License"},
};

QPixmap programIcon(qreal ratio) {
    QPixmap picture(QSize(kIcon, kIcon) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    QSvgRenderer(QStringLiteral(":/icons/tintra.svg")).render(&painter, QRectF(0, 0, kIcon, kIcon));
    return picture;
}

void colour(QLabel& label, const QColor& ink) {
    auto colours = label.palette();
    colours.setColor(QPalette::WindowText, ink);
    label.setPalette(colours);
}

} // namespace

AboutWindow::AboutWindow(Ui& ui)
    : ui_(ui), icon_(new QLabel(this)), name_(new QLabel(QStringLiteral("Tintra"), this)),
      version_(new QLabel(worded("Version %1").arg(QStringLiteral(TINTRA_VERSION)), this)),
      purpose_(new QLabel(worded("A colour toolbox for designers and developers"), this)),
      thanks_(new RowList(ui.theme, 300, 32, this)) {
    setWindowTitle(worded("About Tintra"));
    assemble();
    subscriptions_.add(ui.theme.version(), [this] { follow(); });
    follow();
    resize(420, 640);
}

void AboutWindow::assemble() {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kSide, 44, kSide, 24);
    column->setSpacing(8);
    for (auto* label : {icon_, name_, version_, purpose_}) {
        label->setAlignment(Qt::AlignCenter);
        column->addWidget(label);
    }
    purpose_->setWordWrap(true);
    column->insertSpacing(1, 12);
    column->addSpacing(24);
    std::vector<RowList::Row> rows{{worded("Acknowledgements"), {}, true}};
    for (const auto& [what, whom] : kThanks)
        rows.push_back({worded(what), worded(whom)});
    thanks_->setAccessibleName(worded("Acknowledgements"));
    thanks_->setRows(std::move(rows));
    column->addWidget(thanks_);
    column->addStretch(1);
    auto* licences = new QPushButton(worded("Licences…"), this);
    connect(licences, &QPushButton::clicked, this, [this] { showLicences(); });
    column->addWidget(licences, 0, Qt::AlignHCenter);
}

void AboutWindow::follow() {
    const auto& theme = ui_.theme;
    icon_->setPixmap(programIcon(devicePixelRatioF()));
    auto font = theme.font(TextStyle::quotation);
    font.setPixelSize(theme.scaled(28));
    font.setWeight(QFont::DemiBold);
    name_->setFont(font);
    version_->setFont(theme.font(TextStyle::body));
    purpose_->setFont(theme.font(TextStyle::body));
    colour(*name_, theme.color(Token::ink));
    colour(*version_, theme.color(Token::ink3));
    colour(*purpose_, theme.color(Token::ink2));
    update();
}

void AboutWindow::showAcknowledgements() {
    thanks_->setFocus(Qt::ShortcutFocusReason);
}

void AboutWindow::showLicences() {
    if (!licences_) {
        licences_ = new LicencesWindow(ui_, this);
        licences_->setAttribute(Qt::WA_DeleteOnClose);
    }
    licences_->show();
    licences_->raise();
    licences_->activateWindow();
}

void AboutWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ui_.theme.color(Token::panel));
    painter.fillRect(kSide, thanks_->y() - 20, width() - 2 * kSide, 1,
                     ui_.theme.color(Token::line));
}

void AboutWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape || event->matches(QKeySequence::Close))
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace tintra
