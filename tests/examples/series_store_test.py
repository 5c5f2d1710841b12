"""Runs the series store on the real series and on bad input, and reads its stores by other means."""

import pathlib
import struct
import subprocess
import sys
import tempfile
import zlib

program, data = sys.argv[1], pathlib.Path(sys.argv[2])
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAILED:", what)


def run(csv, store):
    return subprocess.run([program, str(csv), str(store)], capture_output=True, text=True)


def julian_day(year, month, day):
    """The framework's formula, whose divisions cut toward zero."""
    cut = lambda a, b: int(a / b)
    a = cut(month - 14, 12)
    return (cut(1461 * (year + 4800 + a), 4) + cut(367 * (month - 2 - 12 * a), 12)
            - cut(3 * cut(year + 4900 + a, 100), 4) + day - 32075)


def rows_of(csv):
    rows = []
    for line in csv.read_text().splitlines()[1:]:
        date, value = line.split(",")
        month, day, year = map(int, date.split("/"))
        rows.append(((julian_day(year, month, day) - 2440588) * 86400.0, float(value)))
    return rows


def check_store(csv, store):
    raw = zlib.decompress(store.read_bytes())
    rows = rows_of(csv)
    words = struct.pack("=7I", 0x50AB40CD, 0, 2, 4, 2, 1, 1)
    expected = b"ZEB_EXTERNAL_BINARY_FORMAT_V1000" + words + b"1111"
    for column in zip(*rows):
        expected += struct.pack("=I", len(column)) + struct.pack("=%dd" % len(column), *column)
    check(raw == expected, f"{csv.name}: the store holds the header and two records, nothing else")


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    for csv in sorted(data.glob("*.csv")):
        store = folder / (csv.stem + ".zeb")
        for turn in (1, 2):
            result = run(csv, store)
            check(result.returncode == 0 and result.stderr == "", f"{csv.name}, run {turn}: {result}")
            check("identical, bit for bit" in result.stdout, f"{csv.name}, run {turn}: comes back the same")
            aside = pathlib.Path(str(store) + "~")
            check(aside.exists() == (turn == 2), f"{csv.name}, run {turn}: what is set aside")
            check((str(aside) in result.stdout) == (turn == 2), f"{csv.name}, run {turn}: and is named")
        check_store(csv, store)
        check_store(csv, aside)

    sunspots = data / "sunspots-monthly.csv"
    good = (folder / "sunspots-monthly.zeb").read_bytes()
    bad_stores = {
        "truncated": good[:1000],
        "foreign": b"some other file\n",
        "compressed foreign": zlib.compress(b"some other text, long enough to hold a header" * 9),
        "not compressed": zlib.decompress(good),
        "short of a record": zlib.compress(zlib.decompress(good)[:-8]),
        "empty": b"",
    }
    for kind, contents in bad_stores.items():
        store = folder / "bad.zeb"
        store.write_bytes(contents)
        result = run(sunspots, store)
        check(result.returncode == 1, f"{kind}: exit status {result.returncode}")
        check(result.stderr.count("\n") == 1 and str(store) in result.stderr, f"{kind}: {result.stderr!r}")
        check(store.read_bytes() == contents, f"{kind}: is left as it is")
        check(not pathlib.Path(str(store) + "~").exists(), f"{kind}: is not set aside")

    result = run(folder / "missing.csv", folder / "none.zeb")
    check(result.returncode == 1 and result.stderr.count("\n") == 1, f"missing file: {result}")
    check(not (folder / "none.zeb").exists(), "missing file: nothing is written")

    lines = folder / "lines.csv"
    lines.write_text("date,value\n1/1/2000,1.5\nno date,2\n1/2/2000,x\n1/3/2000,2.5\n")
    result = run(lines, folder / "lines.zeb")
    check(result.returncode == 2, f"unreadable lines: exit status {result.returncode}")
    check("line 3 cannot be read: no date,2\n" in result.stderr, "unreadable lines: the first is told")
    check("line 4 cannot be read: 1/2/2000,x\n" in result.stderr, "unreadable lines: the second is told")
    check("rows        2\n" in result.stdout, "unreadable lines: the others are kept")

print(f"{len(failures)} failed")
sys.exit(1 if failures else 0)
