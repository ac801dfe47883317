#pragma once

#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/paste/PasteReader.h"

#include <QPointer>
#include <QPropertyNotifier>
#include <QWidget>
#include <vector>

class QLabel;
class QPushButton;

namespace tintra {

class PasteField;

/// "Type or paste values": a sheet from the top of a palette window, over all of it, which keeps
/// the keyboard until it is closed. What is read goes into the palette, or becomes the seeds of a
/// harmony. Main loop.
class PasteSheet final : public QWidget {
public:
    PasteSheet(Ui& ui, AppState& state, QWidget* window);
    ~PasteSheet() override;

    /// Opens with the text that stood in it when it was last cancelled.
    void present();
    /// The keyboard goes back to where it was.
    void dismiss();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    struct Panel;

    void assemble();
    void follow();
    void followMode();
    void place();
    void slideIn();
    void read();
    void take(PasteReading reading);
    void accept();
    void hand(const PasteReading& reading);
    void refuse(const QString& why);
    void say(const QString& words, bool isRefusal);
    QString summary() const;

    Ui& ui_;
    AppState& state_;
    PasteReader reader_;
    Panel* panel_;
    QLabel* title_;
    QLabel* explanation_;
    PasteField* field_;
    QLabel* warning_;
    QLabel* status_;
    QPushButton* accept_;
    QPushButton* cancel_;
    QPointer<QWidget> before_; ///< had the keyboard
    bool acceptsOnceRead_ = false;
    std::vector<QPropertyNotifier> subscriptions_;
};

} // namespace tintra
