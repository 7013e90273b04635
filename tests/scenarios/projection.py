"""What of a transcript an observer outside of the process can see.

The robot looks at the windows of the program from another process. A transcript of the headless
program becomes comparable with the robot's by leaving out what has no window, and nothing else:

- keys and colours of rows, and keys of nodes, which their windows don't tell;
- sub-items that no column shows, and empty ones at a row's end, which look like none;
- parts of a pixel of a column's width;
- controls of the kinds Menu, Timer and CommonDialog in a dump;
- what a form has drawn, and how round the corners of its region are;
- which path goes to the Recycle Bin: the shell draws it;
- programs started and processes ended, the events "start" and "kill";
- why the process ended by itself: "shutdown", "closed" and "returned" are all "ended";
- forms that go with their process: an "unload" with nothing behind it but such an end.
"""

WINDOWLESS_KINDS = {"Menu", "Timer", "CommonDialog"}
UNSEEN_EVENTS = {"start", "kill"}
OWN_ENDS = {"shutdown", "closed", "returned"}


def _seen_width(twips):
    """As the screen of the robot has it, with 96 dots to the inch."""
    return max(0, (twips * 96 + 720) // 1440 * 15)


def _seen_row(row, shown):
    sub = row["sub"][:shown]
    while sub and not sub[-1]:
        del sub[-1]
    return {"text": row["text"], "sub": sub, "selected": row["selected"]}


def _seen_node(node):
    return {name: value for name, value in node.items() if name != "key"}


def _seen_control(control):
    if control["kind"] == "TreeView":
        return {**control, "nodes": [_seen_node(node) for node in control["nodes"]]}
    if control["kind"] != "ListView":
        return control
    columns = [{**column, "width": _seen_width(column["width"])} for column in control["columns"]]
    rows = [_seen_row(row, len(columns) - 1) for row in control["rows"]]
    return {**control, "columns": columns, "rows": rows}


def _seen_dump(event):
    controls = {
        name: _seen_control(control)
        for name, control in event["controls"].items()
        if control["kind"] not in WINDOWLESS_KINDS
    }
    seen = {name: value for name, value in event.items() if name != "drawn"}
    if "region" in seen:
        seen["region"] = seen["region"][:4]
    return {**seen, "controls": controls}


def _seen(event):
    if event["event"] == "dump":
        return _seen_dump(event)
    if event["event"] == "recycle":
        return {name: value for name, value in event.items() if name != "path"}
    if event["event"] == "end" and event["reason"] in OWN_ENDS:
        return {**event, "reason": "ended"}
    return event


def from_outside(events):
    """Takes the events of a transcript as dictionaries, gives those that the robot would write."""
    seen = [_seen(event) for event in events if event["event"] not in UNSEEN_EVENTS]
    if seen and seen[-1] == {"event": "end", "reason": "ended"}:
        while len(seen) > 1 and seen[-2]["event"] == "unload":
            del seen[-2]
    return seen
