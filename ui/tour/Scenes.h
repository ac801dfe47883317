#pragma once

#include "ui/tour/Stage.h"

#include <QImage>
#include <array>
#include <span>

namespace tintra::tour {

/// One picture of the tour.
struct Scene {
    const char* name;            ///< of its file, without theme and extension
    std::span<const Look> looks; ///< it is shown in
    QImage (*shoot)(Stage&);
};

// A group a file.
std::span<const Scene> paletteScenes();
std::span<const Scene> editorScenes();
std::span<const Scene> pictureScenes();
std::span<const Scene> menuScenes();
std::span<const Scene> sheetScenes();
std::span<const Scene> dialogueScenes();
std::span<const Scene> settingsScenes();
std::span<const Scene> benchScenes();
std::span<const Scene> contrastScenes();
std::span<const Scene> libraryScenes();

inline constexpr std::array kAll{Look::light, Look::dark, Look::contrastLight, Look::contrastDark};
inline constexpr std::span kLight(kAll.data(), 1), kBoth(kAll.data(), 2);

} // namespace tintra::tour
