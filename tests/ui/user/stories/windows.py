"""Several palettes, Bench, Contrast and Library at once: each knows of the others, quitting asks for
each, and all of them come back."""

from desktop import until
from user import agree

CLEAN, DIRTY = "Harbour — Tintra", "Harbour* — Tintra"


def tell(user, desktop):
    file = desktop.home / "Harbour.gpl"
    file.write_text("GIMP Palette\nName: Harbour\n#\n 62 124 177\tSea\n203 174 130\tSand\n")
    tintra = user.starts(file)
    tintra.sees_title(CLEAN)
    saves_in_both(user, tintra, file)
    goes_from_one_to_the_other(user, tintra)
    opens_the_rest(user, tintra)
    quits(user, tintra)


def palettes(tintra, title):
    """The names of the swatches, of every window whose title begins so."""
    return [[swatch.name for swatch in window.find("list", "Palette").all("list item")]
            for window in tintra.windows() if window.name.startswith(title)]


def finds(tintra, title, *wanted):
    until(lambda: f"{wanted} in {title}; there are {palettes(tintra, title)}",
          lambda: palettes(tintra, title) == list(wanted))


def renames_the_first(user, tintra, was, name):
    user.keys("Home")
    tintra.has_focus("list item", was)
    user.keys("F2")
    tintra.has_focus("text", "Name of the swatch")
    user.writes(f"{name}\n")
    tintra.sees_title(DIRTY)


def saves_in_both(user, tintra, file):
    user.keys("ctrl+shift+n")
    user.has_in_front("Untitled Palette")
    user.keys("ctrl+o")
    tintra.sees_active("Open")
    user.writes(f"{file}\n")
    finds(tintra, CLEAN, ["Sea", "Sand"], ["Sea", "Sand"])
    renames_the_first(user, tintra, "Sea", "Ocean")
    user.keys("ctrl+s")
    tintra.sees_notice("Updated from another window’s save")
    finds(tintra, CLEAN, ["Ocean", "Sand"], ["Ocean", "Sand"])

    # Unsaved here, and saved there: the one who saves is asked.
    renames_the_first(user, tintra, "Ocean", "Deep")
    user.goes_to(CLEAN)
    renames_the_first(user, tintra, "Ocean", "Surf")
    user.keys("ctrl+s")
    finds(tintra, CLEAN, ["Surf", "Sand"])
    user.goes_to(DIRTY)
    user.keys("ctrl+s")
    tintra.sees_active("“Harbour” was saved from another window after this one loaded it.")
    user.presses("Replace")
    finds(tintra, CLEAN, ["Deep", "Sand"], ["Deep", "Sand"])
    agree([name for _, name in user.reads(file)], ["Deep", "Sand"], "the file")


def goes_from_one_to_the_other(user, tintra):
    for keys, colour, name in (("ctrl+n", "#d62828", "Untitled Palette"),
                               ("ctrl+shift+n", "#6a994e", "Untitled Palette 2")):
        user.keys(keys)
        user.has_in_front(f"{name} — Tintra")
        user.copies(colour)
        user.keys("ctrl+v")
        tintra.sees_title(f"{name}* — Tintra")
    for name, title in ("Untitled Palette", "Untitled Palette* — Tintra"), ("Harbour", CLEAN):
        user.keys("F10", "Left", "Left")
        user.chooses(name)
        user.has_in_front(title)


def opens_the_rest(user, tintra):
    """What a palette sends goes there, and the front window stays where it is."""
    user.keys("Home", "b")
    tintra.window("Bench — Tintra").find("list item", "Deep, PALETTE")
    user.keys("k", "ctrl+t")
    user.has_in_front("Contrast — Tintra")
    tintra.sees("list item", "Deep")
    user.keys("ctrl+l")
    user.has_in_front("Library — Tintra")


def quits(user, tintra):
    user.puts("Library — Tintra", 600, 300, 700, 500)
    user.puts("Harbour — Tintra", 40, 60, 640, 420)
    user.keys("ctrl+q")
    tintra.sees_active("Save changes to this palette?")
    user.presses("Cancel")
    tintra.misses("dialog")
    user.starts_again("Discard", "Discard")
    finds(user.tintra, CLEAN, ["Deep", "Sand"])
    finds(user.tintra, "Untitled Palette", ["Chi-Gong"], ["Lattice Green"])
    # And what was linked is linked.
    user.goes_to(CLEAN)
    renames_the_first(user, user.tintra, "Deep", "Tide")
    user.tintra.window("Bench — Tintra").find("list item", "Tide, PALETTE")
