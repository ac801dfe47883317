"""A palette from nothing to a file and back, mostly with the mouse."""

from desktop import png, until
from user import agree

PASTED = ["#e4572e", "#f3a712", "#a8c686", "#669bbc", "#29335c"]
FIELDS = [(200, 40, 40), (40, 160, 90), (30, 60, 180), (240, 200, 60)]


def tell(user, desktop):
    tintra = user.starts()
    tintra.sees_title("Untitled Palette — Tintra")
    tintra.sees("push button", "Type or paste values")

    pastes_and_types(user, tintra)
    renames_and_edits(user, tintra)
    adds_a_harmony(user, tintra)
    adds_a_picture(user, tintra, desktop)
    saves_and_quits(user, tintra, desktop.home / "Harbour.gpl")
    looks_in_every_way(user, desktop.home / "Harbour.gpl")


def pastes_and_types(user, tintra):
    user.copies("\n".join(PASTED))
    user.keys("ctrl+v")
    tintra.sees_notice("Added 5 to the palette")
    tintra.sees_title("Untitled Palette* — Tintra")

    user.presses("Type or Paste Values…")
    tintra.has_focus("text")
    user.types("rebeccapurple\nhsl(20 80% 50%)\nno colour")
    tintra.sees("label", "2 colours read")
    user.presses("Add to Palette")
    user.finds_colours(PASTED + ["#663399", "#e65d1a"])


def renames_and_edits(user, tintra):
    swatch = tintra.sees("list item", "Rebecca Purple")
    user.clicks(swatch)
    x, y = user.place(swatch, 0, 1)
    user.clicks((x + 30, y - 36))  # its name stands above its code
    tintra.has_focus("text", "Name of the swatch")
    user.writes("Royal & <b>\n")
    swatch = tintra.sees("list item", "Royal & <b>")

    user.clicks(swatch, times=2)
    track = tintra.sees("slider", "Lightness")
    user.drags(user.place(track, 0.3), user.place(track, 0.8))
    until("a lighter colour", lambda: track.value > 0.7)
    agree(user.colours()[5], "#663399", "the palette before Apply")
    user.presses("Apply")
    until("the edited colour in the palette", lambda: user.colours()[5] > "#a00000")
    edited = user.colours()[5]
    user.presses("Close the editor")
    tintra.has_focus("list item", "Royal & <b>")
    user.keys("ctrl+c")
    user.finds_copied(edited)
    user.keys("ctrl+z")
    tintra.sees_notice("Undid colour change")
    user.finds_colours(PASTED + ["#663399", "#e65d1a"])
    user.keys("ctrl+y")
    user.finds_colours(PASTED + [edited, "#e65d1a"])


def adds_a_harmony(user, tintra):
    user.presses("Mode: Palette")
    user.chooses("Triadic")
    user.presses("First seed")
    tintra.has_focus("text")
    user.writes("tomato\n")
    tintra.sees("cell", "Bruschetta Tomato")
    user.presses("Add Harmony to Palette")
    tintra.sees_notice("Added 3 to the palette")
    user.presses("Mode: Triadic")
    user.chooses("Palette")
    until("the harmony in the palette",
          lambda: user.colours()[7:] == ["#ff6347", "#47ff63", "#6347ff"])


def adds_a_picture(user, tintra, desktop):
    picture = desktop.home / "fields.png"
    rows = [bytes(part for x in range(320) for part in FIELDS[x // 80])] * 240
    png(picture, 320, 240, rows)
    user.presses("Open Picture…")
    tintra.sees_active("Open")
    user.writes(f"{picture}\n")
    canvas = tintra.sees("graphic", "Picture, fields.png")
    pins = lambda: tintra.everything.all("push button", lambda name: name.startswith("Pin "))
    until("a pin a field", lambda: len(pins()) == 4)
    user.clicks(user.place(canvas, 0.06))
    until("the pin that was set", lambda: len(pins()) == 5)
    until("its colour in the palette", lambda: user.colours()[10:] == ["#c82828"])
    user.presses("Add All to Palette")
    tintra.sees_active("Add 5 colours to this palette?")
    user.presses("Add to Palette")
    user.presses("Close the Picture")
    until("the picture's colours in the palette", lambda: sorted(user.colours()[10:]) == sorted(
        "#" + bytes(field).hex() for field in FIELDS))


def saves_and_quits(user, tintra, file):
    user.presses("Save As…")
    tintra.sees_active("Save Untitled Palette As")
    user.presses("GIMP Palette", "list item")
    user.clicks(tintra.sees("text", "Name"))
    user.writes("Harbour")
    user.presses("Save")
    tintra.sees_title("Harbour — Tintra")
    agree([code for code, _ in user.reads(file)], user.colours(), "the file")
    agree(user.reads(file)[5][1], "Royal & <b>", "the name in the file")

    saved = user.colours()
    user.clicks(tintra.sees("list item", "Royal & <b>"))
    user.keys("Delete")
    user.finds_colours(saved[:5] + saved[6:])
    user.keys("ctrl+z")
    user.finds_colours(saved)

    user.drags(tintra.sees("list item", "Volcanic Blast"),
               user.place(tintra.sees("list item", "Gnome Green"), 0.8))
    moved = saved[1:3] + saved[:1] + saved[3:]
    user.finds_colours(moved)
    user.keys("ctrl+q")
    tintra.sees_active("Save changes to Harbour?")
    user.presses("Cancel")
    tintra.misses("dialog")
    user.keys("ctrl+q")
    tintra.sees_active("Save changes to Harbour?")
    user.presses("Save")
    tintra.ends()
    agree([code for code, _ in user.reads(file)], moved, "the file that was saved at the end")


def looks_in_every_way(user, file):
    tintra = user.starts()
    tintra.sees_title("Harbour — Tintra")
    tintra.sees_names("list item", [name for _, name in user.reads(file)])

    user.presses("Tiles", "radio button")
    tintra.sees("push button", "Add a swatch")
    user.presses("Columns", "radio button")
    tintra.misses("push button", "Add a swatch")

    user.presses("Vision: Typical Vision")
    user.chooses("Deuteranopia")
    tintra.sees("push button", "Vision: Deuteranopia")

    whole = tintra.windows()[0].rect
    user.keys("ctrl+m")
    until("the strip", lambda: tintra.windows()[0].rect[3] < 100)
    user.clicks(tintra.sees("push button", "Expand"))
    until("the window as it was", lambda: tintra.windows()[0].rect == whole)
    user.keys("ctrl+q")
    tintra.ends()
