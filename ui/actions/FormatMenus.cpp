#include "ui/actions/FormatMenus.h"

#include "state/AppState.h"
#include "state/Models.h"
#include "ui/program/Windows.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QLabel>
#include <QMenu>
#include <QWidgetAction>
#include <algorithm>
#include <cstddef>

namespace tintra {
namespace {

using Chosen = std::function<void(ColorFormat)>;

struct PlatformTitle {
    ColorFormat::Platform platform;
    const char* title;
};
constexpr PlatformTitle kPlatforms[] = {{ColorFormat::Platform::web, "Web"},
                                        {ColorFormat::Platform::apple, "Apple"},
                                        {ColorFormat::Platform::other, "Other"}};

constexpr auto kVisionNote =
    "See this window as one kind of colour vision sees it. The figures stay as they are: WCAG is "
    "defined on the colours themselves";

/// Words at the end of a menu that explain it.
void addNote(QMenu& menu, const QString& text, const Theme& theme) {
    auto* words = new QLabel(text, &menu);
    words->setFont(theme.font(TextStyle::caption));
    auto colours = words->palette();
    colours.setColor(QPalette::WindowText, theme.color(Token::ink3));
    words->setPalette(colours);
    words->setWordWrap(true);
    words->setFixedWidth(theme.scaled(400));
    words->setContentsMargins(36, 6, 14, 8);
    auto* note = new QWidgetAction(&menu);
    note->setText(text);
    note->setDefaultWidget(words);
    note->setEnabled(false);
    menu.addAction(note);
}

QAction* addChoice(QMenu& menu, const QString& title, bool on, std::function<void()> chosen) {
    auto* action = menu.addAction(title, &menu, std::move(chosen));
    action->setCheckable(true);
    action->setChecked(on);
    return action;
}

void enterMode(AppState& state, HarmonyMode mode) {
    if (state.mode.value() == mode) return;
    state.mode = mode;
    state.markModeChanged();
}

struct FormatMenu {
    Ui& ui;
    bool marksCurrent;
    Chosen chosen;

    void add(QMenu& menu, ColorFormat format, const QString& key = {}) const {
        const auto title = shown(format.title());
        const bool on = marksCurrent && ui.models.preferences().format.value() == format;
        addChoice(menu, key.isEmpty() ? title : title + u'\t' + key, on,
                  [format, told = chosen] { told(format); });
    }
    void addPlatform(QMenu& menu, const PlatformTitle& platform) const {
        auto* sub = menu.addMenu(worded(platform.title));
        for (const auto& family : ColorFormat::families(platform.platform)) {
            sub->addSection(shown(family.title));
            for (const auto format : family.formats)
                add(*sub, format);
        }
    }
};

} // namespace

void fillFormatMenu(QMenu& menu, Ui& ui, bool marksCurrent, Chosen chosen) {
    const FormatMenu formats{ui, marksCurrent, std::move(chosen)};
    const auto& favourites = ui.models.preferences().formatFavourites.value();
    constexpr std::size_t kKeys = 9;
    if (!favourites.empty()) menu.addSection(worded("Favourites"));
    for (std::size_t i = 0; i < favourites.size(); ++i)
        formats.add(menu, favourites[i], i < kKeys ? QString::number(i + 1) : QString());
    menu.addSeparator();
    for (const auto& platform : kPlatforms)
        formats.addPlatform(menu, platform);
    menu.addSeparator();
    menu.addAction(worded("Choose Favourites…"), &menu, [&ui] {
        ui.models.preferences().settingsTab = SettingsTab::code;
        ui.windows.openSettings();
    });
}

void fillVisionMenu(QMenu& menu, QProperty<Vision>& vision, const Theme& theme) {
    for (const auto kind : allVisions()) {
        auto title = shown(tintra::title(kind));
        if (!detail(kind).empty()) title += u'\n' + shown(detail(kind));
        addChoice(menu, title, vision.value() == kind, [&vision, kind] { vision = kind; });
    }
    menu.addSeparator();
    addNote(menu, shown(kVisionNote), theme);
}

void fillModeMenu(QMenu& menu, AppState& state) {
    for (const auto mode : allHarmonyModes()) {
        const bool isPalette = mode == HarmonyMode::paletteBuilder;
        if (isPalette) menu.addSeparator();
        addChoice(menu, shown(title(mode)), state.mode.value() == mode,
                  [&state, mode] { enterMode(state, mode); });
    }
}

} // namespace tintra
