"""Summarises dated values, and keeps them in a compressed file: python_program.py CSV FILE

The lines of the CSV are "month/day/year,value"; the first may be a heading. The file is one that the C++ program
beside this one writes and reads. Needs numpy, KORVANE_ZEB_LIBRARY (the library's path) and bindings/python in PYTHONPATH."""

import sys

import numpy

import korvane_zeb as zeb

GREATEST_SIZE = 1 << 30  # a small file may claim to hold gigabytes


def read_csv(path):
    days, values = zeb.Int64_Array(), zeb.Double_Array()
    with open(path, encoding="utf-8") as lines:
        for row, line in enumerate(filter(str.strip, lines)):
            date, _, number = line.partition(",")
            try:
                month, day, year = map(int, date.split("/"))
                value = float(number)
            except ValueError:
                if row == 0:
                    continue
                raise ValueError(f"{line.strip()} is no date and value") from None
            days.append(zeb.dates.julian_day(year, month, day))
            values.append(value)
    if not len(values):
        raise ValueError("no dated values")
    return days, values


def load(path):
    records = zeb.Records(path, greatest_size=GREATEST_SIZE)
    days, values = records.read(zeb.Int64_Array), records.read(zeb.Double_Array)
    if not len(values) or len(days) != len(values):
        raise ValueError("not a series")
    return days, values


def summary(days, values):
    numbers, dates = values.numpy(), days.numpy()  # views, not copies
    first, last = (iso_text(int(day)) for day in (dates.min(), dates.max()))
    return (f"{len(values)} values from {first} to {last}\n"
            f"least {numbers.min():g}, median {numpy.median(numbers):.12g}, mean {numbers.mean():.12g}, "
            f"greatest {numbers.max():g}")


def iso_text(day):
    year, month, day = zeb.dates.date_of_julian_day(day)
    return f"{year:04}-{month:02}-{day:02}" if year >= 0 else f"{year:07}-{month:02}-{day:02}"


def main():
    if len(sys.argv) != 3:
        sys.exit("usage: python_program.py CSV FILE")
    source, path = sys.argv[1:]
    days, values = read_csv(source)
    zeb.write_records(path, days, values)  # the old file stays until the new one is whole
    print(summary(*load(path)), flush=True)


if __name__ == "__main__":
    try:
        main()
    except (OSError, ValueError, EOFError, MemoryError) as failure:
        sys.exit(f"python_program: {failure}")
