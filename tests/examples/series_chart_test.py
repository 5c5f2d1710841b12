"""Draws series of every kind, and reads the pictures as documents: well-formed, with labels that stand beside
each other, ticks where their labels say, and all points of the series on the curve."""

import os
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree

program, store_program, root = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3])
data = root / "examples/data"
SVG = "{http://www.w3.org/2000/svg}"
MONTHS = "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec".split()
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAILED:", what)


def run(*arguments, **environment):
    return subprocess.run([program, *map(str, arguments)], capture_output=True, text=True, errors="replace",
                          env=os.environ | environment)


def days_since_1970(year, month, day):
    """By counting the leap years of the proleptic Gregorian calendar; March is the first month."""
    year, month = year - (month < 3), (month - 3) % 12
    return 365 * year + year // 4 - year // 100 + year // 400 + (153 * month + 2) // 5 + day - 719469


def box(text, size, upright):
    """Left, top, right and bottom of a text, by generous widths of its characters."""
    shown = "".join(text.itertext())
    width = sum(1 if c in "mwMW@%" or ord(c) > 126 else 0.4 if c in " .,:-il/" else 0.66 for c in shown) * size
    x, y = float(text.get("x")), float(text.get("y"))
    left = x - {"start": 0, "middle": width / 2, "end": width}[text.get("text-anchor")]
    if not upright:
        return left, y - size, left + width, y + size / 4
    return x - size, y + (left - x), x + size / 4, y + (left - x) + width


def texts_of(picture):
    found = []

    def walk(element, size, upright):
        size = float(element.get("font-size", size))
        upright = upright or "rotate" in element.get("transform", "")
        for child in element:
            if child.tag == SVG + "text":
                found.append(("".join(child.itertext()), box(child, size, upright)))
            else:
                walk(child, size, upright)

    walk(picture, 16, False)
    return [(text, place) for text, place in found if text]


def group(picture, name):
    return next(element for element in picture.iter(SVG + "g") if element.get("id") == name)


def check_legible(what, picture):
    texts = texts_of(picture)
    _, _, width, height = map(float, picture.get("viewBox").split())
    for i, (text, (left, top, right, bottom)) in enumerate(texts):
        check(left >= 0 and top >= 0 and right <= width and bottom <= height, f"{what}: {text!r} is cut off")
        for other, place in texts[:i]:
            apart = left >= place[2] or place[0] >= right or top >= place[3] or place[1] >= bottom
            check(apart, f"{what}: {text!r} covers {other!r}")


def instant_of(label, context):
    """The seconds at a tick, from what is written there."""
    if re.fullmatch(r"-?\d+", label) and not context:
        return 86400 * days_since_1970(int(label), 1, 1)
    if label in MONTHS:
        return 86400 * days_since_1970(int(context), MONTHS.index(label) + 1, 1)
    if ":" not in label:
        month, year = context.split()
        return 86400 * days_since_1970(int(year), MONTHS.index(month) + 1, int(label))
    year, month, day = map(int, re.fullmatch(r"([+-]?\d+)-(\d+)-(\d+)", context).groups())
    clock = [float(field) for field in label.split(":")] + [0]
    return 86400 * days_since_1970(year, month, day) + 3600 * clock[0] + 60 * clock[1] + clock[2]


def check_date_ticks(what, picture, first, last):
    """Each label stands where its instant lies between the first and the last."""
    frame = next(group(picture, "frame").iter(SVG + "rect"))
    left, width = float(frame.get("x")), float(frame.get("width"))
    texts = list(group(picture, "dates"))
    upper = min(float(text.get("y")) for text in texts)
    contexts = {text.get("x"): text.text for text in texts if float(text.get("y")) > upper}
    ticks, context = [text for text in texts if float(text.get("y")) == upper], ""
    check(2 <= len(ticks) <= 16, f"{what}: {len(ticks)} dates")
    for tick in ticks:
        context = contexts.get(tick.get("x"), context)
        x = left + width * (instant_of(tick.text, context) - first) / (last - first)
        check(abs(float(tick.get("x")) - x) < 0.1, f"{what}: {tick.text} {context} belongs at {x}")


