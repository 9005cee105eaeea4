"""Starts a Qt program on a private display and works it from outside, as a person would: it finds
what the accessibility bus tells of the windows, presses, types and takes pictures.

Runs on Debian's own /usr/bin/python3 and needs xvfb openbox xdotool dbus at-spi2-core python3-gi
gir1.2-atspi-2.0 imagemagick. One program per process:

    with Program([path], home) as program:
        program.window("Meal Consumed").find("push button", "Add").press()
"""
import os
import re
import subprocess
import tempfile
import time

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402


class NotFound(AssertionError):
    """What was waited for did not come."""


def wait_for(look, what, seconds=10):
    """Polls look() until it returns something true and returns that."""
    end = time.monotonic() + seconds
    while True:
        try:
            found = look()
        except GLib.Error:  # a window that closes while it is read
            found = None
        if found:
            return found
        if time.monotonic() > end:
            raise NotFound(what() if callable(what) else what)
        time.sleep(0.03)


def xdotool(*words):
    subprocess.run(["xdotool", *map(str, words)], check=True)


def plain(caption):
    """A caption without its access key and trailing dots."""
    return re.sub(r"&(.)", r"\1", caption)


class Element:
    """A window or a control."""

    def __init__(self, accessible):
        self.accessible = accessible

    @property
    def role(self):
        return self.accessible.get_role_name()

    @property
    def name(self):
        return self.accessible.get_name() or ""

    @property
    def label(self):
        """The text of the label whose buddy this is (a combo box's own name is its item)."""
        for relation in self.accessible.get_relation_set():
            if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
                return relation.get_target(0).get_name()
        return ""

    @property
    def text(self):
        return Atspi.Text.get_text(self.accessible, 0, Atspi.Text.get_character_count(self.accessible))

    def is_in(self, state):
        return self.accessible.get_state_set().contains(state)

    @property
    def showing(self):
        return self.is_in(Atspi.StateType.SHOWING)

    @property
    def is_checked(self):
        return self.is_in(Atspi.StateType.CHECKED)

    @property
    def description(self):
        return self.accessible.get_description() or ""

    def children(self):
        count = self.accessible.get_child_count()
        found = (self.accessible.get_child_at_index(i) for i in range(count))
        return [Element(child) for child in found if child]

    def descendants(self):
        for child in self.children():
            yield child
            yield from child.descendants()

    def find_all(self, role, name=None):
        """Showing elements of a role, narrowed by name or label."""
        return [e for e in self.descendants() if e.role == role and e.showing
                and (name is None or name in (plain(e.name), plain(e.label)))]

    def find(self, role, name=None):
        found = wait_for(lambda: self.find_all(role, name),
                         lambda: f"no {role} {name!r} in {self.name!r}:\n{self.outline()}")
        return found[0]

    def outline(self, depth=1):
        """What stands in a window, for the message when something is missed."""
        lines = []
        for child in self.children():
            hidden = "" if child.showing else " (hidden)"
            lines.append(f"{'  ' * depth}{child.role} {child.name!r} {child.label!r}{hidden}")
            lines.append(child.outline(depth + 1))
        return "\n".join(filter(None, lines))

    # Acting

    def _act(self, *preferred):
        """Runs the first of the actions that the element has; False where it has none of them. One
        that opens a modal dialog replies only when that is closed, so a missing reply is no error."""
        actions = self.accessible.get_action_iface()
        names = [actions.get_action_name(i) for i in range(actions.get_n_actions())]
        chosen = next((names.index(n) for n in preferred if n in names), None)
        if chosen is None:
            return False
        try:
            actions.do_action(chosen)
        except GLib.Error as error:
            if "reply" not in str(error):
                raise
        return True

    def press(self):
        """Buttons, check boxes and menu entries, through the bus."""
        if not self._act("Press", "Toggle", "ShowMenu"):
            raise NotFound(f"{self.role} {self.name!r} can't be pressed")

    def _box(self):
        return self.accessible.get_component_iface().get_extents(Atspi.CoordType.SCREEN)

    def click(self, times=1):
        """With the mouse, in the middle."""
        box = self._box()
        xdotool("mousemove", box.x + box.width // 2, box.y + box.height // 2,
                "click", "--repeat", times, "--delay", 60, 1)

    def focus(self):
        if not self._act("SetFocus"):
            self.click()
        wait_for(lambda: self.is_in(Atspi.StateType.FOCUSED), f"focus on {self.role} {self.name!r}")

    def type(self, text):
        """Replaces the text of a field with real keys (plain ASCII)."""
        self.focus()
        xdotool("key", "ctrl+a")
        xdotool("type", "--delay", 20, text)
        wait_for(lambda: self.text == text, lambda: f"{text!r} in the field, it says {self.text!r}")

    def choose(self, item):
        """Picks an item of a combo box: opens the list, goes near by type-ahead, clicks the item."""
        self.press()
        wait_for(lambda: any(i._box().width > 0 for i in self.find_all("list item")), "the list")
        time.sleep(0.2)  # a list that has only just opened takes a click for the one that opened it
        xdotool("type", "--delay", 20, item.split()[0])
        time.sleep(0.2)
        wait_for(lambda: [i for i in self.find_all("list item", item) if i._box().width > 0],
                 lambda: f"no {item!r} in the list:\n{self.outline()}")[0].click()
        wait_for(lambda: item in [self.name, *(line.text for line in self.find_all("text"))],
                 lambda: f"{item!r} chosen, the box says {self.name!r}:\n{self.outline()}")


