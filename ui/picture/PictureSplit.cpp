#include "ui/picture/PictureSplit.h"

#include <cmath>
#include <cstdlib>

namespace tintra::PictureSplit {

int pictureWidth(PictureShare share, int width) {
    switch (share) {
    case PictureShare::third:
        return static_cast<int>(std::lround(width / 3.0));
    case PictureShare::half:
        break;
    case PictureShare::twoThirds:
        return static_cast<int>(std::lround(width * 2 / 3.0));
    }
    return width / 2;
}

PictureShare nearest(int picture, int width) {
    auto best = PictureShare::half;
    for (const auto share : {PictureShare::third, PictureShare::twoThirds})
        if (std::abs(picture - pictureWidth(share, width)) <
            std::abs(picture - pictureWidth(best, width)))
            best = share;
    return best;
}

} // namespace tintra::PictureSplit
