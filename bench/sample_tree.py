#!/usr/bin/env python3
"""Makes sample trees and files that are the same on every machine and in every run.

  small   100,000 files of 0 to 8 KiB in 2,000 folders
  mixed   4,005 files, 4 GiB, five of them of 300 MiB
  text    files of 300 MiB for the full checksum: ASCII, Russian (code page 1251), binary

Names are lower-case, Latin and Russian by turns. A scale makes fewer files or smaller ones.
"""

import argparse
import math
import os
import random
from pathlib import Path

KIB = 1024
MIB = 1024 * KIB
GIB = 1024 * MIB
LARGE_FILE = 300 * MIB

LATIN = "report invoice letter photo draft minutes plan budget notes archive".split()
RUSSIAN = "отчёт счёт письмо снимок черновик протокол план смета заметки архив".split()
RUSSIAN_TEXT = ("Всё, что лежит в этой папке, копируется по содержимому, а не по дате. "
                "Объём и контрольная сумма решают, нужен ли файл.\r\n")
ASCII_TEXT = "The quick brown fox jumps over the lazy dog; 0123456789 times, or so it is said.\r\n"


class Noise:
    """Bytes without a pattern, cut out of one pool so that gigabytes take seconds."""

    def __init__(self, rng: random.Random, size: int = 16 * MIB):
        self.rng = rng
        self.pool = rng.randbytes(size)

    def write(self, path: Path, length: int) -> None:
        with open(path, "wb") as file:
            while length > 0:
                start = self.rng.randrange(len(self.pool) // 2)
                piece = self.pool[start:start + min(length, len(self.pool) // 2)]
                file.write(piece)
                length -= len(piece)


def words(index: int) -> list[str]:
    return RUSSIAN if index % 2 else LATIN


def make_small(root: Path, scale: float = 1.0) -> int:
    """Answers the number of files."""
    rng = random.Random(20010911)
    noise = Noise(rng)
    folders = max(2, round(2000 * scale))
    files = max(folders, round(100_000 * scale))
    width = max(1, round(math.sqrt(folders)))
    for index in range(folders):
        names = words(index)
        top = f"{names[index // width % 10]} {index // width:03}"
        folder = root / top / f"{names[index % 10]} {index:04}"
        folder.mkdir(parents=True)
        for number in range(files // folders + (index < files % folders)):
            noise.write(folder / f"{names[number % 10]} {number:03}.dat", rng.randrange(8 * KIB + 1))
    return files


def make_mixed(root: Path, scale: float = 1.0) -> int:
    """Answers the number of files."""
    rng = random.Random(19980817)
    noise = Noise(rng)
    files = max(10, round(4000 * scale))
    large = max(1, round(LARGE_FILE * scale))
    weights = [math.exp(rng.random() * math.log(8192)) for _ in range(files)]
    unit = max(0, round(4 * GIB * scale) - 5 * large) / sum(weights)
    for index, weight in enumerate(weights):
        names = words(index)
        folder = root / f"{names[index % 10]} {index % 40:02}"
        folder.mkdir(parents=True, exist_ok=True)
        noise.write(folder / f"{names[index // 40 % 10]} {index:04}.dat", round(weight * unit))
    for index in range(5):
        noise.write(root / f"disk {index}.img", large)
    return files + 5


def make_hollow(root: Path, scale: float = 1.0) -> tuple[int, int, int]:
    """20,000 folders on three levels, every fourth of the lowest with five files. Answers the
    numbers of folders, of those without anything below them, and of files."""
    tops = max(2, round(20 * scale))
    empty = files = 0
    for top in range(tops):
        for middle in range(30):
            for lowest in range(32):
                folder = root / f"{words(top)[top % 10]} {top:02}" / f"{middle:02}" / f"{lowest:02}"
                folder.mkdir(parents=True)
                if (middle + lowest) % 4:
                    empty += 1
                    continue
                for number in range(5):
                    (folder / f"{words(number)[number]}.dat").write_bytes(b"x" * (number + 1))
                    files += 1
    return tops * (1 + 30 * 33) + 1, empty, files


def make_prose(root: Path, files: int, sizes: tuple[int, int], planted: list[str]) -> None:
    """Texts, English and Russian (code page 1251) by turns, fifty to a folder; every fiftieth has
    one of the planted words somewhere, in letters of any case."""
    rng = random.Random(18340101)
    pools = [" ".join(rng.choices(vocabulary + ["and", "или", "не", "the"], k=400_000)).encode("cp1251")
             for vocabulary in (LATIN, RUSSIAN)]
    for number in range(files):
        folder = root / f"{words(number // 50)[number // 50 % 10]} {number // 50:04}"
        if number % 50 == 0:
            folder.mkdir(parents=True)
        pool = pools[number % 2]
        size = rng.randint(*sizes)
        start = rng.randrange(len(pool) - size)
        text = bytearray(pool[start:start + size])
        if number % 50 < len(planted):
            word = "".join(rng.choice((c.upper(), c)) for c in planted[number % 50]).encode("cp1251")
            at = rng.randrange(max(1, size - len(word) + 1))
            text[at:at + len(word)] = word
        (folder / f"{words(number)[number % 10]} {number % 50:02}.txt").write_bytes(text)


def make_zeros(root: Path, files: int) -> None:
    """Empty files, a hundred to a folder."""
    for number in range(files):
        folder = root / f"{number // 100:04}"
        if number % 100 == 0:
            folder.mkdir(parents=True)
        (folder / f"{words(number)[number % 10]} {number % 100:02}").touch()


def make_texts(root: Path, scale: float = 1.0) -> dict[str, Path]:
    """Answers the three files by their kind of content."""
    root.mkdir(parents=True, exist_ok=True)
    size = max(1, round(LARGE_FILE * scale))
    made = {kind: root / f"{kind}.dat" for kind in ("ascii", "russian", "binary")}
    for kind, line in (("ascii", ASCII_TEXT.encode()), ("russian", RUSSIAN_TEXT.encode("cp1251"))):
        block = line * (MIB // len(line))
        with open(made[kind], "wb") as file:
            for at in range(0, size, len(block)):
                file.write(block[:size - at])
    Noise(random.Random(19450509)).write(made["binary"], size)
    return made


def make_list(path: Path, lines: int) -> None:
    """A file list as the program writes it, of files with names of their own."""
    rng = random.Random(19690720)
    with open(path, "w", encoding="cp1251", newline="") as file:
        for index in range(lines):
            name = f"{words(index)[index % 10]} {index:06}.dat"
            file.write(f"D:\\{words(index)[index // 100 % 10]}\\{name};{rng.randint(-2**31, 2**31 - 1)}\r\n")


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__,
                                     formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("kind", choices=("small", "mixed", "text"))
    parser.add_argument("folder", type=Path)
    parser.add_argument("--scale", type=float, default=1.0)
    options = parser.parse_args()
    if options.folder.exists():
        parser.error(f"{options.folder} exists")
    make = {"small": make_small, "mixed": make_mixed, "text": make_texts}[options.kind]
    make(options.folder, options.scale)


if __name__ == "__main__":
    main()
