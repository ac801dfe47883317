#pragma once

#include "ui/Ui.h"
#include "ui/shared/Subscriptions.h"

#include <QPointer>
#include <QWidget>

class QLabel;

namespace tintra {

class LicencesWindow;
class RowList;

/// What the program is, and whom it thanks.
class AboutWindow final : public QWidget {
public:
    explicit AboutWindow(Ui& ui);

    /// Gives the keyboard to the acknowledgements.
    void showAcknowledgements();

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void assemble();
    void follow();
    void showLicences();

    Ui& ui_;
    QLabel *icon_, *name_, *version_, *purpose_;
    RowList* thanks_;
    QPointer<LicencesWindow> licences_;
    Subscriptions subscriptions_;
};

} // namespace tintra
