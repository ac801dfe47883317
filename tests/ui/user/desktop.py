"""A desktop of the test's own: a display, a window manager, a bus, a home. Nothing of the machine's
user is read, written or started, and nothing is left running."""

import ctypes
import os
import pathlib
import shutil
import signal
import struct
import subprocess
import tempfile
import time
import zlib

from gi.repository import Gio, GLib

TOOLS = ("Xvfb", "openbox", "dbus-daemon", "xclip", "xdotool", "xprop")
LIBC = ctypes.CDLL(None)
LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
# A program under the sanitizers on a busy machine is still in time.
PATIENCE = 10.0


class NotSeen(AssertionError):
    pass


def until(what, found, patience=None):
    """Waits until `found()` answers something and returns that. What is waited for is a text, or a
    function that words it when the time is up."""
    patience = patience or PATIENCE
    end = time.monotonic() + patience
    pause = 0.005
    while True:
        answer = found()
        if answer:
            return answer
        if time.monotonic() > end:
            raise NotSeen(f"not seen in {patience:.0f} s: {what() if callable(what) else what}")
        time.sleep(pause)
        pause = min(pause * 1.5, 0.1)


def missing_tools():
    return [tool for tool in TOOLS if not shutil.which(tool)] + (
        [] if os.access(LAUNCHER, os.X_OK) else [LAUNCHER])


def png(path, width, height, rows):
    """Writes rows of RGB bytes as a picture."""
    def chunk(kind, data):
        body = kind + data
        return struct.pack(">I", len(data)) + body + struct.pack(">I", zlib.crc32(body))
    lines = b"".join(b"\0" + row for row in rows)
    pathlib.Path(path).write_bytes(
        b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
        + chunk(b"IDAT", zlib.compress(lines, 1)) + chunk(b"IEND", b""))


class Desktop:
    def __init__(self, binaries):
        self.binaries = pathlib.Path(binaries)
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tintra-user-"))
        self.processes = []
        # What the services start behind their backs becomes a child of this process, to be ended.
        LIBC.prctl(36, 1, 0, 0, 0)
        self.home = self.folder("home")
        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": str(self.home),
            "LANG": "C.UTF-8",
            "XDG_CONFIG_HOME": str(self.folder("config")),
            "XDG_STATE_HOME": str(self.folder("state")),
            "XDG_DATA_HOME": str(self.folder("data")),
            "XDG_CACHE_HOME": str(self.folder("cache")),
            "XDG_RUNTIME_DIR": str(self.folder("run")),
            "GSETTINGS_BACKEND": "memory",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }
        self.environment.update({name: value for name, value in os.environ.items()
                                 if name.endswith("SAN_OPTIONS")})
        os.chmod(self.environment["XDG_RUNTIME_DIR"], 0o700)
        self.start_services()

    def folder(self, name):
        path = self.root / name
        path.mkdir(exist_ok=True)
        return path

    def start_services(self):
        reading, writing = os.pipe()
        self.start("Xvfb", ["-displayfd", str(writing), "-screen", "0", "1600x1000x24", "-fbdir",
                            str(self.root), "-nolisten", "tcp", "-noreset"], pass_fds=(writing,))
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            raise NotSeen("Xvfb does not start")
        self.environment["DISPLAY"] = ":" + number

        settings = self.root / "bus.conf"
        settings.write_text(
            f"<busconfig><type>session</type><listen>unix:dir={self.root}</listen>"
            '<policy context="default"><allow own="*"/><allow send_destination="*"/>'
            '<allow receive_sender="*"/></policy></busconfig>')
        bus = self.start("dbus-daemon", ["--nofork", "--print-address=1",
                                         f"--config-file={settings}"], stdout=subprocess.PIPE)
        address = bus.stdout.readline().decode().strip()
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = address
        self.session = connect(address)
        self.start(LAUNCHER, ["--launch-immediately"])
        self.start("openbox", ["--sm-disable", "--config-file", self.window_manager_settings()])
        until("a window manager", lambda: "window id" in self.output(
            "xprop", "-root", "_NET_SUPPORTING_WM_CHECK", check=False))

    def window_manager_settings(self):
        """Windows in the middle of the screen, focus by click, nothing bound to keys."""
        path = self.root / "openbox.xml"
        path.write_text('<openbox_config xmlns="http://openbox.org/3.4/rc">'
                        "<placement><policy>Smart</policy><center>yes</center></placement>"
                        '<mouse><context name="Client"><mousebind button="Left" action="Press">'
                        '<action name="Focus"/><action name="Raise"/></mousebind></context>'
                        '<context name="Titlebar"><mousebind button="Left" action="Drag">'
                        '<action name="Move"/></mousebind></context></mouse></openbox_config>')
        return str(path)

    def start(self, program, arguments, **options):
        log = open(self.root / (pathlib.Path(program).name + ".log"), "ab")
        options.setdefault("stdout", log)
        # Whatever ends this process ends it too.
        process = subprocess.Popen([program, *arguments], env=self.environment,
                                   stdin=subprocess.DEVNULL, stderr=log, start_new_session=True,
                                   preexec_fn=lambda: LIBC.prctl(1, signal.SIGKILL, 0, 0, 0),
                                   **options)
        log.close()
        self.processes.append(process)
        return process

    def output(self, *command, check=True):
        done = subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, timeout=PATIENCE,
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        if check and done.returncode:
            raise NotSeen(f"{' '.join(command)}: {done.stderr.decode().strip()}")
        return done.stdout.decode()

    def accessibility_bus(self):
        def address():
            try:
                return self.session.call_sync(
                    "org.a11y.Bus", "/org/a11y/bus", "org.a11y.Bus", "GetAddress", None, None,
                    Gio.DBusCallFlags.NO_AUTO_START, 5000, None).unpack()[0]
            except GLib.Error:
                return None
        return connect(until("the accessibility bus", address))

    def screenshot(self, path):
        """The whole screen as a PNG, out of the display's own memory."""
        dump = (self.root / "Xvfb_screen0").read_bytes()
        header = struct.unpack(">25I", dump[:100])
        size, width, height, line, colours = header[0], header[4], header[5], header[12], header[19]
        pixels = dump[size + colours * 12:]
        rows = []
        for y in range(height):
            row = pixels[y * line:y * line + width * 4]
            rgb = bytearray(width * 3)
            rgb[0::3], rgb[1::3], rgb[2::3] = row[2::4], row[1::4], row[0::4]
            rows.append(bytes(rgb))
        png(path, width, height, rows)

    def close(self, keep=False):
        for process in reversed(self.processes):
            end(process.pid)
        for pid in children():
            end(pid)
        if not keep:
            shutil.rmtree(self.root, ignore_errors=True)


def connect(address):
    flags = Gio.DBusConnectionFlags
    return Gio.DBusConnection.new_for_address_sync(
        address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)


def children():
    """Processes of which this one is the parent, by id."""
    return [int(word) for thread in pathlib.Path("/proc/self/task").iterdir()
            for word in (thread / "children").read_text().split()]


def end(pid):
    """Ends one process that this one started or took over; at once where it does not go."""
    for kind in (signal.SIGTERM, signal.SIGKILL):
        try:
            os.kill(pid, kind)
            until(f"the end of process {pid}", lambda: os.waitpid(pid, os.WNOHANG)[0], 3.0)
            return
        except NotSeen:
            continue
        except (ProcessLookupError, ChildProcessError):
            return
