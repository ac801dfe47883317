#include "platform/desktop/pictures/QtDecoder.h"

#include <QCoreApplication>
#include <exception>

namespace tintra {

namespace {

/// Readers tell on standard error what they find odd in a file; the caller words what matters. A
/// program with an application of its own decides for itself.
void quietenReaders() {
    if (QCoreApplication::instance() != nullptr) return;
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
}

} // namespace

} // namespace tintra

/// The entry of the module (kPictureModuleEntry).
extern "C" [[gnu::visibility("default")]] tintra::PictureDecoder*
tintraOpenPictureDecoder(const tintra::PictureSource& source) {
    try {
        static const bool quietened = (tintra::quietenReaders(), true);
        static_cast<void>(quietened);
        return tintra::QtDecoder::open(source).release();
    } catch (const std::exception&) {
        return nullptr;
    }
}
