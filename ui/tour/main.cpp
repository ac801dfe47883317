#include "ui/tour/Scenes.h"
#include "ui/tour/Sheet.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLoggingCategory>
#include <QTextStream>
#include <algorithm>
#include <array>
#include <exception>
#include <optional>

namespace tintra::tour {
namespace {

struct NamedLook {
    Look look;
    const char *option, *suffix;
};
constexpr std::array kLooks{
    NamedLook{Look::light, "light", ""},
    NamedLook{Look::dark, "dark", "-dark"},
    NamedLook{Look::contrastLight, "contrast-light", "-hc"},
    NamedLook{Look::contrastDark, "contrast-dark", "-hcd"},
};

std::vector<Scene> allScenes() {
    std::vector<Scene> all;
    for (const auto group :
         {paletteScenes(), editorScenes(), pictureScenes(), menuScenes(), sheetScenes(),
          dialogueScenes(), settingsScenes(), benchScenes(), contrastScenes(), libraryScenes()})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

struct Wanted {
    QString folder, look, only;
    bool takes(const Scene& scene, const NamedLook& named) const {
        const bool shownSo = std::ranges::find(scene.looks, named.look) != scene.looks.end();
        const bool isAsked = look == QLatin1String(named.option);
        const bool isNamed = only.isEmpty() || only == QLatin1String(scene.name);
        // A look that is asked for is taken of every scene.
        return isNamed && (look.isEmpty() ? shownSo : isAsked);
    }
};

/// Answers what went wrong; nothing when the picture is there.
std::optional<QString> take(const Scene& scene, const NamedLook& look, const QString& folder) {
    const auto file = folder + u'/' + QLatin1String(scene.name) + QLatin1String(look.suffix) +
                      QStringLiteral(".png");
    try {
        Stage stage(look.look);
        if (!writeSmall(scene.shoot(stage), file))
            return QStringLiteral("%1 could not be written").arg(file);
    } catch (const std::exception& fault) {
        return QLatin1String(scene.name) + QStringLiteral(": ") + QLatin1String(fault.what());
    }
    return std::nullopt;
}

int tour(const Wanted& wanted) {
    QTextStream out(stdout), err(stderr);
    if (!QDir().mkpath(wanted.folder)) {
        err << "tintra-tour: " << wanted.folder << " cannot be made\n";
        return 1;
    }
    int taken = 0, failed = 0;
    for (const auto& scene : allScenes())
        for (const auto& look : kLooks) {
            if (!wanted.takes(scene, look)) continue;
            const auto fault = take(scene, look, wanted.folder);
            if (fault) err << "tintra-tour: " << *fault << Qt::endl;
            ++(fault ? failed : taken);
        }
    if (taken + failed == 0) {
        err << "tintra-tour: there is no such scene or theme\n";
        return 2;
    }
    out << taken << " pictures in " << wanted.folder << '\n';
    return failed == 0 ? 0 : 1;
}

} // namespace
} // namespace tintra::tour

int main(int argc, char** argv) {
    // Without a screen and without the desktop's services, unless one is asked for.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("LC_ALL", "C.UTF-8");
    // What the platform without a screen cannot do (raising windows and the like) is not missed.
    QLoggingCategory::setFilterRules(QStringLiteral("default.warning=false"));
    QApplication::setApplicationName(QStringLiteral("tintra-desktop"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tintra"));
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setCursorFlashTime(0);
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);

    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Takes pictures of every window."));
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("Where they go."),
                                 QStringLiteral("FOLDER"));
    const QCommandLineOption theme(
        QStringLiteral("theme"),
        QStringLiteral("light, dark, contrast-light or contrast-dark: every scene so."),
        QStringLiteral("THEME"));
    const QCommandLineOption only(QStringLiteral("only"), QStringLiteral("One scene."),
                                  QStringLiteral("NAME"));
    parser.addOptions({theme, only});
    parser.addHelpOption();
    parser.process(app);
    if (parser.positionalArguments().size() != 1) parser.showHelp(2);
    return tintra::tour::tour(
        {parser.positionalArguments().first(), parser.value(theme), parser.value(only)});
}
