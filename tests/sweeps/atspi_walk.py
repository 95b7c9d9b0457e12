#!/usr/bin/env python3
"""Reads the running program as a screen reader does.

    atspi_walk.py --program FILE --make-sample FILE --data FOLDER

Starts the program on a virtual screen and a message bus of its own, in a temporary folder with a sample, goes by keys from the
main window to the contact list and to the contact editor, and reads every control of the three by name. Fails where a control has
no name, or where one that must be there is missing.
"""

import argparse
import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time

PATIENCE = 30  # seconds for one step
NO_BUS = 3  # exit code: nothing was read, since the program never came up on the bus

# What must be found: (role, name).
MAIN_WINDOW = [("tree", "Categories"), ("page tab", "Contacts and Categories"), ("page tab", "Search"),
               ("page tab", "Letters and Labels"), ("menu item", "Settings"), ("menu item", "Category"),
               ("menu item", "Alerts"), ("menu item", "Maintenance"), ("menu item", "Help"), ("menu item", "Close")]
CONTACT_LIST = [("table", "Contacts"), ("menu item", "Current Contact"), ("table column header", "First Name"),
                ("table column header", "Last Name"), ("table column header", "Home Phone")]
EDITOR = [("table", "Sheet"), ("button", "Cancel"), ("button", "Save and exit"), ("button", "Save and add")]
SHEET = ["First Name", "MI", "Last Name", "Address1", "Address2", "City", "State", "Zip", "Zip4", "Salutation", "Spouse",
         "Referred by", "Company", "Email", "Home Phone", "Work Phone", "Ext", "Cell Phone", "Fax"]

# Roles that a person works or reads; each must have a name.
NAMED = {"button", "push button", "check box", "radio button", "combo box", "text", "entry", "menu item", "page tab", "table",
         "tree", "tree table", "list", "progress bar", "frame", "dialog", "table column header"}


def fail(text):
    print("FAIL: " + text)
    sys.exit(1)


def wait_for(what, ask):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        answer = ask()
        if answer:
            return answer
        time.sleep(0.1)
    fail("waited in vain for " + what)


class Reader:
    """The tree of accessible objects of one program."""

    def __init__(self, atspi):
        self.atspi = atspi

    def application(self):
        desktop = self.atspi.get_desktop(0)
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child and child.get_name() == "orvantine":
                return child
        return None

    def window(self, begins):
        """The top-level window whose first controls hold one with this role and name."""
        application = self.application()
        for i in range(application.get_child_count() if application else 0):
            window = application.get_child_at_index(i)
            if window and begins in [(role, name) for role, name, _ in self.walk(window)]:
                return window
        return None

    def walk(self, node, depth=0):
        """(role, name, is shown) of a node and of all below it, but not of the cells of tables and trees."""
        found = [(node.get_role_name(), self.name(node), self.is_shown(node))]
        if depth > 20:
            return found
        for i in range(min(node.get_child_count(), 200)):
            child = node.get_child_at_index(i)
            if child and child.get_role_name() not in ("table cell", "tree item", "table row"):
                found += self.walk(child, depth + 1)
        return found

    def is_shown(self, node):
        return node.get_state_set().contains(self.atspi.StateType.SHOWING)

    def is_focused(self, node):
        return node.get_state_set().contains(self.atspi.StateType.FOCUSED)

    def name(self, node):
        """What a person hears: the words of a label that stands for the control, or else its own name."""
        for relation in node.get_relation_set():
            if relation.get_relation_type() == self.atspi.RelationType.LABELLED_BY and relation.get_n_targets() > 0:
                return relation.get_target(0).get_name().strip(" :")
        return (node.get_name() or "").replace("&", "").strip()

    def focused(self, window):
        """The control with the focus, by name."""
        if self.is_focused(window) and window.get_role_name() in ("text", "entry", "combo box", "button", "push button"):
            return self.name(window)
        for i in range(min(window.get_child_count(), 200)):
            child = window.get_child_at_index(i)
            if child and child.get_role_name() not in ("table cell", "table row"):
                name = self.focused(child)
                if name:
                    return name
        return None


def check(title, found, expected):
    print(f"{title}:")
    for role, name, shown in found:
        print(f"    {role}: {name}" + ("" if shown else " (not shown)"))
    nameless = [role for role, name, shown in found if shown and role in NAMED and not name]
    if nameless:
        fail(f"{title}: without a name: {', '.join(nameless)}")
    there = {(role.replace("push ", ""), name) for role, name, _ in found}
    missing = [f"{role} {name}" for role, name in expected if (role, name) not in there]
    if missing:
        fail(f"{title}: missing: {', '.join(missing)}")


