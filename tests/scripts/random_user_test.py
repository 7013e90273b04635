#!/usr/bin/env python3
"""Plays users who press, type, drag and close at random, also in the middle of a job, and looks only
at what must hold whatever they do: each run comes to an end that the transcript tells, nothing is
complained of (the program may be built with sanitizers), and what lies beside the drives stays.

    random_user_test.py ORVIK_HEADLESS [--first SEED] [--runs N]

A run depends on its seed alone. The script of one that fails is printed.
"""

import argparse
import json
import os
import random
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

COMMANDS = {
    "/DBL T:\\dir": 8, "/SRT T:\\dir": 3, "/WTH T:\\dir": 2, "/WTH T:": 1, "/WTH ": 1,
    "/LCK T:\\dir\\a.txt": 1, "/SCH T:\\dir": 4, "/CRC T:\\dir": 1, "/CPR T:\\dir": 1,
    "/CML T:\\dir\\l.qlx": 1, "/EFD T:\\dir": 3, "/TOB T:\\dir": 2, "/FLE T:\\dir\\a.txt": 1,
    "/DRE T:\\dir": 1, "/FCR T:\\dir\\a.txt": 1, "/CRL T:\\dir": 1,
}
# What the load of a form may ask.
ANSWERS = ['answer browse "T:\\\\out"', 'answer file "T:\\\\dir\\\\l.qlx"', "answer message yes"]
FOUND_BESIDE = [("frmSources", "lbSources", "ListBox"), ("frmSources", "btAddSource", "Button"),
                ("frmSources", "btRemoveSource", "Button")]
TEXTS = ["", "*.*", "*.txt;*.*", "[", "a", "T:\\\\out", "-1", "99999999999", "0", "x*?#[!a-]", "ёЖ"]
DONE = {0: {"shutdown", "closed", "returned", "script"}, 3: {"calls"}, 4: {"time"}}


class Place:
    """A folder with the drives of one run and a neighbour that no drive reaches."""

    def __init__(self, root: Path):
        self.root = root

    def fill(self) -> None:
        shutil.rmtree(self.root, ignore_errors=True)
        for folder in ("t/dir/sub/deep", "t/out", "c", "z", "beside"):
            (self.root / folder).mkdir(parents=True)
        for number in range(12):
            (self.root / f"t/dir/f{number}.txt").write_text("x" * (number % 4))
        for number in range(5):
            (self.root / f"t/dir/sub/g{number}.bin").write_text("yy" * (number % 2))
        (self.root / "t/dir/a.txt").write_text("hello")
        (self.root / "t/dir/l.qlx").write_bytes(b"a;1\r\nb;2\r\n")
        (self.root / "beside/mine").write_text("mine")

    def run(self, program: str, command: str, script: str) -> subprocess.CompletedProcess:
        drives = [part for letter in "TCZ"
                  for part in ("--drive", f"{letter}={self.root / letter.lower()}")]
        environment = dict(os.environ, HOME=str(self.root), XDG_DATA_HOME=str(self.root / "data"))
        return subprocess.run(
            [program, "--script", "-", "--registry", str(self.root / "registry"), *drives,
             "--max-time", "60000", "--max-calls", "8000", "--", command],
            input=script.encode(), capture_output=True, timeout=120, env=environment, check=False)

    def untouched(self) -> bool:
        beside = self.root / "beside"
        return os.listdir(beside) == ["mine"] and (beside / "mine").read_text() == "mine"


