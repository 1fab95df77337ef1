#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The program in the hands of somebody who has a keyboard and a screen reader: a window on a screen of its own, keys,
and what the desktop's accessibility bus tells of it. It follows the scripts in tests/data/tastiera:
    tests/ui/tastiera.py PROGRAM SCRIPT
Each line is a step; {cartella} stands for a folder of its own.
    tasto KEY...          keys as xdotool calls them, pressed where the focus is
    scrivi TEXT           types; what is announced while that happens must be what the control then holds
    sente ROLE «NAME      waits until a control of that role has the focus whose name begins so («…NAME: has that in it;
                          «NAME» = TEXT: and holds that text)
    fino ROLE «NAME       the same after as many presses of Tab as it takes
    finestra TITLE        waits until the window in front has that title
    legge TEXT            a text that is shown in the window in front contains that
    guarda                every control that can have the focus has a name, a role and a sentence of its own
    giro                  Tab leads through all of them, and round
    file PATH             waits until that file is there
    finito                waits until the program has ended, with 0
Whatever happens, some control that is seen has the focus, and it has a name."""
import os
import signal
import subprocess
import sys
import tempfile
import time

LIMIT = 20  # seconds, for what takes milliseconds on a machine that is not busy
WATCHDOG = 150
PROGRAMS = {"Xvfb": "xvfb", "openbox": "openbox", "xdotool": "xdotool", "dbus-run-session": "dbus",
            "/usr/libexec/at-spi-bus-launcher": "at-spi2-core"}
# What a person reads or writes, or presses: no control of these is a mere frame.
ROLES = {"push button", "text", "combo box", "check box", "radio button", "table", "tree table", "tree", "list",
         "list item", "table cell", "menu item", "menu", "check menu item", "spin button", "page tab", "slider",
         "scroll bar", "canvas", "document text", "toggle button", "password text", "label", "table column header",
         "push button menu", "table row header", "button menu", "dial"}


class Fault(Exception):
    """What the person would run into."""


def alone(argv):
    """Runs the same again with a bus and a screen of its own; returns its exit code."""
    missing = [package for program, package in PROGRAMS.items()
               if not any(os.access(os.path.join(folder, program), os.X_OK)
                          for folder in os.environ.get("PATH", "").split(":"))]
    try:
        import gi
        gi.require_version("Atspi", "2.0")
    except (ImportError, ValueError):
        missing.append("python3-gi gir1.2-atspi-2.0")
    if missing:
        print("missing packages, see packaging/setup.sh test:", " ".join(missing), file=sys.stderr)
        return 2
    with tempfile.TemporaryDirectory() as home:
        read, write = os.pipe()
        screen = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x800x24", "-nolisten", "tcp"],
                                  pass_fds=[write], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write)
        try:
            display = os.read(read, 20).decode().strip()
            if not display:
                print("Xvfb does not start", file=sys.stderr)
                return 2
            environment = {name: value for name, value in os.environ.items()
                           if name not in ("AT_SPI_BUS_ADDRESS", "DBUS_SESSION_BUS_ADDRESS", "WAYLAND_DISPLAY")}
            environment |= {"DISPLAY": ":" + display, "HOME": home, "XDG_RUNTIME_DIR": home, "LC_ALL": "C.UTF-8",
                            "XDG_CONFIG_HOME": home, "XDG_DATA_HOME": home, "QT_QPA_PLATFORM": "xcb",
                            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1", "NO_AT_BRIDGE": "1", "GIO_USE_VFS": "local"}
            return subprocess.run(["dbus-run-session", "--", sys.executable, os.path.abspath(__file__), "--dentro", home,
                                   *argv], env=environment, check=False).returncode
        finally:
            screen.terminate()
            screen.wait()


class Reader:
    """Hears what a screen reader hears."""

    def __init__(self, program, home):
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi, GLib
        self.atspi, self.glib = Atspi, GLib
        self.focus = None
        self.heard = []  # texts that came and went, with who said so
        self.asked = 0   # controls that were looked at
        self.named = set()
        Atspi.init()
        self.listener = Atspi.EventListener.new(self.hear)
        for kind in ("object:state-changed:focused", "object:text-changed:insert", "object:text-changed:delete"):
            self.listener.register(kind)
        self.manager = subprocess.Popen(["openbox"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self.program = subprocess.Popen(program, cwd=home)

    def close(self):
        """Ends what was started."""
        for process in (self.program, self.manager):
            if process.poll() is None:
                process.terminate()
            process.wait()

    def hear(self, event):
        """An event of the bus."""
        if event.type.startswith("object:state-changed:focused"):
            if event.detail1:
                self.focus = event.source
        else:
            self.heard.append((event.source, "insert" in event.type, event.detail1, event.detail2, event.any_data))

    def until(self, holds, what):
        """Lets events come until something holds."""
        end = time.monotonic() + LIMIT
        loop = self.glib.MainLoop()
        result = [False, None]

        def look():
            try:
                result[0] = holds()
            except self.glib.Error:  # it has gone meanwhile
                result[0] = False
            except Exception as fault:  # pylint: disable=broad-except  # the loop would go on for ever
                result[1] = fault
            if result[0] or result[1] or time.monotonic() > end or (self.program.poll() is not None and what != "the end"):
                loop.quit()
                return False
            return True

        self.glib.timeout_add(8, look)
        loop.run()
        if result[1]:
            raise result[1]
        if not result[0]:
            raise Fault(f"never came: {what}; in focus: {self.told()}")
        return result[0]

    def has(self, control, *states):
        """Whether a control has all these states."""
        present = control.get_state_set()
        return all(present.contains(getattr(self.atspi.StateType, state)) for state in states)

    def labels(self, control):
        """What the labels of a control say."""
        for relation in control.get_relation_set():
            if relation.get_relation_type() == self.atspi.RelationType.LABELLED_BY:
                return " ".join(relation.get_target(i).get_name() for i in range(relation.get_n_targets())).strip()
        return ""

    def name(self, control):
        """What a control is called: by its label, or by itself where its name is not what it holds."""
        own = "" if control.get_role_name() == "combo box" else control.get_name()
        return own or self.labels(control)

    def text(self, control):
        """What a control holds."""
        if control.get_role_name() in ("text", "document text", "label"):
            return self.atspi.Text.get_text(control, 0, -1)
        return control.get_name()

    def told(self):
        """The control in focus as words."""
        if self.focus is None:
            return "nothing"
        try:
            return f"{self.focus.get_role_name()} {self.name(self.focus)} = {self.text(self.focus)}"
        except self.glib.Error:
            return "something that has gone"

    def front(self):
        """The window that is in front; nothing while that changes."""
        desktop = self.atspi.get_desktop(0)
        for application in (desktop.get_child_at_index(i) for i in range(desktop.get_child_count())):
            for window in (application.get_child_at_index(i) for i in range(application.get_child_count())):
                if window is not None and self.has(window, "ACTIVE"):
                    return window
        return None

    def controls(self, parent):
        """All that is seen within a window; what lists and tables hold is theirs."""
        for child in (parent.get_child_at_index(i) for i in range(parent.get_child_count())):
            if child is None or not self.has(child, "SHOWING"):
                continue
            yield child
            if child.get_role_name() not in ("table", "tree table", "tree", "list", "menu bar", "combo box", "menu"):
                yield from self.controls(child)

    def settled(self):
        """Whether what has the focus is seen and named."""
        control = self.focus
        if control is None or not self.has(control, "FOCUSED", "SHOWING"):
            return False
        name, role = self.name(control), control.get_role_name()
        if name.strip() and role in ROLES:
            self.named.add((role, name))
            return True
        return False


class Person:
    """Goes through a script."""

    def __init__(self, reader, folder):
        self.reader, self.folder = reader, folder

    def tasto(self, keys):
        """Presses keys."""
        subprocess.run(["xdotool", "key", "--delay", "0", *keys.split()], check=True)

    def scrivi(self, text):
        """Types where the focus is."""
        reader = self.reader
        reader.until(reader.settled, "a focus to type at")
        reader.heard.clear()
        subprocess.run(["xdotool", "type", "--delay", "0", text], check=True)
        control = reader.focus
        reader.until(lambda: text.lower() in reader.text(control).lower(), f"«{text}» typed")
        reader.until(lambda: self.announced(control).lower().endswith(text.lower()), f"«{text}» announced")

    def announced(self, control):
        """What was written, put together from what was told."""
        said = ""
        for source, inserted, place, length, piece in self.reader.heard:
            if source != control and control.get_role_name() != "combo box":
                continue
            said = said[:place] + piece + said[place:] if inserted else said[:place] + said[place + length:]
        return said

    def is_there(self, what):
        """Whether that has the focus."""
        role, _, rest = what.partition(" «")
        name, _, text = rest.partition("» = ")
        reader = self.reader
        if not reader.settled() or reader.focus.get_role_name() != role:
            return False
        called = reader.name(reader.focus) if role != "list item" else reader.focus.get_name()
        name = name.rstrip("»")
        alike = name[1:] in called if name.startswith("…") else called.startswith(name)
        return alike and (not text or text in reader.text(reader.focus))

    def sente(self, what):
        """Waits for a focus."""
        self.reader.until(lambda: self.is_there(what), what)

    def step(self, key):
        """Presses a key that leads on; returns what has the focus then."""
        reader = self.reader
        before = reader.focus
        self.tasto(key)
        reader.until(lambda: reader.focus != before and reader.settled(), f"a focus after {key}")
        return reader.focus

    def fino(self, what):
        """Presses Tab until that has the focus."""
        self.reader.until(self.reader.settled, "a focus")
        for _ in range(80):
            if self.is_there(what):
                return
            self.step("Tab")
        raise Fault(f"Tab never leads to {what}")

    def finestra(self, title):
        """Waits for a window in front."""
        def there():
            window = self.reader.front()
            return window is not None and window.get_name().startswith(title)
        self.reader.until(there, f"the window «{title}»")
        self.reader.until(self.reader.settled, f"a focus in «{title}»")

    def legge(self, text):
        """Looks for a text."""
        def shown():
            window = self.reader.front()
            return window is not None and any(text in control.get_name() for control in self.reader.controls(window))
        self.reader.until(shown, f"the text «{text}»")

    def usable(self):
        """The controls of the window in front that can have the focus now, with their names."""
        reader = self.reader
        return [(control, reader.name(control)) for control in reader.controls(reader.front())
                if reader.has(control, "FOCUSABLE", "ENABLED")]

    def guarda(self, _):
        """Looks at all that can be used."""
        seen = set()
        for control, name in self.usable():
            role = control.get_role_name()
            self.reader.asked += 1
            if not name.strip():
                raise Fault(f"a {role} has no name: {control.get_description()}")
            if role not in ROLES:
                raise Fault(f"«{name}» is a {role}")
            if (role, name) in seen:
                raise Fault(f"two controls are read alike: {role} «{name}»")
            seen.add((role, name))

    def giro(self, _):
        """Presses Tab all the way round."""
        reader = self.reader
        wanted = {(control.get_role_name(), name) for control, name in self.usable()}
        first = (reader.focus.get_role_name(), reader.name(reader.focus))
        reached = {first}
        for _ in range(120):
            control = self.step("Tab")
            now = (control.get_role_name(), reader.name(control))
            if now == first:
                break
            reached.add(now)
        if wanted - reached:
            raise Fault(f"Tab never leads to {sorted(wanted - reached)}")

    def file(self, path):
        """Waits for a file."""
        self.reader.until(lambda: os.path.getsize(path) > 0 if os.path.exists(path) else False, path)

    def finito(self, _):
        """Waits for the end."""
        self.reader.until(lambda: self.reader.program.poll() is not None, "the end")
        if self.reader.program.returncode != 0:
            raise Fault(f"the program ended with {self.reader.program.returncode}")

    def follow(self, script):
        """Does what a script says; returns how many steps."""
        with open(script, encoding="utf-8") as lines:
            steps = [(number, line.strip()) for number, line in enumerate(lines, 1)
                     if line.strip() and not line.startswith("#")]
        for number, line in steps:
            word, _, rest = line.partition(" ")
            try:
                if self.reader.program.poll() is not None and word != "finito":
                    raise Fault(f"the program has ended with {self.reader.program.returncode}")
                getattr(self, word)(rest.replace("{cartella}", self.folder))
            except Fault as fault:
                raise Fault(f"{script}:{number}: {line}\n  {fault}") from None
        return len(steps)


def main(argv):
    """The exit code."""
    if argv[:1] != ["--dentro"]:
        return alone(argv)
    home, program, script = argv[1], *map(os.path.abspath, argv[2:])
    folder = os.path.join(home, "i miei viaggi")
    os.mkdir(folder)
    signal.alarm(WATCHDOG)
    reader = Reader([program, "--cartella", folder], home)
    try:
        steps = Person(reader, folder).follow(script)
        print(f"{steps} steps, {reader.asked} controls looked at, {len(reader.named)} different ones had the focus")
        return 0
    except Fault as fault:
        print(fault, file=sys.stderr)
        if os.environ.get("CRONOVIA_SCHERMO"):
            subprocess.run(["import", "-window", "root", os.environ["CRONOVIA_SCHERMO"]], check=False)
        return 1
    finally:
        reader.close()


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
