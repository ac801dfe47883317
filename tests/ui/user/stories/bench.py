"""Colours side by side on the Bench and mixed there: with the mouse, without it, and once more
after a restart."""

from desktop import until
from user import agree

PASTED = ["#e4572e", "#f3a712", "#a8c686", "#669bbc"]
VOLCANIC, ORANGE, GREEN, BLUE = "Volcanic Blast", "Orange Pospsicle", "Gnome Green", "Shakespeare"
BENCH, PALETTE = "Bench — Tintra", "Untitled Palette"


def tell(user, desktop):
    tintra = user.starts()
    user.copies("\n".join(PASTED))
    user.keys("ctrl+v")
    user.finds_colours(PASTED)
    user.opens("Bench", "ctrl+b")
    tintra.sees("label", "Lay colours side by side")
    user.puts(BENCH, 640, 40, 900, 620)
    user.puts(PALETTE, 20, 40, 560, 500)

    sends_colours(user, tintra)
    mixes_with_the_mouse(user, tintra)
    works_by_keyboard(user, tintra)
    follows_its_swatch(user, tintra)
    clears(user, tintra)
    comes_back(user)


def columns(tintra):
    """What a screen reader says of columns and wells, in order: name, and code or share."""
    return [(node.name, node.description.rsplit(", ", 1)[0] if " of " in node.description
             else node.description) for node in tintra.window(BENCH).find("list", "Bench").children
            if node.role == "list item"]


def finds(tintra, *wanted):
    until(lambda: f"{wanted} on the Bench; there are {columns(tintra)}",
          lambda: [name for name, _ in columns(tintra)] == list(wanted))


def on_bench(tintra, name, role="list item"):
    return tintra.window(BENCH).find(role, lambda text: text.startswith(name))


def in_palette(tintra, name):
    return tintra.window(PALETTE).find("list item", name)


def sends_colours(user, tintra):
    user.clicks(in_palette(tintra, VOLCANIC))
    user.keys("b")
    tintra.sees_notice("Added #E4572E to the Bench")
    finds(tintra, f"{VOLCANIC}, PALETTE")
    agree(columns(tintra)[0][1], "#e4572e", "the code on the Bench")
    user.clicks(in_palette(tintra, ORANGE), button=3)
    user.chooses("Put on the Bench")
    tintra.sees_notice("Added #F3A712 to the Bench")
    user.carries(in_palette(tintra, BLUE), user.place(on_bench(tintra, VOLCANIC), 0.1, 0.8))
    finds(tintra, f"{BLUE}, PALETTE", f"{VOLCANIC}, PALETTE", f"{ORANGE}, PALETTE")
    tintra.sees_notice("Added #669BBC to the Bench")

    # Sent once more it goes, and dropped once more it is refused.
    user.goes_to(PALETTE)
    user.keys("b")
    tintra.sees_notice("Took #669BBC off the Bench")
    finds(tintra, f"{VOLCANIC}, PALETTE", f"{ORANGE}, PALETTE")
    user.carries(in_palette(tintra, VOLCANIC), user.place(on_bench(tintra, ORANGE), 0.8, 0.8))
    tintra.sees_notice("#E4572E is already on the Bench, from this palette")
    user.goes_to(BENCH)
    user.copies("#669bbc\n#e4572e")
    user.keys("ctrl+v")
    tintra.sees_notice("Added 1 to the Bench · 1 already there")
    finds(tintra, f"{VOLCANIC}, PALETTE", f"{ORANGE}, PALETTE", f"{BLUE}, STAGED")
    figure = tintra.window(BENCH).find("label", f"{VOLCANIC} and {ORANGE}")
    agree(figure.description, "1.81, under 3 to 1", "what is said of two neighbours")


def mixes_with_the_mouse(user, tintra):
    first, second, third = f"{VOLCANIC}, PALETTE", f"{ORANGE}, PALETTE", f"{BLUE}, STAGED"
    well = f"Mix of {VOLCANIC} and {ORANGE}"
    user.clicks(tintra.sees("push button", f"Mix {VOLCANIC} with {ORANGE}"))
    finds(tintra, first, second, third, well)
    assert columns(tintra)[3][1].startswith("50 to 50, #"), columns(tintra)

    # Wells and an order do not go together, and it says so.
    user.carries(on_bench(tintra, BLUE), user.place(on_bench(tintra, VOLCANIC), 0.1, 0.8))
    tintra.sees_notice("Reordering is paused while a well is on the Bench")
    finds(tintra, first, second, third, well)
    user.clicks(on_bench(tintra, "Mix of"))
    ratio = tintra.sees("slider", "Ratio")
    user.drags(user.place(ratio, 0.5), user.place(ratio, 0.8))
    until("more of the second colour", lambda: ratio.value > 70)
    user.clicks(tintra.sees("list item", "80 to 20"))
    until("the ratio of the ramp", lambda: ratio.value == 20)
    white = tintra.sees("slider", "White")
    user.clicks(user.place(white, 0.4))
    until("a lighter mix", lambda: white.value > 0.3)
    mixed = columns(tintra)[3][1].split(", ")[1]
    user.keys("ctrl+c")
    user.finds_copied(mixed)
    user.presses("Keep the Mix as a Colour")
    until("the mix as a column", lambda: columns(tintra)[-1][1] == mixed
          and columns(tintra)[-1][0].endswith("DERIVED · STAGED"))
    tintra.misses("slider", "Ratio")

    user.carries(on_bench(tintra, BLUE), user.place(on_bench(tintra, VOLCANIC), 0.1, 0.8))
    until("the other order", lambda: columns(tintra)[0][0] == third)
    user.keys("ctrl+z")
    until("the order before", lambda: columns(tintra)[0][0] == first)


