#pragma once

#include "ui/Ui.h"
#include "ui/shared/Subscriptions.h"

#include <QWidget>

class QLineEdit;

namespace tintra {

class RowList;

/// Every key, in the order of the menus, with a field that searches commands and keys.
class ShortcutsWindow final : public QWidget {
public:
    explicit ShortcutsWindow(Ui& ui);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void search();

    Ui& ui_;
    QLineEdit* field_;
    RowList* list_;
    Subscriptions subscriptions_;
};

} // namespace tintra