def press(*keys):
    for key in keys:
        subprocess.run(["xdotool", "key", "--clearmodifiers", key], check=True, timeout=PATIENCE)
        time.sleep(0.15)


def read_program(program):
    """Inside the message bus and the screen."""
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi

    running = subprocess.Popen([program])
    try:
        reader = Reader(Atspi)
        end = time.monotonic() + PATIENCE
        while reader.application() is None:
            if time.monotonic() > end or running.poll() is not None:
                print("the program did not come up on the bus")
                sys.exit(NO_BUS)
            time.sleep(0.1)
        main = wait_for("the main window", lambda: reader.window(("tree", "Categories")))
        check("main window", reader.walk(main), MAIN_WINDOW)
        # To the first category, into it, to its first subcategory, and to its contacts.
        press("Home", "Right", "Down", "Return")
        contacts = wait_for("the contact list", lambda: reader.window(("table", "Contacts")))
        check("contact list", reader.walk(contacts), CONTACT_LIST)
        press("Return")
        editor = wait_for("the contact editor", lambda: reader.window(("text", "First Name")))
        check("contact editor", reader.walk(editor),
              EDITOR + [("combo box" if row == "State" else "text", row) for row in SHEET])
        # The way through the sheet: each row is read by its own name.
        for row in SHEET:
            wait_for("the row " + row, lambda: reader.focused(editor) == row)
            press("Tab")
        press("Escape")
        if running.poll() is not None:
            fail("the program ended")
    finally:
        running.kill()
        running.wait()
    print("PASS")


def make_folder(options, folder):
    os.makedirs(folder + "/Data", mode=0o700)
    shutil.copytree(options.data + "/Images", folder + "/Resource/Images")
    shutil.copy(options.data + "/Delivered.mdb", folder + "/Data/Contacts.mdb")
    subprocess.run([options.make_sample, "--contacts", "200", "--seed", "1", "--database", folder + "/Data/Contacts.mdb"],
                   check=True, timeout=60)
    shutil.copy(options.program, folder + "/orvantine")
    return folder + "/orvantine"


def start_screen():
    """A virtual screen that answers; gives its process and its name."""
    for _ in range(5):
        listen, tell = os.pipe()
        screen = subprocess.Popen(["Xvfb", "-displayfd", str(tell), "-screen", "0", "1366x768x24", "-nolisten", "tcp"],
                                  pass_fds=[tell], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(tell)
        with os.fdopen(listen) as number:
            display = ":" + number.readline().strip()
        # Another screen that goes at this moment may take the number along.
        if subprocess.run(["xdotool", "getdisplaygeometry"], env=dict(os.environ, DISPLAY=display),
                          stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=20).returncode == 0:
            return screen, display
        screen.kill()
        screen.wait()
    fail("no virtual screen comes up")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--program", required=True)
    parser.add_argument("--make-sample")
    parser.add_argument("--data")
    parser.add_argument("--inside", action="store_true", help=argparse.SUPPRESS)
    options = parser.parse_args()
    if options.inside:
        read_program(options.program)
        return 0

    # A bus that does not come up on a busy machine says nothing of the program: it gets another chance, the program none.
    for _ in range(3):
        result = walk_once(options)
        if result != NO_BUS:
            break
    return result


def walk_once(options):
    with tempfile.TemporaryDirectory() as folder:
        program = make_folder(options, folder)
        screen, display = start_screen()
        try:
            surroundings = dict(os.environ, DISPLAY=display, QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
                                NO_AT_BRIDGE="0", XDG_RUNTIME_DIR=folder, HOME=folder, LC_ALL="C.UTF-8")
            walk = subprocess.Popen(["dbus-run-session", "--", sys.executable, os.path.abspath(__file__), "--inside",
                                     "--program", program], env=surroundings, start_new_session=True)
            try:
                return walk.wait(timeout=100)
            except subprocess.TimeoutExpired:
                print("FAIL: the walk hangs")
                return 1
            finally:
                # The bus and the program go with the session that this script started.
                try:
                    os.killpg(walk.pid, signal.SIGTERM)
                except ProcessLookupError:
                    pass
        finally:
            screen.kill()
            screen.wait()


if __name__ == "__main__":
    sys.exit(main())
