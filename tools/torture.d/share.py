# SPDX-FileCopyrightText: 2026 The developers of VOK
# SPDX-License-Identifier: GPL-3.0-or-later

"""A share directory that another user can change."""

import os
import pathlib
import shutil
import subprocess

from frame import BUILD, case, lost_if, needs_root, struck

_NOBODY = 65534


def _start(stage, share, under=()):
    """What the program says within some seconds, without a display: if it is not refused, it waits."""
    variables = dict(os.environ, VOKROOT=str(stage.root), VOKSHARE=str(share), QT_QPA_PLATFORM="")
    for name in ("DISPLAY", "WAYLAND_DISPLAY"):
        variables.pop(name, None)
    done = subprocess.run([*under, BUILD / "bin" / "vok"], env=variables, capture_output=True, text=True, timeout=60)
    return done.stderr


@case("VOKSHARE names what another user owns, or may write to")
def others(stage):
    needs_root()
    for name in ("owner", "file", "above"):
        above = stage.place / name
        share = above / "share"
        shutil.copytree(BUILD / "share" / "vok", share)
        refused = share / "python" / "YumIO.py"
        if name == "owner":
            os.chown(refused, _NOBODY, _NOBODY)
        else:
            refused = refused if name == "file" else above
            refused.chmod(0o777)
        told = _start(stage, share)
        lost_if(str(refused) not in told or "VOKSHARE" not in told, f"{name}: {told}")
        told = _start(stage, share, ["unshare", "--user", "--map-root-user"])
        lost_if(str(refused) in told, f"{name}: refused in a user namespace: {told}")
        struck(pathlib.Path(refused).stat().st_mode & 2 or pathlib.Path(refused).stat().st_uid, "nobody else may write")
