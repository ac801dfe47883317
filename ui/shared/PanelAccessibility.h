#pragma once

namespace tintra {

/// Tells accessibility what plain widgets are: windows, and the named parts of one. Called once at
/// start, before other kinds of widgets are told of.
void installPanelAccessibility();

} // namespace tintra
