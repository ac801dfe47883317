#include "platform/desktop/services/ApplicationService.h"
#include "ui/program/Application.h"
#include "ui/program/CommandLine.h"
#include "ui/program/NoDisplay.h"

#include <QApplication>
#include <QIcon>
#include <cstdio>
#include <optional>

namespace {

constexpr int kFailed = 1, kWrongUsage = 2;

int refuse(const std::string& sentence, int status) {
    std::fprintf(stderr, "tintra-desktop: %s\n", sentence.c_str());
    return status;
}

} // namespace

int main(int argc, char** argv) {
    using namespace tintra;
    if (const auto answer = CommandLine::answer(argc, argv)) {
        std::fputs(answer->c_str(), stdout);
        return 0;
    }
    const auto activation = Activation::ofEnvironment();
    const auto id = QStringLiteral("org.tintra.Tintra");
    QApplication::setApplicationName(QStringLiteral("tintra-desktop"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tintra"));
    QApplication::setDesktopFileName(id);
    std::optional<NoDisplay> withoutDisplay(std::in_place);
    QApplication app(argc, argv);
    withoutDisplay.reset();
    // The last window asks before it closes, and then the models say when the program ends.
    QApplication::setQuitOnLastWindowClosed(false);

    const auto line = CommandLine::of(QApplication::arguments());
    if (line.refusal) return refuse(*line.refusal + "\nTry “tintra-desktop --help”.", kWrongUsage);
    ApplicationService service(id);
    switch (service.claim({line.files, line.newPalette ? DesktopRequests::kNewPalette : ""},
                          activation)) {
    case ApplicationService::Standing::handedOver:
        return 0;
    case ApplicationService::Standing::unanswered:
        return refuse("Tintra is running, but does not answer.", kFailed);
    case ApplicationService::Standing::running:
        break;
    }

    Application application;
    service.serve(application.requests().forService());
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icons/tintra.svg")));
    application.start(line.files);
    if (line.newPalette) application.requests().openNew();
    return QApplication::exec();
}
