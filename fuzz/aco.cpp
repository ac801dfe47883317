#include "fuzz/PaletteFuzzer.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    tintra::fuzzPalette(data, size, tintra::PaletteFile::Kind::aco);
    return 0;
}
