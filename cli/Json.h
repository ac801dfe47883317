#pragma once

#include "cli/Session.h"
#include "colour/WashColor.h"

#include <optional>
#include <string>
#include <vector>

namespace tintra::cli {

/// "#RRGGBB" in the selected RGB profile, eight digits for a translucent colour.
std::string hexText(const WashColor& colour);

/// {"hex", "alpha", "r", "g", "b"}.
Json colourJson(const WashColor& colour);

/// The texts of the colours, in order.
Json hexesJson(const std::vector<WashColor>& colours);

/// Null when there is no text.
Json textOrNull(const std::optional<std::string>& text);

/// The bytes a swatch block is painted in: over the backdrop when translucent.
SwatchBytes swatchBytes(const WashColor& colour);

/// The colour's block (where blocks are on) and its hex code.
std::string labelled(const Session& session, const WashColor& colour);

} // namespace tintra::cli
