#pragma once

#include "ui/Ui.h"
#include "ui/actions/Menus.h"
#include "ui/shared/Subscriptions.h"

#include <QWidget>
#include <string_view>
#include <vector>

namespace tintra {

class AppState;
class PopUpButton;
class Segmented;
class ToolButton;

/// The line of tools at the top of a palette window. What a narrow window has no room for is left
/// to the More menu.
class PaletteToolBar final : public QWidget {
public:
    PaletteToolBar(Ui& ui, AppState& state, ContextOf context, QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Tool {
        ActionId action;
        ToolButton* button;
        bool opensGroup; ///< a line stands before it
    };

    void addTool(ActionId action, std::string_view icon, bool opensGroup = false);
    void subscribe();
    void sync();
    void layOut();
    /// Of the mode, the display and the tools that are shown, gaps included.
    int widthNeeded() const;

    Ui& ui_;
    AppState& state_;
    ContextOf context_;
    PopUpButton* mode_;
    Segmented* display_;
    std::vector<Tool> tools_; ///< left to right
    ToolButton* more_ = nullptr;
    Subscriptions subscriptions_;
};

/// A button that opens the whole menu bar as a menu.
ToolButton* makeMoreButton(Ui& ui, const ContextOf& context, QWidget* parent);

} // namespace tintra
