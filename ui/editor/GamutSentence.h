#pragma once

#include <QLabel>

namespace tintra {

class Theme;

/// A sentence in a box with a warning's icon.
class GamutSentence final : public QLabel {
public:
    GamutSentence(Theme& theme, QWidget* parent);
    /// After the theme has changed.
    void restyle();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Theme& theme_;
};

} // namespace tintra
