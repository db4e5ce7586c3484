#!/usr/bin/python3
"""Walks the running program as an assistive tool does, by AT-SPI alone: opens every window, looks at
what each control is called, whether results can be read and changes are announced, and does one
task from its first entry to the clipboard. Prints what it met; fails where a user would be lost.

Usage, on an X display: dbus-run-session -- walk.py PROGRAM
"""

import os
import re
import subprocess
import sys
import time
import warnings
from collections import Counter

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# What takes the place of the calls that it names is not in Debian 12's library.
warnings.simplefilter("ignore", DeprecationWarning)

WINDOWS = [
    "A/D Calc", "About Quenby Tarnwick", "Comparator Vref", "EUSART Calc",
    "LCD Custom character generator", "PWM Calc", "Quenby Tarnwick", "Serin2, Serout2 Calc",
    "Timer calc", "Timer helper", "USART Calc"]
OPERATED = {"push button", "check box", "radio button", "slider", "text", "combo box", "menu item"}
NAMED = OPERATED | {"image", "label", "menu bar", "panel"}
EVENTS = ["object:text-changed", "object:property-change:accessible-name",
          "object:property-change:accessible-value", "object:state-changed:checked"]
DEFINES = ("DEFINE HSER_RCSTA 90h ' Enable serial port & continuous receive\r\n"
           "DEFINE HSER_TXSTA 24h ' Enable transmit, BRGH = 1\r\n"
           "DEFINE HSER_SPBRG 12  ' 19200 Baud @ 4MHz, 0.16%\r\n"
           "DEFINE HSER_CLROERR 1 ' Clear overflow automatically\r\n")

faults = []
announced = set()  # (name, what) of the events since they were last forgotten


def check(holds, fault):
    if not holds:
        faults.append(fault)
        print("FAULT:", fault)


def wait(condition, what):
    """Serves the accessibility bus until the condition holds."""
    until = time.monotonic() + 30
    while not (answer := condition()):
        if time.monotonic() > until:
            sys.exit(f"FAULT: waited in vain: {what}")
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.01)
    return answer


def children(node):
    return [child for i in range(node.get_child_count()) if (child := node.get_child_at_index(i))]


def has(node, state):
    return node.get_state_set().contains(state)


def visible(node):
    """The node and all that is shown of its descendants, each with its parent."""
    for child in children(node):
        if has(child, Atspi.StateType.SHOWING):
            yield child, node
            yield from visible(child)


def spoken(node):
    """What a user hears a control called; of a list that is its description, its name is the item."""
    return node.get_description() if node.get_role_name() == "combo box" else node.get_name()


def labelled(label):
    """What a label is the label of."""
    kinds = [relation.get_relation_type() for relation in label.get_relation_set()]
    return Atspi.RelationType.LABEL_FOR in kinds


def text(node):
    return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))


def clipboard():
    reader = ["xclip", "-selection", "clipboard", "-o"]
    return subprocess.run(reader, capture_output=True, check=True, timeout=30).stdout.decode()


