#include "state/Backdrops.h"

namespace tintra {

Rgb flatBackdrop(SwatchBackdrop backdrop, const WashColor& custom, const ThemeSurfaces& theme) {
    switch (backdrop) {
    case SwatchBackdrop::checkerboard:
        return theme.checks;
    case SwatchBackdrop::ground:
        return theme.ground;
    case SwatchBackdrop::white:
        return {1, 1, 1};
    case SwatchBackdrop::black:
        return {0, 0, 0};
    case SwatchBackdrop::custom:
        return {custom.r, custom.g, custom.b};
    case SwatchBackdrop::strips:
        return {0.5, 0.5, 0.5};
    }
    return theme.checks;
}

} // namespace tintra
