#pragma once

#include "platform/MainLoop.h"
#include "ui/Ui.h"
#include "ui/paste/PasteEditor.h"
#include "ui/paste/PasteMargin.h"

#include <QWidget>

namespace tintra {

/// A framed field of text with what is read in it at its right. Main loop.
class PasteField final : public QWidget {
public:
    PasteField(Ui& ui, QWidget* parent);
    ~PasteField() override;

    PasteEditor& editor() const { return *editor_; }
    PasteMargin& margin() const { return *margin_; }
    /// Rings the field until its text changes.
    void setRefused(bool refused);
    void follow();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Ui& ui_;
    PasteEditor* editor_;
    PasteMargin* margin_;
    bool refused_ = false;
};

} // namespace tintra
