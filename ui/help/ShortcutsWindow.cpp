#include "ui/help/ShortcutsWindow.h"

#include "ui/actions/Menus.h"
#include "ui/help/RowList.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QAction>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>
#include <array>

namespace tintra {
namespace {

constexpr int kSide = 24, kTop = 12, kColumn = 300, kRow = 26, kScrollBar = 12;

/// Keys that a view handles itself where it has the keyboard.
struct LocalKey {
    const char* where; ///< null: as the one before
    const char* what;
    const char* keys;
};
constexpr std::array kLocalKeys{
    LocalKey{"Swatches", "Walk", "Arrows, Home, End"},
    LocalKey{nullptr, "See the colour alone", "Space, held"},
    LocalKey{nullptr, "Copy as favourite 1 to 9", "1 … 9"},
    LocalKey{"Colour Editor", "One step", "Arrows"},
    LocalKey{nullptr, "Ten steps", "Shift+Arrows, Page Up, Page Down"},
    LocalKey{nullptr, "Apply", "Enter"},
    LocalKey{nullptr, "Revert, then close", "Esc"},
    LocalKey{"Library", "Walk", "Arrows, Home, End"},
    LocalKey{nullptr, "Unfold, fold", "Right, Left"},
    LocalKey{"Picture", "Walk the pins", "Tab"},
    LocalKey{nullptr, "Move by 1 pixel, by 10", "Arrows, Shift+Arrows"},
    LocalKey{nullptr, "Add the colour at the cross", "Enter"},
    LocalKey{nullptr, "Fewer colours, more", "−, +"},
};

/// Told of among the local keys.
bool isToldElsewhere(const ActionRow& row) {
    return row.value == ActionId::peek || row.raw.starts_with("copyFavourite");
}

QString keysOf(const ActionRow& row) {
    QStringList keys;
    for (const auto& one : keySequences(row))
        keys << one.toString(QKeySequence::NativeText);
    return keys.join(QStringLiteral(", "));
}

/// Builds the rows group by group, leaving out what is not looked for.
class Rows {
public:
    explicit Rows(QString sought) : sought_(std::move(sought)) {}

    void begin(const QString& heading) { heading_ = heading; }
    void add(const QString& text, const QString& keys) {
        if (!text.contains(sought_, Qt::CaseInsensitive) &&
            !keys.contains(sought_, Qt::CaseInsensitive))
            return;
        if (!heading_.isEmpty()) rows_.push_back({std::exchange(heading_, {}), {}, true});
        rows_.push_back({text, keys});
    }
    std::vector<RowList::Row> taken() { return std::move(rows_); }

private:
    QString sought_, heading_;
    std::vector<RowList::Row> rows_;
};

std::vector<RowList::Row> rowsFor(const QString& sought) {
    Rows rows(sought);
    for (const auto menu : {MenuId::file, MenuId::edit, MenuId::palette, MenuId::swatch,
                            MenuId::bench, MenuId::contrast, MenuId::library, MenuId::view,
                            MenuId::window, MenuId::help, MenuId::none}) {
        rows.begin(worded(menuTitle(menu)));
        for (const auto& row : allActions())
            if (row.menu == menu && *row.keys != '\0' && !isToldElsewhere(row))
                rows.add(worded(row.text).remove(QChar(0x2026)), keysOf(row));
    }
    for (const auto& key : kLocalKeys) {
        if (key.where) rows.begin(worded(key.where));
        rows.add(worded(key.what), worded(key.keys));
    }
    return rows.taken();
}

} // namespace

ShortcutsWindow::ShortcutsWindow(Ui& ui) : ui_(ui), field_(new QLineEdit(this)), list_(nullptr) {
    setWindowTitle(worded("Keyboard Shortcuts — Tintra"));
    auto* column = new QVBoxLayout(this);
    // The scroll bar stands in the margin at the right.
    column->setContentsMargins(kSide, kTop, kSide - kScrollBar, 0);
    column->setSpacing(kTop);
    auto* line = new QHBoxLayout;
    line->setContentsMargins(0, 0, kScrollBar, 0);
    line->addWidget(field_);
    column->addLayout(line);
    auto* scroll = new QScrollArea(this);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->verticalScrollBar()->setBackgroundRole(QPalette::Button);
    list_ = new RowList(ui.theme, kColumn, kRow, scroll);
    list_->setAccessibleName(worded("Keyboard Shortcuts"));
    list_->setEmptyText(worded("No command or key like that"));
    list_->changed = [this, scroll] {
        const auto at = list_->focused();
        if (at < 0) return;
        const auto middle = list_->items()[static_cast<std::size_t>(at)].rect.center().toPoint();
        scroll->ensureVisible(middle.x(), middle.y());
    };
    scroll->setWidget(list_);
    column->addWidget(scroll, 1);
    field_->setTextMargins(4, 0, 4, 0);
    field_->setPlaceholderText(worded("Search commands and keys"));
    field_->setAccessibleName(field_->placeholderText());
    auto* mark = field_->addAction(QIcon(), QLineEdit::LeadingPosition);
    connect(field_, &QLineEdit::textChanged, this, [this] { search(); });
    const auto follow = [this, mark] {
        field_->setFont(ui_.theme.font(TextStyle::body));
        mark->setIcon(
            ui_.theme.icon("search", 16, ui_.theme.color(Token::ink2), devicePixelRatioF()));
        update();
    };
    subscriptions_.add(ui.theme.version(), follow);
    follow();
    search();
    resize(720, 640);
    field_->setFocus();
}

void ShortcutsWindow::search() {
    list_->setRows(rowsFor(field_->text().trimmed()));
}

void ShortcutsWindow::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), ui_.theme.color(Token::panel));
}

void ShortcutsWindow::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Escape && !event->matches(QKeySequence::Close)) {
        QWidget::keyPressEvent(event);
        return;
    }
    if (event->key() == Qt::Key_Escape && !field_->text().isEmpty())
        field_->clear();
    else
        close();
}

} // namespace tintra
