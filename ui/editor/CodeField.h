#pragma once

#include "colour/WashColor.h"

#include <QLineEdit>
#include <functional>

namespace tintra {

class Theme;
class ToolButton;

/// The colour as code. Whatever reads as a colour holds as soon as it is typed; what does not is
/// refused when the field is left or Enter is pressed.
class CodeField final : public QLineEdit {
public:
    CodeField(Theme& theme, QWidget* parent);

    /// The code of the colour; what is being typed stays.
    void setCode(const QString& code);
    /// Back to the code, and nothing is refused any more.
    void dropTyped();
    /// Takes what was typed, or refuses it.
    void finish();
    bool isRefused() const { return refused_; }

    std::function<void(const WashColor&)> read;
    std::function<void(bool)> refused;
    std::function<void()> copied;

    QSize sizeHint() const override { return minimumSizeHint(); }
    /// After the theme has changed.
    void restyle();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void setRefused(bool refused);

    Theme& theme_;
    ToolButton* copy_;
    QString code_;
    bool refused_ = false;
};

} // namespace tintra
