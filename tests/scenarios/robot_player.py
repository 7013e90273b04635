"""Plays scenarios on the real windows of Orvik.exe: orvik-robot.exe under Wine, on a display and in
a prefix of its own."""

import fcntl
import json
import os
import pathlib
import shutil
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
# What the program leaves in the registry.
REGISTRY_KEYS = ["HKEY_LOCAL_MACHINE\\SOFTWARE\\Ib Tarn"]


class Failed(Exception):
    """The robot couldn't play to the end; the text says why, with the transcript so far."""


def windows_path(path):
    return "Z:" + str(pathlib.Path(path).resolve()).replace("/", "\\")


def _text(output):
    return output.decode("utf-8", "replace").strip()


class RobotPlayer:
    """To be used by "with". `build` is the folder of a build for Windows."""

    name = "robot"

    def __init__(self, build, patience=60):
        self._robot = pathlib.Path(build) / "tests/robot/orvik-robot.exe"
        self._program = pathlib.Path(build) / "src/Orvik.exe"
        self._patience = patience
        self._prefix = pathlib.Path(build) / "wine-robot"

    def __enter__(self):
        self._lock = open(f"{self._prefix}.lock", "w")
        fcntl.flock(self._lock, fcntl.LOCK_EX)
        self._start_display()
        self._environment = dict(
            os.environ, DISPLAY=self._display, ORVIK_WINE_PREFIX=str(self._prefix))
        # A server that is still there has its desktop on a display that isn't.
        self._stop_server()
        return self

    def __exit__(self, *_):
        self._stop_server()
        self._screen.terminate()
        self._screen.wait()
        self._lock.close()

    def _start_display(self):
        # The X server picks a free number and says which.
        read_end, write_end = os.pipe()
        self._screen = subprocess.Popen(
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x1024x24",
             "-nolisten", "tcp"],
            pass_fds=[write_end], stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(write_end)
        with os.fdopen(read_end) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise Failed("Xvfb doesn't start")
        self._display = ":" + number

    def _stop_server(self):
        subprocess.run(
            ["wineserver", "-k"], env=dict(os.environ, WINEPREFIX=str(self._prefix)),
            stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def _wine(self, *command, drives=()):
        options = [part for drive in drives for part in ("--drive", drive)]
        return subprocess.run(
            [ROOT / "scripts/wine-run", *options, *command], env=self._environment,
            stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE)

    def _reset(self, registry):
        for key in REGISTRY_KEYS:
            self._wine("reg", "delete", key, "/f")
        for entry in registry:
            key, name, data = entry.split("|", 2)
            value = ["/v", name] if name else ["/ve"]
            done = self._wine("reg", "add", key, *value, "/d", data, "/f")
            if done.returncode != 0:
                raise Failed(f"can't write the registry value {entry}: {_text(done.stderr)}")
        shutil.rmtree(self._prefix / "home/.local/share/Trash", ignore_errors=True)

    def play(self, line, script, drives=(), registry=()):
        """The transcript of one run as a list of events. `line` is the raw command line, `script` a
        file, `drives` a list of "X=DIR", `registry` one of "KEY|NAME|DATA"."""
        self._reset(registry)
        run = self._wine(
            str(self._robot), "--program", windows_path(self._program),
            "--script", windows_path(script), "--patience", str(self._patience), "--", line,
            drives=drives)
        output = run.stdout.decode("utf-8")
        if run.returncode != 0:
            raise Failed(f"{_text(run.stderr)}\n{output}")
        return [json.loads(text) for text in output.splitlines()]
