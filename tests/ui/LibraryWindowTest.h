#pragma once

#include "tests/ui/LibraryDesk.h"

#include <gtest/gtest.h>

#include <QAction>

namespace tintra::test {

using Lines = std::vector<std::string>;

/// Two folders: three palettes in Studio, one in Client.
class LibraryWindowTest : public testing::Test {
protected:
    LibraryWindowTest() {
        LibraryDesk::date(
            desk.gpl("Studio/Harbour.gpl", {{"194 69 45", "Brick"}, {"20 33 61", "Ink"}}), 3);
        LibraryDesk::date(
            desk.gpl("Studio/Evening.gpl",
                     {{"10 120 60", "Moss"}, {"196 71 47", "Rust"}, {"250 240 230", "Linen"}}),
            1);
        LibraryDesk::date(desk.gpl("Studio/Café.gpl", 12, "Roast"), 2);
        LibraryDesk::date(desk.gpl("Client/Museum.gpl", {{"140 50 30", "Old Brick"}}), 5);
        desk.watch("Studio");
        desk.watch("Client");
    }
    void show(QSize size = {960, 680}) {
        open(window, size);
        desk.settle();
        canvas().setFocus(Qt::TabFocusReason);
    }
    LibraryCanvas& canvas() { return *child<LibraryCanvas>(window); }
    QLineEdit& field() { return *child<QLineEdit>(window); }
    Lines rows() {
        desk.settle();
        return LibraryDesk::rows(window);
    }
    Lines find(const char* text) {
        field().setText(QString::fromUtf8(text));
        return rows();
    }
    std::string current() {
        const auto at = canvas().focused();
        return at < 0 ? "none" : toUtf8(canvas().items()[static_cast<std::size_t>(at)].name);
    }
    QRectF rectOf(const char* name) {
        for (const auto& item : canvas().items())
            if (item.name == QString::fromUtf8(name)) return item.rect;
        ADD_FAILURE() << name << " is not in view";
        return {};
    }
    /// Chooses of the menu that is open.
    void choose(const char* text) {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr) << text;
        for (auto* one : menu->actions())
            if (one->text() == QString::fromUtf8(text)) one->trigger();
        menu->close();
        desk.settle();
    }

    LibraryDesk desk;
    Preferences& preferences = desk.models.preferences();
    LibraryWindow window{desk.ui};
};

} // namespace tintra::test
