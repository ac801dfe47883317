"""The same job without the mouse."""

from desktop import until
from user import agree


def tell(user, desktop):
    tintra = user.starts()
    types_values(user, tintra)
    names_and_edits(user, tintra)
    goes_through_menus(user, tintra)
    folds_and_moves(user, tintra)
    saves(user, tintra, desktop.home / "Keys.gpl")


def types_values(user, tintra):
    tintra.has_focus("list", "Empty palette")
    user.keys("Down")
    tintra.has_focus("push button", "Type or paste values")
    user.keys("Return")
    tintra.has_focus("text", "Values")
    user.types("#e4572e\n#f3a712\n#a8c686")
    tintra.sees("label", "3 colours read")
    user.keys("Tab")
    tintra.has_focus("push button", "Add to Palette")
    user.keys("space")
    tintra.has_focus("list item", "Volcanic Blast")
    user.finds_colours(["#e4572e", "#f3a712", "#a8c686"])


def names_and_edits(user, tintra):
    user.keys("Right")
    tintra.has_focus("list item", "Orange Pospsicle")
    user.keys("F2")
    tintra.has_focus("text", "Name of the swatch")
    user.writes("Amber\n")
    tintra.has_focus("list item", "Amber")

    user.keys("Return")
    tintra.sees("slider", "Lightness")
    user.presses_key_until("Tab", lambda: any(
        node.role == "slider" and node.name == "Lightness" for node in tintra.focus()))
    before = user.colours()
    user.keys("shift+Left", "shift+Left", "Return")
    until("a darker colour", lambda: user.colours()[1] < before[1])
    user.keys("Escape")
    tintra.has_focus("list item", "Amber")
    user.keys("ctrl+z")
    user.finds_colours(before)
    user.keys("1")
    user.finds_copied("#f3a712")


def goes_through_menus(user, tintra):
    user.keys("F10")
    tintra.has_focus("menu item", "File")
    user.keys("Escape", "Escape")
    tintra.has_focus("list item", "Amber")
    tintra.misses("menu bar")

    user.keys("bracketleft", "alt")
    tintra.has_focus("menu item", "File")
    user.keys("Right", "Right")
    tintra.sees_menu_item("Harmony")
    user.keys("Down", "Down", "Right")
    tintra.has_focus("menu item", "Colour Ramp")
    user.keys("Down", "Return")
    tintra.has_focus("cell", "Orange Pospsicle")
    user.keys("h")
    tintra.sees_notice("Added 1 to the palette · 1 already there")
    user.keys("ctrl+z")
    tintra.has_focus("cell")
    user.presses_key_until("F6", lambda: any(
        node.name.startswith("Mode:") for node in tintra.focus()))
    user.keys("space", "Up", "Return")
    tintra.sees("push button", "Mode: Palette")
    user.presses_key_until("F6", lambda: any(node.name == "Amber" for node in tintra.focus()))


def folds_and_moves(user, tintra):
    user.keys("ctrl+shift+Left")
    user.finds_colours(["#f3a712", "#e4572e", "#a8c686"])
    user.keys("shift+F10")
    tintra.sees_menu_item("Rename")
    user.keys("Up", "Return")
    user.finds_colours(["#e4572e", "#a8c686"])
    user.keys("ctrl+z")
    user.finds_colours(["#f3a712", "#e4572e", "#a8c686"])
    user.keys("ctrl+m")
    until("the strip", lambda: tintra.windows()[0].rect[3] < 100)
    user.keys("ctrl+m")
    until("the window", lambda: tintra.windows()[0].rect[3] > 400)
    tintra.sees_names("list item", ["Amber", "Volcanic Blast", "Gnome Green"])


def saves(user, tintra, file):
    user.keys("ctrl+shift+s")
    tintra.sees_active("Save Untitled Palette As")
    tintra.has_focus("text", "Name")
    user.writes("Keys")
    user.presses_key_until("shift+Tab", lambda: any(
        node.name == "Adobe Swatch Exchange" for node in tintra.focus()))
    user.keys("Down", "Down")
    tintra.sees("label", "GIMP Palette")
    user.keys("Return")
    tintra.sees_title("Keys — Tintra")
    agree(user.reads(file), [("#f3a712", "Amber"), ("#e4572e", "Volcanic Blast"),
                             ("#a8c686", "Gnome Green")], "the file")
    user.keys("ctrl+q")
    tintra.ends()
