"""What the checks of this folder share: where the repository is, and which files belong to it."""

import os
import subprocess
import sys

ROOT = os.path.dirname(os.path.dirname(os.path.dirname(os.path.abspath(__file__))))


def git(root, *arguments):
    """What git prints."""
    # The option lets the check run in a clone that belongs to another user, as in a container.
    command = ["git", "-c", "safe.directory=*", "-C", root, *arguments]
    return subprocess.run(command, check=True, stdout=subprocess.PIPE).stdout.decode()


def files(root=ROOT):
    """The files of the repository, also those not added yet, as sorted paths from its root."""
    listed = git(root, "ls-files", "-z", "--cached", "--others", "--exclude-standard").split("\0")
    return sorted(path for path in set(listed) if path and os.path.isfile(os.path.join(root, path)))


def read(path, root=ROOT):
    with open(os.path.join(root, path), encoding="utf-8", errors="replace") as file:
        return file.read()


def finish(check, findings, looked_at):
    """Prints the findings and ends the program: 1 when there are any, or when there was nothing to look at."""
    for finding in findings:
        print(finding, file=sys.stderr)
    print(f"{check}: {looked_at} looked at, {len(findings)} findings")
    sys.exit(1 if findings or not looked_at else 0)
