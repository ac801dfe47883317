#pragma once

#include "colour/Lab.h"
#include "colour/WashColor.h"
#include "state/Choices.h"

#include <QString>
#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string_view>

// The six spaces whose channels the colour editor's sliders show. Pure; any thread.

namespace tintra {

/// One slider of a space.
struct EditorChannel {
    std::string_view letter; ///< before the slider; also names it to undo
    const char* name;        ///< English source of its name
    double from, to;         ///< in its own unit
    double step;             ///< of an arrow key
    int digits;              ///< after the point
    std::string_view unit;   ///< "%", "°", or empty
    bool wraps;              ///< a hue: going past its end begins anew

    /// Clamped, or brought round; not a number gives `from`.
    double fitted(double value) const;
    /// 0...1 along its slider, clamped.
    double share(double value) const;
    /// As in its field: "36.5".
    QString text(double value) const;
    /// With the unit: "36.5°", "80 %".
    QString spoken(double value) const;
    /// What was typed, with or without the unit, with a point or a comma; fitted. Nothing for
    /// anything but a number.
    std::optional<double> read(const QString& text) const;
};

/// Of the channels of a space, in its order; those that it lacks are 0.
using Figures = std::array<double, 4>;

/// What the user's profiles decide. The spaces outlive it.
struct EditorProfiles {
    const ColourSpace* rgb;
    const ColourSpace* cmyk;
    LabIlluminant white;

    /// As they are selected now.
    static EditorProfiles current();
    bool operator==(const EditorProfiles&) const = default;
};

struct EditorSpaceRow {
    EditorSpace value;
    const char* title; ///< English source; Lab's white is added by `editorSpaceTitle`
    std::span<const EditorChannel> channels;
    Figures (*figures)(const WashColor& of, const EditorProfiles& profiles);
    /// What Lab and OKLCH name outside sRGB gives way in chroma; lightness and hue stay.
    WashColor (*color)(const Figures& of, double alpha, const EditorProfiles& profiles);
    /// Puts figures of before where a grey or black has none of its own (a grey's hue); null where
    /// every colour has all.
    void (*keepHidden)(Figures& figures, const Figures& before);
};

const EditorSpaceRow& editorSpace(EditorSpace space);
std::span<const EditorSpaceRow> allEditorSpaces();
/// "OKLCH", "Lab · D50".
QString editorSpaceTitle(EditorSpace space, LabIlluminant white);

/// The last row of every space.
extern const EditorChannel kAlphaChannel;

} // namespace tintra
