#pragma once

#include "palettes/ImagePalette.h"
#include "palettes/image/Groups.h"

#include <span>

namespace tintra::ImagePalette {

/// At most `count` of the groups by an emphasis, in the order of choosing; together they stand for
/// all `total` samples. All groups when there are no more than `count`.
std::vector<Group> select(std::size_t count, Emphasis emphasis, std::size_t total,
                          std::span<const Group> groups);

} // namespace tintra::ImagePalette
