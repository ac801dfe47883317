#pragma once

#include "ui/actions/ActionTable.h"
#include "ui/program/Application.h"
#include "ui/tour/Content.h"

#include <QApplication>
#include <QImage>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QTemporaryDir>
#include <Qt>
#include <filesystem>
#include <memory>
#include <stdexcept>

namespace tintra::tour {

class OnMainLoop;

/// How the interface looks while pictures are taken.
enum class Look { light, dark, contrastLight, contrastDark };

/// The program as it is, in a temporary folder of its own, with nothing left to chance, to the
/// desktop or to threads: the same steps give the same pictures. One at a time. Main loop.
class Stage {
public:
    explicit Stage(Look look);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    Application& app() { return *app_; }
    Ui& ui() { return app_->ui(); }
    Preferences& preferences() { return ui().models.preferences(); }
    /// The first palette window and its model.
    AppState& state();
    PaletteWindow& window();
    /// The window of a class that is open.
    template <class Window>
    Window& open() {
        for (auto* widget : QApplication::topLevelWidgets())
            if (auto* found = dynamic_cast<Window*>(widget); found && found->isVisible())
                return *found;
        throw std::logic_error("a scene asks for a window that is not open");
    }

    /// Puts a palette into the first window and, unless its name is empty, saves it under it.
    void fill(const Palette& palette, QSize size);
    /// What the user can ask for, from the first window.
    void perform(ActionId action);
    /// Lets everything happen that is due, and what is due within some milliseconds.
    void settle(int milliseconds = 0);
    /// From now on what is asked of the background waits.
    void holdBackground();
    /// Does what has waited longest, or what came last.
    enum class Held { first, last };
    void doHeld(Held which);

    // What the user's hands do, at a place of a window.
    void point(QWidget& window, QPoint at);
    void click(QWidget& window, QPoint at);
    /// To what has the keyboard.
    void press(Qt::Key key, Qt::KeyboardModifiers with = {}, const QString& text = {});
    void write(const QString& text);

    std::filesystem::path folder() const;
    QImage grab(QWidget& widget);

private:
    void mouse(QWidget& window, QPoint at, QEvent::Type type, Qt::MouseButton button);

    QTemporaryDir folder_;
    OnMainLoop* background_; ///< the application's
    std::unique_ptr<Application> app_;
};

} // namespace tintra::tour
