#include "ui/settings/ColourTab.h"

#include "colour/ColorProfiles.h"
#include "state/Models.h"
#include "ui/settings/BackdropField.h"

#include <algorithm>

namespace tintra {
namespace {

/// The profile that a name stands for: one that has gone from this computer is the device's.
std::string usedCmyk(const std::string& name) {
    const auto& known = ColorProfiles::shared().cmykProfiles();
    const bool isKnown =
        std::ranges::find(known, name, &ColorProfiles::Profile::name) != known.end();
    return isKnown ? name : std::string(ColorProfiles::kDefaultCmyk);
}

} // namespace

ColourTab::ColourTab(Ui& ui, QWidget* parent) : Form(ui.theme, parent), ui_(ui) {
    addProfiles();
    addEditor();
    add(worded("Backdrop colour"), new BackdropField(ui_, this));
    addCaption(worded("Used when “Behind translucent swatches” is Custom"));
    finish();
}

void ColourTab::addProfiles() {
    auto& preferences = ui_.models.preferences();
    std::vector<Option<std::string>> spaces;
    for (const auto& space : ColorProfiles::rgbSpaces())
        spaces.push_back({space.name, oneLine(space.name)});
    auto* rgb = new PopUpButton(theme(), PopUpButton::Border::yes, this);
    bindings_.bind(Whole{preferences.rgbProfile}, *rgb, spaces);
    add(worded("RGB space"), rgb);
    addCaption(worded("The space that hex and 0–255 values are written in"));

    auto* cmyk = new PopUpButton(theme(), PopUpButton::Border::yes, this);
    cmyk->fill = [this](QMenu& menu) { fillCmyk(menu); };
    bindings_.follow(preferences.cmykProfile, [&preferences, cmyk] {
        Bindings::show(*cmyk, oneLine(usedCmyk(preferences.cmykProfile)));
    });
    add(worded("CMYK profile"), cmyk);

    const std::vector<Option<LabIlluminant>> whites{{LabIlluminant::d50, QStringLiteral("D50")},
                                                    {LabIlluminant::d65, QStringLiteral("D65")}};
    auto* white = new Segmented(theme(), choicesOf(whites), this);
    bindings_.bind(Whole{preferences.labIlluminant}, *white, whites);
    add(worded("Lab white point"), white);
}

void ColourTab::fillCmyk(QMenu& menu) {
    // The folders of profiles are not read before somebody wants to choose.
    auto& profiles = ColorProfiles::shared();
    profiles.loadIfNeeded();
    auto& setting = ui_.models.preferences().cmykProfile;
    const auto offer = [&](const std::string& name) {
        Bindings::addChoice(menu, oneLine(name), name == usedCmyk(setting),
                            [&setting, name] { setting = name; });
    };
    offer(std::string(ColorProfiles::kDefaultCmyk));
    for (const auto& profile : profiles.cmykProfiles())
        offer(profile.name);
}

void ColourTab::addEditor() {
    auto& preferences = ui_.models.preferences();
    const std::vector<Option<PickerStyle>> pickers{{PickerStyle::plane, worded("Plane")},
                                                   {PickerStyle::wheel, worded("Wheel")}};
    auto* picker = new Segmented(theme(), choicesOf(pickers), this);
    bindings_.bind(Whole{preferences.editorPicker}, *picker, pickers);
    add(worded("Colour editor"), picker);

    auto* space = new PopUpButton(theme(), PopUpButton::Border::yes, this);
    bindings_.bind(Whole{preferences.editorSpace}, *space,
                   std::vector<Option<EditorSpace>>{{EditorSpace::rgb, QStringLiteral("RGB")},
                                                    {EditorSpace::hsb, QStringLiteral("HSB")},
                                                    {EditorSpace::hsl, QStringLiteral("HSL")},
                                                    {EditorSpace::cmyk, QStringLiteral("CMYK")},
                                                    {EditorSpace::lab, QStringLiteral("Lab")},
                                                    {EditorSpace::oklch, QStringLiteral("OKLCH")}});
    add(worded("Editor’s sliders"), space);
}

} // namespace tintra
