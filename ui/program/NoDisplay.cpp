#include "ui/program/NoDisplay.h"

#include <cstdio>
#include <cstdlib>

namespace tintra {
namespace {

void tell(QtMsgType type, const QMessageLogContext&, const QString&) {
    if (type != QtFatalMsg) return;
    std::fputs("tintra-desktop: no display can be reached; windows need a Wayland or X11 session, "
               "and “tintra” works without.\n",
               stderr);
    std::_Exit(1);
}

} // namespace

NoDisplay::NoDisplay() : before_(qInstallMessageHandler(tell)) {}

NoDisplay::~NoDisplay() {
    qInstallMessageHandler(before_);
}

} // namespace tintra
