"""Runs the plain C program, and computes what it prints in another way; builds it with both compilers."""

import calendar
import datetime
import math
import pathlib
import random
import re
import struct
import subprocess
import sys
import tempfile

program, project, build, compiles = sys.argv[1], *map(pathlib.Path, sys.argv[2:4]), sys.argv[4]
version = re.search(r"project\(Korvane_ZEB VERSION (\S+)", (project / "CMakeLists.txt").read_text())[1]
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAILED:", what)


def run(*arguments, of=program, **where):
    return subprocess.run([of, *arguments], stderr=subprocess.PIPE, text=True, **(where or {"stdout": subprocess.PIPE}))


def decimals(number, places):
    text = f"{number:.{places}f}"
    return text.rstrip("0").rstrip(".") if "." in text else text


def months_later(day, months):
    year, month = divmod(day.year * 12 + day.month - 1 + months, 12)
    return f"{year:04}-{month + 1:02}-{min(day.day, calendar.monthrange(year, month + 1)[1]):02}"


def expected(time, months, number):
    seconds = f"{time.second:02}" + (f".{time.microsecond:06}".rstrip("0") if time.microsecond else "")
    julian = time.toordinal() + 1721425
    power = math.floor(math.log10(abs(number)))
    reversed_bytes = int.from_bytes(struct.pack("<d", number), "big")
    return (f"{time.month}/{time.day}/{time.year} {time:%H:%M:}{seconds} is "
            f"{time:%Y-%m-%dT%H:%M:}{seconds}, Julian day {julian}, "
            f"in a month of {calendar.monthrange(time.year, time.month)[1]} days\n"
            f"{months} months later: {months_later(time, months)}\n"
            f"{decimals(number, 10)}, with two decimals {decimals(number, 2)}, bytes reversed {reversed_bytes:x}\n"
            f"{decimals(number / 10.0 ** power, 4)} 10 to the power of {power}\nKorvane_ZEB {version}\n")


def check_runs(of):
    chosen = random.Random(3)
    for _ in range(30):
        time = datetime.datetime(chosen.randint(1800, 2300), chosen.randint(1, 12), chosen.choice([1, 28]),
                                 chosen.randint(1, 23), chosen.randint(0, 59), chosen.randint(0, 59),
                                 chosen.choice([0, 500000, 62500]))
        months, number = chosen.randint(-500, 500), chosen.choice([-1, 1]) * chosen.randint(1, 9999) / 2
        result = run(time.isoformat(), str(months), str(number), of=of)
        check((result.returncode, result.stderr) == (0, "") and result.stdout == expected(time, months, number),
              f"{time} {months} {number}: {result}\n{expected(time, months, number)}")


check_runs(program)
leap = run("2024-02-29", "12", "inf").stdout.splitlines()
check(leap[1:4] == ["12 months later: 2025-02-28", "Inf, with two decimals Inf, bytes reversed f07f",
                    "no power of ten: Inf"], f"a leap day: {leap}")
check("two decimals 0.13," in run("2024-02-29", "12", "0.125").stdout, "half a unit is rounded up")
day = "2024-02-28"
for arguments in ([], [day], ["", "1", "1"], ["2024-02-30", "1", "1"], [day + "x", "1", "1"], [day, "", "1"],
                  [day, "1x", "1"], [day, "1", ""], [day, "1", "one"]):
    result = run(*arguments)
    check(result.returncode == 1 and result.stderr, f"{arguments}: {result}")
with open("/dev/full", "w") as full:
    result = run("2024-02-28", "1", "1", stdout=full)
    check(result.returncode == 1 and result.stderr, f"a full device: {result}")

with tempfile.TemporaryDirectory() as folder:
    for compiler in ("gcc", "clang") if compiles == "1" else ():
        made = pathlib.Path(folder) / compiler
        result = subprocess.run([compiler, "-std=c11", "-pedantic", "-Wall", "-Wextra", "-Werror", f"-I{build}/include",
                                 project / "examples/c_program/c_program.c", "-o", made, f"-L{build}",
                                 f"-Wl,-rpath,{build}", "-lKorvane_ZEB"], capture_output=True, text=True)
        check(result.returncode == 0 and result.stderr == "", f"{compiler}: {result.stderr}")
        check_runs(made)

print(f"{len(failures)} failed")
sys.exit(1 if failures else 0)
