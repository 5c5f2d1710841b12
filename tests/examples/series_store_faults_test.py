"""Lets every call of the series store to the platform fail in turn, and kills it before each; what then lies
on the disk is held against the exit status, and a run without faults must get past it."""

import pathlib
import sys
import tempfile

import faults

program, library = sys.argv[1:]
failures = []
passed = set()  # what was found on the disk, and got past


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAILED:", what)


def rows(first, count):
    return "".join(f"{1 + i % 12}/{1 + i % 28}/{2000 + i // 12},{first + i}\n" for i in range(count))


def put(folder, files):
    for name, contents in files.items():
        (folder / name).write_bytes(contents)


def run(folder, *fault):
    return faults.run([program, str(folder / "csv"), str(folder / "store")], library, folder, *fault)


def files_of(folder, with_strays=True):
    return {path.name: path.read_bytes() for path in folder.iterdir()
            if path.name != "csv" and (with_strays or not path.name.startswith(".zeb-"))}


def check_fault(name, before, after, call, number, outcome):
    """`before` are the files that the run finds; of them `old` is the one that it must not lose."""
    what = f"{name}: {call} {number}, outcome {outcome}"
    old = before.get("store") if before.get("store") in whole else before.get("store~")
    with tempfile.TemporaryDirectory() as place:
        folder = pathlib.Path(place)
        put(folder, {"csv": csv, **before})
        result = run(folder, call, number, outcome)
        # Only what is killed may leave a file of another name.
        found = files_of(folder, with_strays=result.returncode >= 0)
        told = f"{what}: status {result.returncode}, {sorted(found)}, {result.stderr!r}"
        if result.returncode == 0:
            check(found == after, f"{told}: success, and not what was asked for")
        else:
            expected = (1,) if outcome != faults.IS_THE_LAST else (-9,)
            check(result.returncode in expected, f"{told}: how it ended")
            check(result.returncode != 1 or result.stderr, f"{told}: says nothing")
            check((call, outcome) not in faults.harmless, f"{told}: fails for nothing")
            store = found.get("store")
            check(set(found) <= {"store", "store~"}, f"{told}: leaves something")
            check(store in (before.get("store"), new, None), f"{told}: the store is none")
            check(old is None or old in (store, found.get("store~")), f"{told}: the old store is lost")
        state = tuple(sorted(found.items()))
        if state in passed:
            return
        result = run(folder)
        passed.add(state)
        check(result.returncode == 0, f"{told}: the next run fails: {result.stderr!r}")
        check(files_of(folder).get("store") == new, f"{told}: the next run stores")


def count_calls(before):
    with tempfile.TemporaryDirectory() as place:
        folder = pathlib.Path(place)
        put(folder, {"csv": csv, **before})
        result, calls = faults.counted_run([program, str(folder / "csv"), str(folder / "store")], library, folder)
        check(result.returncode == 0, "a run without faults")
        return files_of(folder), calls


def store_of(text):
    with tempfile.TemporaryDirectory() as place:
        put(pathlib.Path(place), {"csv": text})
        check(run(pathlib.Path(place)).returncode == 0, "a run")
        return files_of(pathlib.Path(place))["store"]


csv = rows(0.5, 300).encode()
new, old, older = store_of(csv), store_of(rows(1000, 200).encode()), store_of(rows(2000, 100).encode())
whole = (new, old, older)
# What the run finds, what of it is set aside afterwards, and the calls that are of interest there.
starts = {
    "a store and one set aside": ({"store": old, "store~": older}, old, faults.every),
    "nothing": ({}, None, {"rename", "stat", "file"}),
    "a store only set aside": ({"store~": old}, old, {"stat", "file"}),
    "a store cut short": ({"store": old[:200], "store~": older}, older, {"rename", "stat", "memory+", "file"}),
    "a copy cut short": ({"store": old, "store~": older[:200]}, old, {"file"}),
}
jobs = []
for name, (before, aside, interesting) in starts.items():
    after, calls = count_calls(before)
    check((after["store"], after.get("store~"), len(after)) == (new, aside, 2 if aside else 1),
          f"{name}: {sorted(after)}")
    print(name, calls)
    check(calls["memory"] > 5 and calls["rename"] > 0, f"{name}: calls are counted")
    jobs += [(name, before, after, *fault) for fault in faults.jobs_of(calls, interesting)]
faults.at_once(check_fault, jobs)
print(f"{len(jobs)} faults, {len(failures)} failed")
sys.exit(1 if failures else 0)
