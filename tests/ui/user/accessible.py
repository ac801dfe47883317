"""What a screen reader is told: the accessible tree of the program, over the real bus, read anew
each time."""

from gi.repository import GLib

from desktop import NotSeen, until

PREFIX = "org.a11y.atspi."
STATES = {1: "active", 4: "checked", 5: "collapsed", 8: "enabled", 10: "expanded", 11: "focusable",
          12: "focused", 16: "modal", 23: "selected", 25: "showing"}
LASTING = {"checked", "collapsed", "expanded", "selected"}


class Node:
    """A thing in a window. What has gone answers nothing."""

    def __init__(self, bus, owner, path):
        self.bus, self.owner, self.path = bus, owner, path

    def __eq__(self, other):
        return (self.owner, self.path) == (other.owner, other.path)

    def call(self, interface, method, types="()", *values):
        try:
            return self.bus.call_sync(self.owner, self.path, interface, method,
                                      GLib.Variant(types, values), None, 0, 20000, None).unpack()
        except GLib.Error:
            return None

    def get(self, interface, name):
        answer = self.call("org.freedesktop.DBus.Properties", "Get", "(ss)", PREFIX + interface,
                           name)
        return answer[0] if answer else None

    @property
    def name(self):
        return self.get("Accessible", "Name") or ""

    @property
    def description(self):
        return self.get("Accessible", "Description") or ""

    @property
    def role(self):
        answer = self.call(PREFIX + "Accessible", "GetRoleName")
        return answer[0] if answer else ""

    @property
    def value(self):
        return self.get("Value", "CurrentValue")

    @property
    def text(self):
        answer = self.call(PREFIX + "Text", "GetText", "(ii)", 0, -1)
        return answer[0] if answer else ""

    @property
    def states(self):
        answer = self.call(PREFIX + "Accessible", "GetState")
        if not answer:
            return set()
        low, high = answer[0]
        bits = low | high << 32
        return {name for bit, name in STATES.items() if bits >> bit & 1}

    @property
    def rect(self):
        """On the screen: x, y, width, height."""
        answer = self.call(PREFIX + "Component", "GetExtents", "(u)", 0)
        return answer[0] if answer else (0, 0, 0, 0)

    @property
    def children(self):
        answer = self.call(PREFIX + "Accessible", "GetChildren")
        return [Node(self.bus, owner, path) for owner, path in answer[0]] if answer else []

    @property
    def parent(self):
        return Node(self.bus, *(self.get("Accessible", "Parent") or (self.owner, "/")))

    def acts(self, action):
        """What a screen reader does in place of mouse and keys."""
        actions = until(f"actions of “{self.name}”",
                        lambda: self.call(PREFIX + "Action", "GetActions"))[0]
        self.call(PREFIX + "Action", "DoAction", "(i)",
                  [name for name, *_ in actions].index(action))

    def shown(self):
        """This and what it shows, from the outside in."""
        yield self
        for child in self.children:
            if "showing" in child.states:
                yield from child.shown()

    def all(self, role=None, name=None):
        """Every thing shown of that role whose name is this or, for a predicate, satisfies it."""
        def fits(node):
            if role and node.role != role:
                return False
            return name is None or (name(node.name) if callable(name) else node.name == name)
        return [node for node in self.shown() if fits(node)]

    def find(self, role=None, name=None):
        """The first such thing, once it is shown."""
        what = f"{role or 'a thing'} " + ("of a name" if callable(name) else f"“{name}”")
        try:
            found = until(what, lambda: self.all(role, name))
        except NotSeen as error:
            raise NotSeen(f"{error}; shown are:\n{self.picture()}") from None
        return found[0]

    def as_it_is(self):
        """All that stays as it is when the program ends and starts again: notices and the history
        do not."""
        return [(node.role, node.name, node.description, node.text, node.rect,
                 sorted(node.states & LASTING)) for node in self.shown()
                if node.role != "alert message" and node.name.split(" ")[0] not in ("Undo", "Redo")]

    def picture(self, indent=0):
        states = ",".join(sorted(self.states - {"enabled", "focusable", "showing"}))
        lines = [f"{' ' * indent}{self.role} “{self.name}” {self.description} {self.rect} {states}"]
        for child in self.children:
            if "showing" in child.states:
                lines.append(child.picture(indent + 2))
        return "\n".join(lines)
