"""Lets every call of the series chart to the platform fail in turn, and kills it before each: the picture that
was there stays whole, or is replaced by a whole one, as the exit status says."""

import pathlib
import sys
import tempfile

import faults

program, library = sys.argv[1:]
failures = []
rows = "".join(f"{1 + i % 12}/{1 + i % 28}/{2000 + i // 12},{i % 37}\n" for i in range(40))


def draw(place, title, *fault, run=faults.run):
    folder = pathlib.Path(place)
    (folder / "csv").write_text("date,ppm\n" + rows)
    (folder / "svg").write_bytes(old)
    return run([program, str(folder / "csv"), str(folder / "svg"), title], library, folder, *fault)


def check_fault(call, number, outcome):
    with tempfile.TemporaryDirectory() as place:
        result = draw(place, "new", call, number, outcome)
        picture = pathlib.Path(place, "svg").read_bytes()
        others = {path.name for path in pathlib.Path(place).iterdir()} - {"csv", "svg"}
        is_last = outcome == faults.IS_THE_LAST
        fine = (result.returncode == 0 and picture == new or
                result.returncode == (-9 if is_last else 1) and picture in (old, new) and (is_last or result.stderr))
        if not fine or (others and not is_last) or ((call, outcome) in faults.harmless and result.returncode):
            failures.append(call)
            print(f"FAILED: {call} {number}, outcome {outcome}: {result}, {others}")


old = b""
with tempfile.TemporaryDirectory() as place:
    _, calls = draw(place, "new", run=faults.counted_run)
    new = pathlib.Path(place, "svg").read_bytes()
    draw(place, "old")
    old = pathlib.Path(place, "svg").read_bytes()
# Most of the memory is that of the units, of which some are enough.
jobs = [(call, number, outcome) for call, number, outcome in faults.jobs_of(calls, faults.every | {"memory+"})
        if not call.startswith("memory") or number % 23 == 1]
faults.at_once(check_fault, jobs)
print(f"{calls}: {len(jobs)} faults, {len(failures)} failed")
sys.exit(1 if failures or calls["memory"] < 50 or old == new else 0)
