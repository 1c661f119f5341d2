"""Runs commands for the tests of what leaves the house."""

import subprocess


def run(*command, **options):
    """What a command writes to standard output; all that it writes when it fails."""
    done = subprocess.run(list(map(str, command)), capture_output=True, text=True, check=False, **options)
    if done.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, command))}: {done.returncode}\n{done.stdout}{done.stderr}")
    return done.stdout
