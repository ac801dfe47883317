#pragma once

#include "platform/Uuid.h"
#include "state/Models.h"
#include "tests/TemporaryFolder.h"
#include "tests/support/FakeDesktop.h"
#include "ui/Ui.h"
#include "ui/program/Windows.h"
#include "ui/shared/DesktopSettings.h"
#include "ui/shared/NoticeBar.h"
#include "ui/shared/SwatchPainter.h"
#include "ui/shared/Text.h"
#include "ui/shared/Theme.h"
#include "ui/shared/TintraStyle.h"

#include <QAccessible>
#include <QApplication>
#include <QDropEvent>
#include <QMimeData>
#include <QPixmap>
#include <QStyleFactory>
#include <QTest>
#include <map>
#include <memory>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

inline void PrintTo(const QString& text, std::ostream* out) {
    *out << '"' << text.toStdString() << '"';
}

namespace tintra::test {

/// Windows that a test puts in, and what was asked of the others.
class RecordingWindows final : public Windows {
public:
    PaletteWindow* palette(const Uuid& id) const override {
        const auto found = open.find(id);
        return found == open.end() ? nullptr : found->second;
    }
    std::vector<PaletteWindow*> palettes() const override {
        std::vector<PaletteWindow*> all;
        for (const auto& [id, window] : open)
            all.push_back(window);
        return all;
    }
    QWidget* window(const ToastPlace&) const override { return nullptr; }
    void openPalette(const Uuid&) override { asked.push_back("open palette"); }
    void closePalette(const Uuid& id) override {
        asked.push_back("close palette");
        if (closing) closing(id);
    }
    void openBench() override { asked.push_back("bench"); }
    void openContrast() override { asked.push_back("contrast"); }
    void openLibrary() override { asked.push_back("library"); }
    void openSettings() override { asked.push_back("settings"); }
    void openShortcuts() override { asked.push_back("shortcuts"); }
    void openAbout() override { asked.push_back("about"); }
    void openAcknowledgements() override { asked.push_back("acknowledgements"); }
    void quit() override { asked.push_back("quit"); }

    /// What was asked since the last call.
    std::vector<std::string> taken() { return std::exchange(asked, {}); }

    std::map<Uuid, PaletteWindow*> open;
    std::function<void(const Uuid&)> closing;
    std::vector<std::string> asked;
};

/// Real models, theme and painter over a desktop in memory; windows are a test's to make. The style
/// and the fonts of the program hold while it lives.
class Desk {
public:
    explicit Desk(Appearance appearance = Appearance::light) {
        models.start([](const Uuid&) {});
        models.preferences().windows.openNewWindow = [this](const Uuid& id) {
            windows.openPalette(id);
        };
        models.preferences().appearance = appearance;
        applyStyle();
    }
    ~Desk() {
        settle();
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    }
    Desk(const Desk&) = delete;
    Desk& operator=(const Desk&) = delete;

    /// Again after the theme has changed.
    void applyStyle() {
        QApplication::setStyle(new TintraStyle(theme));
        QApplication::setPalette(QApplication::style()->standardPalette());
        QApplication::setFont(theme.font(TextStyle::body));
    }

    /// The model of the first window.
    AppState& state() { return models.workspaces().openPrimary(); }
    /// The first window's model with that many different colours, undo and notices as new.
    AppState& stateWith(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            state().addToPalette(colour(i), AppState::Duplicates::refuse);
        models.undo().discardEntries(state().id());
        desktop.toasts.shown.clear();
        return state();
    }
    /// One of many different opaque colours, spread over the hues.
    static WashColor colour(std::size_t i) {
        return {static_cast<double>(i * 67 % 256) / 255, static_cast<double>(i * 151 % 256) / 255,
                static_cast<double>(i % 256) / 255, 1};
    }
    /// A further window's model.
    AppState& another() { return models.workspaces().openExtra(); }

    /// Lets everything happen that is due now: posted tasks, layouts, deletions.
    void settle() {
        desktop.loop.turn();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        desktop.loop.turn();
    }
    /// The texts of the notices since the last call.
    std::vector<std::string> notices() { return desktop.toasts.taken(); }

    struct Settings final : DesktopSettings {
        Settings() { reducesMotion = true; }
    };

