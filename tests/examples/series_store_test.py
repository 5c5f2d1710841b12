"""Runs the series store on the real series and on bad input, and reads its stores by other means."""

import datetime
import os
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


def run(csv, store, stdout=subprocess.PIPE):
    return subprocess.run([program, str(csv), str(store)], stdout=stdout, stderr=subprocess.PIPE, text=True,
                          errors="replace")


def contents_of(folder):
    """What lies in a folder: of each entry its contents, or where it leads."""
    return {path.name: os.readlink(path) if path.is_symlink() else path.is_file() and path.read_bytes()
            for path in folder.iterdir()}


def check_refused(what, csv, store):
    """Twice, because a second run must not lose what the first one left."""
    before = contents_of(store.parent)
    for turn in (1, 2):
        result = run(csv, store)
        check(result.returncode == 1, f"{what}: exit status {result.returncode}")
        causes = [line for line in result.stderr.splitlines()
                  if line.startswith("series_store: ") and "cannot be read: " not in line]
        check(len(causes) == 1, f"{what}: {result.stderr!r}")
        check(contents_of(store.parent) == before, f"{what}: all stays as it is")


def days_since_1970(year, month, day):
    """Of the proleptic Gregorian calendar, whose years repeat after 400; date knows no year before 1."""
    cycles, year_of_cycle = divmod(year - 400, 400)
    return datetime.date(year_of_cycle + 400, month, day).toordinal() - 719163 + cycles * 146097


