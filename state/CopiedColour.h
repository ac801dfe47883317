#pragma once

#include "colour/ColorFormat.h"
#include "platform/Clipboard.h"

#include <optional>
#include <span>
#include <string>

// What is put on the clipboard. A colour without a name goes by its nearest one. Any thread.

namespace tintra {

class Preferences;
struct Services;

/// The code, and the colour for programs that take one.
Clipboard::Content copiedColour(const WashColor& colour, const std::optional<std::string>& name,
                                ColorFormat format, const FormatOptions& options);

/// A line of code a colour; names in step with `colours`, or fewer.
Clipboard::Content copiedColours(std::span<const WashColor> colours,
                                 std::span<const std::optional<std::string>> names,
                                 ColorFormat format, const FormatOptions& options);

/// Puts a colour on the clipboard, in the format of the preferences unless another is asked for,
/// and remembers it. Main loop.
void copyColour(Services& services, Preferences& preferences, const WashColor& colour,
                const std::optional<std::string>& name, std::optional<ColorFormat> as = {});

} // namespace tintra
