#include "ui/program/Application.h"

#include <QApplication>
#include <QCommandLineParser>
#include <filesystem>
#include <vector>

int main(int argc, char** argv) {
    QApplication::setApplicationName(QStringLiteral("tintra-desktop"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tintra"));
    QApplication::setDesktopFileName(QStringLiteral("org.tintra.Tintra"));
    QApplication app(argc, argv);
    // The models say when the program ends: closing the last window asks first.
    QApplication::setQuitOnLastWindowClosed(true);

    QCommandLineParser parser;
    parser.addPositionalArgument(QStringLiteral("files"),
                                 QStringLiteral("Palettes and pictures to open."),
                                 QStringLiteral("[FILE…]"));
    parser.addHelpOption();
    parser.process(app);

    std::vector<std::filesystem::path> files;
    for (const auto& name : parser.positionalArguments())
        files.push_back(std::filesystem::absolute(name.toStdString()));

    tintra::Application application;
    application.start(files);
    return QApplication::exec();
}
