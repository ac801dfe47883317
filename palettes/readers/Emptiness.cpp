#include "palettes/readers/Reading.h"
#include "platform/ColourList.h"
#include "platform/Unicode.h"

// Palettes of no colours, as a program saves an empty one. The readers answer nothing for them as
// for what is no palette.

namespace tintra::PaletteFile {

namespace {

bool isEmptyAse(ByteView data) {
    ByteReader reader(data);
    const auto signature = reader.take(4);
    const auto version = reader.u32();
    const auto count = reader.u32();
    return signature && asText(*signature) == "ASEF" && version && count == 0U;
}

bool isEmptyAco(ByteView data) {
    ByteReader reader(data);
    const auto version = reader.u16().value_or(0);
    const auto count = reader.u16();
    return version >= 1 && version <= 2 && count == 0;
}

bool isEmptyList(ByteView data) {
    const auto list = readColourList(data);
    return list && list->entries.empty() && list->unusable == 0 && list->missing == 0;
}

} // namespace

bool isEmpty(ByteView data, Kind kind) {
    if (data.empty()) return true;
    if (read(data, kind)) return false;
    switch (kind) {
    case Kind::ase:
        return isEmptyAse(data);
    case Kind::aco:
        return isEmptyAco(data);
    case Kind::gpl:
        return asText(data).starts_with("GIMP Palette");
    case Kind::clr:
        return isEmptyList(data);
    case Kind::stylesheet:
        return isValidUtf8(asText(data));
    }
    return false;
}

} // namespace tintra::PaletteFile
