#pragma once

#include "colour/WashColor.h"
#include "platform/Uuid.h"

namespace tintra {

/// The swatch in the colour editor as it stands there, not applied yet.
struct EditorBuffer {
    Uuid swatchID;
    WashColor color;
    bool operator==(const EditorBuffer&) const = default;
};

} // namespace tintra
