#!/usr/bin/env python3
"""Seeds one fault at a time into a copy of the sources and looks whether the tests find it.

    seed_faults.py [--room ROOM] [--row N] [--from N] [--scratch FOLDER] [--list]

The rows stand in seeded_faults.tsv: room, file, text, what it becomes, and the label of the tests that should
find it, with tabs in between ("\\n" in a text is a line break). A text has to stand in its file exactly once.
A fault is found when those tests no longer pass; one that does not build is a faulty row. The copy and its
build are kept for the next run.
The answer is 1 where a fault was not found, 2 for a faulty table.
"""

import argparse
import os
import pathlib
import subprocess
import sys
import time

tests = pathlib.Path(__file__).resolve().parent
source = tests.parent


def rows_of(table):
    """The rows by their numbers; lines that begin with # are none."""
    lines = [line for line in table.read_text().splitlines() if line and not line.startswith("#")]
    rows = []
    for number, line in enumerate(lines, 1):
        fields = [field.replace("\\n", "\n") for field in line.split("\t")]
        if len(fields) != 5:
            sys.exit(f"row {number} has {len(fields)} fields")
        rows.append((number, *fields))
    return rows


def check(rows):
    """Ends the run where a text is not found exactly once."""
    faulty = False
    for number, _, file, text, changed, _ in rows:
        count = (source / file).read_text().count(text) if (source / file).exists() else 0
        if count != 1 or text == changed:
            print(f"row {number}: the text stands {count} times in {file}")
            faulty = True
    if faulty:
        sys.exit(2)


def run(command, **arguments):
    return subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **arguments)


class Copy:
    """A copy of the sources that is built without optimisation."""

    def __init__(self, folder):
        self.sources, self.build = folder / "source", folder / "build"
        self.sources.mkdir(parents=True, exist_ok=True)
        listed = run(["git", "ls-files", "-co", "--exclude-standard"], cwd=source).stdout.split("\n")
        present = [name for name in listed if name and (source / name).exists()]
        for name in present:
            self.restore(name)
        known = set(present)
        for path in list(self.sources.rglob("*")):
            if path.is_file() and str(path.relative_to(self.sources)) not in known:
                path.unlink()
        flags = "-O0 -g0"
        made = run(["cmake", "-S", self.sources, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
                    "-DZEB_BUILD_EXAMPLES=OFF",
                    *(f"-DCMAKE_{language}_FLAGS_DEBUG={flags}" for language in ("C", "CXX", "OBJC", "OBJCXX"))],
                   env={**os.environ, "CC": "gcc", "CXX": "g++", "OBJC": "gcc", "OBJCXX": "g++"})
        if made.returncode != 0:
            sys.exit(made.stdout)

    def restore(self, name):
        """Copies a file where the copy differs, so that no more is built again than has to be."""
        wanted, there = (source / name).read_bytes(), self.sources / name
        if not there.exists() or there.read_bytes() != wanted:
            there.parent.mkdir(parents=True, exist_ok=True)
            there.write_bytes(wanted)
            there.chmod((source / name).stat().st_mode)

    def passes(self, label):
        """Whether the tests of a label build and pass, and what was said last."""
        known = run(["ninja", "-C", self.build, "-t", "targets", "all"]).stdout
        programs = [target for kind in ("engine_tests", "class_tests", "tests")
                    if f"\n{(target := f'{label}_{kind}')}: phony" in known]
        built = run(["ninja", "-C", self.build, *(programs or ["Korvane_ZEB"])])
        if built.returncode != 0:
            return False, "does not build"
        # The corpora have programs of their own.
        tested = run(["ctest", "--test-dir", self.build, "-L", f"^{label}$", "-E", "corpus_of", "--timeout", "300"])
        return tested.returncode == 0, "tests fail" if tested.returncode != 0 else "tests pass"

def main():
    arguments = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    arguments.add_argument("--room")
    arguments.add_argument("--row", type=int)
    arguments.add_argument("--from", type=int, default=1, dest="first")
    arguments.add_argument("--scratch", type=pathlib.Path, default=source / "build" / "seeded")
    arguments.add_argument("--list", action="store_true")
    chosen = arguments.parse_args()
    rows = rows_of(tests / "seeded_faults.tsv")
    check(rows)
    rows = [row for row in rows if row[0] >= chosen.first and chosen.row in (None, row[0]) and
            chosen.room in (None, row[1])]
    if chosen.list:
        for number, room, file, text, changed, _ in rows:
            print(f"{number:3} {room:10} {file}: {text!r} -> {changed!r}")
        return 0
    copy = Copy(chosen.scratch)
    for label in sorted({row[5] for row in rows}):
        passes, said = copy.passes(label)
        if not passes:
            sys.exit(f"{label}: without a fault, {said}")
    missed = 0
    for number, _, file, text, changed, label in rows:
        started = time.monotonic()
        path = copy.sources / file
        path.write_text(path.read_text().replace(text, changed))
        passes, said = copy.passes(label)
        copy.restore(file)
        is_found = said == "tests fail"
        missed += not is_found
        print(f"{'found' if is_found else 'NOT FOUND':9} row {number:2} {file}: {text!r} -> {changed!r} "
              f"({said}, {time.monotonic() - started:.0f} s)", flush=True)
    print(f"{len(rows) - missed} of {len(rows)} found")
    return 1 if missed else 0


if __name__ == "__main__":
    sys.exit(main())