def rows_of(csv):
    rows = []
    for line in csv.read_text().splitlines()[1:]:
        date, value = line.split(",")
        month, day, year = map(int, date.split("/"))
        rows.append((days_since_1970(year, month, day) * 86400.0, float(value)))
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
    raw = zlib.decompress(good)
    cut_short = {"cut short": good[:1000], "cut shorter": good[:20], "one byte": good[:1], "empty": b"",
                 "zeros": bytes(len(good))}
    unknown = {
        "foreign": b"some other file\n",
        "compressed foreign": zlib.compress(b"some other text, long enough to hold a header" * 9),
        "cut short foreign": zlib.compress(os.urandom(900))[:600],
        "not compressed": raw,
        "short of a record": zlib.compress(raw[:-8]),
    }
    older = zlib.compress(raw, 1)

    def new_folder(what, **files):
        made = folder / what
        made.mkdir()
        for name, contents in files.items():
            (made / name.replace("_", "~")).write_bytes(contents)
        return made

    for what, contents in (cut_short | unknown).items():
        place = new_folder(what, store=contents)
        check_refused(what, sunspots, place / "store")
    for what, contents in unknown.items():
        place = new_folder(what + ", with one set aside", store=contents, store_=good)
        check_refused(what + ", with one set aside", sunspots, place / "store")
        place = new_folder(what + ", set aside", store=good, store_=contents)
        check_refused(what + ", set aside", sunspots, place / "store")
    for what, contents in cut_short.items():
        place = new_folder(what + ", with one set aside", store=contents, store_=older)
        result = run(sunspots, place / "store")
        check(result.returncode == 0 and "kept" in result.stdout, f"{what}: is replaced: {result}")
        check(contents_of(place) == {"store": good, "store~": older}, f"{what}: the one set aside stays")
    place = new_folder("missing, with one set aside", store_=older)
    result = run(sunspots, place / "store")
    check(result.returncode == 0 and "kept" in result.stdout, f"missing: is made anew: {result}")
    check(contents_of(place) == {"store": good, "store~": older}, "missing: the one set aside stays")

    place = new_folder("a status that cannot be read", target=good)
    (place / "store").symlink_to("store")
    check_refused("a status that cannot be read", sunspots, place / "store")

    place = new_folder("CSV", store=good, store_=older)
    (place / "empty").write_bytes(b"")
    (place / "header").write_bytes(b"date,value\n")
    (place / "nothing to read").write_bytes(b"date,value\n1.1.2000,5\n2.1.2000,6\n")
    (place / "directory").mkdir()
    (place / "loop").symlink_to("loop")
    with open(folder / "huge", "wb") as huge:
        huge.truncate(5 << 30)
    (place / "huge").symlink_to(folder / "huge")
    if os.geteuid() != 0:
        (place / "no right").symlink_to(folder / "no right")
        (folder / "no right").touch(mode=0)
    for entry in [*place.iterdir(), place / "missing"]:
        if not entry.name.startswith("store"):
            check_refused(f"CSV, {entry.name}", entry, place / "store")
    check_refused("CSV, the store itself", place / "store", place / "store")
    place = new_folder("CSV is set aside", store=good, store_=sunspots.read_bytes())
    check_refused("CSV is set aside", place / "store~", place / "store")

    place = new_folder("a private store behind a link", target=good)
    (place / "target").chmod(0o600)
    (place / "store").symlink_to("target")
    check(run(sunspots, place / "store").returncode == 0, "a link")
    check(contents_of(place) == {"target": good, "store": "target", "store~": good}, "a link leads to the store")
    check((place / "store~").stat().st_mode & 0o777 == 0o600, "a private store has a private copy")

    texts = {
        "marked": (b"\xef\xbb\xbf1/1/2000,1.5\n1/2/2000,2\n", 0, ["rows        2\n"]),
        "carriage returns": (b"date,value\r1/1/2000,1.5\r1/2/2000,2\r", 0, ["rows        2\n"]),
        "both line ends": (b"date,value\r\n1/1/2000,1.5\r\n\r\n1/2/2000,2", 0, ["rows        2\n"]),
        "no lines": (b"date,value\n1/1/2000,1.5\nno date,2\n1/2/2000,x\n1/3/2000,2.5\n", 2,
                     ["rows        2\n", "line 3 cannot be read: no date,2\n",
                      "line 4 cannot be read: 1/2/2000,x\n"]),
        "no days": (b"1/1/2000,1\n02/30/2000,2\n2/29/1900,3\n13/1/2000,4\n2/29/2000,5\n0/1/2000,6\n"
                    b"1/0/2000,7\n", 2, ["rows        2\n", "line 2 cannot be read: 02/30/2000,2\n", "line 3 ",
                                        "line 4 ", "line 6 ", "line 7 "]),
        "no times": (b"1/1/2000 23:59:59.5,1\n1/1/2000 24:00:00,2\n1/1/2000 10:60:00,3\n"
                     b"1/1/2000 10:00:60,4\n", 2, ["rows        1\n", "2000-01-01T23:59:59.5\n", "line 2 ", "line 3 ",
                                                   "line 4 "]),
        "a long line": (b"1/1/2000,1\n" + b"x" * 5000, 2, [": " + "x" * 80 + "\n"]),
        "no number first": (b"1/1/2000,nan\n1/2/2000,3\n1/3/2000,1\n1/4/2000,nan\n", 0,
                            ["minimum     1\n", "maximum     3\n"]),
        "no number": (b"1/1/2000,nan\n", 0, ["rows        1\n"]),
        "early days": (b"1/1/-5000,1\n12/31/-4714 12:00:00,2\n", 0,
                       ["first date  -005000-01-01T00:00:00\n", "last date   -004714-12-31T12:00:00\n"]),
    }
    for what, (contents, status, expected) in texts.items():
        (folder / "text.csv").write_bytes(contents)
        result = run(folder / "text.csv", folder / f"{what}.zeb")
        check(result.returncode == status, f"{what}: {result}")
        for text in expected:
            check(text in result.stdout + result.stderr, f"{what}: {text!r} is missing in {result}")

    if os.path.exists("/dev/full"):
        with open("/dev/full", "w") as full:
            result = run(sunspots, folder / "untold.zeb", stdout=full)
        check(result.returncode == 1 and result.stderr.count("\n") == 1, f"untold: {result}")

print(f"{len(failures)} failed")
sys.exit(1 if failures else 0)
