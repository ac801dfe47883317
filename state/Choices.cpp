#include "state/Choices.h"

#include "colour/CaseTable.h"

#include <array>

namespace tintra {
namespace {

template <class Case>
struct Row {
    Case value;
    std::string_view raw;
};
template <class Case>
Row(Case, std::string_view) -> Row<Case>;

/// The rows of a list.
template <class Case>
struct Table;

template <>
struct Table<Appearance> {
    static constexpr std::array rows{Row{Appearance::system, "system"},
                                     Row{Appearance::light, "light"},
                                     Row{Appearance::dark, "dark"}};
};
template <>
struct Table<TypeSize> {
    static constexpr std::array rows{Row{TypeSize::regular, "regular"},
                                     Row{TypeSize::larger, "larger"},
                                     Row{TypeSize::largest, "largest"}};
};
template <>
struct Table<SwatchBackdrop> {
    static constexpr std::array rows{Row{SwatchBackdrop::checkerboard, "checkerboard"},
                                     Row{SwatchBackdrop::ground, "ground"},
                                     Row{SwatchBackdrop::white, "white"},
                                     Row{SwatchBackdrop::black, "black"},
                                     Row{SwatchBackdrop::custom, "custom"},
                                     Row{SwatchBackdrop::strips, "strips"}};
};
template <>
struct Table<PickerStyle> {
    static constexpr std::array rows{Row{PickerStyle::plane, "plane"},
                                     Row{PickerStyle::wheel, "wheel"}};
};
template <>
struct Table<EditorSpace> {
    static constexpr std::array rows{
        Row{EditorSpace::rgb, "rgb"}, Row{EditorSpace::hsb, "hsb"},
        Row{EditorSpace::hsl, "hsl"}, Row{EditorSpace::cmyk, "cmyk"},
        Row{EditorSpace::lab, "lab"}, Row{EditorSpace::oklch, "oklch"}};
};
template <>
struct Table<SettingsTab> {
    static constexpr std::array rows{
        Row{SettingsTab::general, "general"}, Row{SettingsTab::library, "library"},
        Row{SettingsTab::colour, "colour"}, Row{SettingsTab::code, "code"},
        Row{SettingsTab::shortcuts, "shortcuts"}};
};
template <>
struct Table<HotKeyCombo> {
    static constexpr std::array rows{
        Row{HotKeyCombo::optionCommandP, "optionCommandP"},
        Row{HotKeyCombo::controlOptionCommandP, "controlOptionCommandP"},
        Row{HotKeyCombo::optionCommandK, "optionCommandK"},
        Row{HotKeyCombo::controlOptionCommandC, "controlOptionCommandC"}};
};
template <>
struct Table<PaletteDisplay> {
    static constexpr std::array rows{Row{PaletteDisplay::columns, "columns"},
                                     Row{PaletteDisplay::tiles, "tiles"}};
};
template <>
struct Table<PictureShare> {
    static constexpr std::array rows{Row{PictureShare::third, "third"},
                                     Row{PictureShare::half, "half"},
                                     Row{PictureShare::twoThirds, "twoThirds"}};
};
template <>
struct Table<OpeningState> {
    static constexpr std::array rows{Row{OpeningState::resume, "resume"},
                                     Row{OpeningState::clean, "clean"}};
};
template <>
struct Table<HangSide> {
    static constexpr std::array rows{Row{HangSide::left, "left"}, Row{HangSide::right, "right"}};
};
template <>
struct Table<CompactOrientation> {
    static constexpr std::array rows{Row{CompactOrientation::horizontal, "horizontal"},
                                     Row{CompactOrientation::vertical, "vertical"}};
};

template <class Case>
constexpr auto kCases = casesOf(Table<Case>::rows);

template <class Case>
std::string_view rawOf(Case value) {
    static_assert(inCaseOrder(Table<Case>::rows));
    return rowOf(Table<Case>::rows, value).raw;
}

} // namespace

std::string_view rawValue(Appearance value) {
    return rawOf(value);
}
std::string_view rawValue(TypeSize value) {
    return rawOf(value);
}
std::string_view rawValue(SwatchBackdrop value) {
    return rawOf(value);
}
std::string_view rawValue(PickerStyle value) {
    return rawOf(value);
}
std::string_view rawValue(EditorSpace value) {
    return rawOf(value);
}
std::string_view rawValue(SettingsTab value) {
    return rawOf(value);
}
std::string_view rawValue(HotKeyCombo value) {
    return rawOf(value);
}
std::string_view rawValue(PaletteDisplay value) {
    return rawOf(value);
}
std::string_view rawValue(PictureShare value) {
    return rawOf(value);
}
std::string_view rawValue(OpeningState value) {
    return rawOf(value);
}
std::string_view rawValue(HangSide value) {
    return rawOf(value);
}
std::string_view rawValue(CompactOrientation value) {
    return rawOf(value);
}

template <class Case>
std::optional<Case> choice(std::string_view raw) {
    return caseOf(Table<Case>::rows, raw);
}

template <class Case>
std::span<const Case> allChoices() {
    return kCases<Case>;
}

template std::optional<Appearance> choice(std::string_view);
template std::optional<TypeSize> choice(std::string_view);
template std::optional<SwatchBackdrop> choice(std::string_view);
template std::optional<PickerStyle> choice(std::string_view);
template std::optional<EditorSpace> choice(std::string_view);
template std::optional<SettingsTab> choice(std::string_view);
template std::optional<HotKeyCombo> choice(std::string_view);
template std::optional<PaletteDisplay> choice(std::string_view);
template std::optional<PictureShare> choice(std::string_view);
template std::optional<OpeningState> choice(std::string_view);
template std::optional<HangSide> choice(std::string_view);
template std::optional<CompactOrientation> choice(std::string_view);

template std::span<const Appearance> allChoices();
template std::span<const TypeSize> allChoices();
template std::span<const SwatchBackdrop> allChoices();
template std::span<const PickerStyle> allChoices();
template std::span<const EditorSpace> allChoices();
template std::span<const SettingsTab> allChoices();
template std::span<const HotKeyCombo> allChoices();
template std::span<const PaletteDisplay> allChoices();
template std::span<const PictureShare> allChoices();
template std::span<const OpeningState> allChoices();
template std::span<const HangSide> allChoices();
template std::span<const CompactOrientation> allChoices();

} // namespace tintra
