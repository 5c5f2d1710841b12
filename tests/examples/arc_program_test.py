"""Compiles the program for automatic reference counting, and runs it without, by both compilers; lets every call to
the platform fail in turn."""

import os
import pathlib
import random
import struct
import subprocess
import sys
import tempfile

import faults

program, project, build, compiles = sys.argv[1], *map(pathlib.Path, sys.argv[2:4]), sys.argv[4]
library = sys.argv[5] if len(sys.argv) > 5 else ""  # none in front of a sanitizer
source = project / "examples/arc_program/arc_program.m"
# Without reference counting nothing is released but by the release level.
os.environ["ASAN_OPTIONS"] = os.environ.get("ASAN_OPTIONS", "") + ":detect_leaks=0"
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAILED:", what)


def compile_with(*options):
    gcc_headers = subprocess.run(["g++", "-print-file-name=include"], capture_output=True, text=True).stdout.strip()
    result = subprocess.run(
        ["clang", "-Wall", "-Wextra", "-Werror", "-std=gnu11", "-fexceptions", "-fobjc-exceptions", "-DGNUSTEP",
         "-DGNUSTEP_BASE_LIBRARY=1", "-fconstant-string-class=NSConstantString", *options, "-isystem",
         "/usr/include/GNUstep", "-idirafter", gcc_headers, f"-I{build}/include", source],
        capture_output=True, text=True)
    check(result.returncode == 0 and result.stderr == "", f"{options}: {result.stderr}")


def levels_in(path):
    """The readings of a document: after its header a count of rows, and of each row a count and its characters."""
    contents = path.read_bytes()
    rows, place, levels = *struct.unpack_from("=I", contents, 64), 68, {}
    for _ in range(rows):
        count, = struct.unpack_from("=I", contents, place)
        units = struct.unpack_from(f"={count}I", contents, place + 4)
        day, level = "".join(map(chr, units)).split(";")
        levels[day] = float(level)
        place += 4 + 4 * count
    return levels


def shown(number):
    return repr(number).removesuffix(".0")


def printed(levels):
    mean = sum(levels.values()) / len(levels)
    lines = [f"{day};{shown(levels[day])}\n" for day in sorted(levels)]
    return "".join(lines) + f"{len(levels)} days, mean {shown(mean)}\n"


def check_runs(of, folder):
    """Days in any order, some of them again; the levels, and so their sum, are exact."""
    path, levels, chosen = folder / "diary", {}, random.Random(7)
    for turn in range(30):
        day = f"{chosen.choice([1969, 2024])}-{chosen.randint(1, 12):02}-{chosen.randint(1, 2):02}"
        before, levels[day] = dict(levels), chosen.randint(-4000, 4000) / 8
        result = subprocess.run([of, path, day, str(levels[day])], capture_output=True, text=True)
        check((result.returncode, result.stdout, result.stderr) == (0, printed(levels), ""), f"turn {turn}: {result}")
        check(levels_in(path) == levels, f"turn {turn}: what is stored")
        check(turn == 0 or levels_in(folder / "diary~") == before, f"turn {turn}: what is kept")


def check_refusals(folder):
    path = folder / "diary"
    whole = path.read_bytes()
    (folder / "cut").write_bytes(whole[:-1])
    (folder / "other").write_bytes(b"2024-01-01;2\n")
    day = "2024-01-01"
    for file, day, level in [(path, "2024-13-01", "1"), (path, "", "1"), (path, day, ""), (path, day, "1x"),
                             (path, day, "nan"), (folder, day, "1"), ("", day, "1"), (folder / "no/diary", day, "1"),
                             (folder / "cut", day, "1"), (folder / "other", day, "1")]:
        before = {entry: entry.read_bytes() for entry in folder.iterdir()}
        result = subprocess.run([program, file, day, level], capture_output=True, text=True)
        check((result.returncode, result.stdout) == (1, "") and result.stderr, f"{file} {day} {level}: {result}")
        after = {entry: entry.read_bytes() for entry in folder.iterdir()}
        check(before == after, f"{file} {day} {level}: files change")


def check_fault(old, call, number, outcome):
    with tempfile.TemporaryDirectory() as place:
        path = pathlib.Path(place) / "diary"
        path.write_bytes(old)
        result = faults.run([program, path, "2024-02-02", "2"], library, place, call, number, outcome)
        what = f"{call} {number}, outcome {outcome}: {result}"
        kept = [entry.read_bytes() for entry in path.parent.iterdir()]
        check(old in kept, f"{what}: the diary is lost")
        if result.returncode == 0:
            check(levels_in(path) == {"2024-01-01": 1, "2024-02-02": 2}, f"{what}: nothing is noted")
        else:
            check((call, outcome) not in faults.harmless, f"{what}: fails for nothing")
            check(outcome == faults.IS_THE_LAST or result.stderr, f"{what}: says nothing")


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    for kind in ("by the build", "by clang") if compiles == "1" else ("by the build",):
        (folder / kind).mkdir()
        made = program
        if kind == "by clang":
            made = folder / "made"
            compile_with("-fobjc-runtime=gcc", "-o", made, f"-L{build}", f"-Wl,-rpath,{build}", "-lKorvane_ZEB",
                         "-lgnustep-base", "-lobjc")
            subprocess.run([project / "tests/support/headers_for_arc.sh", folder / "headers"], check=True)
            compile_with("-fobjc-arc", "-fobjc-runtime=gnustep-1.9", "-isystem", folder / "headers", "-c", "-o",
                         folder / "made.o")
        check_runs(made, folder / kind)
    check_refusals(folder / "by the build")
    if library:
        (folder / "faults").mkdir()
        start = folder / "faults/diary"
        subprocess.run([program, start, "2024-01-01", "1"], capture_output=True, check=True)
        old = start.read_bytes()
        _, calls = faults.counted_run([program, start, "2024-02-02", "2"], library, start.parent)
        check(calls["rename"] == 1 and calls["memory"] > 5, f"calls are counted: {calls}")
        jobs = faults.jobs_of(calls)
        faults.at_once(check_fault, [(old, *job) for job in jobs])
        print(f"{len(jobs)} faults")

print(f"{len(failures)} failed")
sys.exit(1 if failures else 0)
