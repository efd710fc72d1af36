#!/usr/bin/python3
"""uccidi.py PROGRAM KIND [N]: kills N savings of a file of that kind at random instants.

After each the file must be, byte for byte, one that was saved undisturbed: the last that was told to lie on the disk,
or the one after it.
"""
import os
import pathlib
import random
import signal
import subprocess
import sys
import tempfile
import time


def interrupt(program, kind, file, first):
    """Lets the program save and kills it; the last number that it has told to lie on the disk."""
    with subprocess.Popen([program, kind, file, str(first), "..."], stdout=subprocess.PIPE, text=True) as process:
        time.sleep(random.uniform(0.002, 0.03))
        process.send_signal(signal.SIGKILL)
        told = process.stdout.read().split("\n")[:-1]
    assert process.returncode == -signal.SIGKILL, f"ended by itself: {process.returncode}"
    return int(told[-1]) if told else first - 1


def undisturbed(program, kind, folder, name, number):
    """The bytes of the file of that number."""
    file = os.path.join(folder, name)
    subprocess.run([program, kind, file, str(number)], check=True, stdout=subprocess.DEVNULL)
    return pathlib.Path(file).read_bytes()


def main():
    program, kind = sys.argv[1:3]
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 1000
    random.seed(20260101)
    name = "Sagomi.ini" if kind == "ini" else "file." + kind
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory() as aside:
        file = os.path.join(folder, name)
        known = 0
        caught = 0
        for i in range(rounds):
            told = interrupt(program, kind, file, known + 1)
            if not os.path.exists(file):
                assert known == 0 and told == 0, f"round {i}: the file is lost"
                continue
            found = pathlib.Path(file).read_bytes()
            number = told + 1
            if found != undisturbed(program, kind, aside, name, number):
                number = told
                assert number > 0, f"round {i}: not whole"
                assert found == undisturbed(program, kind, aside, name, number), f"round {i}: not the file of {told}"
            known = number
            for p in pathlib.Path(folder).iterdir():
                if p.name != name:
                    caught += 1
                    p.unlink()
        assert known > 0, "nothing was ever saved"
        print(f"{kind}: {rounds} interrupted, {caught} of them in the middle of a writing: nothing lost")
    return 0


if __name__ == "__main__":
    sys.exit(main())