class User:
    def __init__(self, seed: int, controls: list[tuple[str, str, str]], place: Place):
        self.rng = random.Random(seed)
        self.controls = controls
        self.place = place

    def anything(self, form: str, name: str) -> str:
        """What can be done whatever the kind of the control."""
        rng = self.rng
        position = rng.choice(["", f" {rng.randrange(9)}"])
        return rng.choice([
            f"key {form}.{name} {rng.choice([13, 46, 27, 32, 40, 65])} {rng.choice([0, 1, 2, 4])}",
            f"mouse {form}.{name} {rng.choice(['up', 'down'])} {rng.choice([1, 2, 4])} "
            f"{rng.choice([0, 1, 2])}{position}",
            f"wait {rng.choice([1, 500, 2000])}",
            f"resize {form} {rng.randrange(500, 20000)} {rng.randrange(500, 9000)}",
            f"system \"rm -rf '{self.place.root}/t/dir/sub'\"",
            f"close {form}",
            f"dump {form}",
            rng.choice(ANSWERS + ["answer message no", "answer browse cancel", "answer recycle no",
                                  'answer form "f1"', 'answer form "["', "answer form cancel"]),
        ])

    def fitting(self, form: str, name: str, kind: str) -> str:
        rng = self.rng
        control, position = f"{form}.{name}", rng.randrange(9)
        typing = f'type {control} "{rng.choice(TEXTS)}"'
        return rng.choice({
            "Menu": [f"menu {control}"],
            "CheckBox": [f"check {control} on", f"check {control} off"],
            "TextBox": [typing],
            "ComboBox": [typing, f"select {control} {position}", f"key {control} 46 2"],
            "UpDown": [f"up {control}", f"down {control}"],
        }.get(kind, [f"click {control}", f"click {control} {position}",
                     f"select {control} {position}", f"check {control} {position} on",
                     f"dblclick {control} {position}", f"key {control} 65 2"]))

    def event(self) -> str:
        form, name, kind = self.rng.choice(self.controls)
        line = self.anything(form, name) if self.rng.random() < 0.2 else self.fitting(form, name, kind)
        if self.rng.random() < 0.15 and not line.startswith(("answer", "close")):
            return f"during {self.rng.randrange(1, 4)} {line}"
        return line

    def script(self) -> str:
        lines = [*ANSWERS, *(self.event() for _ in range(self.rng.randrange(5, 60))), "dump"]
        return "\n".join(lines) + "\n"


def controls_of(program: str, command: str, place: Place) -> list[tuple[str, str, str]]:
    place.fill()
    # A form that works by itself is there only in its first yield.
    done = place.run(program, command, "\n".join([*ANSWERS, "during 1 dump", "dump"]))
    dumps = [line for line in map(json.loads, done.stdout.splitlines()) if line["event"] == "dump"]
    found = [(dump["form"], name, control["kind"])
             for dump in dumps for name, control in dump["controls"].items()]
    if not found:
        sys.exit(f"random user: {command} shows no form: {done.stdout.decode()}")
    return found + (FOUND_BESIDE if command.startswith("/DBL") else [])


def complaint(done: subprocess.CompletedProcess, place: Place) -> str | None:
    if done.stderr:
        return done.stderr.decode(errors="replace")
    try:
        last = [json.loads(line) for line in done.stdout.splitlines()][-1]
    except (ValueError, IndexError):
        return "the transcript isn't whole"
    if last.get("reason") not in DONE.get(done.returncode, ()):
        return f"ended with {done.returncode} and {last}"
    return None if place.untouched() else "something beside the drives has changed"


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("program")
    parser.add_argument("--first", type=int, default=1)
    parser.add_argument("--runs", type=int, default=500)
    options = parser.parse_args()
    failed = 0
    with tempfile.TemporaryDirectory(prefix="orvik-random-user-") as scratch:
        place = Place(Path(scratch) / "place")
        controls = {command: controls_of(options.program, command, place) for command in COMMANDS}
        for seed in range(options.first, options.first + options.runs):
            command = random.Random(-seed).choices(*zip(*COMMANDS.items()))[0]
            place.fill()
            script = User(seed, controls[command], place).script()
            what = complaint(place.run(options.program, command, script), place)
            if what is None:
                continue
            failed += 1
            print(f"random user {seed}: {command}: {what}\n{script}")
    print(f"{options.runs} random users, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