    TemporaryFolder folder;
    FakeDesktop desktop{folder / "trash"};
    Models models{desktop.services, PaletteSurroundings{desktop.loop,
                                                        desktop.background,
                                                        desktop.folderWatch,
                                                        desktop.trash,
                                                        folder / "colors",
                                                        {},
                                                        {}}};
    Settings settings;
    Theme theme{models.preferences(), settings};
    SwatchPainter painter{theme, models.preferences()};
    RecordingWindows windows;
    NoticeHistory history;
    Ui ui{models, desktop.services, theme, painter, windows, history};
};

/// Shows a window, and gives it the keyboard.
inline void open(QWidget& window, QSize size = {}) {
    if (size.isValid()) window.resize(size);
    window.show();
    window.activateWindow();
    QApplication::setActiveWindow(&window);
    QCoreApplication::processEvents();
}

/// Presses keys by their portable text ("Ctrl+Shift+S", "Ctrl+K") where the keyboard is.
inline void press(const char* keys) {
    auto* focus = QApplication::focusWidget();
    QTest::keySequence(focus ? focus : QApplication::activeWindow(),
                       QKeySequence::fromString(QString::fromLatin1(keys)));
    QCoreApplication::processEvents();
}

/// Clicks the left button at a place of a widget.
inline void click(QWidget& widget, QPointF at, Qt::KeyboardModifiers keys = {}) {
    QTest::mouseMove(&widget, at.toPoint());
    QTest::mouseClick(&widget, Qt::LeftButton, keys, at.toPoint());
    QCoreApplication::processEvents();
}

/// The first widget of a class within another; null for none.
template <class Widget>
Widget* child(const QWidget& in) {
    for (auto* one : in.findChildren<QWidget*>())
        if (auto* found = dynamic_cast<Widget*>(one)) return found;
    return nullptr;
}

/// What a drag over a widget and the drop on it come to.
struct Dropping {
    bool entered = false; ///< it offers to take it
    bool taken = false;
    Qt::DropAction action = Qt::IgnoreAction;
};
inline Dropping drop(QWidget& on, QPointF at, const QMimeData& data,
                     Qt::KeyboardModifiers keys = {}) {
    Dropping result;
    const auto actions = Qt::CopyAction | Qt::MoveAction;
    QDragEnterEvent enter(at.toPoint(), actions, &data, Qt::LeftButton, keys);
    QCoreApplication::sendEvent(&on, &enter);
    result.entered = enter.isAccepted();
    if (!result.entered) return result;
    QDragMoveEvent move(at.toPoint(), actions, &data, Qt::LeftButton, keys);
    QCoreApplication::sendEvent(&on, &move);
    QDropEvent dropped(at, actions, &data, Qt::LeftButton, keys);
    dropped.ignore();
    QCoreApplication::sendEvent(&on, &dropped);
    result.taken = dropped.isAccepted();
    result.action = dropped.dropAction();
    return result;
}

/// The first accessible thing of that name within a widget, itself included; null for none.
inline QAccessibleInterface* accessible(QAccessibleInterface* in, const QString& name) {
    if (!in || in->text(QAccessible::Name) == name) return in;
    for (int i = 0; i < in->childCount(); ++i)
        if (auto* found = accessible(in->child(i), name)) return found;
    return nullptr;
}
inline QAccessibleInterface* accessible(QWidget& in, const char* name) {
    return accessible(QAccessible::queryAccessibleInterface(&in), QString::fromUtf8(name));
}

/// The same among what is to be seen.
inline QAccessibleInterface* visible(QAccessibleInterface* in, const QString& name) {
    if (!in || in->state().invisible) return nullptr;
    if (in->text(QAccessible::Name) == name) return in;
    for (int i = 0; i < in->childCount(); ++i)
        if (auto* found = visible(in->child(i), name)) return found;
    return nullptr;
}
inline QAccessibleInterface* visible(QWidget& in, const char* name) {
    return visible(QAccessible::queryAccessibleInterface(&in), QString::fromUtf8(name));
}

/// Presses an accessible button or chooses an accessible item.
inline bool doDefault(QAccessibleInterface* thing) {
    if (!thing || !thing->actionInterface()) return false;
    const auto names = thing->actionInterface()->actionNames();
    if (names.isEmpty()) return false;
    thing->actionInterface()->doAction(names.first());
    QCoreApplication::processEvents();
    return true;
}

/// The accessible children of a widget, a line each: "name; value; description". Descriptions begin
/// with the value, which stands once.
inline std::vector<std::string> children(QWidget& of) {
    std::vector<std::string> lines;
    auto* in = QAccessible::queryAccessibleInterface(&of);
    for (int i = 0; in && i < in->childCount(); ++i) {
        const auto* child = in->child(i);
        const auto value = child->text(QAccessible::Value);
        auto said = child->text(QAccessible::Description);
        if (said.startsWith(value)) said.remove(0, value.size());
        if (!value.isEmpty() && said.startsWith(QStringLiteral(", "))) said.remove(0, 2);
        lines.push_back(toUtf8(
            QStringList{child->text(QAccessible::Name), value, said}.join(QStringLiteral("; "))));
    }
    return lines;
}

/// Keeps a picture of a widget as NAME.png in the folder that TINTRA_GRABS names, to be looked at;
/// without one nothing is kept. QT_SCALE_FACTOR=2 gives pictures of a fine screen.
inline QPixmap grab(QWidget& widget, const std::string& name) {
    QCoreApplication::processEvents();
    const auto picture = widget.grab();
    const auto folder = qEnvironmentVariable("TINTRA_GRABS");
    if (!folder.isEmpty()) picture.save(folder + u'/' + fromUtf8(name) + QStringLiteral(".png"));
    return picture;
}

} // namespace tintra::test
