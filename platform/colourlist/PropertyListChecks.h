#pragma once

#include "platform/Bytes.h"

#include <string_view>

// libplist follows whatever a file says: it parses nested values recursively or frees them so,
// copies a shared value at each reference (a file of 300 bytes unfolds to millions of nodes), and
// moves the rest of a text at each character reference. These checks keep such files from it; each
// is linear in the size of the file. Internal to the colour-list service.

namespace tintra::colourlist {

/// How deep values may nest. An archive needs five levels: all that refers to more goes by number.
inline constexpr int kDeepestPlist = 16;

/// Whether a binary property list, shared values counted at each reference, stays in proportion to
/// its size, and nests no deeper than `kDeepestPlist`. A cycle does neither.
bool binaryUnfoldsModestly(ByteView data);

/// Whether the elements of an XML property list nest no deeper than `kDeepestPlist`, and no long
/// text holds character references. Documents with entities of their own are refused.
bool xmlNestsModestly(std::string_view text);

} // namespace tintra::colourlist
