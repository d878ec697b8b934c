"""A session for the real program, and the tree that it offers to screen readers: found, pressed and listened to."""
import os
import shutil
import subprocess
import sys
import tempfile
import time

heard, listeners, times = [], [], []


def in_session(run, screen, limit):
    """Runs this program's `run` on a session bus and a display of its own, for at most `limit` seconds."""
    if "SESSION" in os.environ:
        return run()
    work = tempfile.mkdtemp()
    read, write = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", screen, "-nolisten", "tcp", "-noreset"],
                              pass_fds=[write], stderr=subprocess.DEVNULL)
    try:
        keep = {n: v for n, v in os.environ.items() if not n.startswith(("QT_", "WAYLAND", "XDG_", "DBUS"))}
        own = {"SESSION": work, "DISPLAY": ":" + open(read).readline().strip(), "XDG_RUNTIME_DIR": work, "HOME": work}
        sys.exit(subprocess.run(["dbus-run-session", "--", os.path.realpath(sys.argv[0]), *sys.argv[1:]],
                                timeout=limit, env={**keep, **own}).returncode)
    finally:
        server.kill()
        shutil.rmtree(work, ignore_errors=True)


if "SESSION" in os.environ:
    import pyatspi  # only now: it looks for the bus at once
    from gi.repository import GLib


def start(program, stderr=None, **environment):
    """The program, listened to."""
    heard.clear()
    if not listeners:
        listeners.append(on_showing)
        pyatspi.Registry.registerEventListener(on_showing, "object:state-changed:showing")
        pyatspi.Registry.registerEventListener(lambda event: heard.append(event.any_data), "object:announcement")
        pyatspi.Registry.registerEventListener(lambda event: times.append(time.time()), "object")
    return subprocess.Popen([program], env={**os.environ, "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
                                            "SDL_AUDIODRIVER": "dummy", **environment}, stderr=stderr)


def hear(seconds=0):
    """What has come until then, told to those above; on this thread alone: two would take each other's answers."""
    end = time.time() + seconds
    while GLib.MainContext.default().iteration(False) or time.time() < end:
        time.sleep(0.001)


def wait_for(find, why, limit=30):
    end = time.time() + limit
    while time.time() < end:
        hear()
        try:
            found = find()
        except GLib.GError:  # gone, or busy with a dialog that our press has opened
            found = None
        if found:
            return found
        time.sleep(0.05)
    sys.exit(f"waited in vain for {why}; heard: {heard}")


def everything(node, fits=lambda node: True):
    """It and all below it, but for what doesn't fit, with all that is below that."""
    if node is not None and fits(node):
        yield node
        for child in node:
            yield from everything(child, fits)


def is_showing(node):  # nothing is looked for below what isn't: a list that nobody has opened has shown rows
    return node.getState().contains(pyatspi.STATE_SHOWING)


def showing():
    """All that is on the screen, of the newest window first."""
    there = [a for a in pyatspi.Registry.getDesktop(0) if a is not None and "Tollmoor" in (a.name or "")]
    for program in there:  # states are asked anew: the toolkit calls each widget shown, also one that says it isn't
        program.set_cache_mask(pyatspi.Atspi.Cache.ALL ^ pyatspi.Atspi.Cache.STATES)
    return [n for window in (reversed(list(there[-1])) if there else []) for n in everything(window, is_showing)]


def find(name, role="button"):
    """The first one whose name begins so, or that the name tells. A button was called a push button once."""
    fits = name if callable(name) else lambda n: n.startswith(name)
    return next((n for n in showing() if n.getRoleName().removeprefix("push ") == role and fits(n.name or "")), None)


def is_on(button):
    return button is not None and button.getState().contains(pyatspi.STATE_SENSITIVE)


def do(node):
    """Presses it, if it is there and can be pressed."""
    actions = node.queryAction() if node else None
    for i in range(actions.nActions if actions else 0):
        if actions.getName(i).lower() in ("press", "toggle", "check"):
            return actions.doAction(i)
    return False


def could_press(name, role="button"):
    return do(find(name, role))


def press(name, role="button"):
    wait_for(lambda: could_press(name, role), name)


def busiest():
    """The most events that came within a second."""
    return max(sum(1 for later in times[i:i + 200] if later < begin + 1) for i, begin in enumerate(times))


def on_showing(event):
    if event.detail1 and event.source.getRole() == pyatspi.ROLE_NOTIFICATION:
        heard.append(event.source.name)
