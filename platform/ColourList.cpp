#include "platform/ColourList.h"

#include "platform/colourlist/ColourListReaders.h"

namespace tintra {

namespace {

// Some eighty thousand colours. A property list in memory takes many times its size on disk.
constexpr std::size_t kLargestList = std::size_t{16} << 20U;

} // namespace

std::optional<ColourList> readColourList(ByteView data) {
    if (data.size() > kLargestList) return std::nullopt;
    const auto text = asText(data);
    if (text.starts_with("bplist00") || text.starts_with("<?xml"))
        return colourlist::readKeyedArchive(data);
    return colourlist::readTypedStream(data);
}

} // namespace tintra