def number_of(text):
    """A label's number; what is raised is the power of ten."""
    raised = "".join(span.text for span in text)
    return float(re.sub(r"(.*?)\s?10$", r"\1", text.text) or 1) * 10 ** int(raised) if raised else float(text.text)


def check_value_ticks(what, picture, low, high):
    frame = next(group(picture, "frame").iter(SVG + "rect"))
    numbers = [number_of(text) for text in group(picture, "values")]
    check(3 <= len(numbers) <= 10, f"{what}: {len(numbers)} values")
    check(numbers == sorted(set(numbers)), f"{what}: {numbers} ascend")
    step, blur = (numbers[-1] / 2 - numbers[0] / 2) * 2 / (len(numbers) - 1), 1e-9 * max(abs(low), abs(high))
    is_whole = numbers[0] - blur <= low and high <= numbers[-1] + blur
    check(is_whole or high > 1e308, f"{what}: {numbers} leave something out")
    is_close = low - step <= numbers[0] and numbers[-1] <= high + step
    check(is_close or high - low <= blur or high < 1e-280, f"{what}: {numbers} are too far")


def curve_of(picture):
    """The runs of points that are joined, and the dots."""
    path, *dots = group(picture, "curve")
    runs = [[tuple(map(float, point.split())) for point in run.split("L")] for run in path.get("d").split("M")[1:]]
    return runs, dots


