#include "platform/desktop/heif/HeifDecoder.h"

#include <exception>

/// The entry of the module (kPictureModuleEntry).
extern "C" [[gnu::visibility("default")]] tintra::PictureDecoder*
tintraOpenPictureDecoder(const tintra::PictureSource& source) {
    try {
        return tintra::HeifDecoder::open(source).release();
    } catch (const std::exception&) {
        return nullptr;
    }
}
