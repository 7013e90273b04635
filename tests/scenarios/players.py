"""Those who play scenarios: each runs one in its own way and hands back what came out."""

import collections
import json
import os
import subprocess

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))

# What came out: the exit status, the transcript as bytes, and what stood on standard error.
Played = collections.namedtuple("Played", "status transcript errors")


def _run(command, scenario, **more):
    process = subprocess.run(
        command, stdin=subprocess.DEVNULL, capture_output=True, timeout=scenario.timeout,
        check=False, **more)
    return Played(process.returncode, process.stdout,
                  process.stderr.decode("utf-8", errors="replace"))


def windows_path(path):
    """A path of this system as Wine has it."""
    return "Z:" + os.path.abspath(path).replace("/", "\\")


class Player:
    """Plays between the entry and the exit of "with"."""

    # Whether a transcript that isn't there yet may come from this player.
    writes = True

    def __enter__(self):
        return self

    def __exit__(self, *_):
        pass

    @staticmethod
    def same(line):
        """A line of a transcript without what can't be the same for this player."""
        return line

    @classmethod
    def view(cls, lines):
        """A whole transcript without that; what must come out and what does are both seen so."""
        return [cls.same(line) for line in lines]


class Linux(Player):
    """orvik-headless on this system."""

    program = os.path.join("build", "linux-release", "src", "orvik-headless")

    def play(self, scenario, tree, work):
        home = os.path.join(work, "home")
        os.makedirs(home)
        command = [self.program, "--drive", "T=" + tree, "--drive", "C=" + os.path.join(home, "c"),
                   "--registry", os.path.join(work, "registry.reg")]
        command += ["--script", scenario.script] if scenario.script else []
        os.makedirs(os.path.join(home, "c", "Windows", "Temp"))
        return _run(command + scenario.options + ["--", scenario.line], scenario, cwd=work,
                    env={**os.environ, "HOME": home, "XDG_DATA_HOME": home + "/data",
                         "XDG_CONFIG_HOME": home + "/config"})


class Wine(Player):
    """orvik-headless.exe on the registry, the shell and the file system of Wine."""

    program = os.path.join("build", "windows-release", "src", "orvik-headless.exe")
    wine_run = os.path.join(ROOT, "scripts", "wine-run")

    # Keys that the program writes; a run begins without them.
    own_keys = [
        "HKLM\\SOFTWARE\\Ib Tarn",
        "HKCR\\*\\Shell\\Посмотреть как DOS текст",
        "HKCR\\*\\Shell\\Посмотреть как текст",
        "HKCR\\lnkfile\\Shell\\Показать объект",
        "HKCR\\lnkfile\\Shell\\Запуск Системным",
        "HKCR\\exefile\\Shell\\Запуск Системным",
    ]

    @staticmethod
    def same(line):
        """Wine sorts the values of a key, Windows and Linux keep the order of writing."""
        event = json.loads(line)
        if event["event"] == "registry" and event["values"]:
            event["values"].sort()
            return json.dumps(event, ensure_ascii=False, separators=(",", ":"))
        return line

    def play(self, scenario, tree, work):
        del work
        for key in self.own_keys:
            subprocess.run([self.wine_run, "reg", "delete", key, "/f"], stdin=subprocess.DEVNULL,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
        command = [self.wine_run, "--drive", "T=" + tree, self.program]
        if scenario.script:
            command += ["--script", windows_path(scenario.script)]
        return _run(command + scenario.options + ["--", scenario.line], scenario)

