#pragma once

namespace tintra {

/// Sees to the application object that texts of drawings need for their fonts: the program's own,
/// or else one without any display, made once. Answers false where the program runs an application
/// object of another kind.
bool ensureSvgApplication();

} // namespace tintra
