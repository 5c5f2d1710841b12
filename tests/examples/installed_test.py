"""Installs what was built, builds each example as a project of its own over that, and runs it: what a user has."""

import csv
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile

cmake, build, project, python = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3]), sys.argv[4]
programs = {"cpp_program": ["-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror", "23"],
            "first_program": ["-Wall -Wextra -Werror", "20"], "c_program": ["-Wall -Wextra -Werror", "20"],
            "arc_program": ["-Wall -Wextra -Werror", "20"]}
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAILED:", what)


def run(*command, **environment):
    return subprocess.run([*map(str, command)], capture_output=True, text=True, env={**os.environ, **environment})


def build_alone(name, prefix, folder):
    """Builds an example away from this project, with flags and a standard that are the user's."""
    flags, standard = programs[name]
    made = folder / name
    for command in ([cmake, "-S", project / "examples" / name, "-B", made, f"-DCMAKE_PREFIX_PATH={prefix}",
                     f"-DCMAKE_CXX_STANDARD={standard}",
                     *(f"-DCMAKE_{language}_FLAGS={flags}" for language in ("C", "CXX", "OBJC", "OBJCXX"))],
                    [cmake, "--build", made]):
        result = run(*command)
        check(result.returncode == 0 and "warning" not in result.stdout + result.stderr,
              f"{name}: {result.stdout}{result.stderr}")
    return made / name


def check_engine_alone(folder):
    """The engine is configured by a C++ compiler alone, and has all headers that its users include."""
    made = folder / "engine"
    no_compiler = {language: "/nowhere" for language in ("CC", "OBJC", "OBJCXX")}
    for command in ([cmake, "-S", project, "-B", made, "-DZEB_ENGINE_ONLY=ON", "-DZEB_BUILD_TESTS=OFF"],
                    [os.environ["CXX"], "-std=c++20", "-fsyntax-only", f"-I{made}/include",
                     project / "examples/cpp_program/cpp_program.cpp"]):
        result = run(*command, **no_compiler)
        check(result.returncode == 0, f"the engine alone: {result.stdout}{result.stderr}")


def expected_summary(path):
    """The least, median, mean and greatest of a series, by Python's own means, and its dates."""
    with open(path, encoding="utf-8") as lines:
        rows = [(date.split("/"), float(value)) for date, value in list(csv.reader(lines))[1:]]
    values = [value for _, value in rows]
    dates = sorted((int(year), int(month), int(day)) for (month, day, year), _ in rows)
    return values, [len(values), min(values), statistics.median(values), statistics.fmean(values), max(values)], dates


def numbers_of(text):
    """The numbers of a summary: how many values there are, then those behind its words."""
    words = text.replace(",", "").split()
    return [float(words[0]), *(float(words[i + 1]) for i, word in enumerate(words)
                               if word in ("least", "median", "mean", "greatest"))]


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    check_engine_alone(folder)
    prefix = folder / "installed"
    result = run(cmake, "--install", build, "--prefix", prefix)
    check(result.returncode == 0, f"install: {result.stdout}{result.stderr}")
    in_cpp = [build_alone("cpp_program", prefix, folder)]
    library = next(prefix.glob("lib*/**/libKorvane_ZEB.so"))
    in_python = [python, project / "examples/python_program/python_program.py"]
    os.environ.update(KORVANE_ZEB_LIBRARY=str(library), PYTHONPATH=str(project / "bindings/python"))
    for series in sorted((project / "examples/data").glob("*.csv")):
        printed, stored = set(), []
        values, expected, dates = expected_summary(series)
        for command in [in_cpp] + ([in_python] if python else []):
            stored.append(folder / f"stored{len(stored)}")
            result = run(*command, series, stored[-1])
            check(result.returncode == 0 and result.stderr == "", f"{command} {series}: {result}")
            printed.add(result.stdout)
        check(len(printed) == 1, f"both print the same: {printed}")
        check(len({path.read_bytes() for path in stored}) == 1, "both store the same bytes")
        text = printed.pop()
        check(all(abs(a - b) <= 1e-11 * abs(b) for a, b in zip(numbers_of(text), expected, strict=True)),
              f"{series}: {text} {expected}")
        ends = [f"{year:05}-{month:02}-{day:02}" for year, month, day in (dates[0], dates[-1])]
        found = [word.replace("-00", "-0") for word in text.split() if word.count("-") >= 2]
        check([end.lstrip("0-") for end in ends] == [word.lstrip("0-") for word in found], f"{ends} {found}")
    for command in [in_cpp] + ([in_python] if python else []):
        kept = stored[0].read_bytes()
        damaged = folder / "damaged"
        damaged.write_text("date,value\n1/1/2000,5\n1/2/2000,x\n")
        for source in (folder / "missing", folder, stored[0], damaged):
            result = run(*command, source, stored[0])
            check(result.returncode == 1 and result.stderr and stored[0].read_bytes() == kept,
                  f"{command} {source}: {result}")
    for name, *arguments in (("first_program", folder / "values"), ("c_program", "2024-01-31", "1", "0.5"),
                             ("arc_program", folder / "diary", "2024-01-31", "0.5")):
        alone = run(build_alone(name, prefix, folder), *arguments)
        built = run(pathlib.Path(build) / "examples" / name / name, *arguments)
        check(alone.returncode == 0 and alone.stdout == built.stdout, f"{name}: {alone} {built}")

print(f"{len(failures)} failed")
sys.exit(1 if failures else 0)
