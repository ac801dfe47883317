"""run.py STORY BINARIES

Tells one story of a person at a desktop with the programs of a build folder. Ends with 0, with 77
where the machine lacks a tool, and else says what was not seen and where a picture of the screen
lies."""

import importlib
import pathlib
import signal
import sys

SKIPPED = 77
LIMIT = 280

try:
    from desktop import Desktop, missing_tools
    from user import User
except (ImportError, ValueError) as error:
    print(f"skipped: {error}")
    sys.exit(SKIPPED)


def stop(*_):
    # Again, should this be in the middle of a callback, where it is lost.
    signal.alarm(1)
    raise TimeoutError(f"not done in {LIMIT} s")


def main(story, binaries):
    missing = missing_tools()
    if missing:
        print("skipped, not installed:", ", ".join(missing))
        return SKIPPED
    signal.signal(signal.SIGALRM, stop)
    signal.signal(signal.SIGTERM, stop)
    signal.alarm(LIMIT)
    desktop = Desktop(binaries)
    user = None
    try:
        user = User(desktop)
        importlib.import_module(f"stories.{story}").tell(user, desktop)
        return 0
    except Exception:
        signal.alarm(0)
        picture = pathlib.Path(binaries).parent / f"user-{story}.png"
        desktop.screenshot(picture)
        if user and hasattr(user, "tintra"):
            print(user.tintra.everything.picture(), user.tintra.log(), sep="\n")
        print(f"the screen: {picture}", flush=True)
        raise
    finally:
        signal.alarm(0)
        desktop.close()


sys.exit(main(*sys.argv[1:]))
