"""The built program in a folder of its own, where nobody else's scores lie."""

import pathlib
import shutil


def own_copy(program, folder, songs=None):
    """Returns the program in that folder, which is made; what lies beside it there is shared, but for the scores. songs:
    a folder of others. Where it lies itself tells the program where its files lie, so that it is no link."""
    program, folder = pathlib.Path(program), pathlib.Path(folder)
    (folder / "scores").mkdir(parents=True)
    for part in program.parent.iterdir():
        if part.name not in ("scores", program.name):
            (folder / part.name).symlink_to(songs if songs and part.name == "BGMusic" else part.absolute())
    return pathlib.Path(shutil.copy(program, folder))
