"""Drags between programs, and what nobody can use."""

from desktop import until

TEXT, COLOUR, FILES = "text/plain", "application/x-color", "text/uri-list"


def tell(user, desktop):
    huge = desktop.home / "huge.gpl"
    with open(huge, "wb") as file:
        file.truncate(500_000_000)
    (desktop.home / "folder.gpl").mkdir()
    other = user.starts_other(f"{TEXT}=rebeccapurple", f"{COLOUR}=#3e7cb1",
                              f"{FILES}=file://{huge}\r\n", "application/x-nonsense=?",
                              "image/png=no picture")
    offers = {node.name: user.place(node) for node in other.everything.all("label")}
    tintra = user.starts()
    canvas = lambda: user.place(tintra.sees("list"), 0.9)

    def accepted(times):
        return lambda: other.log().count("accepted") >= times

    user.drags(offers[TEXT], canvas(), accepted(1))
    user.finds_colours(["#663399"])
    user.drags(offers[COLOUR], canvas(), accepted(2))
    user.finds_colours(["#663399", "#3e7cb1"])
    user.drags(offers[TEXT], canvas(), accepted(3))
    tintra.sees_notice("#663399 is already in this palette")
    for kind in ("application/x-nonsense", "image/png", FILES):
        user.drags(offers[kind], canvas())
    tintra.sees_notice("could not be read")
    user.finds_colours(["#663399", "#3e7cb1"])

    user.drags(tintra.sees("list item", "Rebecca Purple"), offers["Drop here"],
               lambda: "entered" in other.log())
    until("the colour in the other program", lambda: "end" in other.log())
    for kind in (f"{TEXT}=#663399", "application/x-tintra-colour=", f"{COLOUR}="):
        until(f"{kind} there, of {other.log()}", lambda: kind in other.log())

    # The other program ends while a swatch is in the air over it.
    user.lifts(tintra.sees("list item", "Rebecca Purple"), offers["Drop here"])
    other.process.terminate()
    user.lets_go()
    user.keys("ctrl+q")
    tintra.sees_active("Save changes to this palette?")
    user.presses("Discard")
    tintra.ends()
