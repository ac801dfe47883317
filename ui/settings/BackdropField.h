#pragma once

#include "state/Preferences.h"
#include "ui/Ui.h"

#include <QLineEdit>
#include <QProperty>
#include <QWidget>

namespace tintra {

class Words;

/// A colour as a chip and as a field that takes any code of a colour. What is no colour is said
/// below the field and changes nothing; Esc, or leaving the field, brings the code back.
class BackdropField final : public QWidget {
public:
    BackdropField(Ui& ui, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QRectF chip() const;
    void take();
    void showColour();

    Ui& ui_;
    QLineEdit* field_;
    Words* refusal_;
    QPropertyNotifier colourChanged_, themeChanged_;
};

} // namespace tintra
