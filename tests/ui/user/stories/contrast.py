"""Which colours read on which: the pair, the matrix and the ladder, with the mouse, without it, and
once more after a restart."""

from desktop import until
from user import agree, code

PASTED = ["#e4572e", "#f3a712", "#a8c686", "#669bbc", "#29335c"]
VOLCANIC, ORANGE, GREEN, BLUE, QUILL = (
    "Volcanic Blast", "Orange Pospsicle", "Gnome Green", "Shakespeare", "Quill Tip")
CONTRAST, PALETTE = "Contrast — Tintra", "Untitled Palette"


def tell(user, desktop):
    tintra = user.starts()
    user.copies("\n".join(PASTED))
    user.keys("ctrl+v")
    user.finds_colours(PASTED)
    user.opens("Contrast", "ctrl+t")
    tintra.sees("push button", "Ground")
    user.puts(CONTRAST, 520, 40, 1060, 760)
    user.puts(PALETTE, 20, 40, 480, 500)

    sends_colours(user, tintra)
    reads_a_pair(user, tintra)
    makes_it_readable(user, tintra)
    reads_every_pair(user, tintra)
    reads_a_ladder(user, tintra)
    sorts(user, tintra)
    comes_back(user, tintra)


def entries(tintra):
    return [(node.name, node.description) for node in tintra.window(CONTRAST).find(
        "list", "Colours").children if node.role == "list item"]


def held(tintra, name):
    return tintra.window(CONTRAST).find("list", "Colours").find("list item", name)


def in_palette(tintra, name):
    return tintra.window(PALETTE).find("list item", name)


def finds_pair(tintra, text, ground):
    return tintra.window(CONTRAST).find("label", f"{text} on {ground}")


def figure(tintra):
    """The big one: the last of that name, the heading of the specimen being the first."""
    return tintra.window(CONTRAST).all("label", lambda name: " on " in name)[-1].description


def finds_figure(tintra, words):
    until(lambda: f"the figure “{words}”; it is “{figure(tintra)}”",
          lambda: words in figure(tintra))


def sends_colours(user, tintra):
    user.clicks(in_palette(tintra, QUILL))
    user.keys("k")
    tintra.sees_notice("Sent #29335C to Contrast")
    user.clicks(in_palette(tintra, VOLCANIC), button=3)
    user.chooses("Send to Contrast as Ground")
    tintra.sees_notice("#E4572E is the ground in Contrast")
    finds_pair(tintra, QUILL, VOLCANIC)
    user.carries(in_palette(tintra, GREEN), tintra.window(CONTRAST).find("list", "Colours"))
    tintra.sees_notice("Sent #A8C686 to Contrast")
    user.carries(in_palette(tintra, ORANGE), tintra.sees("list", "Specimen"))
    finds_pair(tintra, QUILL, ORANGE)
    user.goes_to(PALETTE)
    user.keys("k")
    tintra.sees_notice("#F3A712 is already in Contrast")
    user.keys("ctrl+shift+k")
    tintra.sees_notice("Sent 1 to Contrast · 4 already there")
    tintra.sees("table", "Every pair")


def reads_a_pair(user, tintra):
    user.goes_to(CONTRAST)
    user.keys("ctrl+1")
    user.clicks(held(tintra, GREEN))
    user.keys("g")
    finds_pair(tintra, QUILL, GREEN)
    finds_figure(tintra, "6.43 to 1, reaches 4.5 to 1")
    tintra.sees("label", lambda name: name.startswith(
        "Normal text under WCAG 2.2: passes AA at 4.5:1, fails AAA at 7:1"))
    user.clicks(held(tintra, BLUE))
    user.keys("t")
    finds_pair(tintra, BLUE, GREEN)
    user.keys("x")
    finds_pair(tintra, GREEN, BLUE)
    user.presses("Swap the text and the ground")
    finds_pair(tintra, BLUE, GREEN)

    user.goes_to(CONTRAST)
    user.keys("F2")
    tintra.has_focus("text", "Specimen")
    user.writes("Harbour at dusk")
    user.keys("ctrl+Return")
    tintra.has_focus("label", "Specimen")
    assert "Harbour at dusk" in tintra.sees("label", "Specimen").description
    user.presses("APCA", "radio button")
    finds_figure(tintra, "Lc ")
    user.presses("WCAG", "radio button")
    finds_figure(tintra, " to 1")


