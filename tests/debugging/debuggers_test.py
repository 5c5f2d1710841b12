"""Has gdb, and LLDB where it can run scripts, show the variables of a program."""

import pathlib
import shutil
import subprocess
import sys

program, root = sys.argv[1], pathlib.Path(sys.argv[2])
failures = []
STRING = '5 of 16, owner = "hello"'
expected = {
    "doubles": "100 of 128, owner = {0, 0.5, 1, 1.5, ...}",
    "link": "3 of 4294967295, link = {0, 0.5, 1}",
    "bytes": "2, link = {7, 200}",
    "string": STRING,
    "wide": '4 of 16, owner = "wide"',
    "strings": "{%s}" % STRING,
    "objects": "1 of 16, owner = {",
    "none": "nil",
}


def check_shown(debugger, output, names):
    lines = {line.split(" = ")[0].split()[-1]: line for line in output.splitlines() if " = " in line}
    for name in names:
        # What stands between the class and the count is the debugger's.
        shown = lines.get(name, "nothing").replace("{ZEB_String at ", "{").replace("nullptr", "nil")
        words = expected[name].strip("{}") if name == "strings" else expected[name]
        if words not in shown:
            failures.append(name)
            print(f"FAILED: {debugger} shows {name} as {shown}, not {expected[name]}")


gdb = subprocess.run(["gdb", "-q", "-batch", "-ex", f"source {root}/debugging/gdb_printers.py", "-ex",
                      "set print elements 4", "-ex", "break stop_here", "-ex", "run", "-ex", "up", "-ex",
                      "info locals", program], capture_output=True, text=True)
if "Breakpoint 1, stop_here" not in gdb.stdout:
    print("skipped: gdb cannot run programs here:", gdb.stderr)
    sys.exit(77)
# By then gdb's limit has cut the strings.
expected |= {"string": '5 of 16, owner = "hell"...', "strings": '5 of 16, owner = "hell"...'}
check_shown("gdb", gdb.stdout, expected)
object_line = next(line for line in gdb.stdout.splitlines() if line.startswith("object = "))
if "ZEB_String at" not in object_line:
    failures.append(object_line)
if shutil.which("lldb"):
    lldb = subprocess.run(["lldb", "-b", "-o", f"command script import {root}/debugging/lldb_formatters.py", "-o",
                           "settings set target.max-children-count 4", "-o", "break set -n stop_here", "-o", "run",
                           "-o", "up", "-o", "frame variable", program], stdin=subprocess.DEVNULL,
                          capture_output=True, text=True, timeout=120)
    if "Traceback" in lldb.stderr:
        print("left out: this LLDB runs no scripts")
    else:
        check_shown("lldb", lldb.stdout, expected)
sys.exit(1 if failures else 0)
