#include "ui/help/LicencesWindow.h"

#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"

#include <QFile>
#include <QPlainTextEdit>
#include <QVBoxLayout>

namespace tintra {
namespace {

/// The files of which the text is made, as resources.
constexpr const char* kTexts[] = {":/licences/LICENSE", ":/licences/docs/ACKNOWLEDGEMENTS.md",
                                  ":/licences/resources/colornames-LICENSE.txt"};

QString licences() {
    QStringList texts;
    for (const auto* name : kTexts) {
        QFile file(QString::fromLatin1(name));
        if (file.open(QIODevice::ReadOnly)) texts << QString::fromUtf8(file.readAll()).trimmed();
    }
    return texts.join(QStringLiteral("\n\n\n"));
}

} // namespace

LicencesWindow::LicencesWindow(Ui& ui, QWidget* over) : QDialog(over) {
    setWindowTitle(worded("Licences — Tintra"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins({});
    auto* text = new QPlainTextEdit(licences(), this);
    text->setReadOnly(true);
    text->setFrameShape(QFrame::NoFrame);
    text->setAccessibleName(worded("Licences"));
    text->setFont(ui.theme.font(TextStyle::code));
    text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    column->addWidget(text);
    resize(640, 560);
}

} // namespace tintra
