#!/usr/bin/env python3
"""Plays scenarios and compares what comes out with what must come out.

    run.py --player linux [--program PATH] [NAME...]

Players: linux, orvik-headless; wine, orvik-headless.exe under Wine; robot, the real windows of
Orvik.exe under Wine, which needs a screen (scripts/with-display).

A scenario is a folder beside this file:

    scenario.ini       what to run; see below
    tree.txt           the tree to start from, as a manifest (manifest.py); it becomes drive T:
    script.txt         the events that are played; none: run, then end
    transcript.jsonl   what must come out, line by line
    after.txt          what the tree must be afterwards, as a manifest

A transcript or a tree that isn't there yet is written, and the run fails: look at it, then keep it.

scenario.ini, UTF-8:

    [scenario]
    line = "/SCH T:\\data "     the command line; in quotes where blanks at its ends matter
    options =                   more options, one a line
        --now=2024-02-29 13:05:09
        --lock=T:\\a.txt@2000
    players = linux, wine       who can play it; all three when left out
    reason = ...                why the others can't, then
    status = 0                  the exit status that must come out
    after = no                  the tree afterwards doesn't matter
    timeout = 60                seconds
"""

import argparse
import configparser
import difflib
import os
import shutil
import stat
import subprocess
import sys

import manifest
from players import ROOT, Linux, Wine
from robot_player import Robot

HERE = os.path.dirname(os.path.abspath(__file__))
KNOWN = {"line", "options", "players", "reason", "status", "after", "timeout"}
PLAYERS = {"linux": Linux, "wine": Wine, "robot": Robot}
EVERYBODY = list(PLAYERS)


class Scenario:
    """One folder, read."""

    def __init__(self, folder):
        self.folder = folder
        self.name = os.path.basename(folder)
        parser = configparser.ConfigParser(interpolation=None, comment_prefixes=("#",),
                                           delimiters=("=",))
        with open(os.path.join(folder, "scenario.ini"), encoding="utf-8") as file:
            parser.read_file(file)
        values = dict(parser["scenario"])
        unknown = set(values) - KNOWN
        if unknown or "line" not in values:
            raise ValueError("%s: scenario.ini needs a line and knows no %s"
                             % (self.name, ", ".join(sorted(unknown)) or "other trouble"))
        self.line = values["line"]
        if len(self.line) > 1 and self.line[0] == self.line[-1] == '"':
            self.line = self.line[1:-1]
        self.options = [line for line in values.get("options", "").splitlines() if line]
        self.players = [name.strip() for name in values.get("players", "").split(",")
                        if name.strip()] or EVERYBODY
        if self.players != EVERYBODY and "reason" not in values:
            raise ValueError(self.name + ": who leaves players out gives a reason")
        self.status = int(values.get("status", "0"))
        self.after = values.get("after", "yes") != "no"
        self.timeout = float(values.get("timeout", "60"))
        script = os.path.join(folder, "script.txt")
        self.script = script if os.path.exists(script) else None

    def path(self, name):
        return os.path.join(self.folder, name)


def scenarios(folder, names):
    """The scenarios of these names below a folder, all of them when there are none."""
    there = sorted(name for name in os.listdir(folder)
                   if os.path.exists(os.path.join(folder, name, "scenario.ini")))
    missing = [name for name in names if name not in there]
    if missing:
        raise ValueError("no scenario " + ", ".join(missing))
    return [Scenario(os.path.join(folder, name)) for name in names or there]


def remove_tree(folder):
    """Removes a folder, also what is read-only in it."""
    for root, folders, _ in os.walk(folder):
        for name in folders:
            path = os.path.join(root, name)
            if not os.path.islink(path):
                os.chmod(path, os.stat(path).st_mode | stat.S_IRWXU)
    shutil.rmtree(folder, ignore_errors=True)
    if os.path.exists(folder):
        raise OSError("can't remove " + folder)


def compare(path, came_out, view, writes=True):
    """Complaints about what came out (lines) against a file, both seen by `view`; writes the file
    when it is missing."""
    if not os.path.exists(path):
        if not writes:
            return ["missing, to be written by another player: " + path]
        with open(path, "w", encoding="utf-8", newline="\n") as file:
            file.writelines(line + "\n" for line in came_out)
        return ["written, look at it: " + path]
    with open(path, encoding="utf-8", newline="\n") as file:
        expected = [line.rstrip("\n") for line in file]
    wanted = view(expected)
    got = view(came_out)
    if wanted == got:
        return []
    return list(difflib.unified_diff(wanted, got, os.path.basename(path), "came out",
                                     lineterm="", n=2))


def play(scenario, player, work):
    """Complaints about one scenario, none when all came out as it must."""
    if os.path.exists(work):
        remove_tree(work)
    tree = os.path.join(work, "tree")
    os.makedirs(tree)
    if os.path.exists(scenario.path("tree.txt")):
        with open(scenario.path("tree.txt"), encoding="utf-8") as file:
            manifest.build(file.read(), tree)
    try:
        played = player.play(scenario, tree, work)
    except subprocess.TimeoutExpired as expired:
        lines = (expired.stdout or b"").decode("utf-8", errors="replace").splitlines()
        return ["no end after %g s; the last lines:" % scenario.timeout] + lines[-3:]
    if played.status != scenario.status:
        return ["exit status %d, not %d" % (played.status, scenario.status), played.errors]
    try:
        transcript = played.transcript.decode("utf-8")
    except UnicodeDecodeError as error:
        return ["the transcript isn't UTF-8: %s" % error]
    if "\r" in transcript or not transcript.endswith("\n"):
        return ["lines of the transcript end in something else than LF"]
    complaints = compare(scenario.path("transcript.jsonl"), transcript[:-1].split("\n"),
                         player.view, player.writes)
    if scenario.after:
        complaints += compare(scenario.path("after.txt"), manifest.describe(tree),
                              lambda lines: lines, player.writes)
    return complaints


def main(arguments):
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--player", choices=sorted(PLAYERS), default="linux")
    parser.add_argument("--program", help="the program; else that of the release build")
    parser.add_argument("--work", help="where trees are made; else build/scenarios")
    parser.add_argument("name", nargs="*", help="scenarios; all when left out")
    options = parser.parse_args(arguments)
    work = os.path.abspath(options.work or os.path.join(ROOT, "build", "scenarios"))
    failed = []
    played = 0
    with PLAYERS[options.player]() as player:
        player.program = os.path.abspath(options.program or os.path.join(ROOT, player.program))
        for scenario in scenarios(HERE, options.name):
            if options.player not in scenario.players:
                continue
            played += 1
            complaints = play(scenario, player, os.path.join(work, options.player, scenario.name))
            if complaints:
                failed.append(scenario.name)
                print("FAILED %s (%s)" % (scenario.name, options.player))
                print("\n".join("    " + line for line in complaints))
    print("%d scenarios played by %s, %d failed" % (played, options.player, len(failed)))
    return 1 if failed or not played else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
