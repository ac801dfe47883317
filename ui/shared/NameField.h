#pragma once

#include <QLineEdit>
#include <functional>

namespace tintra {

class Canvas;

/// A field in which a name is edited where it stands on a canvas. Enter and losing the keyboard
/// keep what was typed, Esc drops it; then the field deletes itself and the canvas has the keyboard
/// again.
class NameField final : public QLineEdit {
public:
    NameField(Canvas& on, const QRect& place, const QString& name, const QString& placeholder);

    /// Is told the text, once, when it is kept.
    std::function<void(const QString&)> kept;
    /// Is told when the field goes, kept or not.
    std::function<void()> gone;
    void end(bool keep);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    Canvas& canvas_;
    bool ended_ = false;
};

} // namespace tintra
