"""What is measured: jobs, and the programs that compete in each."""

import filecmp
import json
import shutil
import subprocess
from collections.abc import Callable
from dataclasses import dataclass, field
from pathlib import Path

import sample_tree

ORVIK = "Orvik"
FLOOR = "system calls"


class WrongResult(Exception):
    """A program ended, but not with what it was asked for."""


@dataclass
class Contestant:
    """One program in one job. `command` gives the arguments of run number n; `check` looks at a
    run's output and raises WrongResult."""

    name: str
    command: Callable[[int], list[str]]
    check: Callable[[bytes, int], None] | None = None
    accepted: tuple[int, ...] = (0,)


@dataclass
class Job:
    name: str
    contestants: list[Contestant]
    writes: bool = False  # flush what earlier runs wrote before each run
    notes: list[str] = field(default_factory=list)
    memory: bool = False  # tell the peak of memory as well


def counts(expected: int) -> Callable[[bytes, int], None]:
    """The output is this number of files, perhaps with more behind it."""

    def check(output: bytes, _run: int) -> None:
        if output.split()[:1] != [str(expected).encode()]:
            raise WrongResult(f"{expected} files expected, got {output[:80]!r}")

    return check


def holds(target: Callable[[int], Path], expected: int) -> Callable[[bytes, int], None]:
    """The folder of a run holds this number of files."""

    def check(_output: bytes, run: int) -> None:
        listed = subprocess.run(["find", target(run), "-type", "f", "-printf", "."],
                                capture_output=True, check=True).stdout
        if len(listed) != expected:
            raise WrongResult(f"{expected} files expected in {target(run)}, found {len(listed)}")

    return check


def title(copied: int, errors: int = 0) -> Callable[[bytes, int], None]:
    """The copy form ended with these counts in its title."""
    wanted = f"Завершено. Скопировано {copied} файлов, ошибок {errors}"

    def check(output: bytes, _run: int) -> None:
        captions = [event["caption"] for event in map(json.loads, output.splitlines())
                    if event["event"] == "dump"]
        if captions != [wanted]:
            raise WrongResult(f"{wanted!r} expected, got {captions}")

    return check


def lines(path: Path, expected: int) -> Callable[[bytes, int], None]:
    """The file has this number of lines."""

    def check(_output: bytes, _run: int) -> None:
        found = path.read_bytes().count(b"\n")
        if found != expected:
            raise WrongResult(f"{expected} lines expected in {path}, found {found}")

    return check


def status_bar(text: str) -> Callable[[bytes, int], None]:
    """The comparison ended with this text below its rows."""

    def check(output: bytes, _run: int) -> None:
        texts = [event["controls"]["sbMain"]["text"] for event in map(json.loads, output.splitlines())
                 if event["event"] == "dump"]
        if texts != [text]:
            raise WrongResult(f"{text!r} expected, got {texts}")

    return check


def shows(form: str) -> Callable[[bytes, int], None]:
    """The form came up, which it does when its work is done."""

    def check(output: bytes, _run: int) -> None:
        if f'{{"event":"show","form":"{form}"}}'.encode() not in output.splitlines():
            raise WrongResult(f"no {form} in {output[-400:]!r}")

    return check


def found(expected: int) -> Callable[[bytes, int], None]:
    """So many folders stand in the list of empty ones."""

    def check(output: bytes, _run: int) -> None:
        lengths = [len(event["controls"]["lbMain"]["items"])
                   for event in map(json.loads, output.splitlines()) if event["event"] == "dump"]
        if lengths != [expected]:
            raise WrongResult(f"{expected} folders expected, got {lengths}")

    return check


def gone(path: Callable[[int], Path]) -> Callable[[bytes, int], None]:
    """The tree of a run isn't there any more."""

    def check(_output: bytes, run: int) -> None:
        if path(run).exists():
            raise WrongResult(f"{path(run)} is still there")

    return check


