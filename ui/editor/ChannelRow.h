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

    ChannelRow(Theme& theme, QWidget* parent);

    void setChannel(const EditorChannel& channel);
    void setValue(double value);
    void setColours(GradientStops stops, const QColor& thumb);
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
    const EditorChannel* channel_ = &kAlphaChannel;
    double value_ = 0;
    ChannelTrack* track_;
    QLineEdit* field_;
};

} // namespace tintra
