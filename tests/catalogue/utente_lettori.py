#!/usr/bin/env python3
"""utente_lettori.py PROGRAM: a user's workbook with added, changed and completed rows, read by others.

xlrd and, where it is installed, LibreOffice Calc must read the same texts and figures; what Calc saves as .xls
must read back the same.
"""
import csv
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

try:
    import xlrd
except ImportError:
    sys.exit(77)


def cells_of(program, file):
    """(sheet, row, column): value, as the program reads it."""
    listed = subprocess.run([program, "elenca", file], check=True, capture_output=True, text=True).stdout
    cells = {}
    for line in listed.splitlines():
        sheet, row, column, value = line.split("\t")
        cells[sheet, int(row), int(column)] = value[1:] if value[0] == "'" else float(value)
    return cells


def read_by_xlrd(file):
    cells = {}
    for sheet in xlrd.open_workbook(file).sheets():
        for row in range(sheet.nrows):
            for column, cell in enumerate(sheet.row(row)):
                if cell.ctype not in (xlrd.XL_CELL_EMPTY, xlrd.XL_CELL_BLANK):
                    cells[sheet.name, row, column] = cell.value
    return cells


def calc(folder, file, kind):
    """Lets LibreOffice Calc convert a file into a folder."""
    home = f"-env:UserInstallation=file://{folder}/profile"
    subprocess.run(["soffice", home, "--headless", "--convert-to", kind, "--outdir", folder, file],
                   check=True, capture_output=True, timeout=240)


def read_by_calc(folder, file):
    # fields between commas, UTF-8, cells not as shown but with all figures, every sheet
    calc(folder, file, "csv:Text - txt - csv (StarCalc):44,34,76,1,,1033,false,false,false,false,false,-1")
    cells = {}
    for table in pathlib.Path(folder).glob("*.csv"):
        sheet = table.stem.split("-", 1)[1]
        with open(table, encoding="utf-8", newline="") as text:
            for row, fields in enumerate(csv.reader(text)):
                for column, field in enumerate(fields):
                    if field:
                        cells[sheet, row, column] = field
    return cells


def same(ours, theirs, who):
    assert set(ours) == set(theirs), (who, set(ours) ^ set(theirs))
    for place, value in ours.items():
        other = theirs[place]
        if isinstance(value, float):
            assert abs(float(other) - value) <= 1e-9 * abs(value), (who, place, value, other)
        else:
            assert other == value, (who, place, value, other)
    print(f"{who}: {len(ours)} cells")


def main():
    program = sys.argv[1]
    with tempfile.TemporaryDirectory() as folder:
        file = os.path.join(folder, "SagomiUtente.xls")
        subprocess.run([program, "prova", file], check=True)
        ours = cells_of(program, file)
        assert len(ours) == 18 + 21 + 3 * 18 + 21, len(ours)
        same(ours, read_by_xlrd(file), "xlrd")
        if shutil.which("soffice") is None:
            print("LibreOffice Calc is not installed")
            return 0
        table = os.path.join(folder, "csv")
        os.mkdir(table)
        same(ours, read_by_calc(table, file), "LibreOffice Calc")
        saved = os.path.join(folder, "xls")
        os.mkdir(saved)
        calc(saved, file, "xls")
        same(ours, cells_of(program, os.path.join(saved, "SagomiUtente.xls")), "saved by LibreOffice Calc")
    return 0


if __name__ == "__main__":
    sys.exit(main())
