"""What a screen reader would hear of the running program.
    heard.py cell <table> <row> <column> | cells <table> <row> | heads <table> | rows <list>
    heard.py listen | press <button>"""
import sys

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402


VIEWS = (Atspi.Role.TABLE, Atspi.Role.LIST)


def children(node):
    return [child for child in map(node.get_child_at_index, range(node.get_child_count())) if child]


def application():
    running = [one for one in children(Atspi.get_desktop(0)) if one.get_name().lower().endswith("pursewell")]
    if not running:
        sys.exit("the program is not on the bus")
    return running[0]


def shown_below(node):
    """The visible nodes, the latest window first, without what stands in the cells of a view."""
    for child in reversed(children(node)):
        if child.get_state_set().contains(Atspi.StateType.SHOWING):
            yield child
            if child.get_role() not in VIEWS:
                yield from shown_below(child)


def find(role, name):
    for node in shown_below(application()):
        if node.get_role() == role and node.get_name() == name:
            return node
    sys.exit(f"there is no {role.value_nick} named {name}")


def table(name):
    return find(Atspi.Role.TABLE, name).get_table_iface()


def cell(name, row, column):
    return table(name).get_accessible_at(int(row), int(column)).get_name()


def cells(name, row):
    grid = table(name)
    return " | ".join(
        grid.get_accessible_at(int(row), column).get_name() for column in range(grid.get_n_columns())
    )


def heads(name):
    grid = table(name)
    return " | ".join(grid.get_column_header(column).get_name() for column in range(grid.get_n_columns()))


def rows(name):
    return " | ".join(row.get_name() for row in children(find(Atspi.Role.LIST, name)))


def listen():
    """Names each node that gets the focus or another name, until it is ended."""

    def told(event):
        if event.detail1 or "name" in event.type:
            print(f"{event.source.get_role_name()}: {event.source.get_name()}", flush=True)

    listener = Atspi.EventListener.new(told)
    listener.register("object:state-changed:focused")
    listener.register("object:property-change:accessible-name")
    Atspi.event_main()


def press(name):
    return "done" if find(Atspi.Role.PUSH_BUTTON, name).get_action_iface().do_action(0) else "refused"


if __name__ == "__main__":
    Atspi.set_timeout(5000, 10000)
    asked = {f.__name__: f for f in (cell, cells, heads, rows, listen, press)}
    print(asked[sys.argv[1]](*sys.argv[2:]) or "")
