#pragma once

#include "state/ContrastBoard.h"
#include "ui/Ui.h"
#include "ui/shared/Subscriptions.h"
#include "ui/shared/Upkeep.h"

#include <QWidget>
#include <optional>
#include <vector>

namespace tintra {

class ChannelRow;

/// The lightness of one colour of the pair. Hue stays, and chroma as far as sRGB goes. Marks show
/// where 3:1, 4.5:1 and 7:1 fall against the other colour.
class LightnessRow final : public QWidget {
public:
    static constexpr int kHeight = 56; ///< px at regular text size

    LightnessRow(Ui& ui, ContrastBoard::Role role, QWidget* parent);

    struct Mark {
        double lightness; ///< 0...100
        double ratio;
    };
    const std::vector<Mark>& marks() const { return marks_; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {0, sizeHint().height()}; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    const ContrastBoard::Entry* moving() const;
    const ContrastBoard::Entry* fixed() const;
    void sync();
    void findMarks(const WashColor& from, const WashColor& against);
    void move(double lightness);

    Ui& ui_;
    ContrastBoard& board_;
    const ContrastBoard::Role role_;
    ChannelRow* row_;
    /// The colour as it was before this row moved it, so that the chroma lost on the way comes
    /// back.
    struct Origin {
        Uuid entry;
        WashColor color;
        double asked; ///< lightness, 0...100
        WashColor became;
    };
    std::optional<Origin> origin_;
    struct MarksOf {
        WashColor from, against;
        bool operator==(const MarksOf&) const = default;
    };
    std::optional<MarksOf> marksOf_; ///< what `marks_` were found for
    std::vector<Mark> marks_;
    Upkeep upkeep_{*this, [this] { sync(); }};
    Subscriptions subscriptions_;
};

} // namespace tintra
