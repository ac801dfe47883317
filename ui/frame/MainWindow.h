#pragma once

#include "colour/ColorFormat.h"
#include "colour/Vision.h"
#include "colour/WashColor.h"
#include "platform/Toasts.h"
#include "state/Geometry.h"
#include "state/VisionSimulation.h"
#include "ui/Ui.h"
#include "ui/actions/ActionTable.h"

#include <QProperty>
#include <QWidget>
#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

class QMenu;

namespace tintra {

class CalledMenuBar;
class NoticeBar;

/// A colour that actions act on.
struct ActionTarget {
    WashColor color;
    std::optional<std::string> name; ///< given by the user
    /// Its place among a palette's swatches; none for any other colour.
    std::optional<std::size_t> swatch;
};

/// What every main window is: a line of tools, a body with the notices over it, a line of facts; a
/// menu bar that shows when it is asked for; the keys of the action table, by where the keyboard
/// is; and regions that F6 walks. Main loop.
class MainWindow : public QWidget {
public:
    MainWindow(Ui& ui, WindowKind kind, ToastPlace place);
    ~MainWindow() override;

    WindowKind kind() const { return kind_; }
    /// Where its notices and dialogues are shown.
    const ToastPlace& place() const { return place_; }
    NoticeBar& notices() const { return *notices_; }

    /// The window as actions are handed it.
    virtual ActionContext context() = 0;

    // What the actions of every window come to in this one.

    /// The colour that is selected or has the focus; none where there is none.
    virtual std::optional<ActionTarget> target() const { return std::nullopt; }
    /// There is something to copy: the target, unless a window knows more.
    virtual bool canCopy() const { return target().has_value(); }
    /// Copies the target, in the format of the preferences unless another is asked for.
    virtual void copy(std::optional<ColorFormat> as = {});
    /// Where the kind of vision is kept that the window is seen with; null where there is none.
    virtual QProperty<Vision>* vision() const { return nullptr; }
    /// What "Clear" takes away; none where there is nothing of the kind.
    virtual std::optional<FrontCapabilities::Clears> clears() const { return std::nullopt; }
    virtual void clear() {}
    /// Takes the colours that the clipboard holds.
    virtual void pasteColours() {}
    virtual void showPasteSheet() {}

    bool showsMenuBar() const;
    void toggleMenuBar();
    /// Gives the keyboard to the menu bar, shown until it is done with.
    virtual void openMenuBar();
    /// Gives the keyboard to the next (1) or the previous (-1) region.
    void focusRegion(int by);
    void showContextMenu();

protected:
    /// Every region, in the order of F6, shown or not; null entries are passed over.
    virtual std::vector<QWidget*> regions() const = 0;

    Ui& ui() const { return ui_; }
    /// The menu bar in the layout of `in`, above all else. Once.
    QWidget* makeMenuBar(QWidget* in);
    /// Puts the notices over the body. Once.
    void makeNotices(QWidget* body);
    /// The two above with the tools, the body and the facts, one below the other.
    void assemble(QWidget* tools, QWidget* body, QWidget* facts);
    /// Stands where it stood, or in its usual size, and tells from now on where it is put.
    void keepFrame(const std::optional<StoredFrame>& stood, QSize usual,
                   std::function<void(const StoredFrame&)> changed);
    /// The same, kept as a record of its own.
    void keepFrame(const std::string& key, QSize usual);
    /// A menu that deletes itself, at a place of the screen.
    void popUp(QPoint at, const std::function<void(QMenu&)>& fill);

    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;

private:
    /// The keyboard is where single letters are commands.
    bool isOnCanvas() const;

    Ui& ui_;
    const WindowKind kind_;
    const ToastPlace place_;
    CalledMenuBar* menuBar_ = nullptr;
    NoticeBar* notices_ = nullptr;
    bool altAlone_ = false; ///< Alt is held and nothing else was pressed
};

} // namespace tintra
