"""What the hard runs share: a seed and a count for a long run, of which the tests have a short one, and where they play."""

import argparse
import os
import random
import resource
import tempfile


def arguments(description, count, **programs):
    """programs: by their names, what they are. The count is that of a short run."""
    parser = argparse.ArgumentParser(description=description)
    for name, what in programs.items():
        parser.add_argument(name, type=os.path.abspath, help=what)
    parser.add_argument("--seed", type=int, default=0)
    parser.add_argument("--count", type=int, default=count)
    options = parser.parse_args()
    options.pick = random.Random(options.seed)
    return options


def folder():
    """In memory where there is such a folder: flushing thousands of files to a busy disk takes its time."""
    return tempfile.TemporaryDirectory(prefix="luckycup-hard-", dir="/dev/shm" if os.access("/dev/shm", os.W_OK) else None)


def disk_with(room):
    """For Popen: a disk with so many bytes left for a file. The signal of one that is full is ignored here already."""
    return {"preexec_fn": lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (room, room)), "restore_signals": False}


def rooms(pick, most, wanted):
    """How much room a full disk may have left: as many cases as are wanted, and always the last two."""
    return pick.sample(range(most - 1), min(wanted, most - 1)) + [most - 1, most]