def makes_it_readable(user, tintra):
    """Until the target is reached: by what is proposed, and by hand."""
    user.clicks(held(tintra, BLUE), button=3)
    user.chooses("Rename…")
    tintra.has_focus("text", "Name of the colour")
    user.writes("Sea\n")
    finds_pair(tintra, "Sea", GREEN)
    user.presses("Target: AA · normal text, 4.5")
    user.chooses("AAA · normal text, 7.0")
    tintra.sees("push button", "Target: AAA · normal text, 7.0")
    before = entries(tintra)
    ways = tintra.sees("list", "Ways to reach the target")
    user.clicks(ways.find("push button", "Use"))
    user.keys("F8")
    notice = tintra.sees_notice("Replaced #669BBC with ")
    agree(notice.description, "Undo", "what the notice offers")
    tintra.sees("label", "This pair already reaches it.")
    user.clicks(notice)
    until("the colour before", lambda: entries(tintra) == before)

    user.goes_to(CONTRAST)
    user.clicks(held(tintra, GREEN))
    user.presses_key_until("Tab", lambda: any(
        node.name == "Lightness of the text" for node in tintra.focus()))
    user.keys("Home")
    finds_figure(tintra, "11.0 to 1")
    tintra.sees("label", "This pair already reaches it.")


def reads_every_pair(user, tintra):
    user.presses("Matrix", "radio button")
    cell = tintra.sees("cell", f"{QUILL} on {GREEN}")
    agree(cell.description, "6.43 to 1, reaches 4.5 to 1, AA for body text, fails", "what is said of a cell")
    user.clicks(cell)
    user.keys("ctrl+shift+c")
    user.finds_copied("6.43:1")
    user.keys("Right")
    tintra.has_focus("cell", f"{QUILL} on {ORANGE}")
    user.keys("Return")
    finds_pair(tintra, QUILL, ORANGE)
    user.keys("ctrl+2")
    user.clicks(tintra.sees("cell", f"{QUILL} on {VOLCANIC}"), times=2)
    finds_pair(tintra, QUILL, VOLCANIC)
    user.keys("ctrl+2")
    user.clicks(tintra.sees("cell", f"{QUILL} on {VOLCANIC}"), button=3)
    user.chooses("Copy the Matrix as a Table")
    tintra.sees_notice("Copied the matrix as a table")
    rows = [line.split("\t") for line in user.clipboard().splitlines()]
    names = rows[0][1:]
    agree(names, [QUILL, VOLCANIC, GREEN, ORANGE, "Sea"], "the names of columns")
    agree([row[0] for row in rows[1:]], names, "the names of rows")
    assert "6.43 AA" in rows[1 + names.index(QUILL)][1 + names.index(GREEN)], rows


def reads_a_ladder(user, tintra):
    user.keys("ctrl+3")
    finds_rows(tintra, "Sea", QUILL, GREEN, ORANGE)
    agree([said for _, said in rows(tintra)][1:], ["3.31 to 1", "1.94 to 1", "1.81 to 1"],
          "the figures on the first ground")
    user.presses(f"Fixed colour: {VOLCANIC}")
    user.chooses(GREEN)
    finds_rows(tintra, "Sea", QUILL, VOLCANIC, ORANGE)
    agree(dict(rows(tintra))[QUILL], "6.43 to 1", "a figure on the second")
    user.presses("Text", "radio button")
    tintra.sees("push button", f"Fixed colour: {QUILL}")
    user.presses("APCA", "radio button")
    until("Lc of every row", lambda: all("Lc " in said for _, said in rows(tintra)))
    user.presses("WCAG", "radio button")


def rows(tintra):
    return [(node.name, node.description.split(",")[0])
            for node in tintra.sees("list", "Every colour against one").all("list item")]


def finds_rows(tintra, *wanted):
    until(lambda: f"{wanted} in the ladder; there are {rows(tintra)}",
          lambda: [name for name, _ in rows(tintra)] == list(wanted))


def sorts(user, tintra):
    user.keys("ctrl+1")
    names = lambda: [name for name, _ in entries(tintra)]
    before = names()
    user.clicks(held(tintra, GREEN))
    user.keys("d")
    tintra.sees_notice("Sorted dark to light")
    agree(names(), ["Sea", QUILL, VOLCANIC, ORANGE, GREEN], "the order")
    user.keys("d")
    tintra.sees_notice("Already in order, dark to light")
    user.keys("shift+d")
    tintra.sees_notice("Sorted light to dark")
    user.keys("F8")
    tintra.has_focus("alert message")
    user.keys("space")
    until("the order before", lambda: names()[0] == "Sea")
    user.carries(held(tintra, GREEN), user.place(held(tintra, "Sea"), 0.5, 0.1))
    until("another order", lambda: names() == [GREEN, "Sea", QUILL, VOLCANIC, ORANGE])
    user.keys("Delete")
    tintra.sees_notice("Took #A8C686 off Contrast")


def comes_back(user, tintra):
    held_at_last = [said.split(",")[0] for _, said in entries(tintra)]
    user.keys("ctrl+2")
    user.starts_again("Discard")
    stored = user.record("TintraContrast")
    agree([code(colour) for colour in stored["colours"]], held_at_last, "the colours written down")
    agree((stored["mode"], stored["target"], stored["specimen"]),
          ("matrix", "aaa", "Harbour at dusk"), "what else is written down")
