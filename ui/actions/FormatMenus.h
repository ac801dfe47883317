#pragma once

#include "colour/ColorFormat.h"
#include "colour/Vision.h"
#include "ui/Ui.h"

#include <QProperty>
#include <functional>

class QMenu;

namespace tintra {

class AppState;
class Theme;

/// The code formats: favourites 1 to 9, then all by platform and family. The one of
/// `Preferences::format` is marked when `marksCurrent`; `chosen` is told which is taken.
void fillFormatMenu(QMenu& menu, Ui& ui, bool marksCurrent,
                    std::function<void(ColorFormat)> chosen);

/// The kinds of colour vision with what they are, and what seeing with them changes. `vision` is
/// what is set.
void fillVisionMenu(QMenu& menu, QProperty<Vision>& vision, const Theme& theme);

/// The modes of a palette window: the harmonies, then the palette itself.
void fillModeMenu(QMenu& menu, AppState& state);

} // namespace tintra
