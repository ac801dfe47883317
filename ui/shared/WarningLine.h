#pragma once

#include <QWidget>

class QLabel;

namespace tintra {

class Prose;
class Theme;

/// A sentence about what is wrong, with the sign of warning before it; hidden while there is none.
/// Screen readers hear it when it comes.
class WarningLine final : public QWidget {
public:
    /// `width` px at regular text size; 0 for the width that it is given.
    WarningLine(const Theme& theme, int width, QWidget* parent = nullptr);

    /// Empty for none.
    void warn(const QString& sentence);
    const QString& sentence() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void drawIcon();

    const Theme& theme_;
    QLabel* icon_;
    Prose* words_;
};

} // namespace tintra
