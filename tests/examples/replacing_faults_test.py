"""Lets every call to the platform fail in turn of a program that makes a file of a CSV, and kills it before each:
the file that was there stays whole, or is replaced by a whole one, as the exit status says."""

import pathlib
import sys
import tempfile

import faults

program, library = sys.argv[1:]
failures = []
rows = [f"{1 + i % 12}/{1 + i % 28}/{2000 + i // 12},{i % 37}\n" for i in range(40)]


def make(place, count, *fault, run=faults.run):
    folder = pathlib.Path(place)
    (folder / "csv").write_text("date,ppm\n" + "".join(rows[:count]))
    (folder / "made").write_bytes(old)
    return run([program, str(folder / "csv"), str(folder / "made")], library, folder, *fault)


def check_fault(call, number, outcome):
    with tempfile.TemporaryDirectory() as place:
        result = make(place, 40, call, number, outcome)
        made = pathlib.Path(place, "made").read_bytes()
        others = {path.name for path in pathlib.Path(place).iterdir()} - {"csv", "made"}
        is_last = outcome == faults.IS_THE_LAST
        fine = (result.returncode == 0 and made == new or
                result.returncode == (-9 if is_last else 1) and made in (old, new) and (is_last or result.stderr))
        if not fine or (others and not is_last) or ((call, outcome) in faults.harmless and result.returncode):
            failures.append(call)
            print(f"FAILED: {call} {number}, outcome {outcome}: {result}, {others}")


old = b""
with tempfile.TemporaryDirectory() as place:
    _, calls = make(place, 40, run=faults.counted_run)
    new = pathlib.Path(place, "made").read_bytes()
    make(place, 20)
    old = pathlib.Path(place, "made").read_bytes()
# Of a picture most of the memory is that of the units, of which some are enough.
step = calls["memory"] // 100 + 1
jobs = [(call, number, outcome) for call, number, outcome in faults.jobs_of(calls, faults.every | {"memory+"})
        if not call.startswith("memory") or number % step == 1 % step]
faults.at_once(check_fault, jobs)
print(f"{calls}: {len(jobs)} faults, {len(failures)} failed")
sys.exit(1 if failures or calls["memory"] < 3 or old == new else 0)
