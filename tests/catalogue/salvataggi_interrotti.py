#!/usr/bin/env python3
"""salvataggi_interrotti.py PROGRAM [N]: kills N savings of a user's workbook at random instants.

After each the workbook must be readable, by the program and by xlrd, and hold every row whose saving was over.
"""
import os
import pathlib
import random
import signal
import subprocess
import sys
import tempfile
import time

try:
    import xlrd
except ImportError:
    xlrd = None


def names_of(program, file):
    """Names of the rows, as the program reads them; xlrd has to agree."""
    listed = subprocess.run([program, "elenca", file], check=True, capture_output=True, text=True).stdout
    cells = [line.split("\t") for line in listed.splitlines()]
    names = [c[3][1:] for c in cells if c[0] == "DoppioT Simmetrico" and c[2] == "0" and c[1] != "0"]
    if xlrd is not None:
        sheet = xlrd.open_workbook(file).sheet_by_name("DoppioT Simmetrico")
        assert sheet.col_values(0)[1:] == names, "xlrd reads other rows"
    return names


def interrupt(program, file, first):
    """Lets the program add rows and kills it; the names of those that it has told to lie on the disk."""
    with subprocess.Popen([program, "aggiunge", file, str(first)], stdout=subprocess.PIPE, text=True) as process:
        time.sleep(random.uniform(0.002, 0.06))
        process.send_signal(signal.SIGKILL)
        told = process.stdout.read().splitlines()
    assert process.returncode == -signal.SIGKILL, f"ended by itself: {process.returncode}"
    return told


def main():
    program = sys.argv[1]
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 1000
    random.seed(20260101)
    with tempfile.TemporaryDirectory() as folder:
        file = os.path.join(folder, "SagomiUtente.xls")
        subprocess.run([program, "nuova", file], check=True)
        known = []
        caught = 0
        for i in range(rounds):
            told = interrupt(program, file, len(known))
            names = names_of(program, file)
            assert names[: len(known)] == known, f"round {i}: earlier rows are lost"
            assert names[len(known):][: len(told)] == told, f"round {i}: a row that was told is missing"
            assert len(names) <= len(known) + len(told) + 1
            temporary = [p for p in pathlib.Path(folder).iterdir() if p.name != "SagomiUtente.xls"]
            caught += len(temporary)
            for p in temporary:
                p.unlink()
            if len(names) > 300:  # small enough to be quick
                os.unlink(file)
                subprocess.run([program, "nuova", file], check=True)
                names = []
            known = names
        print(f"{rounds} interrupted, {caught} of them in the middle of a writing: no row lost")
    return 0


if __name__ == "__main__":
    sys.exit(main())
