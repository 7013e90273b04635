#!/usr/bin/env python3
"""Installs the program for real, then does what the menu does: takes each command line as the
registry holds it, with a file in place of the placeholder whose path has blanks and Russian letters.

    installation_test.py linux ORVIK_HEADLESS
    installation_test.py wine ORVIK_EXE            needs a screen

Under Wine the programs that would be started are stand-ins that note their command lines; so is
the Explorer that the batch file brings back. The one that it ends is of the test's own prefix.
"""

import json
import os
import re
import shutil
import subprocess
import sys
import tempfile
import time

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
sys.path.insert(0, os.path.join(ROOT, "tests", "scenarios"))
from players import Wine, windows_path  # noqa: E402

DOS = "*\\Shell\\Посмотреть как DOS текст\\command"
TEXT = "*\\Shell\\Посмотреть как текст\\command"
TARGET = "lnkfile\\Shell\\Показать объект\\command"
RUN = "exefile\\Shell\\Запуск Системным\\command"
RUN_TARGET = "lnkfile\\Shell\\Запуск Системным\\command"
MENU = {DOS: "/ASD", TEXT: "/SHT", TARGET: "/GOP", RUN: "/EAS", RUN_TARGET: "/RAS"}
EXPLORER = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\explorer.exe"
INSTALLED = "Программа установлена"
KNOWN = "Версия zKelmar's Orvik  v 0.9.8.3 FN уже установлена"

FOLDER = "Мои файлы 2024"


def must(condition, *facts):
    if not condition:
        raise SystemExit("installation: " + " ".join(map(str, facts)))


def same(got, wanted):
    must(got == wanted, "wanted", repr(wanted), "got", repr(got))


def unnamed_values(exported):
    """Keys of a registry file with their unnamed values."""
    values = {}
    key = None
    for line in exported.splitlines():
        if line.startswith("["):
            key = line[1:-1].split("\\", 1)[-1]
        elif line.startswith('@="'):
            values[key] = re.sub(r"\\(.)", r"\1", line[3:-1])
    return values


def paths(drive):
    """A text of DOS, a shortcut and a program."""
    return ["%s\\%s\\%s" % (drive, FOLDER, name) for name in ("дос 1.txt", "на игру.lnk", "игра.exe")]


class Linux:
    def __init__(self, program, work):
        self.program = program
        self.windows = os.path.join(work, "c", "Windows")
        self.temp = os.path.join(self.windows, "Temp")
        self.tree = os.path.join(work, "tree")
        self.registry = os.path.join(work, "registry.reg")
        self.work = work
        os.makedirs(self.temp)
        os.makedirs(os.path.join(self.tree, FOLDER))

    def run(self, line, *options, script=""):
        path = os.path.join(self.work, "script.txt")
        with open(path, "w", encoding="utf-8") as file:
            file.write(script)
        done = subprocess.run(
            [self.program, "--drive", "T=" + self.tree, "--drive", "C=" + os.path.join(self.work, "c"),
             "--registry", self.registry, "--script", path, *options, "--", line],
            stdin=subprocess.DEVNULL, capture_output=True, check=True, cwd=self.tree,
            env={**os.environ, "HOME": self.work})
        return [json.loads(event) for event in done.stdout.decode().splitlines()]

    def stored(self):
        with open(self.registry, "rb") as file:
            raw = file.read()
        return unnamed_values(raw.decode("utf-16" if raw[:2] == b"\xff\xfe" else "utf-8-sig"))

    def everything(self):
        return sorted(os.path.relpath(os.path.join(root, name), self.work)
                      for root, folders, files in os.walk(self.work) for name in folders + files)


def texts(events):
    return [event["text"] for event in events if event["event"] == "message"]


def started(events):
    return [event["command"] for event in events if event["event"] == "start"]