class Program:
    def __init__(self, path):
        environment = dict(os.environ, QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        self.process = subprocess.Popen([path], env=environment)
        self.root = wait(self._find, "the program on the accessibility bus")
        self.root.set_cache_mask(Atspi.Cache.NONE)
        self.window("Quenby Tarnwick")

    def _find(self):
        found = [node for node in children(Atspi.get_desktop(0))
                 if node.get_process_id() == self.process.pid and node.get_child_count()]
        return found[0] if found else None

    def open(self, button, name):
        """Opens a window or brings it forward."""
        act(self.windows()["Quenby Tarnwick"], "push button", button)
        return self.window(name)

    def windows(self):
        return {node.get_name(): node for node in children(self.root)}

    def window(self, name):
        """The window of this name once it is the active one."""
        def active():
            node = self.windows().get(name)
            return node if node and has(node, Atspi.StateType.ACTIVE) else None
        return wait(active, f"window {name} to be active")


def control(window, role, name):
    found = [node for node, _ in visible(window)
             if node.get_role_name() == role and spoken(node) == name]
    if len(found) != 1:
        sys.exit(f"FAULT: {window.get_name()}: {len(found)} times {role} {name!r}")
    return found[0]


def act(window, role, name):
    """Does what the control is there for: presses or toggles it."""
    node = control(window, role, name)
    print(f"  {window.get_name()}: {node.get_action_name(0)} {role} {name!r}")
    node.do_action(0)


def enter(window, name, value):
    """Goes to a field and replaces its text; leaving the field is left to what comes next."""
    node = control(window, "text", name)
    print(f"  {window.get_name()}: {name!r} reads {text(node)!r}, set it to {value!r}")
    node.grab_focus()
    wait(lambda: has(node, Atspi.StateType.FOCUSED), f"{name} to have the focus")
    Atspi.EditableText.set_text_contents(node, value)
    wait(lambda: text(node) == value, f"{name} to read {value}")


def reads(window, name, value):
    node = control(window, "text", name)
    wait(lambda: text(node) == value, f"{name} to read {value!r}, which reads {text(node)!r}")
    print(f"  {window.get_name()}: {name!r} reads {value!r}")


def hear(event):
    if event.source:
        announced.add((event.source.get_name(), event.type.rsplit(":", 1)[0]))


def hears(name, what):
    wait(lambda: (name, what) in announced, f"{what} of {name!r}, heard {sorted(announced)}")
    print(f"  heard {what} of {name!r}")


def look_at(name, window):
    """Looks at every control of a window; answers how many are operated and how many are results."""
    check(window.get_role_name() == "frame", f"{name} is no frame but {window.get_role_name()}")
    operated, labels, results = [], [], 0
    for node, parent in visible(window):
        role, called = node.get_role_name(), spoken(node)
        check(called.strip() or role not in NAMED, f"{name}: {role} without a name")
        if role in OPERATED and parent.get_role_name() != "combo box":
            operated.append(called)
            check(node.get_n_actions() > 0 or not has(node, Atspi.StateType.ENABLED),
                  f"{name}: {called}: nothing can be done")
        if role == "label" and not labelled(node):
            labels.append((str(parent.path), called))
        if role != "text" or has(node, Atspi.StateType.EDITABLE) and not has(
                node, Atspi.StateType.READ_ONLY):
            continue
        results += 1
        check(has(node, Atspi.StateType.FOCUSABLE), f"{name}: {called} takes no focus")
        check(text(node).strip() or re.match(r"Character data \d", called),
              f"{name}: {called} reads nothing")
    for called, times in Counter(operated).items():
        check(times == 1, f"{name}: {times} controls are called {called!r}")
    for (_, called), times in Counter(labels).items():
        check(times == 1, f"{name}: {times} labels side by side read {called!r}")
    return len(operated), results


def walk(program):
    launcher = program.window("Quenby Tarnwick")
    openers = [node for node, _ in visible(launcher)
               if node.get_role_name() == "push button" or node.get_name() == "About"]
    for node in openers:
        opened = len(program.windows())
        print(f"  Quenby Tarnwick: {node.get_action_name(0)} {node.get_name()!r}")
        node.do_action(0)
        wait(lambda: len(program.windows()) > opened, f"a window by {node.get_name()!r}")
    met = program.windows()
    check(sorted(met) == WINDOWS, f"windows: {sorted(met)}")
    counts = {name: look_at(name, window) for name, window in sorted(met.items())}
    for name, (operated, results) in counts.items():
        print(f"{name}: {operated} controls, {results} of them results")
    print(f"{len(counts)} windows, {sum(n for n, _ in counts.values())} controls, "
          f"{sum(n for _, n in counts.values())} of them results")


def changes(program):
    """Changes reach who only listens: results, options, sliders, pixels and labels."""
    windows = program.windows()
    announced.clear()
    act(windows["Timer calc"], "radio button", "1:4")
    hears("1:4", "object:state-changed")
    for name in ("Interrupt each", "Frequency"):
        hears(name, "object:text-changed")
    slider = control(windows["PWM Calc"], "slider", "Duty cycle slider")
    slider.set_current_value(25)
    hears("Duty cycle slider", "object:property-change")
    hears("Calc. duty", "object:text-changed")
    lcd = windows["LCD Custom character generator"]
    act(lcd, "check box", "Row 2, column 2")
    hears("Row 2, column 2", "object:state-changed")
    hears("Row 2, $08", "object:property-change")
    reads(lcd, "Character data 0", " $00, $08, $00, $00, $00, $00, $00, $00")
    comparator = program.open("Comparator Vref", "Comparator Vref")
    enter(comparator, "Vdd (Volt)", "4")
    act(comparator, "radio button", "High (CVRR=1)")
    hears("1.000 - 2.875 Volt", "object:property-change")
    hears("Vref (Volt)", "object:text-changed")


def task(program):
    """The settings of a serial port for 19200 Bd at 4 MHz, copied."""
    usart = program.open("USART calc", "USART Calc")
    enter(usart, "OSC (MHz)", "4")
    enter(usart, "Baudrate", "19200")
    act(usart, "push button", "Copy PBP DEFINEs to clipboard")
    reads(usart, "SPBRG", "12")
    reads(usart, "BRGH = 1, Calc baud", "19231")
    reads(usart, "Error %", "0.16%")
    copied = clipboard()
    print("  the clipboard holds:")
    print("".join("    " + line for line in copied.splitlines(keepends=True)), end="")
    check(copied == DEFINES, f"on the clipboard: {copied!r}")


def message(program):
    """A press that brings up a message does nothing else; the message can be read and closed."""
    usart = program.open("USART calc", "USART Calc")
    enter(usart, "OSC (MHz)", "100")
    act(usart, "push button", "Copy register settings to clipboard")
    box = program.window("Oscillator speed to high")
    labels = [node.get_name() for node, _ in visible(box) if node.get_role_name() == "label"]
    print("  message:", box.get_name(), labels)
    check(any("64" in label for label in labels), f"the message says {labels}")
    reads(usart, "OSC (MHz)", "64")
    act(box, "push button", "OK")
    program.window("USART Calc")
    check(clipboard() == DEFINES, f"copied beside a message: {clipboard()!r}")


def main():
    program = Program(sys.argv[1])
    listener = Atspi.EventListener.new(hear)
    for event in EVENTS:
        listener.register(event)
    try:
        print("Every window")
        walk(program)
        print("Changes")
        changes(program)
        print("USART: oscillator, baud rate, copy")
        task(program)
        print("A wrong oscillator")
        message(program)
        act(program.windows()["Quenby Tarnwick"], "menu item", "Exit")
        check(program.process.wait(30) == 0, f"the program ended with {program.process.returncode}")
    finally:
        program.process.kill()
    print(f"{len(faults)} faults")
    sys.exit(1 if faults else 0)


main()
