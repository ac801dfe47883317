#pragma once

#include "ui/shared/Theme.h"

#include <QLabel>

namespace tintra {

/// Words that wrap at a width, with the line height of their style. Text of any length takes at
/// most a few lines: what does not fit is left out of its middle, and is the tooltip then.
class Prose final : public QLabel {
public:
    /// `width` px at regular text size; 0 for the width that it is given. `lines` from 1.
    Prose(const Theme& theme, TextStyle style, Token ink, int width, int lines,
          QWidget* parent = nullptr);

    void setProse(const QString& text);
    const QString& prose() const { return whole_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override { return width_ == 0; }
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    int wrapWidth() const;
    /// The text with as much of its middle left out as makes it fit.
    QString fitted(int width) const;

    const Theme& theme_;
    const TextStyle style_;
    const Token ink_;
    const int width_, lines_;
    QString whole_;
};

} // namespace tintra
