#pragma once

#include "ui/Ui.h"
#include "ui/actions/Menus.h"
#include "ui/shared/Subscriptions.h"

#include <QString>
#include <QWidget>
#include <string_view>
#include <vector>

namespace tintra {

class ToolButton;

/// The line of tools at the top of a main window: words or choices at the left, tools and More at
/// the right. What a narrow window has no room for is left to the More menu.
class ToolLine : public QWidget {
public:
    ToolLine(Ui& ui, ContextOf context, QWidget* parent);

    /// What stands at the left, one after the other; it is sized by its hint.
    void addLeft(QWidget* choice);
    /// What stands before the tools; it is sized by its hint.
    void addRight(QWidget* choice);
    /// In place of choices.
    void setWords(const QString& words);
    /// A tool that performs an action; a line stands before one that opens a group.
    ToolButton& addTool(ActionId action, std::string_view icon, bool opensGroup = false);
    /// A tool that performs an action, and switches another off while that is on.
    ToolButton& addSwitch(ActionId action, ActionId switched, std::string_view icon);
    /// What goes where there is no room, first to last.
    void setLeaving(std::vector<QWidget*> leaving);
    /// Where surfaces do not differ a line parts it from what is below; on unless that has one.
    void setParted(bool parted);
    /// Titles, and what is enabled and on, may have changed.
    void sync();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Tool {
        ActionId action, switched; ///< the same for what is no switch
        ToolButton* button;
        bool opensGroup;
    };

    ToolButton& add(ActionId action, ActionId switched, std::string_view icon, bool opensGroup);
    bool isOn(ActionId action) const;
    void orderTabs();

    void layOut();
    int widthNeeded() const;

    Ui& ui_;
    ContextOf context_;
    std::vector<QWidget*> left_, right_;
    std::vector<Tool> tools_; ///< left to right, More not among them
    std::vector<QWidget*> leaving_;
    ToolButton* more_;
    QString words_;
    bool isParted_ = true;
    Subscriptions subscriptions_;
};

/// A button that opens the whole menu bar as a menu.
ToolButton* makeMoreButton(Ui& ui, const ContextOf& context, QWidget* parent);

} // namespace tintra
