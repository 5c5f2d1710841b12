"""Runs the first program, and holds the README's text of it, and its compile line, against what there is."""

import pathlib
import shlex
import struct
import subprocess
import sys
import tempfile
import zlib

program, project, build, compiles = sys.argv[1], pathlib.Path(sys.argv[2]), sys.argv[3], sys.argv[4] == "1"
readme = (project / "README.md").read_text()
chapter = readme.split("## A first program\n")[1].split("\n## ")[0]
failures = []


def check(condition, what):
    if not condition:
        failures.append(what)
        print("FAILED:", what)


def run(*arguments, of=program):
    return subprocess.run([of, *map(str, arguments)], capture_output=True, text=True)


with tempfile.TemporaryDirectory() as name:
    folder = pathlib.Path(name)
    printed = chapter.split("It prints\n\n")[1].split("\n\n")[0].replace("    ", "") + "\n"
    for turn in (1, 2):
        result = run(folder / "values")
        check((result.returncode, result.stdout, result.stderr) == (0, printed, ""), f"run {turn}: {result}")
        check((folder / "values~").exists() == (turn == 2), f"run {turn}: what is set aside")
    check(zlib.decompress((folder / "values").read_bytes())[64:] == struct.pack("=I3d", 3, 2.5, -1, 1e6),
          "the values are stored")
    (folder / "loop").symlink_to("loop")
    for arguments in ([], [folder], [folder / "missing/values"], [folder / "loop"]):
        result = run(*arguments)
        check(result.returncode == 1 and result.stderr, f"{arguments}: {result}")
    check(folder.exists() and not pathlib.Path(name + "~").exists(), "a folder is not set aside")

    source = project / "examples/first_program/first_program.mm"
    check(chapter.split("```objc\n")[1].split("```")[0] == source.read_text(), "the README shows the program")
    if compiles:
        line = chapter.split("\n    g++ ")[1].split("\n    ./")[0].replace("\\\n", " ")
        for shown, meant in {"$PWD/": "", "build/dev": build, "-o first_program": f"-o {folder}/made"}.items():
            line = line.replace(shown, meant)
        result = subprocess.run(["g++", *shlex.split(line)], cwd=project, capture_output=True, text=True)
        check(result.returncode == 0 and result.stderr == "", f"the compile line: {result}")
        check(run(folder / "other", of=folder / "made").stdout == printed, "what it made prints the same")

print(f"{len(failures)} failed")
sys.exit(1 if failures else 0)
