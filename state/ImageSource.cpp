#include "state/ImageSource.h"

#include <algorithm>

namespace tintra {

namespace {

bool looksTheSame(const ImagePalette::Extracted& a, const ImagePalette::Extracted& b) {
    return a == b && a.share == b.share && a.swatchID == b.swatchID && a.isOwn == b.isOwn;
}

} // namespace

bool ImageSource::operator==(const ImageSource& other) const {
    return picture == other.picture && name == other.name && url == other.url &&
           count == other.count && emphasis == other.emphasis && extracting == other.extracting &&
           most == other.most && std::ranges::equal(found, other.found, looksTheSame);
}

} // namespace tintra
