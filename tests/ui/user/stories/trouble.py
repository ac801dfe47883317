"""Files that are none, and windows that are closed at the wrong moment. Nothing is lost."""

from desktop import png


def tell(user, desktop):
    names_what_cannot_be_read(user, desktop)
    closes_at_the_wrong_moment(user, desktop)


def names_what_cannot_be_read(user, desktop):
    (desktop.home / "nonsense.ase").write_bytes(bytes(range(256)) * 40)
    (desktop.home / "folder.gpl").mkdir()
    with open(desktop.home / "huge.gpl", "wb") as file:
        file.truncate(500_000_000)
    (desktop.home / "two.css").write_text(":root { --sea: #3e7cb1; --sand: #cbae82 }")
    for name in ("nonsense.ase", "folder.gpl", "huge.gpl", "absent.gpl"):
        tintra = user.starts(desktop.home / name)
        tintra.sees_notice("could not be read")
        user.keys("ctrl+q")
        tintra.ends()
    tintra = user.starts(desktop.home / "two.css")
    tintra.sees_names("list item", ["Sea", "Sand"])
    user.keys("ctrl+q")
    tintra.ends()


def closes_at_the_wrong_moment(user, desktop):
    tintra = user.starts()
    user.keys("ctrl+n")
    user.copies("#e4572e\n#f3a712")
    user.keys("ctrl+v")
    user.finds_colours(["#e4572e", "#f3a712"])

    # In the middle of a rename: what was typed counts.
    user.clicks(tintra.sees("list item", "Volcanic Blast"))
    user.keys("F2")
    tintra.has_focus("text", "Name of the swatch")
    user.writes("Half a na")
    user.keys("ctrl+q")
    tintra.sees_active("Save changes")
    user.presses("Discard")
    tintra.ends()

    # With a notice up, and a picture that is being read.
    rows = [bytes((x * y * 7 + x) % 251 for x in range(3 * 1500)) for y in range(1500)]
    picture = desktop.home / "large.png"
    png(picture, 1500, 1500, rows)
    tintra = user.starts()
    tintra.sees_names("list item", ["Half a na", "Orange Pospsicle"])
    user.keys("Delete")
    user.finds_colours(["#f3a712"])
    user.keys("ctrl+z")
    tintra.sees_notice("Undid palette change")
    user.keys("ctrl+shift+o")
    tintra.sees_active("Open")
    user.writes(f"{picture}\n")
    tintra.sees_active("Untitled Palette")
    user.keys("ctrl+q")
    tintra.sees_active("Save changes")
    user.presses("Discard")
    tintra.ends()
    tintra = user.starts()
    tintra.sees_names("list item", ["Half a na", "Orange Pospsicle"])
