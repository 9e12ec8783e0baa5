#!/usr/bin/python3
"""sound_files.py SOURCES FOLDER: every sound that the code names has a file of exactly that name in the program's
folder, which opens and lasts as long as cases/sound_files.txt wants; and there is no other one."""

import pathlib
import re
import sys

from heard import RATE, read

LIMITS = pathlib.Path(__file__).with_name("cases") / "sound_files.txt"


def named_in(sources):
    """The files of the effects and of the pieces of music."""
    paths = [path for room in ("core", "table", "dialogs", "sound") for path in sources.glob(f"{room}/*.cpp")]
    code = "".join(path.read_text() for path in paths)
    calls = re.findall(r"PlayEffect(?:Wait)?\((.*)\);", code)
    effects = {f"{name}.WAV" for call in calls for name in re.findall(r'"(\w+)"', call)}
    return effects | set(re.findall(r'"(\w+\.mp3)"', code))


def main():
    sources, folder = map(pathlib.Path, sys.argv[1:])
    rows = [line.split() for line in LIMITS.read_text().splitlines() if line[0] != "#"]
    wanted = {path for _, _, path in rows}
    files = {str(path.relative_to(folder)) for path in folder.glob("*/*") if path.suffix in (".WAV", ".mp3")}
    faults = [f"{path} is not both wanted and a file" for path in wanted ^ files]
    names = {pathlib.Path(path).name for path in wanted}
    faults += [f"{name} is not both wanted and named in the code" for name in names ^ named_in(sources)]
    for least, most, path in rows:
        if path in files and not float(least) <= (seconds := len(read(folder / path)) / RATE) <= float(most):
            faults.append(f"{path} lasts {seconds} s, wanted {least} to {most}")
    if faults:
        sys.exit("\n".join(faults))


main()
