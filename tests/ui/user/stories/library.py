"""A folder of palettes in the Library: searched, opened, copied, trashed and changed behind its back,
with the mouse, without it, and once more after a restart."""

import shutil

from desktop import until
from user import agree

FILES = {"Dusk.clr": "--plum: #5f0f40; --ember: #fb8b24",
         "Harbour.ase": "--sea: #3e7cb1; --sand: #cbae82; --rope: #a89f91",
         "Meadow.gpl": "--grass: #6a994e; --poppy: #d62828; --sky: #8ecae6; --straw: #e9c46a"}
LIBRARY = "Library — Tintra"


def tell(user, desktop):
    folder = desktop.home / "palettes"
    folder.mkdir()
    for name, colours in FILES.items():
        writes(desktop, folder / name, colours)
    (folder / "Broken.ase").write_bytes(b"ASEF" + bytes(range(200)))
    tintra = user.starts()
    user.opens("Library", "ctrl+l")
    watches(user, tintra, folder)
    searches(user, tintra)
    sorts(user, tintra)
    works_by_keyboard(user, tintra)
    keeps_files(user, tintra, desktop, folder)
    follows_the_folder(user, tintra, desktop, folder)
    names_the_folder(user, tintra)
    installs(user, tintra, desktop)
    comes_back(user)
    opens_from_the_menu(user)


def writes(desktop, file, colours):
    sheet = desktop.root / "colours.css"
    sheet.write_text(":root { " + colours + " }")
    desktop.output(str(desktop.binaries / "tintra"), "convert", "--force", str(sheet), "-o",
                   str(file))


def listed(tintra):
    """The groups and palettes that a screen reader meets, and what it says of each."""
    tree = tintra.window(LIBRARY).find("tree", "Library")
    return [(name, said) for _, _, role, name, said in tree.shown("role", "name", "description")
            if role == "tree item"]


def finds(tintra, *wanted):
    until(lambda: f"{wanted} in the Library; there are {listed(tintra)}",
          lambda: [name for name, _ in listed(tintra)] == list(wanted))


def said_of(tintra, palette, words):
    until(lambda: f"“{words}” of {palette}, of {listed(tintra)}",
          lambda: words in dict(listed(tintra)).get(palette, ""))


def palette(tintra, name):
    return tintra.window(LIBRARY).find("tree item", name)


def watches(user, tintra, folder):
    tintra.sees("label", "No folders yet.")
    user.presses("Add a Folder…")
    tintra.sees_active("Choose a folder of palette files. Tintra only reads it.")
    user.writes(f"{folder}\n")
    finds(tintra, "palettes", "Broken", "Dusk", "Harbour", "Meadow")
    said_of(tintra, "Harbour", "3 · .ase")
    said_of(tintra, "Broken", "Broken.ase could not be read")
    said_of(tintra, "palettes", "4 palettes")
    (folder / "Broken.ase").unlink()
    finds(tintra, "palettes", "Dusk", "Harbour", "Meadow")


def searches(user, tintra):
    user.clicks(tintra.sees("text", "Search the Library"))
    user.writes("dus")
    finds(tintra, "palettes", "Dusk")
    user.writes("poppy")
    finds(tintra, "palettes", "Meadow")
    said_of(tintra, "Meadow", "#d62828")
    user.writes("#3e7cb2")
    finds(tintra, "palettes", "Harbour")
    said_of(tintra, "Harbour", "Sea, #3e7cb1, ΔE 0.")
    user.presses("SAME HUE", "radio button")
    finds(tintra, "palettes", "Harbour", "Meadow")
    said_of(tintra, "Meadow", "Sky, #8ecae6, 8.")
    user.presses("EXACT", "radio button")
    user.clicks(tintra.sees("text", "Search the Library"))
    user.writes("#d62b2b")
    tintra.sees("label", "Nothing holds #d62b2b")
    user.presses("Look by Close")
    finds(tintra, "palettes", "Meadow")
    user.clicks(tintra.sees("text", "Search the Library"))
    user.keys("Escape")
    finds(tintra, "palettes", "Dusk", "Harbour", "Meadow")
    user.keys("Down")
    tintra.has_focus("tree item")


def sorts(user, tintra):
    user.presses("Sorted by: Name")
    user.chooses("Colours")
    tintra.sees("push button", "Sorted by: Colours")
    user.presses("Ascending")
    finds(tintra, "palettes", "Meadow", "Harbour", "Dusk")
    user.presses("Tiles", "radio button")
    finds(tintra, "palettes", "Meadow", "Harbour", "Dusk")
    user.presses("Rows", "radio button")


