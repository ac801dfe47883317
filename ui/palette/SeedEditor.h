#pragma once

#include "state/AppState.h"
#include "ui/Ui.h"
#include "ui/shared/ColourMime.h"

#include <QWidget>
#include <optional>

class QLabel;
class QLineEdit;

namespace tintra {

/// A small window over a seed: its code, typed in any notation, and the colours used last. Whatever
/// reads as a colour becomes the seed at once; a run of typing is one step of undo. Deletes itself.
class SeedEditor final : public QWidget {
public:
    SeedEditor(Ui& ui, AppState& state, AppState::SeedRole role, QWidget* parent);

    /// With its top left corner there, or as near as the screen allows.
    void popUp(QPoint at);

protected:
    void paintEvent(QPaintEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void take(const WashColor& colour);
    void read(const QString& text);
    void refuse(bool refused);

    Ui& ui_;
    AppState& state_;
    const AppState::SeedRole role_;
    QLineEdit* field_;
    QLabel* sentence_;
};

/// The colour that a drop makes a seed of: the first one of a text.
std::optional<Drag> seedOf(const Dropped& drop);

} // namespace tintra
