#!/usr/bin/env python3
"""Measures the program beside the programs that a user would take instead, on the same files, and
prints one table. Runs are interleaved, and every time is a median; compare within one table only.
"""

import argparse
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from finding import Finding
from jobs import FLOOR, ORVIK, Job, Jobs, WrongResult

HEAD = (f"| job | {ORVIK} | bare {FLOOR} | other programs |", "|---|---|---|---|")
GROUPS = ("checksum", "fast", "walk", "copy", "update", "list", "folders", "lists", "empty", "delete",
          "base", "duplicates", "search", "xor")
LEGEND = (f"Seconds for {ORVIK}; for everything else the time of {ORVIK} divided by its time, so that "
          "less than 1 means that Orvik is faster.")


def say(text: str) -> None:
    print(text, file=sys.stderr, flush=True)


def run_once(job: Job, contestant, number: int) -> float:
    command = contestant.command(number)
    if job.writes:
        os.sync()
    start = time.perf_counter()
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
    seconds = time.perf_counter() - start
    if done.returncode not in contestant.accepted:
        raise WrongResult(f"{command} ended with {done.returncode}: {done.stderr[-400:].decode()}")
    if contestant.check:
        contestant.check(done.stdout, number)
    return seconds


def measure(job: Job, runs: int) -> dict[str, float]:
    """Medians by contestant. The first round only warms up."""
    times: dict[str, list[float]] = {c.name: [] for c in job.contestants}
    for number in range(runs + 1):
        for contestant in job.contestants:
            seconds = run_once(job, contestant, number)
            if number > 0:
                times[contestant.name].append(seconds)
    return {name: statistics.median(values) for name, values in times.items()}


def peaks(job: Job) -> str:
    """A note on the most memory that each contestant takes."""
    told = []
    for contestant in job.contestants:
        with tempfile.NamedTemporaryFile("r") as report:
            # A process begun by this one would count this one's memory as its own.
            subprocess.run(["time", "-f", "%M", "-o", report.name, *contestant.command(0)],
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False)
            told.append(f"{contestant.name} {int(report.read().split()[-1]) / 1024:.0f}")
    return f"Peak memory in MiB, {job.name}: {', '.join(told)}."


def row(job: Job, medians: dict[str, float]) -> str:
    own = medians[ORVIK]
    ratios = {name: f"{own / value:.2f}" for name, value in medians.items() if name != ORVIK}
    floor = ratios.pop(FLOOR, "–")
    others = ", ".join(f"`{name}` {ratio}" for name, ratio in ratios.items())
    return f"| {job.name} | {own:.3f} | {floor} | {others} |"


def machine(folder: Path) -> str:
    kind = subprocess.run(["stat", "-f", "-c", "%T", folder], capture_output=True, check=True,
                          text=True).stdout.strip().replace("ext2/ext3", "ext4")
    return f"{os.cpu_count()} cores, {kind}, files in the cache"


def table(options: argparse.Namespace, scratch: Path) -> str:
    jobs = Jobs(scratch, options.build.resolve(), options.scale)
    lines = list(HEAD)
    notes: dict[str, None] = {}
    for name, make in (jobs.all() | Finding(jobs).all()).items():
        if options.only and name not in options.only:
            continue
        say(f"bench: {name}: making files")
        for job in make():
            say(f"bench: {job.name}: {options.runs} runs")
            lines.append(row(job, measure(job, options.runs)))
            notes |= dict.fromkeys(job.notes)
            if job.memory:
                notes[peaks(job)] = None
    said = " ".join([f"Medians of {options.runs} interleaved runs; {machine(scratch)}.", LEGEND,
                     *notes])
    return "\n".join(lines) + f"\n\n{said}\n"


def parse() -> argparse.Namespace:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--build", type=Path, required=True, help="the folder of a release build")
    parser.add_argument("--scratch", type=Path, help="where to make files (15 GB); a folder of its "
                        "own is made there and removed at the end")
    parser.add_argument("--runs", type=int, default=5)
    parser.add_argument("--scale", type=float, default=1.0, help="size of the sample trees")
    parser.add_argument("--quick", action="store_true",
                        help="a hundredth of the files, one run: shows that everything works")
    parser.add_argument("--only", nargs="+", metavar="GROUP",
                        choices=GROUPS)
    parser.add_argument("--write", type=Path, metavar="FILE",
                        help="put the table between the bench marks of this file as well")
    options = parser.parse_args()
    if options.quick:
        options.scale, options.runs = 0.01, 1
    return options


def put_into(path: Path, text: str) -> None:
    begin, end = "<!-- bench -->", "<!-- /bench -->"
    before, rest = path.read_text().split(begin)
    path.write_text(f"{before}{begin}\n{text}{end}{rest.split(end)[1]}")


def main() -> int:
    options = parse()
    scratch = Path(tempfile.mkdtemp(prefix="orvik-bench-", dir=options.scratch))
    try:
        text = table(options, scratch)
    except WrongResult as wrong:
        say(f"bench: {wrong}")
        return 1
    finally:
        shutil.rmtree(scratch)
    print(text, end="")
    if options.write:
        put_into(options.write, text)
    return 0


if __name__ == "__main__":
    sys.exit(main())
