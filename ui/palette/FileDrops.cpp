#include "ui/palette/FileDrops.h"

#include "palettes/PaletteFile.h"
#include "state/AppState.h"
#include "ui/shared/Text.h"

#include <algorithm>

namespace tintra {

void receiveFiles(AppState& state, const Dropped& data) {
    if (!data.files.empty()) {
        const auto palette = std::find_if(data.files.begin(), data.files.end(),
                                          [](const std::filesystem::path& file) {
                                              return PaletteFile::kindOf(file).has_value();
                                          });
        // What is neither is said by the picture's own sentence.
        if (palette != data.files.end())
            state.open(*palette);
        else
            state.loadImage(data.files.front());
        return;
    }
    if (data.picture) {
        const auto* begin = reinterpret_cast<const Bytes::value_type*>(data.picture->constData());
        state.loadImage(Bytes(begin, begin + data.picture->size()), toUtf8(worded("Picture")));
        return;
    }
    if (data.text) state.receiveText(toUtf8(*data.text));
}

} // namespace tintra