class Program:
    """A program on a display, a window manager and buses of its own; all end with it."""

    def __init__(self, command, home, screen="1100x800x24", environment=None):
        self.helpers = []
        self.process = None
        self.runtime = tempfile.TemporaryDirectory(prefix="drive-")
        try:
            self._start(command, home, screen, environment or {})
        except BaseException:
            self.stop()
            raise

    def _start(self, command, home, screen, environment):
        os.environ.update(
            DISPLAY=self._display(screen), HOME=home, XDG_RUNTIME_DIR=self.runtime.name,
            QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        for name in ("WAYLAND_DISPLAY", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"):
            os.environ.pop(name, None)
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self._bus()
        # The accessibility bus has to be there before the program looks for it.
        subprocess.run(["dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus",
                        "/org/a11y/bus", "org.a11y.Bus.GetAddress"],
                       check=True, stdout=subprocess.DEVNULL)
        # Without a window manager the focus is lost when a dialog closes.
        self._helper(["openbox"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for(lambda: b"_NET_SUPPORTING_WM_CHECK(WINDOW)" in subprocess.run(
            ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"], capture_output=True).stdout,
            "the window manager")
        Atspi.set_timeout(500, 3000)
        self.process = subprocess.Popen(command, env={**os.environ, **environment})
        self.accessible = wait_for(self._attach, "the program on the accessibility bus", 30)
        self.accessible.set_cache_mask(Atspi.Cache.NONE)

    def _helper(self, command, **options):
        process = subprocess.Popen(command, **options)
        self.helpers.append(process)
        return process

    def _display(self, screen):
        read, write = os.pipe()
        self._helper(["Xvfb", "-displayfd", str(write), "-noreset", "-nolisten", "tcp",
                      "-screen", "0", screen], pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            return ":" + number.readline().strip()

    def _bus(self):
        bus = self._helper(["dbus-daemon", "--session", "--nofork", "--print-address",
                            f"--address=unix:dir={self.runtime.name}"],
                           stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        return bus.stdout.readline().strip()

    def _attach(self):
        if self.process.poll() is not None:
            raise NotFound(f"the program ended at once, with {self.process.returncode}")
        desktop = Atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child and child.get_process_id() == self.process.pid and child.get_child_count():
                return child
        return None

    # Looking

    def windows(self):
        return [w for w in Element(self.accessible).children() if w.showing]

    def window(self, title):
        """The window of a title: exact, or a pattern from re.compile()."""
        def fits(name):
            return title.search(name) if isinstance(title, re.Pattern) else name == title

        found = wait_for(lambda: [w for w in self.windows() if fits(w.name)],
                         lambda: f"no window {title!r}; there are {[w.name for w in self.windows()]}")
        return found[-1]

    def gone(self, window):
        """Waits until a window has closed."""
        accessible = window.accessible
        wait_for(lambda: accessible not in [w.accessible for w in self.windows()],
                 f"a window that was to close is still open")

    def message(self):
        """The message box on top."""
        found = wait_for(lambda: [w for w in self.windows() if w.role == "alert"], "no message box")
        return found[-1]

    def text_of(self, message):
        return "\n".join(label.name for label in message.find_all("label") if label.name)

    # Acting

    def answer(self, button):
        """Presses a button of the message box on top and returns what the box said."""
        box = self.message()
        said = self.text_of(box)
        box.find("push button", button).press()
        self.gone(box)
        return said

    def menu(self, *path):
        """menu("Operate", "Add Meal"): runs a menu entry."""
        bar = next(e for w in self.windows() for e in w.descendants() if e.role == "menu bar")
        at = bar
        for step in path:
            at = wait_for(lambda: [e for e in at.descendants()
                                   if e.role == "menu item" and plain(e.name) == step],
                          lambda: f"no menu entry {step!r}:\n{bar.outline()}")[0]
        at.press()

    def keys(self, *names):
        xdotool("key", "--delay", 30, *names)

    def picture(self, path):
        """The whole screen, as a PNG, once nothing moves any more."""
        time.sleep(0.4)
        subprocess.run(["import", "-window", "root", path], check=True)

    def ended(self, seconds=10):
        """Waits for the program's own end and returns its exit code."""
        return self.process.wait(seconds)

    def stop(self):
        for process in filter(None, [self.process, *reversed(self.helpers)]):
            if process.poll() is None:
                process.terminate()
                try:
                    process.wait(5)
                except subprocess.TimeoutExpired:
                    process.kill()
                    process.wait()
        self.runtime.cleanup()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.stop()
