#pragma once

#include "state/ContrastReadings.h"
#include "tests/ui/Desk.h"
#include "tests/ui/Parts.h"
#include "ui/contrast/ContrastWindow.h"
#include "ui/shared/Canvas.h"

#include <gtest/gtest.h>

#include <array>

namespace tintra::test {

struct NamedColour {
    const char *name, *code;
};
inline constexpr std::array kHarbour{
    NamedColour{"Ink Well", "#14213d"},   NamedColour{"Harbour", "#1f4e79"},
    NamedColour{"Slack Tide", "#3e7cb1"}, NamedColour{"Morning Haze", "#a3c9e2"},
    NamedColour{"Salt", "#eef1ec"},       NamedColour{"Buoy", "#f4a93b"},
    NamedColour{"Signal", "#e4572e"},     NamedColour{"Dry Dock", "#8f2d20"},
    NamedColour{"Rope", "#cbae82"},       NamedColour{"Kelp", "#36543a"},
    NamedColour{"Lichen", "#9db17c"},
};
/// Their places on the board.
enum Harbour { ink, harbour, slack, haze, salt, buoy, signal, dock, rope, kelp, lichen };

/// The contrast window with eleven colours, "Slack Tide on Salt" as the pair.
class ContrastWindowTest : public testing::Test {
protected:
    ContrastWindowTest() {
        for (const auto& [name, code] : kHarbour)
            board.hold(name, *WashColor::fromHex(code));
        pair(slack, salt);
    }
    Uuid id(std::size_t at) const { return board.entries()[at].id; }
    std::string nameOf(const ContrastBoard::Entry* entry) const {
        return entry ? board.name(*entry) : "none";
    }
    std::string names() const { return nameOf(board.text()) + " on " + nameOf(board.ground()); }
    void pair(std::size_t text, std::size_t ground) {
        board.setRole(Contrast::Role::text, id(text));
        board.setRole(Contrast::Role::ground, id(ground));
    }
    void show(ContrastBoard::Mode mode, QSize size = {1080, 760}) {
        board.mode = mode;
        open(window, size);
        desk.settle();
    }
    void focus(Canvas& canvas, int item) {
        canvas.setFocus(Qt::TabFocusReason);
        canvas.setFocused(item);
    }
    static const CanvasItem& item(const Canvas& canvas, int kind, std::size_t index = 0) {
        return canvas.items().at(static_cast<std::size_t>(canvas.find(kind, index)));
    }
    template <class Part>
    Part& part(std::size_t at = 0) {
        return *partsOf<Part>(window).at(at);
    }

    Desk desk;
    ContrastBoard& board = desk.models.contrast();
    ContrastWindow window{desk.ui};
};

} // namespace tintra::test
