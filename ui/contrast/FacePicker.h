#pragma once

#include "ui/Ui.h"

#include <QWidget>
#include <optional>
#include <string>

class QLineEdit;
class QListWidget;

namespace tintra {

/// A small window in which the face of the specimen is found by typing part of its name. The face
/// walked to holds at once; Esc brings back the one before. Deletes itself.
class FacePicker final : public QWidget {
public:
    FacePicker(Ui& ui, QWidget* button);

    /// At its button, as near as the screen allows.
    void popUp();

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void filter(const QString& part);
    void take(int row);

    Ui& ui_;
    std::optional<std::string> before_;
    QLineEdit* field_;
    QListWidget* list_;
};

} // namespace tintra
