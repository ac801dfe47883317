#pragma once

#include "colour/Vision.h"
#include "ui/Ui.h"
#include "ui/paste/PasteReader.h"
#include "ui/shared/Subscriptions.h"

#include <QPointer>
#include <QProperty>
#include <QPropertyNotifier>
#include <QString>
#include <QWidget>
#include <functional>
#include <span>

class QLabel;
class QPushButton;

namespace tintra {

class AppState;
class PasteField;

/// Where the colours of a sheet go.
struct PasteTarget {
    struct Words {
        QString explanation, button;
    };
    /// Asked for each time the sheet opens, and when they change.
    std::function<Words()> words;
    /// Is handed at least one.
    std::function<void(std::span<const PaletteFile::Swatch>)> take;
    /// What the window is seen with; outlives the sheet.
    const QProperty<Vision>& vision;
    /// Calls back when the words change, for as long as the answer lives; none where they stay.
    std::function<QPropertyNotifier(std::function<void()>)> wordsChanged{};
};

/// Into the palette; in a harmony mode they become the seeds.
PasteTarget pasteTarget(AppState& state);

/// "Type or paste values": a sheet from the top of a main window, over all of it, which keeps the
/// keyboard until it is closed. Main loop.
class PasteSheet final : public QWidget {
public:
    PasteSheet(Ui& ui, PasteTarget target, QWidget* window);
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
    void followWords();
    void place();
    void slideIn();
    void read();
    void take(PasteReading reading);
    void accept();
    void refuse(const QString& why);
    void say(const QString& words, bool isRefusal);
    QString summary() const;

    Ui& ui_;
    PasteTarget target_;
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
    Subscriptions subscriptions_;
    QPropertyNotifier wordsChanged_;
};

} // namespace tintra
