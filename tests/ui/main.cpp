#include "ui/shared/Canvas.h"
#include "ui/shared/PanelAccessibility.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <clocale>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("tintra-desktop"));
    QApplication::setQuitOnLastWindowClosed(false);
    // What a key press or a drop brings is seen at once.
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    tintra::installPanelAccessibility();
    tintra::installCanvasAccessibility();
    return RUN_ALL_TESTS();
}
