#include "ui/settings/SettingsWindow.h"

#include "state/Models.h"
#include "ui/settings/CodeTab.h"
#include "ui/settings/ColourTab.h"
#include "ui/settings/GeneralTab.h"
#include "ui/settings/LibraryTab.h"
#include "ui/settings/ShortcutsTab.h"
#include "ui/shared/Controls.h"
#include "ui/shared/NoticeBar.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tintra {
namespace {

constexpr int kWidth = 560, kHeight = 600, kLeastHeight = 320, kHeader = 52, kNoticeGap = 12;

std::size_t placeOf(SettingsTab tab) {
    return static_cast<std::size_t>(tab);
}

} // namespace

SettingsWindow::SettingsWindow(Ui& ui)
    : ui_(ui), pages_(new QStackedWidget(this)),
      notices_(new NoticeBar(ui.theme, ui.services.mainLoop, this)),
      tabChanged_(ui.models.preferences().settingsTab, [this] { showTab(); }),
      themeChanged_(ui.theme.version(), [this] { measure(); }),
      shortcutsRequested_(ui.models.preferences().shortcutsTabRequested,
                          [this] { takeRequest(); }) {
    setWindowTitle(worded("Settings — Tintra"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->setSpacing(0);
    layout->addWidget(header());
    layout->addWidget(pages_, 1);
    addKeys();
    measure();
    takeRequest();
    showTab();
    // No control has the keyboard before somebody turns to one with Tab.
    setFocus();
}

SettingsWindow::~SettingsWindow() = default;

QWidget* SettingsWindow::header() {
    std::vector<Segmented::Choice> choices;
    for (const auto* title : {"General", "Library", "Colour", "Code", "Shortcuts"})
        choices.push_back({worded(title), {}});
    header_ = new QWidget(this);
    auto* layout = new QHBoxLayout(header_);
    layout->setContentsMargins({});
    tabs_ = new Segmented(ui_.theme, std::move(choices), header_);
    tabs_->setAccessibleName(worded("Settings"));
    tabs_->chosen = [this](int tab) {
        ui_.models.preferences().settingsTab = static_cast<SettingsTab>(tab);
    };
    layout->addWidget(tabs_, 0, Qt::AlignCenter);
    return header_;
}

void SettingsWindow::addKeys() {
    const auto add = [this](const QKeySequence& keys, auto task) {
        QObject::connect(new QShortcut(keys, this), &QShortcut::activated, this, std::move(task));
    };
    add(Qt::CTRL | Qt::Key_PageDown, [this] { turn(1); });
    add(Qt::CTRL | Qt::Key_PageUp, [this] { turn(-1); });
    add(Qt::CTRL | Qt::Key_W, [this] { close(); });
    add(Qt::Key_Escape, [this] { close(); });
}

void SettingsWindow::turn(int by) {
    auto& tab = ui_.models.preferences().settingsTab;
    const auto count = static_cast<int>(kTabs);
    tab = static_cast<SettingsTab>((static_cast<int>(tab.value()) + by + count) % count);
}

void SettingsWindow::takeRequest() {
    auto& preferences = ui_.models.preferences();
    if (!preferences.shortcutsTabRequested.value()) return;
    preferences.shortcutsTabRequested = false;
    preferences.settingsTab = SettingsTab::shortcuts;
}

void SettingsWindow::showTab() {
    const auto tab = ui_.models.preferences().settingsTab.value();
    tabs_->setCurrent(static_cast<int>(tab));
    auto*& page = made_[placeOf(tab)];
    if (!page) {
        page = new QScrollArea(pages_);
        page->setFrameShape(QFrame::NoFrame);
        page->setWidgetResizable(true);
        page->setFocusPolicy(Qt::NoFocus);
        page->setWidget(makeTab(tab));
        pages_->addWidget(page);
    }
    // The keyboard does not stay in a tab that is hidden.
    if (pages_->isAncestorOf(focusWidget())) tabs_->setFocus(Qt::OtherFocusReason);
    pages_->setCurrentWidget(page);
}

QWidget* SettingsWindow::makeTab(SettingsTab tab) {
    switch (tab) {
    case SettingsTab::general:
        return new GeneralTab(ui_);
    case SettingsTab::library:
        return new LibraryTab(ui_);
    case SettingsTab::colour:
        return new ColourTab(ui_);
    case SettingsTab::code:
        return new CodeTab(ui_);
    case SettingsTab::shortcuts:
        return new ShortcutsTab(ui_);
    }
    return nullptr;
}

void SettingsWindow::measure() {
    const auto& theme = ui_.theme;
    header_->setFixedHeight(theme.scaled(kHeader) + 1);
    notices_->setTop(header_->height() + kNoticeGap);
    const bool isNew = minimumSize().isEmpty();
    setMinimumSize(theme.scaled(kWidth), theme.scaled(kLeastHeight));
    if (isNew) resize(theme.scaled(kWidth), theme.scaled(kHeight));
    update();
}

void SettingsWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), ui_.theme.color(Token::panel));
    painter.fillRect(QRect(0, header_->height() - 1, width(), 1), ui_.theme.color(Token::line));
}

} // namespace tintra
