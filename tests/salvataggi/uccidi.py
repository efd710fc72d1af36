#!/usr/bin/python3
"""uccidi.py PROGRAM KIND [N]: kills N savings of a file of that kind at random instants.

After each the file must be, byte for byte, one that was saved undisturbed: the last that was told to lie on the disk,
or the one after it.
"""
import os
import pathlib
import random
import re
import signal
import subprocess
import sys
import tempfile
import time


# What two documents of the same content differ in: when they were made, and where that moves their tables to.
MADE = re.compile(rb"D:\d{14}[^)]*|\d{4}-\d\d-\d\dT[\d:.+Z-]+|uuid:[-0-9a-f]+|<[0-9a-f]{32}>|startxref\s+\d+")


def content(file):
    """The bytes of a file, without what depends on the moment."""
    found = pathlib.Path(file).read_bytes()
    return MADE.sub(b"", found) if found.startswith(b"%PDF") else found


def interrupt(program, kind, file, first, longest):
    """Lets the program save and kills it after so many seconds at most; the last number that it has told to lie on the disk."""
    with subprocess.Popen([program, kind, file, str(first), "..."], stdout=subprocess.PIPE, text=True) as process:
        time.sleep(random.uniform(0.002, longest))
        process.send_signal(signal.SIGKILL)
        told = process.stdout.read().split("\n")[:-1]
    assert process.returncode == -signal.SIGKILL, f"ended by itself: {process.returncode}"
    return int(told[-1]) if told else first - 1


def undisturbed(program, kind, folder, name, number):
    """The bytes of the file of that number."""
    file = os.path.join(folder, name)
    subprocess.run([program, kind, file, str(number)], check=True, stdout=subprocess.DEVNULL)
    return content(file)


def main():
    program, kind = sys.argv[1:3]
    rounds = int(sys.argv[3]) if len(sys.argv) > 3 else 1000
    random.seed(20260101)
    os.environ["QT_HASH_SEED"] = "0"  # or fonts stand in the order of the moment
    name = "Sagomi.ini" if kind == "ini" else "file." + kind
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryDirectory() as aside:
        os.environ.setdefault("XDG_RUNTIME_DIR", aside)
        file = os.path.join(folder, name)
        began = time.monotonic()
        undisturbed(program, kind, aside, name, 1)
        longest = max(0.03, 1.5 * (time.monotonic() - began))
        known = 0
        caught = 0
        for i in range(rounds):
            told = interrupt(program, kind, file, known + 1, longest)
            if not os.path.exists(file):
                assert known == 0 and told == 0, f"round {i}: the file is lost"
                continue
            found = content(file)
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
