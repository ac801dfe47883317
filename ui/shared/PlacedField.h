#pragma once

#include <QLineEdit>
#include <functional>

namespace tintra {

/// A field that stands for a while in place of words on a canvas, which is its parent. Enter and
/// leaving it keep what was typed, Esc does not. Deletes itself when it is done with.
class PlacedField final : public QLineEdit {
public:
    PlacedField(const QString& text, const QRect& in, QWidget* on);

    /// Is told what is to be kept, once; not told when nothing is.
    std::function<void(const QString&)> kept;
    /// Is told after that, once, that the words are to be seen again.
    std::function<void()> ended;

    void end(bool keep);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    bool done_ = false;
};

} // namespace tintra
