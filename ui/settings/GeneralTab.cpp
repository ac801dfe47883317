#include "ui/settings/GeneralTab.h"

#include "integration/AppIntegration.h"
#include "platform/Dialogues.h"
#include "state/Models.h"
#include "state/SaveTexts.h"

#include <QCheckBox>
#include <QGuiApplication>

namespace tintra {
namespace {

const char* nameOf(AppIntegration integration) {
    return integration == AppIntegration::photoshop ? "Adobe Photoshop" : "Adobe Illustrator";
}

/// Whether programs may place and raise their windows.
bool desktopDecidesPlaces() {
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"));
}

} // namespace

GeneralTab::GeneralTab(Ui& ui, QWidget* parent) : Form(ui.theme, parent), ui_(ui) {
    addAppearance();
    addPaletteWindows();
    addIntegrations();
    auto* reset = new QPushButton(worded("Reset to Defaults…"), this);
    QObject::connect(reset, &QPushButton::clicked, this, [this] { askToReset(); });
    finish(reset);
}

void GeneralTab::addAppearance() {
    auto& preferences = ui_.models.preferences();
    const std::vector<Option<Appearance>> looks{{Appearance::system, worded("System")},
                                                {Appearance::light, worded("Light")},
                                                {Appearance::dark, worded("Dark")}};
    auto* appearance = new Segmented(theme(), choicesOf(looks), this);
    bindings_.bind(Whole{preferences.appearance}, *appearance, looks);
    add(worded("Appearance"), appearance);

    const std::vector<Option<TypeSize>> sizes{{TypeSize::regular, worded("Regular")},
                                              {TypeSize::larger, worded("Larger")},
                                              {TypeSize::largest, worded("Largest")}};
    auto* size = new Segmented(theme(), choicesOf(sizes), this);
    bindings_.bind(Whole{preferences.typeSize}, *size, sizes);
    add(worded("Type size"), size);

    auto* opening = new PopUpButton(theme(), PopUpButton::Border::yes, this);
    bindings_.bind(
        Whole{preferences.opensWith}, *opening,
        std::vector<Option<OpeningState>>{{OpeningState::resume, worded("Where I left off")},
                                          {OpeningState::clean, worded("A clean window")}});
    add(worded("Opens with"), opening);

    auto* backdrop = new PopUpButton(theme(), PopUpButton::Border::yes, this);
    bindings_.bind(
        Whole{preferences.swatchBackdrop}, *backdrop,
        std::vector<Option<SwatchBackdrop>>{{SwatchBackdrop::checkerboard, worded("Checkerboard")},
                                            {SwatchBackdrop::ground, worded("Ground")},
                                            {SwatchBackdrop::white, worded("White")},
                                            {SwatchBackdrop::black, worded("Black")},
                                            {SwatchBackdrop::custom, worded("Custom")},
                                            {SwatchBackdrop::strips, worded("Strips")}});
    add(worded("Behind translucent swatches"), backdrop);
}

void GeneralTab::addPaletteWindows() {
    auto& preferences = ui_.models.preferences();
    auto* onTop = new QCheckBox(worded("Always on top"), this);
    bindings_.bind(Whole{preferences.alwaysOnTop}, *onTop);
    if (desktopDecidesPlaces()) {
        onTop->setEnabled(false);
        onTop->setToolTip(worded("The desktop decides this on Wayland"));
    }
    auto* collapse = new QCheckBox(worded("Collapse to a strip when inactive"), this);
    bindings_.bind(Whole{preferences.collapseWhenInactive}, *collapse);
    auto* watermark = new QCheckBox(worded("Show the watermark"), this);
    bindings_.bind(Whole{preferences.showsWatermark}, *watermark);
    add(worded("Palette windows"), {onTop, collapse, watermark});

    const std::vector<Option<CompactOrientation>> ways{
        {CompactOrientation::horizontal, worded("Horizontal")},
        {CompactOrientation::vertical, worded("Vertical")}};
    auto* strip = new Segmented(theme(), choicesOf(ways), this);
    bindings_.bind(Whole{preferences.compactOrientation}, *strip, ways);
    add(worded("Collapsed strip"), strip);
}

void GeneralTab::addIntegrations() {
    std::vector<QWidget*> checks;
    for (const auto integration : allAppIntegrations()) {
        if (!isInstalled(integration, ui_.services.scripting)) continue;
        auto* check = new QCheckBox(worded(nameOf(integration)), this);
        bindings_.bind(Membership{ui_.models.preferences().enabledIntegrations,
                                  std::string(rawValue(integration))},
                       *check);
        checks.push_back(check);
    }
    if (!checks.empty()) add(worded("Send colours to"), checks);
}

void GeneralTab::askToReset() {
    const Question question{
        toUtf8(worded("Reset settings to their defaults?")),
        toUtf8(worded("Code, favourites, colour profiles, the hot key, sending to other programs "
                      "and how palette windows behave go back to their defaults. Appearance, type "
                      "size, the Library’s settings and its folders stay as they are.")),
        {toUtf8(worded("Reset")), std::string(SaveTexts::kCancel)},
        {ToastWindow::settings, {}}};
    ui_.services.dialogues.ask(question, [&preferences = ui_.models.preferences()](std::size_t at) {
        if (at == 0) preferences.resetToDefaults();
    });
}

} // namespace tintra
