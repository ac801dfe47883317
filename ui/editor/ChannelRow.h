#pragma once

#include "ui/editor/ChannelTrack.h"

#include <QWidget>

class QLineEdit;

namespace tintra {

/// One channel: its letter, its track and its figure in a field. Figures that are typed hold at
/// once; the field shows them anew, fitted, when it is left.
class ChannelRow final : public QWidget {
public:
    static constexpr int kHeight = ChannelTrack::kHeight; ///< px at regular text size

    /// `letter` px at regular text size are kept for the letter, or a word in its place.
    explicit ChannelRow(Theme& theme, QWidget* parent, int letter = 24);

    void setChannel(const EditorChannel& channel);
    void setValue(double value);
    void setColours(GradientStops stops, const QColor& thumb);
    /// Where the thumb stands for a value, px from the left of the row.
    qreal placeOf(double value) const;
    /// What screen readers say of the track beside its name and value.
    void setDescription(const QString& text);
    /// Shows the value again in place of what was typed.
    void dropTyped();
    /// After the theme has changed.
    void restyle();

    std::function<void(double)> changed;
    std::function<void()> settled;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void step(int by);
    void leaveField();

    Theme& theme_;
    const int letter_;
    const EditorChannel* channel_ = &kAlphaChannel;
    double value_ = 0;
    ChannelTrack* track_;
    QLineEdit* field_;
};

} // namespace tintra
