#include "ui/library/LibraryTools.h"

#include "state/Models.h"
#include "ui/frame/ToolLine.h"
#include "ui/library/LibrarySort.h"
#include "ui/program/Windows.h"
#include "ui/shared/Badge.h"
#include "ui/shared/Controls.h"
#include "ui/shared/Figures.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QAction>
#include <QFontMetricsF>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <algorithm>
#include <array>
#include <utility>

namespace tintra {
namespace {

constexpr int kHeight = 44, kSecond = 32, kSide = 12, kGap = 8, kToolGap = 4;
constexpr int kField = 360, kColourField = 202, kLeastField = 180, kFieldHigh = 32, kChip = 16;
/// What is beside the words in the field.
constexpr int kFieldSides = 48;

} // namespace

LibraryTools::LibraryTools(Ui& ui, LibraryModel& model, const ContextOf& context, QWidget* parent)
    : QWidget(parent), ui_(ui), model_(model), field_(new QLineEdit(this)), match_(nullptr),
      display_(nullptr), sort_(nullptr) {
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setAccessibleName(worded("Tools"));
    makeField();
    makeTools(context);
    subscribe();
    syncField();
    syncTools();
}

void LibraryTools::makeField() {
    field_->setAccessibleName(worded("Search the Library"));
    // Nearer to what stands before the text than fields have it.
    field_->setTextMargins(-4, 0, 2, 0);
    field_->installEventFilter(this);
    mark_ = field_->addAction(QIcon(), QLineEdit::LeadingPosition);
    chip_ = field_->addAction(QIcon(), QLineEdit::LeadingPosition);
    clear_ = field_->addAction(QIcon(), QLineEdit::TrailingPosition);
    clear_->setText(worded("Clear"));
    connect(clear_, &QAction::triggered, field_, &QLineEdit::clear);
    connect(field_, &QLineEdit::textChanged, this, [this](const QString& text) {
        model_.search(toUtf8(text.trimmed()));
        syncField();
    });
    std::vector<Segmented::Choice> matches;
    for (const auto match : allColourMatches())
        matches.push_back({shown(badge(match)), {}});
    match_ = new Segmented(ui_.theme, std::move(matches), this);
    match_->setAccessibleName(worded("Match"));
    match_->chosen = [this](int choice) {
        ui_.models.preferences().libraryMatch =
            allColourMatches()[static_cast<std::size_t>(choice)];
    };
}

ToolButton* LibraryTools::tool(std::string_view icon, ActionId action, const ContextOf& context) {
    auto* button = new ToolButton(ui_.theme, icon, 32, this);
    const auto& row = actionRow(action);
    button->setTitle(worded(row.text), keyText(row));
    connect(button, &QAbstractButton::clicked, this,
            [action, context] { perform(action, context()); });
    return button;
}

void LibraryTools::makeTools(const ContextOf& context) {
    auto& preferences = ui_.models.preferences();
    display_ =
        new Segmented(ui_.theme, {{worded("Rows"), "rows"}, {worded("Tiles"), "tiles"}}, this);
    display_->setAccessibleName(worded("Shown as"));
    display_->chosen = [&preferences](int choice) { preferences.libraryTiles = choice == 1; };
    sort_ = new PopUpButton(ui_.theme, PopUpButton::Border::yes, this);
    sort_->setToolTip(worded(
        "Sort by name, by how many colours a palette holds, or by when its file was last changed"));
    sort_->fill = [&preferences](QMenu& menu) { fillLibrarySortKeys(menu, preferences); };
    direction_ = new ToolButton(ui_.theme, "sort", 32, this);
    connect(direction_, &QAbstractButton::clicked, this, [&preferences] {
        preferences.librarySortAscending = !preferences.librarySortAscending.value();
    });
    rescan_ = tool("rescan", ActionId::rescanLibrary, context);
    settings_ = new ToolButton(ui_.theme, "folder", 32, this);
    settings_->setTitle(worded("Library Settings…"), {});
    connect(settings_, &QAbstractButton::clicked, this, [this] {
        ui_.models.preferences().settingsTab = SettingsTab::library;
        ui_.windows.openSettings();
    });
    more_ = makeMoreButton(ui_, context, this);
}

void LibraryTools::subscribe() {
    auto& preferences = ui_.models.preferences();
    const auto tools = [this] { syncTools(); };
    subscriptions_.add(preferences.libraryMatch, tools);
    subscriptions_.add(preferences.libraryTiles, tools);
    subscriptions_.add(preferences.librarySortByName, tools);
    subscriptions_.add(preferences.librarySortByDate, tools);
    subscriptions_.add(preferences.librarySortAscending, tools);
    const auto field = [this] { syncField(); };
    subscriptions_.add(model_.version(), field);
    subscriptions_.add(ui_.theme.version(), field);
}

void LibraryTools::find() {
    field_->setFocus(Qt::ShortcutFocusReason);
    field_->selectAll();
}

void LibraryTools::syncField() {
    const auto& theme = ui_.theme;
    const auto ratio = devicePixelRatioF();
    const auto color = searchedColour(model_.text().value());
    readsColour_ = color.has_value();
    auto font = theme.font(color ? TextStyle::code : TextStyle::body);
    if (color) font.setPixelSize(theme.font(TextStyle::body).pixelSize());
    field_->setFont(font);
    mark_->setIcon(theme.icon("search", 16, theme.color(Token::ink), ratio));
    clear_->setIcon(theme.icon("close", 16, theme.color(Token::ink2), ratio));
    clear_->setVisible(!field_->text().isEmpty());
    chip_->setVisible(readsColour_);
    if (color) {
        QPixmap chip(QSize(kChip, kChip) * ratio);
        chip.setDevicePixelRatio(ratio);
        chip.fill(Qt::transparent);
        QPainter painter(&chip);
        painter.setRenderHint(QPainter::Antialiasing);
        ui_.painter.chip(painter, QRectF(0, 0, kChip, kChip), *color, Vision::typical);
        painter.end();
        chip_->setIcon(chip);
    }
    updateGeometry();
    layOut();
}

/// As much as the field has room for.
void LibraryTools::syncPlaceholder() {
    const auto count = static_cast<qsizetype>(model_.listing().content->palettes.size());
    auto text = count == 0 ? worded("Search palettes, a swatch name, or a colour")
                           : worded("Search %n palette, a swatch name, or a colour",
                                    "Search %n palettes, a swatch name, or a colour", count);
    const int room = field_->width() - ui_.theme.scaled(kFieldSides);
    if (QFontMetrics(ui_.theme.font(TextStyle::body)).horizontalAdvance(text) > room)
        text = worded("Search palettes");
    field_->setPlaceholderText(text);
}

void LibraryTools::syncTools() {
    auto& preferences = ui_.models.preferences();
    match_->setCurrent(static_cast<int>(preferences.libraryMatch.value()));
    display_->setCurrent(preferences.libraryTiles ? 1 : 0);
    sort_->setText(librarySortTitle(preferences));
    sort_->setAccessibleName(worded("Sorted by: %1").arg(sort_->text()));
    const bool ascends = preferences.librarySortAscending;
    direction_->setIconName(ascends ? "sort-ascending" : "sort");
    direction_->setTitle(worded(ascends ? "Ascending" : "Descending"), {});
    layOut();
}

int LibraryTools::lineHeight() const {
    return ui_.theme.scaled(kHeight);
}

QSize LibraryTools::sizeHint() const {
    return {0, lineHeight() + linesBelow_ * ui_.theme.scaled(kSecond)};
}

QSize LibraryTools::minimumSizeHint() const {
    return sizeHint();
}

void LibraryTools::layOut() {
    auto right = width() - kSide;
    const auto place = [this, &right](QWidget& widget, int gap) {
        const auto hint = widget.sizeHint();
        right -= hint.width();
        widget.setGeometry(QRect(QPoint(right, (lineHeight() - hint.height()) / 2), hint));
        widget.show();
        right -= gap;
    };
    const auto least = kSide + ui_.theme.scaled(readsColour_ ? kColourField : kLeastField) + kGap;
    const auto all = 4 * (rescan_->sizeHint().width() + kToolGap) + sort_->sizeHint().width() +
                     display_->sizeHint().width() + 2 * kGap;
    // Sorting and settings are in the menus too.
    const bool isShort = width() - kSide - all < least + ui_.theme.scaled(kLeastField) / 2;
    place(*more_, kToolGap);
    for (auto* one : {settings_, direction_})
        one->setVisible(!isShort);
    sort_->setVisible(!isShort);
    if (!isShort) place(*settings_, kToolGap);
    place(*rescan_, kToolGap);
    if (!isShort) {
        place(*direction_, kGap);
        place(*sort_, kGap);
    }
    place(*display_, kGap);
    const auto matches = match_->sizeHint();
    isNarrow_ = readsColour_ && right - least < matches.width() + kGap;
    const auto wanted = ui_.theme.scaled(readsColour_ ? kColourField : kField);
    const auto wide = isShort || isNarrow_ ? right - kSide : std::min(wanted, right - kSide);
    const auto high = ui_.theme.scaled(kFieldHigh);
    field_->setGeometry(kSide, (lineHeight() - high) / 2, std::max(wide, 1), high);
    match_->setVisible(readsColour_);
    const QPoint first(kSide + wide + kGap, (lineHeight() - matches.height()) / 2);
    match_->setGeometry(QRect(isNarrow_ ? QPoint(kSide, lineHeight()) : first, matches));
    syncPlaceholder();
    const auto said = QFontMetrics(ui_.theme.font(TextStyle::body))
                          .horizontalAdvance(shown(explanation(model_.match())));
    const bool isBeside = said <= width() - 2 * kSide - 8 - kGap - matches.width();
    const int below = !readsColour_ ? 0 : isNarrow_ && !isBeside ? 2 : 1;
    if (std::exchange(linesBelow_, below) != below) updateGeometry();
    update();
}

void LibraryTools::resizeEvent(QResizeEvent*) {
    layOut();
}

bool LibraryTools::eventFilter(QObject* watched, QEvent* event) {
    if (watched != field_ || event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->modifiers() & ~Qt::KeypadModifier) return false;
    switch (key->key()) {
    case Qt::Key_Down:
        if (leave) leave();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (open) open();
        return true;
    case Qt::Key_Escape:
        if (field_->text().isEmpty() && leave) leave();
        field_->clear();
        return true;
    default:
        return false;
    }
}

void LibraryTools::paintExplanation(QPainter& painter) const {
    const auto& theme = ui_.theme;
    const auto match = model_.match();
    const qreal high = theme.scaled(kSecond);
    const QRectF line(kSide + 8, lineHeight() + (linesBelow_ - 1) * high, width() - 2 * (kSide + 8),
                      high - 1);
    auto x = line.left();
    if (isNarrow_ && linesBelow_ == 1)
        x = match_->geometry().right() + kGap;
    else if (!isNarrow_)
        x = paintBadge(painter, theme, shown(badge(match)), x, line.center().y(), BadgeFill::no) +
            kGap;
    const auto font = theme.font(TextStyle::body);
    painter.setFont(font);
    painter.setPen(theme.color(Token::ink2));
    const auto said = shown(explanation(match));
    const QFontMetricsF metrics(font);
    const QRectF room(x, line.top(), line.right() - x, line.height());
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(said, Qt::ElideRight, room.width()));
    const auto count = static_cast<qsizetype>(model_.listing().finds.size());
    const auto holds = worded("%n palette holds it", "%n palettes hold it", count);
    // That none does is said beneath, and groups have their own counts.
    const auto free = room.width() - metrics.horizontalAdvance(said) - 2 * kGap;
    if (count > 0 && figuresWidth(font, holds) <= free)
        drawFigures(painter, room, Qt::AlignRight | Qt::AlignVCenter, holds);
}

void LibraryTools::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(rect(), ui_.theme.color(Token::panel));
    if (linesBelow_ > 0) paintExplanation(painter);
}

} // namespace tintra
