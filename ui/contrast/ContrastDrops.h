#pragma once

#include "colour/Contrast.h"
#include "palettes/Swatch.h"
#include "ui/Ui.h"
#include "ui/shared/ColourMime.h"

#include <optional>
#include <span>
#include <string>

namespace tintra {

/// Whether a drag holds what the contrast window takes: a colour, text, a palette's file. Pictures
/// are for palettes.
bool isForContrast(const QMimeData& data);
/// Whether a dragged colour would be refused where drops have no role: it is there already.
bool isRefusedByContrast(const Ui& ui, const Drag& drag);

/// Takes what was dropped on the contrast window or pasted into it: a colour, every colour of a
/// text or of a palette file as far as there is room. With a role the colour, or the first, gets
/// it. What it comes to is said in the window.
void receiveInContrast(Ui& ui, const Dropped& data, std::optional<Contrast::Role> as);
/// The same with at least one colour that was read.
void takeInContrast(Ui& ui, std::span<const PaletteFile::Swatch> swatches,
                    std::optional<Contrast::Role> as);
void receiveTextInContrast(Ui& ui, std::string text, std::optional<Contrast::Role> as);

} // namespace tintra
