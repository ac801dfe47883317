#include "state/Preferences.h"

#include "platform/DefaultsStore.h"
#include "platform/Log.h"
#include "platform/Services.h"
#include "state/PreferencesCodec.h"

#include <iterator>
#include <tuple>

namespace tintra {
namespace {

constexpr std::string_view kKey = "TintraPreferences";

/// A setting under its key in the document.
template <class T>
struct Setting {
    std::string_view key;
    QProperty<T> Preferences::*member;
};
/// A setting that may hold nothing: it is written only when it holds something.
template <class T>
struct Setting<std::optional<T>> {
    std::string_view key;
    QProperty<std::optional<T>> Preferences::*member;
};
template <class T>
Setting(std::string_view, QProperty<T> Preferences::*) -> Setting<T>;

// clang-format off
constexpr std::tuple kSettings{
    Setting{"format", &Preferences::format},
    Setting{"formatFavourites", &Preferences::formatFavourites},
    Setting{"formatOptions", &Preferences::formatOptions},
    Setting{"recents", &Preferences::recents},
    Setting{"appearance", &Preferences::appearance},
    Setting{"typeSize", &Preferences::typeSize},
    Setting{"swatchBackdrop", &Preferences::swatchBackdrop},
    Setting{"backdropColour", &Preferences::backdropColour},
    Setting{"editorPicker", &Preferences::editorPicker},
    Setting{"editorSpace", &Preferences::editorSpace},
    Setting{"alwaysOnTop", &Preferences::alwaysOnTop},
    Setting{"collapseWhenInactive", &Preferences::collapseWhenInactive},
    Setting{"showsWatermark", &Preferences::showsWatermark},
    Setting{"settingsTab", &Preferences::settingsTab},
    Setting{"cmykProfile", &Preferences::cmykProfile},
    Setting{"rgbProfile", &Preferences::rgbProfile},
    Setting{"labIlluminant", &Preferences::labIlluminant},
    Setting{"enabledIntegrations", &Preferences::enabledIntegrations},
    Setting{"hotKeyEnabled", &Preferences::hotKeyEnabled},
    Setting{"hotKeyCombo", &Preferences::hotKeyCombo},
    Setting{"paletteLocations", &Preferences::paletteLocations},
    Setting{"includeSystemPalettes", &Preferences::includeSystemPalettes},
    Setting{"rescanOnLaunch", &Preferences::rescanOnLaunch},
    Setting{"paletteViews", &Preferences::paletteViews},
    Setting{"libraryExpanded", &Preferences::libraryExpanded},
    Setting{"libraryCollapsed", &Preferences::libraryCollapsed},
    Setting{"libraryTiles", &Preferences::libraryTiles},
    Setting{"libraryMatch", &Preferences::libraryMatch},
    Setting{"librarySortByName", &Preferences::librarySortByName},
    Setting{"librarySortAscending", &Preferences::librarySortAscending},
    Setting{"librarySortByDate", &Preferences::librarySortByDate},
    Setting{"pictureShare", &Preferences::pictureShare},
    Setting{"opensWith", &Preferences::opensWith},
    Setting{"lastExport", &Preferences::lastExport},
    Setting{"hangSide", &Preferences::hangSide},
    Setting{"compactOrientation", &Preferences::compactOrientation},
    Setting{"colorsFolderBookmark", &Preferences::colorsFolderBookmark},
};
// clang-format on

template <class Each>
void forSettings(const Each& each) {
    std::apply([&](const auto&... setting) { (each(setting), ...); }, kSettings);
}

template <class T>
void write(Json& document, const Preferences& preferences, const Setting<T>& setting) {
    document[std::string(setting.key)] = Codec<T>::encode((preferences.*setting.member).value());
}
template <class T>
void write(Json& document, const Preferences& preferences,
           const Setting<std::optional<T>>& setting) {
    const auto& value = (preferences.*setting.member).value();
    if (value)
        document[std::string(setting.key)] = Codec<T>::encode(*value);
    else
        document.erase(std::string(setting.key));
}

template <class T>
void read(const Json& document, Preferences& preferences, const Setting<T>& setting) {
    const auto found = document.find(setting.key);
    if (found == document.end()) return;
    if (auto value = Codec<T>::decode(*found)) preferences.*setting.member = *std::move(value);
}
template <class T>
void read(const Json& document, Preferences& preferences,
          const Setting<std::optional<T>>& setting) {
    const auto found = document.find(setting.key);
    if (found != document.end()) preferences.*setting.member = Codec<T>::decode(*found);
}

/// The colours without repeats, as many as are kept.
std::vector<WashColor> bounded(const std::vector<WashColor>& recents) {
    std::vector<WashColor> kept;
    std::set<std::string> identities;
    for (const auto& color : recents) {
        if (kept.size() == Preferences::kRecents) break;
        if (identities.insert(color.identity()).second) kept.push_back(color);
    }
    return kept;
}

std::map<std::string, PaletteDisplay> bounded(std::map<std::string, PaletteDisplay> views) {
    while (views.size() > Preferences::kPaletteViews)
        views.erase(std::prev(views.end()));
    return views;
}

/// #DEDEDE.
constexpr double kBackdropGrey = 222.0 / 255;

} // namespace

struct Preferences::Subscriptions {
    std::vector<QPropertyNotifier> all;
    /// The document as read: what another version of the program keeps in it goes on with it.
    Json document = Json::object();
};

Preferences::Preferences(Services& services)
    : services_(services), subscriptions_(std::make_unique<Subscriptions>()) {
    const auto favourites = ColorFormat::defaultFavourites();
    formatFavourites = std::vector(favourites.begin(), favourites.end());
    backdropColour = WashColor{kBackdropGrey, kBackdropGrey, kBackdropGrey, 1};
    cmykProfile = std::string(ColorProfiles::kDefaultCmyk);
    rgbProfile = std::string(ColorProfiles::kDefaultRgb);
    forSettings([&](const auto& setting) {
        subscriptions_->all.emplace_back(this->*setting.member, [this] { persist(); });
    });
}

Preferences::~Preferences() = default;

void Preferences::remember(const WashColor& color) {
    auto list = recents.value();
    list.insert(list.begin(), color);
    recents = bounded(list);
}

void Preferences::restore() {
    const auto text = services_.defaults.data(kKey);
    if (!text) return;
    auto document = parsedJson(*text);
    if (!document || !document->is_object()) {
        services_.log.line("Tintra: could not decode the saved preferences: not a JSON object");
        services_.defaults.setAside(kKey);
        return;
    }
    restoring_ = true;
    subscriptions_->document = *std::move(document);
    forSettings([&](const auto& setting) { read(subscriptions_->document, *this, setting); });
    recents = bounded(recents.value());
    paletteViews = bounded(paletteViews.value());
    restoring_ = false;
}

void Preferences::persist() {
    if (restoring_) return;
    forSettings([&](const auto& setting) { write(subscriptions_->document, *this, setting); });
    services_.defaults.set(kKey, jsonText(subscriptions_->document));
}

void Preferences::resetToDefaults() {
    formatOptions = FormatOptions();
    alwaysOnTop = false;
    collapseWhenInactive = false;
    showsWatermark = false;
    cmykProfile = std::string(ColorProfiles::kDefaultCmyk);
    rgbProfile = std::string(ColorProfiles::kDefaultRgb);
    labIlluminant = LabIlluminant::d50;
    hotKeyEnabled = true;
    hotKeyCombo = HotKeyCombo::optionCommandP;
    enabledIntegrations = std::set<std::string>();
    format = ColorFormat(ColorFormat::cssHex);
    const auto favourites = ColorFormat::defaultFavourites();
    formatFavourites = std::vector(favourites.begin(), favourites.end());
}

void Preferences::follow(ColorProfiles& profiles) {
    const auto keep = [this](const auto& property, auto apply) {
        apply();
        subscriptions_->all.emplace_back(property, [this, apply = std::move(apply)] {
            apply();
            profilesVersion = profilesVersion.value() + 1;
        });
    };
    keep(rgbProfile, [this, &profiles] { profiles.selectRGB(rgbProfile.value()); });
    keep(cmykProfile, [this, &profiles] { profiles.selectCMYK(cmykProfile.value()); });
    keep(labIlluminant, [this, &profiles] { profiles.setLabIlluminant(labIlluminant); });
}

} // namespace tintra
