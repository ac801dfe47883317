#pragma once

#include "state/Choices.h"

namespace tintra {

/// How a palette window is divided between its picture and its palette. Pure.
namespace PictureSplit {

/// The width of the picture where both have `width` px together.
int pictureWidth(PictureShare share, int width);
/// The share to which a divider snaps that leaves the picture `picture` of `width` px.
PictureShare nearest(int picture, int width);

} // namespace PictureSplit

} // namespace tintra