def works_by_keyboard(user, tintra):
    kept = columns(tintra)[-1][0]
    plain = kept.split(",")[0]
    user.keys("Home")
    tintra.has_focus("list item", f"{VOLCANIC}, PALETTE")
    user.keys("ctrl+shift+Right")
    finds(tintra, f"{ORANGE}, PALETTE", f"{VOLCANIC}, PALETTE", f"{BLUE}, STAGED", kept)
    tintra.has_focus("list item", f"{VOLCANIC}, PALETTE")
    user.keys("Right")
    tintra.has_focus("list item", f"{BLUE}, STAGED")
    user.keys("F2")
    tintra.has_focus("text", "Name of the colour")
    user.writes("Sky\n")
    tintra.has_focus("list item", "Sky, STAGED")
    user.keys("m")
    on_bench(tintra, f"Mix of Sky and {plain}")
    user.keys("Home", "ctrl+shift+Right")
    tintra.sees_notice("Reordering is paused while a well is on the Bench")
    user.presses_key_until("Right", lambda: any(
        node.name.startswith("Mix of Sky") for node in tintra.focus()))
    user.keys("Return")
    tintra.has_focus("slider", "Ratio")
    user.keys("shift+Right")
    until("the ratio by key", lambda: tintra.sees("slider", "Ratio").value == 60)
    user.keys("Escape")
    tintra.has_focus("list item", f"Mix of Sky and {plain}")
    user.keys("ctrl+Return")
    until("the second mix as a column", lambda: len(columns(tintra)) == 5)
    user.keys("Delete")
    until("one column less", lambda: len(columns(tintra)) == 4)
    # As a screen reader presses it.
    tintra.sees("push button", f"Mix {ORANGE} with {VOLCANIC}").acts("Press")
    on_bench(tintra, f"Mix of {ORANGE} and {VOLCANIC}")


def follows_its_swatch(user, tintra):
    user.goes_to(PALETTE)
    user.clicks(in_palette(tintra, VOLCANIC))
    user.keys("F2")
    tintra.has_focus("text", "Name of the swatch")
    user.writes("Ember\n")
    on_bench(tintra, "Ember, PALETTE")
    user.keys("Return")
    user.presses_key_until("Tab", lambda: any(
        node.role == "slider" and node.name == "Lightness" for node in tintra.focus()))
    user.keys("shift+Left", "shift+Left", "Return")
    until("a darker colour", lambda: user.colours()[0] != PASTED[0])
    until("the same on the Bench", lambda: dict(columns(tintra))["Ember, PALETTE"]
          == user.colours()[0])
    user.keys("Escape")


def clears(user, tintra):
    user.goes_to(BENCH)
    before = columns(tintra)
    for answer in "Cancel", "Clear":
        user.keys("ctrl+shift+Delete")
        tintra.sees_active("Clear the Bench?")
        tintra.sees("label", lambda text: text.startswith("Not in any open palette: 1 colour and 1 mix."))
        user.presses(answer)
        tintra.sees_active(BENCH)
        agree(len(columns(tintra)), 0 if answer == "Clear" else len(before), "what is left")
    tintra.sees("label", "Lay colours side by side")
    user.keys("ctrl+z")
    tintra.sees_notice("Undid clearing the Bench")
    until("all of it back", lambda: columns(tintra) == before)


def comes_back(user):
    """Open, in its place, with what stood on it, what was active, and what is linked."""
    user.starts_again("Discard")
    stored = user.record("TintraBench")
    agree([column["kind"] for column in stored["columns"]],
          ["paletteSwatch", "paletteSwatch", "staged", "derived"], "the kinds written down")
    user.goes_to(PALETTE)
    user.keys("Home", "Delete")
    on_bench(user.tintra, "Ember, STAGED")
    user.keys("ctrl+z")
    on_bench(user.tintra, "Ember, PALETTE")