def read(path):
    return xml.etree.ElementTree.parse(path).getroot()


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    svg = folder / "picture.svg"

    def draw(what, rows, *more, **environment):
        csv = folder / "series.csv"
        csv.write_text("date,value\n" + "".join(f"{date},{value}\n" for date, value in rows))
        result = run(csv, svg, *more, **environment)
        check(result.returncode == 0 and result.stderr == "" and result.stdout == "", f"{what}: {result}")
        picture = read(svg)
        check_legible(what, picture)
        return picture

    for series, title, unit in (("co2-mauna-loa-monthly", "Carbon dioxide at Mauna Loa", "ppm"),
                                ("sunspots-monthly", "Sunspots", None),
                                ("treering-yearly", "Tree rings", None)):
        result = run(data / (series + ".csv"), svg, title, *([unit] if unit else []))
        check(result.returncode == 0, f"{series}: {result}")
        kept = root / "examples/series_chart/pictures" / (series + ".svg")
        check(svg.read_bytes() == kept.read_bytes(), f"{series}: README's picture is the command's")
        check_legible(series, read(svg))
        rows = [line.split(",") for line in (data / (series + ".csv")).read_text().splitlines()[1:]]
        month, day, first_year = map(int, rows[0][0].split("/"))
        last_month, last_day, last_year = map(int, rows[-1][0].split("/"))
        check_date_ticks(series, read(svg), 86400 * days_since_1970(first_year, month, day),
                         86400 * days_since_1970(last_year, last_month, last_day))
        runs, _ = curve_of(read(svg))
        check(len(runs) == 1, f"{series}: one curve")

    # Spans of time, each from a crooked instant on.
    for span in (0.01, 0.3, 1, 7, 60, 600, 3600, 86400, 3 * 86400, 30 * 86400, 100 * 86400, 366 * 86400,
                 10 * 366 * 86400, 1e10, 2.5e11, 3e13):
        for date, day in (("11/28/1958", days_since_1970(1958, 11, 28)), ("2/27/-4714", days_since_1970(-4714, 2, 27)),
                          ("12/31/-5999", days_since_1970(-5999, 12, 31))):
            for clock, second in (("0:0:0", 0), ("23:59:58.75", 86398.75)):
                end = day * 86400 + second + span
                days, rest = divmod(end, 86400)
                # The reader takes days past the month, but no more than the month has: years hold the rest.
                year = int(days // 365.2425) + 1971
                while days_since_1970(year, 1, 1) > days:
                    year -= 1
                month = next(m for m in range(12, 0, -1) if days_since_1970(year, m, 1) <= days)
                last = f"{month}/{int(days) - days_since_1970(year, month, 1) + 1}/{year} " \
                       f"{int(rest // 3600)}:{int(rest // 60 % 60)}:{rest % 60:.6f}"
                what = f"{span} s from {date} {clock}"
                picture = draw(what, [(f"{date} {clock}", 1), (last, 2)], TZ="America/New_York", LC_ALL="de_DE.UTF-8")
                check_date_ticks(what, picture, day * 86400 + second, end)

    big = 1.7976931348623157e308
    for values in ([1, 1], [0, 0], [-5e-324, 5e-324], [1e-12, 3e-12], [1e300, 2e300], [-1e300, 1e-12], [-big, big],
                   [999999, 1000001], [-0.00001, 0.0002], [123456789.25, 123456789.5], [1, 1 + 1e-15], [-7, 1e6]):
        picture = draw(str(values), [("1/1/2000", values[0]), ("1/2/2000", values[1])])
        check_value_ticks(str(values), picture, *values)

    nan, inf = "nan", "inf"
    for what, values, lengths, dot_count in (("one point", [5], [1], 1), ("no point", [], [], 0),
                                             ("only NaN", [nan] * 5, [], 0),
                                             ("gaps", [nan, 1, 2, inf, 3, nan, nan, 4, 5, 6], [2, 1, 3], 1)):
        picture = draw(what, [(f"1/{i + 1}/2000", value) for i, value in enumerate(values)])
        runs, dots = curve_of(picture)
        check([len(run) for run in runs] == lengths and len(dots) == dot_count, f"{what}: {runs} {len(dots)}")

    # More points than columns: the curve reaches what lies highest and lowest, and gaps stay.
    values = [1000 * (i == 7777) - 500 * (i == 1234) + i % 7 for i in range(20000)]
    rows = [(f"1/1/2000 {i // 3600}:{i // 60 % 60}:{i % 60}", nan if 10000 <= i < 10100 else value)
            for i, value in enumerate(values)]
    runs, dots = curve_of(draw("many points", rows[::-1], "<Many> & \"more\" points \xe9 " * 9))
    heights = [y for run in runs for _, y in run]
    check(len(runs) == 2 and min(heights) < 60 and max(heights) > 380, f"many points: {len(runs)} runs")
    check(len(heights) < 4000 and not dots, f"many points: {len(heights)} of them")

    # A store is as good as its CSV; what is neither is refused, and nothing but a picture is replaced.
    sunspots = data / "sunspots-monthly.csv"
    subprocess.run([store_program, sunspots, folder / "store"], check=True, capture_output=True)
    check(run(folder / "store", folder / "a.svg", "T").returncode == 0, "a store")
    run(sunspots, folder / "b.svg", "T")
    drawn = [(folder / name).read_text().replace("mean number", "") for name in ("a.svg", "b.svg")]
    check(drawn[0] == drawn[1], "a store's picture is its CSV's")
    stored = (folder / "store").read_bytes()
    for what, contents in (("cut short", stored[:900]), ("a word", b"word\n"), ("bytes", os.urandom(999) + b"\n,\n")):
        (folder / "bad").write_bytes(contents)
        before = svg.read_bytes()
        result = run(folder / "bad", svg)
        check(result.returncode == 1 and result.stderr and svg.read_bytes() == before, f"{what}: {result}")
    for what, arguments in (("a foreign file", (sunspots, folder / "store")), ("itself", (folder / "store",) * 2),
                            ("a folder", (sunspots, folder)), ("an unknown unit", (sunspots, svg, "T", "furlong")),
                            ("no folder", (sunspots, folder / "none/a.svg")), ("missing", (folder / "none", svg))):
        result = run(*arguments)
        check(result.returncode == 1 and result.stderr.startswith("series_chart: "), f"{what}: {result}")
        check((folder / "store").read_bytes() == stored and svg.read_bytes() == before, f"{what}: all stays")
    (folder / "part.csv").write_text("date,value\n1/1/2000,1\n1/2/2000,x\n1/3/2000,3\n")
    check(run(folder / "part.csv", svg).returncode == 2, "a line that cannot be read")

print(len(failures), "failed")
sys.exit(1 if failures else 0)
