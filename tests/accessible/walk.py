#!/usr/bin/python3
# Walks the running program as an assistive tool does, by AT-SPI alone: opens every window, hears
# what each control is called, listens to changes, and does one task from its first entry to the
# clipboard, with a wrong entry on the way. Prints what it met; fails where a user would be lost.
#
# Usage, on an X display: dbus-run-session -- walk.py PROGRAM

import os
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

OPERATED = {"push button", "check box", "radio button", "slider", "text", "combo box", "menu item"}
NAMED = OPERATED - {"combo box"} | {"image", "label", "panel"}
environment = dict(os.environ, QT_QPA_PLATFORM="xcb", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
process = subprocess.Popen([sys.argv[1]], env=environment)
announced = set()  # (name, what) of the events so far


def hear(event):
    if event.source:
        announced.add((event.source.get_name(), event.type.split(":")[1]))


# Serves the accessibility bus until the condition holds.
def wait(what, condition):
    until = time.monotonic() + 30
    while not (answer := condition()):
        assert time.monotonic() < until, f"waited in vain for {what}"
        while GLib.MainContext.default().iteration(False):
            pass
        time.sleep(0.01)
    print(what)
    return answer


def children(node):
    return [child for i in range(node.get_child_count()) if (child := node.get_child_at_index(i))]


def has(node, state):
    return node.get_state_set().contains(state)


# What a node is, in the words before AT-SPI 2.53.
def role(node):
    name = node.get_role_name()
    return "push button" if name == "button" else name


# All that is shown of a node's descendants.
def visible(node):
    for child in children(node):
        if has(child, Atspi.StateType.SHOWING):
            yield child
            yield from visible(child)


def program():
    return [node for node in children(Atspi.get_desktop(0)) if node.get_process_id() == process.pid]


def windows():
    return children(program()[0])


# A control of the window of this name, once it is there.
def control(window, kind, name):
    return wait(f"{window}: {kind} {name!r}", lambda: next(
        (node for each in windows() if each.get_name() == window for node in visible(each)
         if (role(node), node.get_name()) == (kind, name)), None))


# Does what a control is there for: presses or toggles it.
def act(*place):
    control(*place).do_action(0)


# Goes to a field and replaces its text; leaving the field is left to what comes next.
def enter(window, name, value):
    node = control(window, "text", name)
    node.grab_focus()
    wait("the focus", lambda: has(node, Atspi.StateType.FOCUSED))
    Atspi.EditableText.set_text_contents(node, value)


def expect(window, name, value):
    node = control(window, "text", name)
    wait(f"... reads {value!r}", lambda: Atspi.Text.get_text(node, 0, -1) == value)
    reader = ["xclip", "-selection", "clipboard", "-o"]
    copied = subprocess.run(reader, capture_output=True, check=True, timeout=30).stdout.decode()
    assert "HSER_SPBRG 12  ' 19200 Baud @ 4MHz, 0.16%\r\n" in copied, copied


def walk():
    for node in visible(windows()[0]):
        if role(node) == "push button" or node.get_name() == "About":
            node.do_action(0)
    wait("eleven windows", lambda: len(windows()) == 11)
    for node in [node for window in windows() for node in visible(window)]:
        what = f"{role(node)} {node.get_name()!r}"
        canBeUsed = node.get_n_actions() or not has(node, Atspi.StateType.ENABLED)
        assert canBeUsed or role(node) not in OPERATED, what
        assert node.get_name().strip() or role(node) not in NAMED, what


# Changes reach who only listens: results, options, sliders, pixels and labels.
def change():
    act("Timer calc", "radio button", "1:4")
    control("PWM Calc", "slider", "Duty cycle slider").set_current_value(25)
    act("LCD Custom character generator", "check box", "Row 2, column 2")
    for change in [("1:4", "state-changed"), ("Interrupt each", "text-changed"),
                   ("Duty cycle slider", "property-change"), ("Calc. duty", "text-changed"),
                   ("Row 2, column 2", "state-changed"), ("Row 2, $08", "property-change")]:
        wait(change, lambda: change in announced)


# The settings of a serial port for 19200 Bd at 4 MHz, copied. A press that brings up a message
# copies nothing.
def serve():
    usart = "USART Calc"
    enter(usart, "OSC (MHz)", "4")
    enter(usart, "Baudrate", "19200")
    act(usart, "push button", "Copy PBP DEFINEs to clipboard")
    expect(usart, "BRGH = 1, Calc baud", "19231")
    enter(usart, "OSC (MHz)", "100")
    act(usart, "push button", "Copy register settings to clipboard")
    control("Oscillator speed to high", "label", "As now maximum allowed is 64 MHz")
    act("Oscillator speed to high", "push button", "OK")
    expect(usart, "OSC (MHz)", "64")


try:
    wait("the program", lambda: program() and windows())
    listener = Atspi.EventListener.new(hear)
    for event in ["text-changed", "property-change", "state-changed:checked"]:
        listener.register("object:" + event)
    walk()
    change()
    act("Quenby Tarnwick", "push button", "USART calc")
    serve()
    act("Quenby Tarnwick", "menu item", "Exit")
    sys.exit(process.wait(30))
finally:
    process.kill()
