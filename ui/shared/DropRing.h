#pragma once

#include <QWidget>

namespace tintra {

class Theme;

/// Shows, over all of a part of a window, that a drop would go to it as a whole. Hidden until then;
/// the part places it.
class DropRing final : public QWidget {
public:
    DropRing(const Theme& theme, QWidget* parent);

    void setShown(bool shows);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Theme& theme_;
};

} // namespace tintra
