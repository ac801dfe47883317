#pragma once

#include "platform/pictures/PictureDecoder.h"

#include <string>
#include <string_view>
#include <variant>

namespace tintra {

/// The entry of the decoding module `libtintra-NAME.so` in `lib/tintra` beside the folder of the
/// running program, loaded at its first use and kept; why it cannot be loaded otherwise. Any
/// thread.
std::variant<OpenPictureDecoder*, std::string> pictureModule(std::string_view name);

} // namespace tintra
