// What acts on the selected swatch, or on the colour of a harmony that has the focus.

#include "colour/ColorProfiles.h"
#include "integration/AdobeBridge.h"
#include "platform/Services.h"
#include "platform/Toasts.h"
#include "state/ContrastSending.h"
#include "state/Models.h"
#include "state/NoticeTexts.h"
#include "ui/actions/ActionRows.h"
#include "ui/shared/Text.h"

#include <QMenu>
#include <string>

namespace tintra::actionRows {
namespace {

/// Those whose colours are sent to Contrast.
constexpr auto kSendingWindows =
    WindowKinds(WindowKind::palette) | WindowKind::bench | WindowKind::library;

bool isBenched(const Context& context) {
    const auto target = context.window->target();
    if (!target) return false;
    return target->swatch ? state(context).isPaletteSwatchBenched(*target->swatch)
                          : state(context).isBandBenched(target->color);
}

void toggleBench(const Context& context) {
    withTarget(context, [](AppState& of, const Target& target) {
        if (target.swatch)
            of.toggleBenchedSwatch(*target.swatch);
        else
            of.toggleBenchedBand(target.color, target.name);
    });
}

ContrastSending contrastFrom(const Context& context) {
    return {context.ui.models.contrast(), context.ui.services.toasts, context.window->place()};
}

void sendToContrast(const Context& context) {
    if (const auto target = context.window->target())
        contrastFrom(context).send(target->color, target->name);
}

template <Contrast::Role role>
void sendAs(const Context& context) {
    if (const auto target = context.window->target())
        contrastFrom(context).send(target->color, target->name, role);
}

template <AppState::SeedRole role>
void useAsSeed(const Context& context) {
    withTarget(context, [](AppState& of, const Target& target) { of.setSeed(role, target.color); });
}

bool canMove(const Context& context, bool right) {
    const auto target = context.window->target();
    if (!target || !target->swatch) return false;
    return right ? *target->swatch + 1 < state(context).swatches().size() : *target->swatch > 0;
}

template <AppIntegration application>
bool isConnected(const Context& context) {
    const auto& enabled = context.ui.models.preferences().enabledIntegrations.value();
    return enabled.contains(std::string(rawValue(application))) &&
           isInstalled(application, context.ui.services.scripting);
}

void send(const Context& context, AdobeBridge::Target to) {
    withTarget(context, [&](AppState& of, const Target& target) {
        const auto error = AdobeBridge::send(target.color, to, ColorProfiles::shared(),
                                             context.ui.services.scripting);
        if (error) context.ui.services.toasts.show(*error, kForExplaining, {}, of.place());
    });
}

template <AppIntegration application>
void fillPlaces(QMenu& menu, const Context& context) {
    for (const auto target : AdobeBridge::allTargets())
        if (AdobeBridge::application(target) == application)
            menu.addAction(shown(AdobeBridge::title(target)), &menu,
                           [context, target] { send(context, target); });
}

const ActionRow kRows[] = {
    {.value = ActionId::renameSwatch,
     .raw = "renameSwatch",
     .text = "Rename",
     .keys = "F2",
     .menu = MenuId::swatch,
     .isEnabled = hasSwatch,
     .perform =
         [](const Context& c) {
             unfold(c);
             c.palette->beginRename();
         }},
    {.value = ActionId::editColour,
     .raw = "editColour",
     .text = "Edit Colour",
     .keys = "Enter; Return",
     .scope = KeyScope::canvas,
     .menu = MenuId::swatch,
     .isEnabled = hasSwatch,
     .perform =
         [](const Context& c) {
             unfold(c);
             withSwatch(c, [](AppState& of, std::size_t at) { of.editSwatch(at); });
         }},
    {.value = ActionId::toggleBench,
     .raw = "toggleBench",
     .text = "Put on the Bench",
     .keys = "B",
     .scope = KeyScope::canvas,
     .menu = MenuId::swatch,
     .isEnabled = hasTarget,
     .perform = toggleBench,
     .title =
         [](const Context& c) {
             return worded(isBenched(c) ? "Take off the Bench" : "Put on the Bench");
         }},
    {.value = ActionId::sendToContrast,
     .raw = "sendToContrast",
     .text = "Send to Contrast",
     .keys = "K",
     .scope = KeyScope::canvas,
     .in = kSendingWindows,
     .menu = MenuId::swatch,
     .isEnabled = hasTarget,
     .perform = sendToContrast},
    {.value = ActionId::sendAsText,
     .raw = "sendAsText",
     .text = "Send to Contrast as Text",
     .keys = "Shift+K",
     .scope = KeyScope::canvas,
     .in = kSendingWindows,
     .menu = MenuId::swatch,
     .isEnabled = hasTarget,
     .perform = sendAs<Contrast::Role::text>},
    {.value = ActionId::sendAsGround,
     .raw = "sendAsGround",
     .text = "Send to Contrast as Ground",
     .keys = "Ctrl+K",
     .scope = KeyScope::canvas,
     .in = kSendingWindows,
     .menu = MenuId::swatch,
     .isEnabled = hasTarget,
     .perform = sendAs<Contrast::Role::ground>},
    {.value = ActionId::useAsFirstSeed,
     .raw = "useAsFirstSeed",
     .text = "Use as First Seed",
     .keys = "[",
     .scope = KeyScope::canvas,
     .menu = MenuId::swatch,
     .isEnabled = hasTarget,
     .perform = useAsSeed<AppState::SeedRole::first>},
    {.value = ActionId::useAsLastSeed,
     .raw = "useAsLastSeed",
     .text = "Use as Last Seed",
     .keys = "]",
     .scope = KeyScope::canvas,
     .menu = MenuId::swatch,
     .isEnabled = hasTarget,
     .perform = useAsSeed<AppState::SeedRole::last>},
    {.value = ActionId::duplicateSwatch,
     .raw = "duplicateSwatch",
     .text = "Duplicate",
     .keys = "Ctrl+D",
     .menu = MenuId::swatch,
     .isEnabled = hasSwatch,
     .perform =
         [](const Context& c) {
             withSwatch(c, [](AppState& of, std::size_t at) { of.duplicateSwatch(at); });
         }},
    {.value = ActionId::moveLeft,
     .raw = "moveLeft",
     .text = "Move Left",
     .keys = "Ctrl+Shift+Left; Ctrl+Shift+Up",
     .scope = KeyScope::canvas,
     .menu = MenuId::swatch,
     .isEnabled = [](const Context& c) { return canMove(c, false); },
     .perform =
         [](const Context& c) {
             withSwatch(c, [](AppState& of, std::size_t at) { of.moveSwatch(at, at - 1); });
         }},
    {.value = ActionId::moveRight,
     .raw = "moveRight",
     .text = "Move Right",
     .keys = "Ctrl+Shift+Right; Ctrl+Shift+Down",
     .scope = KeyScope::canvas,
     .menu = MenuId::swatch,
     .isEnabled = [](const Context& c) { return canMove(c, true); },
     .perform =
         [](const Context& c) {
             withSwatch(c, [](AppState& of, std::size_t at) { of.moveSwatch(at, at + 1); });
         }},
    {.value = ActionId::sendToPhotoshop,
     .raw = "sendToPhotoshop",
     .text = "Send to Photoshop",
     .menu = MenuId::swatch,
     .isEnabled = hasTarget,
     .fill = fillPlaces<AppIntegration::photoshop>,
     .isShown = isConnected<AppIntegration::photoshop>},
    {.value = ActionId::sendToIllustrator,
     .raw = "sendToIllustrator",
     .text = "Send to Illustrator",
     .menu = MenuId::swatch,
     .isEnabled = hasTarget,
     .fill = fillPlaces<AppIntegration::illustrator>,
     .isShown = isConnected<AppIntegration::illustrator>},
    {.value = ActionId::removeSwatch,
     .raw = "removeSwatch",
     .text = "Remove",
     .keys = "Del; Backspace",
     .scope = KeyScope::canvas,
     .menu = MenuId::swatch,
     .isEnabled = hasSwatch,
     .perform =
         [](const Context& c) {
             withSwatch(c, [](AppState& of, std::size_t at) { of.removeSwatch(at); });
         }},
};

} // namespace

std::span<const ActionRow> ofSwatch() {
    return kRows;
}

} // namespace tintra::actionRows