def works_by_keyboard(user, tintra):
    user.clicks(palette(tintra, "Dusk"))
    user.keys("Up", "Right")
    until("what is unfolded", lambda: "expanded" in palette(tintra, "Harbour").states)
    user.keys("Right", "Right")
    tintra.has_focus("list item", "Sand")
    user.keys("ctrl+c")
    user.finds_copied("#cbae82")
    user.keys("a")
    user.finds_colours(["#cbae82"])
    user.keys("b")
    tintra.sees_notice("Added #CBAE82 to the Bench")
    user.goes_to(LIBRARY)
    user.keys("Up")
    tintra.has_focus("tree item", "Harbour")
    user.keys("Left", "Up", "Return")
    tintra.sees_active("Save changes to this palette?")
    user.presses("Discard")
    tintra.sees_title("Meadow — Tintra")
    user.goes_to(LIBRARY)
    user.keys("End")
    tintra.has_focus("tree item", "Dusk")
    user.keys("alt+Return")
    tintra.sees_title("Dusk — Tintra")
    user.has_in_front("Dusk — Tintra")
    user.keys("ctrl+w")
    tintra.misses_window("Dusk")


def keeps_files(user, tintra, desktop, folder):
    user.goes_to(LIBRARY)
    user.clicks(palette(tintra, "Dusk"))
    user.keys("ctrl+d")
    tintra.sees_active("Duplicate")
    user.writes("Dusk\n")
    tintra.sees("label", "“Dusk” is already there. Choose another name.")
    user.writes("Dawn\n")
    finds(tintra, "palettes", "Meadow", "Harbour", "Dawn", "Dusk")
    agree(user.reads(folder / "Dawn.clr"), user.reads(folder / "Dusk.clr"), "the copy")
    user.goes_to(LIBRARY)
    # Not where the last click was: two there at once would open it.
    user.clicks(user.place(palette(tintra, "Dawn"), 0.7))
    user.keys("ctrl+BackSpace")
    trash = desktop.root / "data" / "Trash" / "files" / "Dawn.clr"
    until("the file in the Trash", lambda: trash.exists() and not (folder / "Dawn.clr").exists())
    user.clicks(tintra.sees_notice("Dawn.clr"))
    until("the file back in its folder", lambda: (folder / "Dawn.clr").exists())
    assert not trash.exists(), "nothing left in the Trash"
    finds(tintra, "palettes", "Meadow", "Harbour", "Dawn", "Dusk")
    (folder / "Dawn.clr").unlink()
    finds(tintra, "palettes", "Meadow", "Harbour", "Dusk")


def follows_the_folder(user, tintra, desktop, folder):
    writes(desktop, folder / "Harbour.ase", "--one: #111111")
    said_of(tintra, "Harbour", "1 · .ase")
    finds(tintra, "palettes", "Meadow", "Dusk", "Harbour")
    away = desktop.home / "elsewhere"
    shutil.move(folder, away)
    said_of(tintra, "palettes", "OFFLINE")
    tintra.sees("push button", "Choose Again…")
    shutil.move(away, folder)
    finds(tintra, "palettes", "Meadow", "Dusk", "Harbour")


def names_the_folder(user, tintra):
    for name, title, words in ("palettes", "Rename…", "Work"), ("Work", "Tag…", "print"):
        user.goes_to(LIBRARY)
        user.keys("Home")
        tintra.has_focus("tree item", name)
        user.keys("shift+F10")
        user.chooses(title)
        tintra.sees("dialog")
        user.writes(f"{words}\n")
        tintra.misses("dialog")
    finds(tintra, "Work", "Meadow", "Dusk", "Harbour")
    said_of(tintra, "Work", "print")


def installs(user, tintra, desktop):
    user.clicks(palette(tintra, "Meadow"), button=3)
    user.chooses("Install in Colour Picker…")
    tintra.sees("dialog")
    tintra.has_focus("text")
    user.keys("Return")
    finds(tintra, "Work", "Meadow", "Dusk", "Harbour", "Colour Picker", "Meadow")
    agree(user.reads(desktop.root / "data" / "colors" / "Meadow.clr"),
          user.reads(desktop.home / "palettes" / "Meadow.gpl"), "what was installed")


def comes_back(user):
    """Folded, sorted and named as it was, and what was searched for is not."""
    user.goes_to(LIBRARY)
    user.keys("Home", "Left")
    finds(user.tintra, "Work", "Colour Picker", "Meadow")
    user.starts_again()
    finds(user.tintra, "Work", "Colour Picker", "Meadow")
    user.goes_to(LIBRARY)
    user.keys("Home", "Right")
    finds(user.tintra, "Work", "Meadow", "Dusk", "Harbour", "Colour Picker", "Meadow")


def opens_from_the_menu(user):
    user.goes_to("Meadow")
    user.keys("F10", "Right", "Right")
    user.chooses("Open from the Library", "Work", "Dusk")
    user.tintra.sees_title("Dusk — Tintra")
