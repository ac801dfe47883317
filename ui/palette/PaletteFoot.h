#pragma once

#include "ui/Ui.h"
#include "ui/actions/Menus.h"
#include "ui/frame/FootChoices.h"
#include "ui/palette/PaletteWindow.h"
#include "ui/shared/Subscriptions.h"

#include <QWidget>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>

class QTemporaryDir;

namespace tintra {

class DragHandle;
class ToolButton;

/// The line of facts at the foot of a palette window: the selected colour, which drags out by its
/// chip, and the count, which drags the palette out as a file; the kind of vision and the format
/// of codes. A very narrow window has its tools there instead.
class PaletteFoot final : public QWidget {
public:
    PaletteFoot(Ui& ui, AppState& state, ContextOf context, QWidget* parent);
    ~PaletteFoot() override;

    /// Tools instead of facts.
    void setCompact(bool compact);
    /// While a swatch is dragged over the palette: from which place to which; none when it is not.
    void setMove(std::optional<std::pair<std::size_t, std::size_t>> move);
    /// The colour acted on may have changed.
    void sync();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void subscribe();
    void connectTools();
    QString countText() const;
    /// What stands in the place of a colour; nothing while there is one.
    QString hint() const;
    void layOut();
    /// Places what is shown at the right end and answers where that begins.
    int layOutFacts();
    void layOutColour(int right);
    void layOutTools();
    void dragColour();
    void dragPalette();

    Ui& ui_;
    AppState& state_;
    ContextOf context_;
    bool compact_ = false;
    std::optional<std::pair<std::size_t, std::size_t>> move_;
    std::optional<ActionTarget> target_;
    QString name_, code_;
    QRect namePlace_, codePlace_, hintPlace_;
    DragHandle *chip_, *count_;
    ToolButton *copy_, *add_, *more_;
    FootChoices choices_;
    std::unique_ptr<QTemporaryDir> folder_; ///< of files that were dragged out
    Subscriptions subscriptions_;
};

} // namespace tintra
