#pragma once

#include "cli/Session.h"
#include "palettes/PaletteFile.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tintra::cli {

/// The texts that --as takes.
const std::vector<std::string>& asChoices();

/// A palette that was read.
struct PaletteInput {
    std::string file; ///< as given; "-" for standard input
    std::string name; ///< the file's name without its extension
    std::vector<PaletteFile::Swatch> swatches;
};

/// Reads one palette; `as` says what it is whatever its name, empty for by the extension ("-": a
/// stylesheet if it looks like one, else a colour a line). What fails is reported and absent; what
/// the reader passed over is noticed.
std::optional<PaletteInput> readPalette(Session& session, const std::string& file,
                                        const std::string& as);

/// Hands over the palette of each file that could be read, in order, one at a time, with progress.
void forEachPalette(Session& session, const std::vector<std::string>& files, const std::string& as,
                    const std::function<void(PaletteInput)>& take);

} // namespace tintra::cli