def test_linux(program, work):
    here = Linux(program, work)
    text, link, game = paths("T:")
    search = "HKEY_CLASSES_ROOT\\Drive\\shell\\find\\command||%SystemRoot%\\explorer.exe"
    before = here.everything()
    same(texts(here.run("", "--reg", search)), [INSTALLED])
    # Its own copy and the registry, and nothing else.
    same(sorted(set(here.everything()) - set(before)),
         ["c/Windows/Orvik.exe", "registry.reg", "registry.reg.lock", "script.txt"])
    with open(program, "rb") as own, open(os.path.join(here.windows, "Orvik.exe"), "rb") as copy:
        must(own.read() == copy.read(), "the installed program is another")
    stored = here.stored()
    for key, switch in MENU.items():
        same(stored[key], "C:\\Windows\\Orvik.exe %s %%L" % switch)
    same(stored[EXPLORER], "%SystemRoot%\\explorer.exe")
    same(len([key for key in stored if "Shell" in key]), len(MENU))

    with open(here.registry, "rb") as file:
        untouched = file.read()
    same(texts(here.run("")), [KNOWN])
    with open(here.registry, "rb") as file:
        must(file.read() == untouched, "a second installation has written to the registry")

    def choose(key, path, *options):
        same(stored[key].split(" ")[0], "C:\\Windows\\Orvik.exe")
        return started(here.run(stored[key].split(" ", 1)[1].replace("%L", path), *options))

    write_files(here.tree)
    with open(os.path.join(here.tree, FOLDER, "игра.exe"), "wb"):
        pass
    here.run("/CHS " + link)  # makes a shortcut of what isn't one
    same(choose(TEXT, text), ['"C:\\Windows\\NOTEPAD.EXE" "%s"' % text])
    same(choose(DOS, text), ['"C:\\Windows\\notepad.exe" C:\\Windows\\Temp\\Orvik.txt'])
    must_be_readable(os.path.join(here.temp, "Orvik.txt"))
    same(choose(TARGET, link), ['"C:\\Windows\\explorer.exe" /select, C:\\Windows\\Orvik.exe'])
    now = ("--now", "2024-02-29 13:05:09")
    batch = os.path.join(here.temp, "wb240229130509.bat")
    for key, path, folder, name in ((RUN, game, "T:\\%s\\" % FOLDER, None),
                                    (RUN_TARGET, link, "C:\\Windows\\", "ORVIK.EXE")):
        same(choose(key, path, *now), ["C:\\Windows\\Temp\\wb240229130509.bat"])
        lines = batch_lines(batch)
        same(lines[2], 'chdir "%s"' % folder)
        must(lines[3].startswith("start /wait ") and len(lines[3]) > 12, lines[3])
        if name:
            same(lines[3].upper(), "START /WAIT " + name)
    test_repair(here, link)


def test_repair(here, link):
    """The shortcut of the redirection leads to C:\\Windows\\Orvik.exe. A tree on another drive has
    that path, too; there the repair finds it when C: hasn't."""
    os.makedirs(os.path.join(here.tree, "Windows"))
    os.rename(os.path.join(here.windows, "Orvik.exe"), os.path.join(here.tree, "Windows", "Orvik.exe"))
    before = set(here.everything())
    same(started(here.run("/SHP " + link)), [])
    # Under its bare name, in the current folder.
    same(sorted(set(here.everything()) - before), ["tree/на игру.lnk"])
    same(started(here.run("/GOP T:\\на игру.lnk")),
         ['"C:\\Windows\\explorer.exe" /select, T:\\Windows\\Orvik.exe'])


def write_files(tree):
    with open(os.path.join(tree, FOLDER, "дос 1.txt"), "wb") as file:
        file.write("Привет, DOS\r\n".encode("cp866"))
    with open(os.path.join(tree, FOLDER, "на игру.lnk"), "wb") as file:
        file.write(b"no shortcut")


def must_be_readable(path):
    with open(path, "rb") as file:
        same(file.read().decode("cp1251"), "Привет, DOS\r\n")


def batch_lines(path):
    with open(path, "rb") as file:
        lines = file.read().decode("cp866").split("\r\n")
    same(len(lines), 8)
    same((lines[0], lines[6], lines[7]), ("taskkill /F /IM explorer.exe", "start explorer.exe", ""))
    return lines