class Jobs:
    """Builds the jobs over sample files in a scratch folder. Nothing made there is removed before
    the last run: making many files right after removing as many is far slower on some systems."""

    def __init__(self, scratch: Path, programs: Path, scale: float):
        self.scratch = scratch
        self.bench = programs / "bench"
        self.headless = programs / "src" / "orvik-headless"
        self.scale = scale
        self.script = scratch / "dump.txt"
        self.script.write_text("dump frmMain\n")

    def all(self) -> dict[str, Callable[[], list[Job]]]:
        """Groups of jobs by name; a group makes its files when it is asked for its jobs."""
        return {
            "checksum": self.full_checksum,
            "fast": self.fast_checksum,
            "walk": self.walk,
            "copy": self.first_copy,
            "update": self.update,
            "list": self.file_list,
            "folders": self.compare_folders,
            "lists": self.compare_lists,
            "empty": self.empty_folders,
            "delete": self.deletion,
            "base": self.file_base,
            "xor": self.scrambling,
        }

    def small(self) -> tuple[Path, int]:
        tree = self.scratch / "small"
        if not tree.exists():
            sample_tree.make_small(tree, self.scale)
        return tree, int(subprocess.run([self.bench / "orvik-bench-floor", "walk", tree],
                                        capture_output=True, check=True).stdout)

    def floor(self, job: str, *paths: object) -> list[str]:
        return [str(self.bench / "orvik-bench-floor"), job, *map(str, paths)]

    def engine(self, job: str, *paths: object) -> list[str]:
        return [str(self.bench / "orvik-bench-engine"), job, *map(str, paths)]

    def full_checksum(self) -> list[Job]:
        files = sample_tree.make_texts(self.scratch / "text", self.scale)
        size = files["binary"].stat().st_size // sample_tree.MIB
        jobs = []
        for kind, path in files.items():
            path = str(path)
            jobs.append(Job(f"full checksum, {size} MiB, {kind}", [
                Contestant(ORVIK, lambda n, p=path: self.engine("full", p), counts(1)),
                Contestant(FLOOR, lambda n, p=path: self.floor("read", p), counts(1)),
                Contestant("cksum -a crc", lambda n, p=path: ["cksum", "-a", "crc", p]),
                Contestant("rhash --crc32", lambda n, p=path: ["rhash", "--crc32", p]),
            ]))
        return jobs

    def fast_checksum(self) -> list[Job]:
        tree, files = self.small()
        return [Job(f"fast checksum, {files} small files", [
            Contestant(ORVIK, lambda n: self.engine("fast", tree), counts(files)),
            Contestant(FLOOR, lambda n: self.floor("sample", tree), counts(files)),
            Contestant("find, xxhsum",
                       lambda n: ["find", str(tree), "-type", "f", "-exec", "xxhsum", "{}", "+"]),
        ])]

    def walk(self) -> list[Job]:
        tree, files = self.small()
        return [Job(f"walk, {files} files", [
            Contestant(ORVIK, lambda n: self.engine("walk", tree), counts(files)),
            Contestant(FLOOR, lambda n: self.floor("walk", tree), counts(files)),
            Contestant("find", lambda n: ["find", str(tree), "-type", "f"]),
        ])]

    def copy_job(self, source: Path, target: Path) -> list[str]:
        """The product itself: a copy script without a window."""
        script = target.with_name(target.name + ".script")
        script.write_bytes(b"foldercopy\r\nfrom:s:\\\r\nto:t:\\\r\npat:*\r\n")
        target.mkdir(exist_ok=True)
        return [str(self.headless), "--script", str(self.script),
                "--registry", str(script.with_suffix(".reg")),
                "--drive", f"S={source}", "--drive", f"T={target}", f"/SYF {script}"]

    def first_copy(self) -> list[Job]:
        tree, files = self.small()
        place = self.scratch / "copies"
        place.mkdir()

        def fresh(name: str) -> Callable[[int], Path]:
            return lambda n: place / f"{name} {n}"

        peers = {"cp -a": ["cp", "-a"], "rsync -a": ["rsync", "-a"]}
        return [Job(f"first copy, {files} small files", [
            Contestant(ORVIK, lambda n: self.copy_job(tree, fresh("orvik")(n)), title(files)),
            Contestant(FLOOR, lambda n: self.floor("copy", tree, fresh("floor")(n)), counts(files)),
            *(Contestant(name,
                         lambda n, name=name, start=start: [*start, f"{tree}/", str(fresh(name)(n))],
                         holds(fresh(name), files))
              for name, start in peers.items()),
        ], writes=True)]

    def update(self) -> list[Job]:
        tree, files = self.small()
        mixed = self.scratch / "mixed"
        mixed_files = sample_tree.make_mixed(mixed, self.scale)
        return [self.update_of("small files", tree, files),
                self.update_of("mixed files", mixed, mixed_files)]

    def update_of(self, what: str, tree: Path, files: int) -> Job:
        target = tree.with_name(tree.name + " copy")
        subprocess.run(["cp", "-a", tree, target], check=True)
        peers = {
            "cp -au": ["cp", "-au", f"{tree}/.", str(target)],
            "rsync -a": ["rsync", "-a", f"{tree}/", str(target)],
            "rsync -ac": ["rsync", "-ac", f"{tree}/", str(target)],
            "diff -rq": ["diff", "-rq", str(tree), str(target)],
        }
        return Job(f"up-to-date tree, {files} {what}", [
            Contestant(ORVIK, lambda n: self.copy_job(tree, target), title(0)),
            Contestant(FLOOR, lambda n: self.floor("compare", tree, target), counts(files)),
            *(Contestant(name, lambda n, command=command: command)
              for name, command in peers.items()),
        ], notes=["`cp -au` and `rsync -a` go by dates and read no file."])

    def form_job(self, line: str, script: str, drives: dict[str, Path], name: str = "") -> list[str]:
        """A job of the product behind a script; each has a script and a registry of its own."""
        base = self.scratch / f"job {line[1:4]}{name}"
        base.with_suffix(".txt").write_text(script)
        mapped = [part for letter, folder in drives.items()
                  for part in ("--drive", f"{letter}={folder}")]
        return [str(self.headless), "--script", str(base.with_suffix(".txt")),
                "--registry", str(base.with_suffix(".reg")), *mapped, line]

    def file_list(self) -> list[Job]:
        tree, files = self.small()
        command = self.form_job("/CRL S:\\", 'answer file "T:\\\\list.qlx"\n',
                                {"S": tree, "T": self.scratch})
        return [Job(f"file list, {files} small files", [
            Contestant(ORVIK, lambda n: command, lines(self.scratch / "list.qlx", files)),
            Contestant(FLOOR, lambda n: self.floor("sample", tree), counts(files)),
            Contestant("hashdeep", lambda n: ["hashdeep", "-r", str(tree)]),
            Contestant("rhash --crc32", lambda n: ["rhash", "--crc32", "-r", str(tree)]),
            Contestant("find, xxhsum",
                       lambda n: ["find", str(tree), "-type", "f", "-exec", "xxhsum", "{}", "+"]),
        ], notes=["The peers read whole files, Orvik a kilobyte of each."])]

    def compare_folders(self) -> list[Job]:
        tree, files = self.small()
        copy = tree.with_name("small to compare")
        subprocess.run(["cp", "-a", tree, copy], check=True)
        command = self.form_job("/CPR S:\\", 'answer browse "T:\\\\"\ndump\n', {"S": tree, "T": copy})
        return [Job(f"two folders compared, {files} small files each", [
            Contestant(ORVIK, lambda n: command, status_bar(f"Обработано {2 * files} файлов")),
            Contestant(FLOOR, lambda n: self.floor("compare", tree, copy), counts(files)),
            Contestant("diff -rq", lambda n: ["diff", "-rq", str(tree), str(copy)]),
            Contestant("rsync -nac", lambda n: ["rsync", "-nac", f"{tree}/", str(copy)]),
        ])]

    def compare_lists(self) -> list[Job]:
        count = max(10, round(300_000 * self.scale))
        lists = [self.scratch / "first.qlx", self.scratch / "second.qlx"]
        for path in lists:
            sample_tree.make_list(path, count)
        command = self.form_job("/CML T:\\first.qlx", 'answer file "T:\\\\second.qlx"\n',
                                {"T": self.scratch})
        names = [str(path) for path in lists]
        return [Job(f"two lists compared, {count} lines each", [
            Contestant(ORVIK, lambda n: command, shows("frmCRC")),
            Contestant(FLOOR, lambda n: self.floor("read", *lists), counts(2)),
            Contestant("diff", lambda n: ["diff", *names]),
            Contestant("comm", lambda n: ["comm", "-12", "--nocheck-order", *names]),
        ], notes=["The peers compare line by line in one order, Orvik by names in any."])]

    def empty_folders(self) -> list[Job]:
        tree = self.scratch / "hollow"
        folders, empty, files = sample_tree.make_hollow(tree, self.scale)
        command = self.form_job("/EFD S:\\", "dump frmEmptyFolders\n", {"S": tree})
        return [Job(f"empty folders, {folders} folders, {files} files", [
            Contestant(ORVIK, lambda n: command, found(empty)),
            Contestant(FLOOR, lambda n: self.floor("walk", tree), counts(files)),
            Contestant("find -type d -empty",
                       lambda n: ["find", str(tree), "-type", "d", "-empty"]),
            Contestant("du -b", lambda n: ["du", "-b", str(tree)]),
        ], notes=["`find -empty` looks at each folder alone; Orvik and `du` sum up what is below it."])]

    def deletion(self) -> list[Job]:
        place = self.scratch / "to delete"
        place.mkdir()
        files = max(100, round(100_000 * self.scale))

        def fresh(name: str, number: int) -> Path:
            path = place / f"{name} {number}"
            sample_tree.make_zeros(path / "tree", files)
            return path

        def delete_by_form(number: int) -> list[str]:
            # The tree is the first of the folders found.
            script = ("select frmEmptyFolders.lbMain 0\nanswer message yes\n"
                      "key frmEmptyFolders.lbMain 46\n")
            return self.form_job("/EFD S:\\tree", script, {"S": fresh("orvik", number)})

        return [Job(f"deletion, {files} empty files", [
            Contestant(ORVIK, delete_by_form, gone(lambda n: place / f"orvik {n}" / "tree")),
            Contestant("rm -rf", lambda n: ["rm", "-rf", str(fresh("rm", n) / "tree")],
                       gone(lambda n: place / f"rm {n}" / "tree")),
        ], writes=True, notes=["Orvik's deletion takes in the search for empty folders."])]

    def file_base(self) -> list[Job]:
        tree, files = self.small()
        capacity = max(n for n in range(1, 1001) if files % n == 0)
        place = self.scratch / "bases"
        place.mkdir()

        def fresh(name: str) -> Callable[[int], Path]:
            return lambda n: place / f"{name} {n}"

        def pour(number: int) -> list[str]:
            target = fresh("orvik")(number)
            target.mkdir()
            script = (f'type frmFileBase.txFileCount "{capacity}"\n'
                      'type frmFileBase.txBaseLocation "T:\\\\"\nclick frmFileBase.btCreate\n')
            return self.form_job("/TOB S:\\", script, {"S": tree, "T": target})

        return [Job(f"file base, {files} small files", [
            Contestant(ORVIK, pour, holds(fresh("orvik"), files)),
            Contestant(FLOOR, lambda n: self.floor("copy", tree, fresh("floor")(n)), counts(files)),
            Contestant("cp -r", lambda n: ["cp", "-r", str(tree), str(fresh("cp")(n))],
                       holds(fresh("cp"), files)),
        ], writes=True, notes=["Beside a file base `cp` copies the same files in their own folders."])]

    def scrambling(self) -> list[Job]:
        place = self.scratch / "xor"
        place.mkdir()
        source = sample_tree.make_texts(self.scratch / "text", self.scale)["binary"]
        plain = place / "plain"
        # The text runs of the sample stay in; only the length is that of the job.
        size = max(1, round(500 * self.scale)) * sample_tree.MIB
        with open(plain, "wb") as file:
            while file.tell() < size:
                file.write(source.read_bytes()[:size - file.tell()])
        # Scrambled in place, run by run: what came out is known by every second run.
        scrambled = place / "scrambled"
        shutil.copy(plain, scrambled)
        script = place / "key.txt"
        script.write_text('answer input "a key of some length"\n')
        command = [str(self.headless), "--script", str(script), "--registry", str(place / "reg"),
                   "--drive", f"T={place}", "/XOR T:\\scrambled"]

        def same_every_second_time(output: bytes, run: int) -> None:
            if b'"Complete"' not in output:
                raise WrongResult(f"no end in {output[-400:]!r}")
            if filecmp.cmp(plain, scrambled, shallow=False) != (run % 2 == 1):
                raise WrongResult(f"the wrong bytes in {scrambled}")

        openssl = ["openssl", "enc", "-aes-128-ctr", "-K", "00" * 16, "-iv", "00" * 16,
                   "-in", str(plain), "-out", str(place / "openssl")]
        return [Job(f"scrambling, {size // sample_tree.MIB} MiB in one file", [
            Contestant(ORVIK, lambda n: command, same_every_second_time),
            Contestant(FLOOR, lambda n: self.floor("read", plain), counts(1)),
            Contestant("openssl enc -aes-128-ctr", lambda n: openssl),
            Contestant("cp", lambda n: ["cp", str(plain), str(place / "copy")]),
        ], writes=True, notes=["Beside scrambling the bare system calls only read the file."])]
