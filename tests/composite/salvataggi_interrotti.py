#!/usr/bin/env python3
"""salvataggi_interrotti.py PROGRAM [N]: kills N savings of a composite beam at random instants.

After each the file must hold one whole beam: the last that was told to lie on the disk, or the one after it.
"""
import os
import pathlib
import random
import signal
import subprocess
import sys
import tempfile
import time


def interrupt(program, file, first):
    """Lets the program save and kills it; the last number that it has told to lie on the disk."""
    with subprocess.Popen([program, "salva", file, str(first)], stdout=subprocess.PIPE, text=True) as process:
        time.sleep(random.uniform(0.002, 0.03))
        process.send_signal(signal.SIGKILL)
        told = process.stdout.read().split()
    assert process.returncode == -signal.SIGKILL, f"ended by itself: {process.returncode}"
    return int(told[-1]) if told else first - 1


def main():
    program = sys.argv[1]
    rounds = int(sys.argv[2]) if len(sys.argv) > 2 else 1000
    random.seed(20260101)
    with tempfile.TemporaryDirectory() as folder:
        file = os.path.join(folder, "trave.sco")
        known = 0
        caught = 0
        for i in range(rounds):
            told = interrupt(program, file, known + 1)
            if not os.path.exists(file):
                assert known == 0 and told == 0, f"round {i}: the file is lost"
                continue
            read = subprocess.run([program, "legge", file], check=False, capture_output=True, text=True)
            assert read.returncode == 0, f"round {i}: the beam is not whole"
            known = int(read.stdout)
            assert told <= known <= told + 1, f"round {i}: {known} after {told}"
            for p in pathlib.Path(folder).iterdir():
                if p.name != "trave.sco":
                    caught += 1
                    p.unlink()
        assert known > 0, "nothing was ever saved"
        print(f"{rounds} interrupted, {caught} of them in the middle of a writing: no beam lost")
    return 0


if __name__ == "__main__":
    sys.exit(main())
