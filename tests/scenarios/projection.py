"""What of a transcript an observer outside of the process can see.

The robot looks at the windows of the program from another process. A transcript of the headless
program becomes comparable with the robot's by leaving out what has no window, and nothing else:

- controls of the kinds Timer and CommonDialog in a dump;
- programs started and processes ended, the events "start" and "kill";
- why the process ended by itself: "shutdown", "closed" and "returned" are all "ended";
- forms that go with their process: an "unload" with nothing behind it but such an end.
"""

WINDOWLESS_KINDS = {"Timer", "CommonDialog"}
UNSEEN_EVENTS = {"start", "kill"}
OWN_ENDS = {"shutdown", "closed", "returned"}


def _seen_dump(event):
    controls = {
        name: control
        for name, control in event["controls"].items()
        if control["kind"] not in WINDOWLESS_KINDS
    }
    return {**event, "controls": controls}


def _seen(event):
    if event["event"] == "dump":
        return _seen_dump(event)
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
