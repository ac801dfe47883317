"""What a screen reader is told: the accessible tree of the program, over the real bus, read anew
each time."""

from gi.repository import GLib

from desktop import until

PREFIX = "org.a11y.atspi."
STATES = {1: "active", 4: "checked", 5: "collapsed", 8: "enabled", 10: "expanded", 11: "focusable",
          12: "focused", 16: "modal", 23: "selected", 25: "showing"}
LASTING = {"checked", "collapsed", "expanded", "selected"}


def states_of(low, high):
    return {name for bit, name in STATES.items() if (low | high << 32) >> bit & 1}


def property_of(interface, name):
    return ("org.freedesktop.DBus.Properties", "Get", "(ss)", PREFIX + interface, name)


# What a node can be asked: the call, what its answer means, and what stands for none.
QUESTIONS = {
    "name": (property_of("Accessible", "Name"), str, ""),
    "description": (property_of("Accessible", "Description"), str, ""),
    "parent": (property_of("Accessible", "Parent"), tuple, None),
    "value": (property_of("Value", "CurrentValue"), float, None),
    "role": ((PREFIX + "Accessible", "GetRoleName", "()"), str, ""),
    "states": ((PREFIX + "Accessible", "GetState", "()"), lambda bits: states_of(*bits), set()),
    "children": ((PREFIX + "Accessible", "GetChildren", "()"), list, []),
    "text": ((PREFIX + "Text", "GetText", "(ii)", 0, -1), str, ""),
    "rect": ((PREFIX + "Component", "GetExtents", "(u)", 0), tuple, (0, 0, 0, 0)),
    "actions": ((PREFIX + "Action", "GetActions", "()"), list, []),
}


def ask(nodes, *questions):
    """What each node answers to each question; for what has gone, what stands for none. They are
    asked all at once: one after the other they would take long on a busy machine."""
    answers = [[QUESTIONS[question][2] for question in questions] for _ in nodes]
    waiting = len(nodes) * len(questions)

    def answered(bus, result, place):
        nonlocal waiting
        waiting -= 1
        row, column = place
        try:
            found = bus.call_finish(result).unpack()[0]
            answers[row][column] = QUESTIONS[questions[column]][1](found)
        except GLib.Error:
            pass

    for row, node in enumerate(nodes):
        for column, question in enumerate(questions):
            interface, method, types, *values = QUESTIONS[question][0]
            node.bus.call(node.owner, node.path, interface, method, GLib.Variant(types, values),
                          None, 0, 20000, None, answered, (row, column))
    while waiting:
        GLib.MainContext.default().iteration(True)
    return answers


class Node:
    """A thing in a window, as it is at the time that it is asked."""

    def __init__(self, bus, owner, path):
        self.bus, self.owner, self.path = bus, owner, path

    def __eq__(self, other):
        return (self.owner, self.path) == (other.owner, other.path)

    def __getattr__(self, question):
        if question not in QUESTIONS:
            raise AttributeError(question)
        answer = ask([self], question)[0][0]
        if question == "children":
            return [Node(self.bus, *place) for place in answer]
        return Node(self.bus, *answer) if question == "parent" and answer else answer

    def call(self, interface, method, types="()", *values):
        try:
            return self.bus.call_sync(self.owner, self.path, interface, method,
                                      GLib.Variant(types, values), None, 0, 20000, None).unpack()
        except GLib.Error:
            return None

    def acts(self, action):
        """What a screen reader does in place of mouse and keys."""
        names = until(f"actions of “{self.name}”", lambda: [name for name, *_ in self.actions])
        self.call(PREFIX + "Action", "DoAction", "(i)", names.index(action))

    def shown(self, *questions):
        """This and what it shows, from the outside in: each with its answers."""
        below, level = {self.path: []}, [self]
        said = {self.path: ask([self], *questions)[0]}
        while level:
            children = [(node, Node(self.bus, *place)) for node, (places,) in
                        zip(level, ask(level, "children")) for place in places]
            level = []
            answers = ask([child for _, child in children], "states", *questions)
            for (node, child), (states, *rest) in zip(children, answers):
                if "showing" in states:
                    below[node.path].append(child)
                    below[child.path], said[child.path] = [], rest
                    level.append(child)

        def outside_in(node, depth=0):
            yield depth, node, *said[node.path]
            for child in below[node.path]:
                yield from outside_in(child, depth + 1)
        return outside_in(self)

    def all(self, role=None, name=None):
        """Every thing shown of that role whose name is this or, for a predicate, satisfies it."""
        def fits(is_role, is_name):
            if role and is_role != role:
                return False
            return name is None or (name(is_name) if callable(name) else is_name == name)
        return [node for _, node, *said in self.shown("role", "name") if fits(*said)]

    def find(self, role=None, name=None):
        """The first such thing, once it is shown."""
        return until(lambda: f"{role} “{name}”; shown are:\n{self.picture()}",
                     lambda: self.all(role, name))[0]

    def as_it_is(self):
        """All that stays as it is when the program ends and starts again: notices and the history
        do not."""
        return [(role, name, *said, rect, sorted(states & LASTING))
                for _, _, role, name, states, rect, *said in self.shown(
                    "role", "name", "states", "rect", "description", "text")
                if role != "alert message" and name.split(" ")[0] not in ("Undo", "Redo")]

    def picture(self):
        return "\n".join(
            f"{'  ' * depth}{role} “{name}” {description} {rect} "
            + ",".join(sorted(states - {"enabled", "focusable", "showing"}))
            for depth, _, role, name, description, rect, states in self.shown(
                "role", "name", "description", "rect", "states"))
