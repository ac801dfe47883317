// The least that a program with a Qt window does, to measure the application's start against.

#include <QApplication>
#include <QLabel>
#include <QVBoxLayout>

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel(QStringLiteral("A window"), &window));
    window.resize(960, 600);
    window.show();
    return QApplication::exec();
}
