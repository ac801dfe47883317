#include "tests/ui/Desk.h"
#include "tests/ui/Parts.h"
#include "ui/contrast/ContrastBody.h"

#include <gtest/gtest.h>

namespace tintra::test {
namespace {

struct Named {
    const char *name, *code;
};
constexpr Named kHarbour[] = {
    {"Ink Well", "#14213d"},     {"Harbour", "#1f4e79"}, {"Slack Tide", "#3e7cb1"},
    {"Morning Haze", "#a3c9e2"}, {"Salt", "#eef1ec"},    {"Buoy", "#f4a93b"},
    {"Signal", "#e4572e"},       {"Dry Dock", "#8f2d20"}, {"Rope", "#cbae82"},
    {"Kelp", "#36543a"},         {"Lichen", "#9db17c"},
};

void grabAll(Appearance appearance, bool highContrast, const std::string& suffix) {
    Desk desk(appearance);
    desk.settings.prefersHighContrast = highContrast;
    desk.applyStyle();
    auto& board = desk.models.contrast();
    for (const auto& [name, code] : kHarbour)
        board.hold(name, *WashColor::fromHex(code));
    board.setRole(Contrast::Role::text, Uuid(board.entries()[2].id));
    board.setRole(Contrast::Role::ground, Uuid(board.entries()[4].id));
    ContrastBody body(desk.ui, nullptr);
    open(body, {1120, 644});
    grab(body, "contrast-pair" + suffix);
    open(body, {720, 436});
    grab(body, "contrast-pair-small" + suffix);
    board.mode = ContrastBoard::Mode::matrix;
    open(body, {992, 608});
    grab(body, "contrast-matrix" + suffix);
    board.target = Contrast::Target::parts;
    grab(body, "contrast-matrix-parts" + suffix);
    open(body, {720, 436});
    grab(body, "contrast-matrix-small" + suffix);
    board.target = Contrast::Target::aa;
    board.mode = ContrastBoard::Mode::ladder;
    board.setRole(Contrast::Role::ground, Uuid(board.entries()[0].id));
    open(body, {920, 660});
    grab(body, "contrast-ladder" + suffix);
    board.clear();
    open(body, {560, 300});
    grab(body, "contrast-empty" + suffix);
}

TEST(ContrastGrab, All) {
    grabAll(Appearance::light, false, "");
    grabAll(Appearance::dark, false, "-dark");
    grabAll(Appearance::dark, true, "-hcd");
}

} // namespace
} // namespace tintra::test
