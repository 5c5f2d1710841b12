"""Runs of a program in which one call to the platform fails, or is the last, as planned."""

import concurrent.futures
import errno
import os
import pathlib
import subprocess
import tempfile

ANSWERS_0, DOES_HALF, IS_THE_LAST = 0, -1, -2

# Calls, and what becomes of them: of one of them, or, with "+", also of all behind it. Those of the second
# kind are no failures.
failing = [("open", errno.EIO), ("read", errno.EIO), ("read", ANSWERS_0), ("write", errno.ENOSPC),
           ("write", ANSWERS_0), ("close", errno.EIO), ("rename", errno.EIO), ("ftruncate", errno.EIO),
           ("stat", errno.EIO), ("stat", errno.EACCES), ("lstat", errno.EIO), ("fstat", errno.EIO),
           ("fchmod", errno.EPERM), ("fsync", errno.EIO), ("copy_file_range", ANSWERS_0),
           ("memory", errno.ENOMEM), ("file", IS_THE_LAST), ("memory+", errno.ENOMEM)]
harmless = [("open", errno.EINTR), ("read", errno.EINTR), ("read", DOES_HALF), ("write", errno.EINTR),
            ("write", DOES_HALF), ("close", errno.EINTR), ("ftruncate", errno.EINTR),
            ("fsync", errno.EINTR), ("fchown", errno.EPERM), ("copy_file_range", errno.EIO),
            ("copy_file_range", DOES_HALF)]
every = {call for call, outcome in failing + harmless} - {"memory+"}


def run(command, library, folder, call="", number=0, outcome=0, counts=None):
    """Runs a command whose calls on files beneath a folder count, and its allocations after the first of
    these."""
    environment = dict(os.environ)
    if call:
        environment.update(LD_PRELOAD=library, ZEB_FAILING_FOLDER=str(folder), ZEB_FAILING_CALL=call,
                           ZEB_FAILING_NUMBER=str(number), ZEB_FAILING_OUTCOME=str(outcome))
    if counts:
        environment["ZEB_FAILING_COUNTS"] = str(counts)
    return subprocess.run(command, env=environment, capture_output=True, text=True)


def counted_run(command, library, folder):
    """Runs a command without faults, and returns how many calls of each kind it makes."""
    with tempfile.TemporaryDirectory() as place:
        counts = pathlib.Path(place) / "counts"
        result = run(command, library, folder, "file", 0, 0, counts)
        return result, {line.split()[0]: int(line.split()[1]) for line in counts.read_text().splitlines()}


def jobs_of(calls, interesting=every):
    """Each fault that a run with so many calls may meet: call, number, outcome."""
    return [(call, number, outcome) for call, outcome in failing + harmless if call in interesting
            for number in range(1, calls[call.rstrip("+")] + 1)]


def at_once(work, jobs):
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for job in [pool.submit(work, *job) for job in jobs]:
            job.result()
