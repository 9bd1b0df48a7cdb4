"""What a screen reader hears and does: events, names, texts and acts over AT-SPI, and real keys."""
import contextlib
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 15  # seconds until something that does not come is a failure
AT_ONCE = 3  # seconds within which a caller has its answer
KINDS = ("object:announcement", "object:state-changed:showing", "object:state-changed:focused", "object:text-changed")

heard = []  # what was announced
changes = []  # how texts changed: ("insert", "Percentage")
focused = []  # what got the focus


def fail(what):
    sys.exit(f"by ear: {what}")


def same(what, expected, seen):
    if expected != seen:
        fail(f"{what}: expected {expected!r}, saw {seen!r}")


# --- events


def listen(event):
    kind = event.type
    if kind.startswith("object:announcement"):
        heard.append(event.any_data)
    elif kind.startswith("object:state-changed:focused"):
        if event.detail1:
            focused.append(event.source)
    elif kind.startswith("object:state-changed:showing"):
        with contextlib.suppress(GLib.GError):  # it may be gone already
            if event.detail1 and event.source.get_role() == Atspi.Role.NOTIFICATION:
                heard.append(event.source.get_name())
    else:
        changes.append((kind.split(":")[2], event.source.get_name()))


listener = Atspi.EventListener.new(listen)


def register():
    for kind in KINDS:
        listener.deregister(kind)
        listener.register(kind)


def comes(condition, seconds):
    """Handles events until the condition returns something, and returns that."""
    end = time.monotonic() + seconds
    while not (found := condition()) and time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.01)
    return found


def until(what, condition):
    return comes(condition, PATIENCE) or fail(f"this did not come: {what}; heard {heard}")


def settle():
    """Gives what must not happen the time to happen."""
    comes(lambda: False, 0.5)


def hear(text):
    until(f'"{text}"', lambda: heard and heard.pop(0) == text)


# --- controls


def children(parent):
    return filter(None, (parent.get_child_at_index(index) for index in range(parent.get_child_count())))


def inside(parent):
    for child in children(parent):
        yield child
        yield from inside(child)


def find(parent, role, name):
    return next((it for it in inside(parent) if it.get_role() == role and it.get_name() == name), None)


def windows():
    return [it for program in children(Atspi.get_desktop(0)) for it in children(program)]


def window(name):
    return next((it for it in windows() if it.get_name() == name), None)


def has_state(control, state):
    return control.get_state_set().contains(state)


def press(control):
    """Does what a press does, and looks how long the caller waits."""
    if control is None:
        fail("what should be pressed is not there")
    actions = [Atspi.Action.get_action_name(control, at) for at in range(Atspi.Action.get_n_actions(control))]
    started = time.monotonic()
    Atspi.Action.do_action(control, actions.index("Press"))
    if time.monotonic() - started > AT_ONCE:
        fail(f"{control.get_name()} was answered after {time.monotonic() - started:.1f} seconds")


# --- what is read aloud


def text_of(field):
    return Atspi.Text.get_text(field, 0, -1)


def spoken_name(control):
    """A label's name is said in place of the control's own."""
    labels = [
        relation.get_target(at).get_name()
        for relation in control.get_relation_set()
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY
        for at in range(relation.get_n_targets())
    ]
    return " ".join(labels).strip() or control.get_name()


def spoken_text(field):
    """A text is said run by run of its attributes; what no run covers is not said."""
    said, at = "", 0
    while at < Atspi.Text.get_character_count(field):
        _, start, end = Atspi.Text.get_attribute_run(field, at, False)
        said += Atspi.Text.get_text(field, max(start, at), end) if end > at else ""
        at = max(end, at + 1)
    return said


def spoken_row(cell):
    table = cell.get_parent()
    row = Atspi.Table.get_row_at_index(table, cell.get_index_in_parent())
    columns = range(Atspi.Table.get_n_columns(table))
    return " ".join(Atspi.Table.get_accessible_at(table, row, column).get_name() for column in columns)


# --- keys


def play(*arguments):
    """The program may ask for leave to use a key, so events are handled meanwhile."""
    hands = subprocess.Popen(["xdotool", *arguments])
    until("the end of the keys", lambda: hands.poll() is not None)


def press_key(*keys):
    play("key", "--delay", "4", *keys)


def hold(*keys):
    down = [word for key in keys for word in ("keydown", key)]
    up = [word for key in reversed(keys) for word in ("keyup", key)]
    play(*down, "sleep", "0.8", *up)
