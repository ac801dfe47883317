#pragma once

#include "ui/editor/ChannelTrack.h"

#include <QWidget>

class QLineEdit;

namespace tintra {

/// One channel: its letter, its track and its figure in a field. Figures that are typed hold at
/// once; the field shows them anew, fitted, when it is left.
class ChannelRow final : public QWidget {
public:
    // px at regular text size
    static constexpr int kHeight = ChannelTrack::kHeight, kLetter = 24;

    /// `words` px at regular text size for what stands before the track.
    ChannelRow(Theme& theme, QWidget* parent, int words = kLetter);

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

    /// Gives the keyboard to the track.
    void focusTrack() { track_->setFocus(Qt::ShortcutFocusReason); }

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
    const int words_;
    const EditorChannel* channel_ = &kAlphaChannel;
    double value_ = 0;
    ChannelTrack* track_;
    QLineEdit* field_;
};

} // namespace tintra
