"""A person at the desktop: mouse, keyboard, clipboard, and files looked at with another program."""

import json
import subprocess

from desktop import NotSeen, until
from program import Program


class User:
    def __init__(self, desktop):
        self.desktop = desktop
        self.bus = desktop.accessibility_bus()

    def starts(self, *files):
        """Starts the program and makes it the one that is worked."""
        self.tintra = Program(self.desktop, self.bus, self.desktop.binaries / "tintra-desktop",
                              *files)
        return self.tintra

    def starts_other(self, *offers):
        return Program(self.desktop, self.bus, self.desktop.binaries / "tintra_other_program",
                       *offers)

    # Hands

    def xdotool(self, *words):
        self.desktop.output("xdotool", *[str(word) for word in words])

    def keys(self, *names):
        """While a screen reader listens, a shortcut overtakes the keys of a canvas before it: what
        those lead to is waited for before a shortcut is pressed."""
        self.xdotool("key", "--delay", "8", *names)

    def presses_key_until(self, key, seen, most=20):
        """As a person does who looks for a thing with Tab."""
        for _ in range(most):
            if seen():
                return
            self.keys(key)
        until(f"what {key} leads to", seen)

    def types(self, text):
        for number, line in enumerate(text.split("\n")):
            if number:
                self.keys("Return")
            if line:
                self.xdotool("type", "--delay", "8", line)

    def writes(self, text):
        """Into a field that has the focus, in place of what stands there."""
        self.keys("ctrl+a")
        self.types(text)

    @staticmethod
    def place(thing, across=0.5, down=0.5):
        """A place on the screen, of a thing or as it is."""
        if isinstance(thing, tuple):
            return thing
        x, y, width, height = until(f"a place for “{thing.name}”",
                                    lambda: thing.rect if thing.rect[2] > 0 else None)
        return x + int(width * across), y + int(height * down)

    def clicks(self, thing, button=1, times=1):
        self.xdotool("mousemove", *self.place(thing), "click", "--repeat", times, "--delay", "40",
                     button)

    def presses(self, name, role="push button"):
        self.clicks(self.tintra.sees(role, name))

    def chooses(self, *titles):
        """Goes through menus, the first of which is open."""
        for title in titles:
            self.clicks(self.tintra.sees_menu_item(title))

    # Windows

    def of_window(self, title, *words):
        self.xdotool("search", "--all", "--onlyvisible", "--pid", self.tintra.process.pid, "--name",
                     "^" + title.replace("*", "[*]"), *words)

    def goes_to(self, title):
        """As with the desktop's list of windows."""
        until(f"a window “{title}” to go to", lambda: any(
            name.startswith(title) for name in self.tintra.titles()))
        self.of_window(title, "windowactivate")
        return self.has_in_front(title)

    def has_in_front(self, title):
        """The window has the keyboard, as the program and as the display sees it."""
        until(f"the keyboard in “{title}”", lambda: self.desktop.output(
            "xdotool", "getwindowfocus", "getwindowname", check=False).startswith(title))
        return self.tintra.sees_active(title)

    def puts(self, title, x, y, width, height):
        """Moves a window there and gives it that size."""
        window = self.goes_to(title)
        self.of_window(title, "windowsize", width, height, "windowmove", x, y)
        until(f"{title} in its place", lambda: window.rect[2:] == (width, height)
              and abs(window.rect[0] - x) < 40 and abs(window.rect[1] - y) < 40)
        return window

    def opens(self, title, key):
        """A window that has a menu row, a key and a button, by each; it stays open."""
        front = next(node.name for node in self.tintra.windows() if "active" in node.states)
        front = front.split("*")[0]

        def by_menu():
            self.keys("F10", "Left", "Left")
            self.chooses(title)
        for way in by_menu, lambda: self.keys(key), lambda: self.presses(title):
            if way is not by_menu:
                self.keys("ctrl+w")
                self.tintra.misses_window(f"{title} — Tintra")
                self.has_in_front(front)
            way()
            self.has_in_front(f"{title} — Tintra")

    def starts_again(self, *answers):
        """Quits, with an answer to every question, and starts again. Every window is as it was."""
        def windows():
            return {node.name: node.as_it_is() for node in self.tintra.windows()}
        before = windows()
        self.keys("ctrl+q")
        for answer in answers:
            self.tintra.sees_active("Save changes")
            self.presses(answer)
        self.tintra.ends()
        self.starts()
        after = windows()
        until(lambda: f"{before.keys()}; there are {self.tintra.titles()}",
              lambda: before.keys() == windows().keys())
        for title, was in before.items():
            until(lambda: f"{title} as it was; changed is " + difference(was, windows()[title]),
                  lambda: windows()[title] == was)

    def carries(self, start, end, held=None):
        """Drag and drop: lets go once the thing is seen to be in the air."""
        (x, y), (to_x, to_y) = self.place(start), self.place(end)
        def in_the_air():
            return len(self.desktop.output("xdotool", "search", "--onlyvisible", "--pid",
                                           str(self.tintra.process.pid), check=False).split())
        at_rest = in_the_air()
        self.xdotool("mousemove", x, y)
        if held:
            self.xdotool("keydown", held)
        self.xdotool("mousedown", 1)
        until("a thing in the air", lambda: (
            self.xdotool("mousemove", x + 8, y + 8, "mousemove", x + 16, y + 16),
            in_the_air() > at_rest)[1])
        self.xdotool("mousemove", to_x - 4, to_y, "sleep", 0.05, "mousemove", to_x, to_y)
        self.lets_go()
        if held:
            self.xdotool("keyup", held)
        until("nothing in the air", lambda: in_the_air() <= at_rest)

    def lifts(self, start, end, steps=12):
        """Presses the button and moves there, without letting go."""
        (x, y), (to_x, to_y) = self.place(start), self.place(end)
        words = ["mousemove", x, y, "mousedown", 1]
        for step in range(1, steps + 1):
            words += ["mousemove", x + (to_x - x) * step // steps, y + (to_y - y) * step // steps,
                      "sleep", 0.01]
        self.xdotool(*words)

    def lets_go(self):
        self.xdotool("mouseup", 1)

    def drags(self, start, end, is_offered=None):
        """Lets go once it is offered there. On a busy machine the button may be down and the mouse
        gone before the program looks, so that no drag begins: a person tries again."""
        for patience in (4, 4, None):
            self.lifts(start, end)
            try:
                if is_offered:
                    until("the drag offered at its end", lambda: is_offered() or self.trembles(),
                          patience)
                return self.lets_go()
            except NotSeen:
                if patience is None:
                    raise
                self.keys("Escape")
                self.lets_go()

    def trembles(self):
        self.xdotool("mousemove_relative", 1, 0, "mousemove_relative", "--", -1, 0)

    # Clipboard and files

    def copies(self, text, kind="UTF8_STRING"):
        """Puts text on the clipboard, as another program does."""
        subprocess.run(["xclip", "-selection", "clipboard", "-t", kind], input=text.encode(),
                       env=self.desktop.environment, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, check=True)
        until("what was copied on the clipboard", lambda: self.clipboard(kind) == text)

    def clipboard(self, kind="UTF8_STRING"):
        return self.desktop.output("xclip", "-o", "-selection", "clipboard", "-t", kind,
                                   check=False)

    def finds_copied(self, text):
        until(lambda: f"“{text}” on the clipboard; it holds “{self.clipboard()}”",
              lambda: self.clipboard() == text)

    def record(self, name):
        """What the program has written down for its next start; none yet: nothing."""
        for folder in ("state", "config"):
            path = self.desktop.root / folder / "tintra" / f"{name}.json"
            if path.exists():
                return json.loads(path.read_text())
        return {}

    def colours(self):
        """Of the palette, as they are written down."""
        return [code(swatch) for swatch in self.record("TintraWorkspace").get("customPalette", [])]

    def finds_colours(self, colours):
        until(lambda: f"{colours}; written down are {self.colours()}", lambda: self.colours() == colours)

    def reads(self, file):
        """The swatches of a palette file, by the command: (code, name)."""
        read = json.loads(self.desktop.output(str(self.desktop.binaries / "tintra"), "read",
                                              "--json", str(file)))
        return [(swatch["hex"].lower(), swatch["name"]) for swatch in read[0]["swatches"]]


def code(colour):
    """Of a colour as it is written down."""
    return "#" + "".join(f"{round(colour[part] * 255):02x}" for part in "rgb")


def difference(was, now):
    return "\n".join(["", *(f"- {line}" for line in was if line not in now),
                      *(f"+ {line}" for line in now if line not in was)])


def agree(found, wanted, what):
    if found != wanted:
        raise NotSeen(f"{what}: {found!r} instead of {wanted!r}")
