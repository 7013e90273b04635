"""Jobs that look for something in the contents of files: for duplicates, and for a text."""

import hashlib
import json
import os
import shutil
import subprocess
from collections import Counter
from collections.abc import Callable
from pathlib import Path

import sample_tree
from jobs import FLOOR, ORVIK, Contestant, Job, Jobs, WrongResult, counts

# Of so many files some have the same checksum of 32 bits by chance, and count as duplicates.
BY_CHANCE = 20

# Words that no sample file holds but where they are planted.
WORDS = {"ASCII": "guarantee", "Cyrillic": "гарантия"}
# Where `grep` finds the locale in which files of code page 1251 have letters.
LOCALE = "ru_RU.CP1251"


def all_files(root: Path) -> list[Path]:
    return [Path(folder, name) for folder, _, names in os.walk(root) for name in names]


def duplicates_in(root: Path) -> int:
    """How many files of a tree have the content of another one, that one not counted."""
    by_size: dict[int, list[Path]] = {}
    for path in all_files(root):
        by_size.setdefault(path.stat().st_size, []).append(path)
    count = 0
    for paths in by_size.values():
        if len(paths) == 1:
            continue
        contents = Counter()
        for path in paths:
            with open(path, "rb") as file:
                contents[hashlib.file_digest(file, "sha1").digest()] += 1
        count += sum(number - 1 for number in contents.values())
    return count


def controls(output: bytes, form: str) -> dict:
    """The controls of a form in the last dump of a transcript."""
    dumps = [event for event in map(json.loads, output.splitlines())
             if event["event"] == "dump" and event["form"] == form]
    if not dumps:
        raise WrongResult(f"no dump of {form}")
    return dumps[-1]["controls"]


def marks(expected: int) -> Callable[[bytes, int], None]:
    """The tree has this number of duplicates, or a few more."""

    def check(output: bytes, _run: int) -> None:
        nodes = controls(output, "frmDoubles")["tvMain"]["nodes"]
        found = sum(node["parent"] != 0 for node in nodes)
        if not expected <= found <= expected + BY_CHANCE:
            raise WrongResult(f"{expected} duplicates expected, got {found}")

    return check


def lists(root: Path, expected: set[str]) -> Callable[[bytes, int], None]:
    """The list holds exactly these paths below the root."""

    def check(output: bytes, _run: int) -> None:
        items = controls(output, "frmSearchText")["lbMain"]["items"]
        found = {str(root) + item.removeprefix("S:").replace("\\", "/") for item in items}
        if found != expected or len(items) != len(expected):
            raise WrongResult(f"{len(expected)} files expected, got {len(items)}, of which "
                              f"{len(found & expected)} are right")

    return check


class Finding:
    def __init__(self, jobs: Jobs):
        self.jobs = jobs
        self.scratch = jobs.scratch

    def all(self) -> dict[str, Callable[[], list[Job]]]:
        return {"duplicates": self.duplicates, "search": self.search}

    def duplicates(self) -> list[Job]:
        small, _ = self.jobs.small()
        mixed = self.scratch / "mixed"
        if not mixed.exists():
            sample_tree.make_mixed(mixed, self.jobs.scale)
        images = sorted(mixed.glob("*.img"))
        return [
            self.duplicates_of("small files", self.with_copies(small, all_files(small), 10)),
            self.duplicates_of("mixed files", self.with_copies(mixed, all_files(mixed), 10)),
            self.duplicates_of(f"files of {images[0].stat().st_size // sample_tree.MIB} MiB", self.with_copies(mixed, images, 1)),
            self.duplicates_of("mixed files, no two of a size but five", mixed),
        ]

    def with_copies(self, tree: Path, files: list[Path], every: int) -> Path:
        """A tree of links to files, and of copies of some of them."""
        made = self.scratch / f"{tree.name} with copies {every}"
        for index, path in enumerate(sorted(files)):
            place = made / path.relative_to(tree)
            place.parent.mkdir(parents=True, exist_ok=True)
            os.link(path, place)
            if index % every == 0:
                copies = made / "copies" / f"{index // 1000:03}"
                copies.mkdir(parents=True, exist_ok=True)
                shutil.copyfile(path, copies / f"{index:06}.dat")
        return made

    def duplicates_of(self, what: str, tree: Path) -> Job:
        files = len(all_files(tree))
        command = self.jobs.form_job("/DBL S:\\", "click frmDoubles.btFind\ndump frmDoubles\n",
                                     {"S": tree})
        peers = {
            "jdupes -rqQ": ["jdupes", "-rqQ", str(tree)],
            "jdupes -rq": ["jdupes", "-rq", str(tree)],
            "fdupes -rq": ["fdupes", "-rq", str(tree)],
            "rmlint": ["rmlint", "-o", "fdupes:stdout", str(tree)],
        }
        return Job(f"duplicates, {files} {what}", [
            Contestant(ORVIK, lambda n: command, marks(duplicates_in(tree))),
            Contestant(FLOOR, lambda n: self.jobs.floor("blocks", tree), counts(files)),
            *(Contestant(name, lambda n, command=command: command)
              for name, command in peers.items()),
        ], notes=["Of a larger file Orvik reads 64 KiB; the others read whole files, but none whose "
                  "size no other has."], memory=True)

    def search(self) -> list[Job]:
        locales = self.scratch / "locale"
        locales.mkdir()
        subprocess.run(["localedef", "-i", "ru_RU", "-f", "CP1251", locales / LOCALE],
                       capture_output=True, check=True)
        files = max(100, round(100_000 * self.jobs.scale))
        large = max(4, round(400 * self.jobs.scale))
        jobs = []
        for what, count, sizes in (("small files", files, (0, 8 * sample_tree.KIB)),
                                   ("files just under 1 MiB", large, (sample_tree.MIB - 1,) * 2)):
            tree = self.scratch / f"prose {count}"
            sample_tree.make_prose(tree, count, sizes, list(WORDS.values()))
            jobs += [self.search_for(kind, tree, count, what, locales) for kind in WORDS]
        return jobs

    def search_for(self, kind: str, tree: Path, files: int, what: str, locales: Path) -> Job:
        word = WORDS[kind]
        command = self.jobs.form_job(
            "/SRT S:\\", f'type frmSearchText.txMain "{word}"\nclick frmSearchText.btFind\n'
            "dump frmSearchText\n", {"S": tree}, kind)
        grep = ["env", f"LOCPATH={locales}", f"LC_ALL={LOCALE}", "grep", "-rilF", "-e",
                word.encode("cp1251"), str(tree)]
        # Without its encoding the files' Russian isn't text for ripgrep.
        rg = ["rg", "-il", "-uuu", *([] if word.isascii() else ["-E", "windows-1251"]), word, str(tree)]
        expected = set(subprocess.run(grep, capture_output=True, check=True).stdout.decode()
                       .splitlines())
        if not expected:
            raise WrongResult(f"`grep` finds no {word}")
        return Job(f"text search, {files} {what}, {kind} word", [
            Contestant(ORVIK, lambda n: command, lists(tree, expected)),
            Contestant(FLOOR, lambda n: self.jobs.floor("contents", tree), counts(files)),
            Contestant("rg -il -uuu -j1", lambda n: [*rg, "-j1"]),
            Contestant("rg -il -uuu", lambda n: rg),
            Contestant("grep -rilF", lambda n: grep),
        ])
