#pragma once

#include "ui/frame/ToolLine.h"

namespace tintra {

class AppState;
class PopUpButton;
class Segmented;

/// The line of tools at the top of a palette window: the mode and the display at the left.
class PaletteToolBar final : public ToolLine {
public:
    PaletteToolBar(Ui& ui, AppState& state, ContextOf context, QWidget* parent);

private:
    void subscribe();
    void syncAll();

    Ui& ui_;
    AppState& state_;
    PopUpButton* mode_;
    Segmented* display_;
    ToolButton *bench_, *contrast_, *editor_;
    std::vector<QWidget*> leaving_; ///< tools, first to last
    Subscriptions subscriptions_;
};

} // namespace tintra
