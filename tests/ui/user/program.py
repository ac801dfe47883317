"""A program that runs on the desktop, by what a screen reader and the window manager are told."""

from gi.repository import GLib

from accessible import Node
from desktop import NotSeen, until


class Program:
    def __init__(self, desktop, bus, path, *arguments):
        self.desktop, self.bus = desktop, bus
        self.process = desktop.start(str(path), [str(argument) for argument in arguments])
        self.log_path = desktop.root / (path.name + ".log")
        self.popups, self.shown_lately = [], []
        # What pops up is in nobody's list of children: a screen reader meets it when it shows.
        bus.signal_subscribe(None, "org.a11y.atspi.Event.Object", "StateChanged", None, "showing",
                             0, self.showed)
        Node(bus, "org.a11y.atspi.Registry", "/org/a11y/atspi/registry").call(
            "org.a11y.atspi.Registry", "RegisterEvent", "(sass)", "object:state-changed", [], "")
        self.owner = until(f"{path.name} on the accessibility bus", self.find_owner)
        self.sees_active()

    def find_owner(self):
        if self.process.poll() is not None:
            raise NotSeen(f"the program ended with {self.process.returncode}: {self.log()}")
        daemon = Node(self.bus, "org.freedesktop.DBus", "/")
        for name in daemon.call("org.freedesktop.DBus", "ListNames")[0]:
            pid = name[0] == ":" and daemon.call(
                "org.freedesktop.DBus", "GetConnectionUnixProcessID", "(s)", name)
            if pid and pid[0] == self.process.pid:
                return name
        return None

    def log(self):
        return self.log_path.read_text(errors="replace")

    def is_running(self):
        return self.process.poll() is None

    def ends(self):
        """Waits for the end of the program, in good order."""
        until("the end of the program", lambda: not self.is_running())
        if self.process.returncode:
            raise NotSeen(f"an orderly end: {self.process.returncode}: {self.log()}")

    # What it shows

    @property
    def everything(self):
        return Node(self.bus, self.owner, "/org/a11y/atspi/accessible/root")

    def windows(self):
        return [node for node in self.everything.children if "showing" in node.states]

    def sees_active(self, title=""):
        """Waits until such a window has the keyboard, and returns it."""
        return until(f"the keyboard in a window “{title}”", lambda: [
            node for node in self.windows()
            if title in node.name and "active" in node.states])[0]

    def window(self, title):
        """The window whose title begins so, which need not have the keyboard."""
        return until(lambda: f"a window “{title}” of {[node.name for node in self.windows()]}",
                     lambda: [node for node in self.windows() if node.name.startswith(title)])[0]

    def misses_window(self, title):
        until(f"that the window “{title}” goes", lambda: not any(
            node.name.startswith(title) for node in self.windows()))

    def sees(self, role=None, name=None, words=None):
        """The first such thing, once it is shown; a person looks at the front window first."""
        def found():
            windows = sorted(self.windows(), key=lambda window: "active" not in window.states)
            return next((seen for window in windows for seen in window.all(role, name)[:1]), None)
        return until(lambda: f"{role} “{words or name}”; shown are:\n{self.everything.picture()}", found)

    def misses(self, role=None, name=None):
        until(f"that {role} “{name}” goes", lambda: not self.everything.all(role, name))

    def sees_notice(self, text):
        return self.sees("alert message", lambda name: text in name, text)

    def names(self, role):
        return [name for _, _, its_role, name in self.everything.shown("role", "name")
                if its_role == role]

    def sees_names(self, role, names):
        until(lambda: f"{names}, of role {role}; the last was {self.names(role)}",
              lambda: self.names(role) == names)

    def has_focus(self, role=None, name=None):
        """Waits until the keyboard goes there."""
        until(lambda: f"the focus on {role} “{name}”; it is on {[n.name for n in self.focus()]}",
              lambda: any((not role or node.role == role) and (not name or node.name == name)
                          for node in self.focus()))

    def focus(self):
        return [node for root in [self.everything, *self.live_popups()]
                for _, node, states in root.shown("states") if "focused" in states]

    def titles(self):
        """The titles that the window manager shows."""
        windows = self.desktop.output("xdotool", "search", "--onlyvisible", "--pid",
                                      str(self.process.pid), check=False).split()
        return [self.desktop.output("xdotool", "getwindowname", window, check=False).strip()
                for window in windows]

    def sees_title(self, title):
        until(lambda: f"the title “{title}”; the last were {self.titles()}",
              lambda: title in self.titles())

    # Menus and what else pops up

    def showed(self, _connection, owner, path, _interface, _signal, _values):
        node = Node(self.bus, owner, path)
        if node not in self.shown_lately:
            self.shown_lately.append(node)

    def live_popups(self):
        while GLib.MainContext.default().iteration(False):
            pass
        new = [node for node in self.shown_lately if node not in self.popups]
        self.shown_lately = []
        self.popups = [node for node in self.popups if "showing" in node.states] + [
            node for node in new if "showing" in node.states
            and (node.role == "popup menu" or node not in node.parent.children)]
        return self.popups

    def menu_items(self):
        return [item for node in self.live_popups() if node.role == "popup menu"
                for item in node.children if item.name]

    def sees_menu_item(self, title):
        """By the first line of its text; further ones explain."""
        return until(
            lambda: f"“{title}” in a menu of {[item.name for item in self.menu_items()]}",
            lambda: [item for item in self.menu_items() if item.name.split("\n")[0] == title])[0]
