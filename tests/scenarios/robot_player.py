"""Plays scenarios on the real windows of Orvik.exe, by orvik-robot.exe under Wine."""

import json
import os
import shutil
import subprocess

import projection
from players import ROOT, Played, Wine, Player, windows_path


class Robot(Player):
    """Presses the real controls and reads them back. Time is real, and no service of the system is
    replaced: scenarios with another clock, locks, limits or events inside of a job are for others.
    """

    program = os.path.join("build", "windows-release", "src", "Orvik.exe")
    # What it writes is less than a transcript.
    writes = False
    # Wine's desktop lives as long as its server, on the screen where it began: so the robot has a
    # prefix of its own, and a server that begins with it.
    _prefix = os.path.join(ROOT, "build", "wine", "robot")

    def __enter__(self):
        if not os.environ.get("DISPLAY"):
            raise SystemExit("the robot needs a screen: scripts/with-display %s"
                             % os.path.join("tests", "scenarios", "run.py"))
        self._stop_server()
        return self

    def __exit__(self, *_):
        self._stop_server()

    @staticmethod
    def view(lines):
        events = projection.from_outside([json.loads(Wine.same(line)) for line in lines])
        return [json.dumps(event, ensure_ascii=False, sort_keys=True) for event in events]

    def play(self, scenario, tree, work):
        registry = [option[len("--reg="):] for option in scenario.options
                    if option.startswith("--reg=")]
        others = [option for option in scenario.options if not option.startswith("--reg=")]
        if others:
            return Played(2, b"", "the robot has no option " + ", ".join(others))
        self._reset(registry)
        script = scenario.script
        if not script:
            script = os.path.join(work, "nothing.txt")
            with open(script, "w", encoding="utf-8"):
                pass
        robot = os.path.join(os.path.dirname(self.program), "..", "tests", "robot",
                             "orvik-robot.exe")
        command = ["--drive", "T=" + tree, robot, "--program", windows_path(self.program),
                   "--script", windows_path(script), "--", scenario.line]
        try:
            run = self._wine(command, timeout=scenario.timeout)
        except subprocess.TimeoutExpired:
            # Ends the program too, which nobody would.
            self._stop_server()
            raise
        return Played(run.returncode, run.stdout, run.stderr.decode("utf-8", errors="replace"))

    def _reset(self, registry):
        for key in Wine.own_keys:
            self._wine(["reg", "delete", key, "/f"])
        for entry in registry:
            key, name, data = entry.split("|", 2)
            value = ["/v", name] if name else ["/ve"]
            if self._wine(["reg", "add", key, *value, "/d", data, "/f"]).returncode != 0:
                raise OSError("can't write the registry value " + entry)
        shutil.rmtree(os.path.join(self._prefix, "home", ".local", "share", "Trash"),
                      ignore_errors=True)

    def _wine(self, command, timeout=None):
        return subprocess.run([Wine.wine_run, *command], stdin=subprocess.DEVNULL,
                              capture_output=True, timeout=timeout, check=False,
                              env={**os.environ, "ORVIK_WINE_PREFIX": self._prefix})

    def _stop_server(self):
        subprocess.run(["wineserver", "-k"], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                       stderr=subprocess.DEVNULL, check=False,
                       env={**os.environ, "WINEPREFIX": self._prefix})