class WinePlace:
    def __init__(self, program, work):
        self.prefix = os.path.join(ROOT, "build", "wine", "installation")
        self.tree = os.path.join(self.prefix, "drive_c")
        self.work = work
        self.robot = os.path.join(os.path.dirname(program), "..", "tests", "robot",
                                  "orvik-robot.exe")
        self.stand_in = os.path.join(os.path.dirname(program), "..", "tests", "note-arguments.exe")
        self.windows = os.path.join(self.tree, "windows")

    def wine(self, *command):
        return subprocess.run([Wine.wine_run, *command],
                              stdin=subprocess.DEVNULL, capture_output=True, check=False,
                              timeout=120, env={**os.environ, "ORVIK_WINE_PREFIX": self.prefix})

    def reset(self):
        # Whatever program is first makes the prefix.
        for key in [*Wine.own_keys, "HKLM\\" + EXPLORER]:
            self.wine("reg", "delete", key, "/f")
        self.wine("reg", "add", "HKCR\\Drive\\shell\\find\\command", "/ve", "/d",
                  "%SystemRoot%\\explorer.exe", "/f")
        if os.path.exists(os.path.join(self.windows, "Orvik.exe")):
            os.remove(os.path.join(self.windows, "Orvik.exe"))
        shutil.rmtree(os.path.join(self.tree, FOLDER), ignore_errors=True)
        os.makedirs(os.path.join(self.tree, FOLDER))
        for name in ("notepad.exe", "explorer.exe"):
            if os.path.exists(os.path.join(self.windows, name + ".args")):
                os.remove(os.path.join(self.windows, name + ".args"))
            shutil.copy(self.stand_in, os.path.join(self.windows, name))
        shutil.copy(self.stand_in, os.path.join(self.tree, FOLDER, "игра.exe"))

    def run(self, program, line):
        """What the windows of a program show."""
        script = os.path.join(self.work, "script.txt")
        with open(script, "w", encoding="utf-8"):
            pass
        done = self.wine(self.robot, "--program", program, "--script", windows_path(script), "--",
                         line)
        must(done.returncode == 0, "the robot ended with", done.returncode, done.stderr.decode("cp1251"))
        # A batch file echoes its commands between the robot's lines.
        return [json.loads(line) for line in done.stdout.splitlines()
                if line.startswith(b'{"event"')]

    def stored(self):
        values = {}
        for root in ("HKCR\\*\\Shell", "HKCR\\lnkfile\\Shell", "HKCR\\exefile\\Shell",
                     "HKLM\\" + EXPLORER):
            path = os.path.join(self.work, "exported.reg")
            self.wine("reg", "export", root, windows_path(path), "/y")
            with open(path, encoding="utf-16") as file:
                values.update(unnamed_values(file.read()))
        return values

    def noted(self, program):
        """The one command line that a stand-in got; waits for it, and forgets it."""
        path = program + ".args"
        for _ in range(300):
            if os.path.exists(path):
                time.sleep(0.3)  # until the line is whole
                with open(path, encoding="utf-8") as file:
                    lines = file.read().splitlines()
                os.remove(path)
                same(len(lines), 1)
                return lines[0]
            time.sleep(0.1)
        raise SystemExit("installation: %s wasn't started" % program)


def test_wine(program, work):
    here = WinePlace(program, work)
    # On a drive that outlives the program: what it starts comes later.
    text, link, game = paths("C:")
    here.reset()
    write_files(here.tree)
    same(texts(here.run(windows_path(program), "")), [INSTALLED])
    with open(program, "rb") as own, open(os.path.join(here.windows, "Orvik.exe"), "rb") as copy:
        must(own.read() == copy.read(), "the installed program is another")
    stored = here.stored()
    exe = stored[DOS].split(" ")[0]
    same(exe.lower(), "c:\\windows\\orvik.exe")
    for key, switch in MENU.items():
        same(stored[key], "%s %s %%L" % (exe, switch))
    same(stored[EXPLORER], "%SystemRoot%\\explorer.exe")
    same(texts(here.run(windows_path(program), "")), [KNOWN])
    same(texts(here.run(exe, "")), [KNOWN])

    def choose(key, path):
        same(texts(here.run(exe, stored[key].split(" ", 1)[1].replace("%L", path))), [])

    notepad = os.path.join(here.windows, "notepad.exe")
    choose(TEXT, text)
    must(here.noted(notepad).endswith(' "%s"' % text), "another file was opened")
    choose(DOS, text)
    scratch = here.noted(notepad).split('exe" ', 1)[1]
    must(scratch.endswith("\\Orvik.txt"), scratch)
    must_be_readable(os.path.join(here.prefix, "drive_c", *scratch[3:].split("\\")))
    choose(RUN, game)
    stand_in = os.path.join(here.tree, FOLDER, "игра.exe")
    here.noted(stand_in)
    here.noted(os.path.join(here.windows, "explorer.exe"))
    make_link(os.path.join(here.tree, FOLDER, "на игру.lnk"), game)
    choose(RUN_TARGET, link)
    here.noted(stand_in)
    here.noted(os.path.join(here.windows, "explorer.exe"))
    choose(TARGET, link)
    must(here.noted(os.path.join(here.windows, "explorer.exe")).endswith(" /select, " + game),
         "another target was shown")


def make_link(path, target):
    """The shortest shortcut to a local path."""
    local = target.encode("cp1251") + b"\0"
    number = lambda value: value.to_bytes(4, "little")  # noqa: E731
    header = (number(0x4C) + bytes.fromhex("0114020000000000C000000000000046") + number(2)
              + number(0x20) + bytes(28) + number(0) + number(1) + bytes(12))
    volume = number(17) + number(3) + number(0) + number(16) + b"\0"
    suffix = 28 + len(volume) + len(local)
    info = (number(suffix + 1) + number(28) + number(1) + number(28) + number(28 + len(volume))
            + number(0) + number(suffix) + volume + local + b"\0")
    with open(path, "wb") as file:
        file.write(header + info + bytes(4))


def main():
    tests = {"linux": test_linux, "wine": test_wine}
    if len(sys.argv) != 3 or sys.argv[1] not in tests:
        raise SystemExit(__doc__)
    with tempfile.TemporaryDirectory() as work:
        tests[sys.argv[1]](os.path.abspath(sys.argv[2]), os.path.realpath(work))


if __name__ == "__main__":
    main()
