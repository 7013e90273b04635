"""What an observer outside of the process sees of a transcript."""

import unittest

from projection import from_outside

SHOW = {"event": "show", "form": "frmMain"}
UNLOAD = {"event": "unload", "form": "frmMain"}
MESSAGE = {"event": "message", "text": "a", "title": "b", "icon": "none", "buttons": "ok",
           "answer": "ok"}


def end(reason):
    return {"event": "end", "reason": reason}


class FromOutside(unittest.TestCase):
    def test_menus_timers_and_common_dialogs_have_no_window(self):
        label = {"kind": "Label", "visible": True, "enabled": True, "caption": "c"}
        dump = {"event": "dump", "form": "frmMain", "caption": "d", "controls": {
            "clExit": {"kind": "Timer", "interval": 1, "active": True},
            "mnReSel": {"kind": "Menu", "visible": True, "enabled": True, "caption": "e"},
            "cdOpen": {"kind": "CommonDialog", "filter": "", "filename": ""},
            "mtOut": label}}
        seen = from_outside([dump, end("script")])
        self.assertEqual(seen[0]["controls"], {"mtOut": label})
        self.assertEqual(seen[0]["caption"], "d")
        self.assertEqual(len(dump["controls"]), 4)

    def test_of_a_tree_all_but_the_keys(self):
        node = {"key": "k1", "text": "a", "parent": 0, "checked": True, "expanded": False}
        tree = {"kind": "TreeView", "nodes": [node], "selected": 1, "tooltip": " 5"}
        seen = from_outside([{"event": "dump", "controls": {"tvMain": tree}}])
        self.assertEqual(seen[0]["controls"]["tvMain"], {
            "kind": "TreeView", "selected": 1, "tooltip": " 5",
            "nodes": [{"text": "a", "parent": 0, "checked": True, "expanded": False}]})
        self.assertIn("key", node)

    def test_of_a_skin_all_but_its_drawing_and_corners(self):
        dump = {"event": "dump", "transparency": 150, "region": [0, 0, 296, 46, 5, 5],
                "drawn": [[1, 2, 3, 4, 5]], "controls": {}}
        self.assertEqual(from_outside([dump]), [
            {"event": "dump", "transparency": 150, "region": [0, 0, 296, 46], "controls": {}}])

    def test_of_a_list_view_what_its_window_shows(self):
        def row(text, sub):
            return {"text": text, "key": "k", "color": 255, "sub": sub, "selected": True}

        def seen_row(text, sub):
            return {"text": text, "sub": sub, "selected": True}

        view = {"kind": "ListView", "visible": True, "enabled": True,
                "columns": [{"text": "a", "width": 2000}, {"text": "b", "width": -10},
                            {"text": "c", "width": 4500}],
                "rows": [row("1", ["x", "y", "z"]), row("2", ["", "y"]), row("3", ["", ""])]}
        seen = from_outside([{"event": "dump", "controls": {"lvMain": view}}])
        self.assertEqual(seen[0]["controls"]["lvMain"], {
            "kind": "ListView", "visible": True, "enabled": True,
            "columns": [{"text": "a", "width": 1995}, {"text": "b", "width": 0},
                        {"text": "c", "width": 4500}],
            "rows": [seen_row("1", ["x", "y"]), seen_row("2", ["", "y"]), seen_row("3", [])]})

    def test_of_what_goes_to_the_bin_only_the_answer(self):
        recycle = {"event": "recycle", "path": "T:\\a", "answer": "no"}
        self.assertEqual(from_outside([recycle, end("script")]),
                         [{"event": "recycle", "answer": "no"}, end("script")])

    def test_other_processes_are_not_seen(self):
        start = {"event": "start", "command": "notepad", "window": 1}
        kill = {"event": "kill", "process": "punto.exe"}
        self.assertEqual(from_outside([start, SHOW, kill, end("script")]), [SHOW, end("script")])

    def test_ways_to_end_by_itself_are_alike(self):
        for reason in ("shutdown", "closed", "returned"):
            self.assertEqual(from_outside([SHOW, end(reason)]), [SHOW, end("ended")])
        for reason in ("script", "calls", "time"):
            self.assertEqual(from_outside([SHOW, end(reason)]), [SHOW, end(reason)])

    def test_forms_that_go_with_their_process_are_not_seen_to_go(self):
        self.assertEqual(from_outside([SHOW, UNLOAD, UNLOAD, end("closed")]), [SHOW, end("ended")])

    def test_forms_that_go_earlier_are_seen(self):
        events = [SHOW, UNLOAD, MESSAGE, end("closed")]
        self.assertEqual(from_outside(events), [SHOW, UNLOAD, MESSAGE, end("ended")])
        self.assertEqual(from_outside([SHOW, UNLOAD, end("script")]), [SHOW, UNLOAD, end("script")])


if __name__ == "__main__":
    unittest.main()
